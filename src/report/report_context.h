// What a report definition is given to work with.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "report/engine/active_report.h"
#include "report/engine/picture.h"

namespace tarvis {

struct PrintRun;

// Both outlive every report of the run.
struct ReportContext {
  PrintRun& Run;
  PictureLoader& Pictures;
};

// Makes a new function report by its name in the module list; empty for a name without a definition.
using ReportFactory =
    std::function<std::shared_ptr<ActiveReport>(const std::string& name, ReportContext context)>;

}  // namespace tarvis
