// What the print system says to a job, and what it is told.
#pragma once

#include <QString>

class QPrinter;

namespace tarvis {

// Why the print system refused the job that this thread has just handed to it, in one sentence, in its own
// words where they tell the reason; empty if it took the job. The toolkit doesn't pass that on, so the print
// system's client library is asked, where the toolkit prints through one.
QString RefusalOfLastJob();

// From now on nothing that this thread prints reaches the print system: there the toolkit hands over what was
// painted so far even of a job that was aborted.
void DropJobsOfThisThread();

// Has the print system print all pages that it gets. The toolkit leaves the choice of pages and of a page set
// in part to it, and it would count the pages that it gets, not the document's.
void TakeOverChoiceOfPages(QPrinter& printer);

}  // namespace tarvis
