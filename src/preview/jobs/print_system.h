// What the toolkit doesn't pass on from the print system and to it.
#pragma once

#include <QString>
#include <string_view>

class QPrinter;

namespace tarvis {

// Why the print system refused the job for `printer` that this thread has just handed to it, in one sentence,
// in its own words where they contain the reason; empty if it took the job. The toolkit doesn't pass that on,
// so the print system's client library is asked, where the toolkit prints through one.
[[nodiscard]] QString RefusalOfLastJob(const QString& printer);

// From now on nothing that this thread prints reaches the print system: there the toolkit hands over what was
// painted so far even of a job that was aborted.
void DropJobsOfThisThread();

// Whether the print system of that printer takes PDFs as they are.
[[nodiscard]] bool TakesPdf(const QPrinter& printer);

// Hands a PDF to such a print system, with all that is set in `printer` but the choice of pages; no file is
// made of it on the way. Returns why the print system refused it, as RefusalOfLastJob does; empty if it took
// it.
[[nodiscard]] QString HandOverPdf(std::string_view pdf, const QPrinter& printer);

// Makes the print system print all pages that it gets. The toolkit leaves part of the choice of pages and
// page set to it, and it would count the pages that it gets, not those of the document.
void TakeOverChoiceOfPages(QPrinter& printer);

}  // namespace tarvis
