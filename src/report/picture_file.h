// Picture files that the host or the user names: one that isn't there is a numbered failure.
#pragma once

#include <string>

#include "report/report_context.h"
#include "run/failures.h"

namespace tarvis {

// Loads the picture of `path` if the file is there, else reports `failure`; `report` is who asked.
PicturePtr LoadPictureOrFail(ReportContext context, const char* report, const std::string& path,
                             Failure failure);

}  // namespace tarvis
