// What the print system says to a job.
#pragma once

#include <QString>

namespace tarvis {

// Why the print system refused the job that this thread has just handed to it, in its own words; empty if it
// took the job. The toolkit doesn't pass that on, so the print system's client library is asked, where the
// toolkit prints through one.
QString RefusalOfLastJob();

// From now on nothing that this thread prints reaches the print system: there the toolkit hands over what was
// painted so far even of a job that was aborted.
void DropJobsOfThisThread();

}  // namespace tarvis
