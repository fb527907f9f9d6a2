#include "check/check_pages.h"

#include <initializer_list>
#include <memory>
#include <string>

#include "check/ending_desktop.h"
#include "functions/catalog.h"
#include "report/data_set.h"
#include "report/engine/composer.h"
#include "run/print_run.h"
#include "session/choices.h"
#include "session/step_range.h"

namespace tarvis {
namespace {

// Replaces every picture, so that the result of a check doesn't depend on the machine.
class AnyPicture : public Picture {
 public:
  float NaturalWidth() const override { return 1; }
  float NaturalHeight() const override { return 1; }
};

class AnyPictureLoader : public PictureLoader {
 public:
  PicturePtr Load(const std::string& /*path*/) override { return std::make_shared<AnyPicture>(); }
  PicturePtr LoadBytes(const std::string& /*name*/, std::string_view /*bytes*/) override {
    return std::make_shared<AnyPicture>();
  }
};

// Nobody sees these pages.
class EvenMeasurer : public TextMeasurer {
 public:
  float AdvanceEm(char32_t /*character*/, bool /*bold*/) const override { return 0.5F; }
};

void MakePagesOf(PrintRun& run, const std::string& name) {
  AnyPictureLoader pictures;
  const std::shared_ptr<ActiveReport> report = CreateFunctionReport(name, {run, pictures});
  if (report == nullptr) return;
  run.Session.MasterReport = report.get();
  try {
    Compose(*report, {}, EvenMeasurer());
  } catch (const RunWouldEnd&) {
    // A picture is missing. The host may write it later, and it may lie on another machine.
  }
  run.Session.MasterReport = nullptr;
}

template <typename Options>
void RequireMarks(PrintRun& run, const Options& options) {
  for (const std::int16_t& option : options) RequireMark(run, option);
}

void RequireHeaderMarks(PrintRun& run) {
  const PrintOptions& options = run.Options;
  // No page of the dialog shows those of the parameter wizard.
  for (const HeaderOptions* header :
       {&options.UserHeader, &options.TraceHeader, &options.RealTraceHeader, &options.MechaHeader,
        &options.SimHeader, &options.IdxTblHeader, &options.ZoneTblHeader, &options.JogTblHeader}) {
    for (const std::int16_t* mark :
         {&header->Title, &header->ModelsInfo, &header->PrintDate, &header->FileName, &header->Pages}) {
      RequireMark(run, *mark);
    }
  }
}

}  // namespace

void MakePages(PrintRun& run, bool overlapResult) {
  ListFunctionModules(run, overlapResult);
  for (int index = 0; index <= run.Session.ModuleLast; ++index) {
    MakePagesOf(run, run.Session.ModuleNames[index]);
  }
}

void RequireChoices(PrintRun& run) {
  const PrintOptions& options = run.Options;
  if (options.Cover != 0) RequireChoice(run, options.SelectCover, 0, static_cast<int>(options.User.size()));
  RequireChoice(run, options.ColorType, 0, 1);
  RequireHeaderMarks(run);
  RequireMarks(run, options.UserOption);
  RequireMarks(run, options.TraceOption);
  RequireMarks(run, options.RealTraceOption);
  RequireMarks(run, options.MechaOption);
  RequireMarks(run, options.SimOption);
  RequireChoice(run, options.IdxTblOption.Range, 0, TypedRange);
  for (const std::int16_t* mark :
       {&options.IdxTblOption.Comment, &options.ZoneTblOption, &options.JogTblOption})
    RequireMark(run, *mark);
}

}  // namespace tarvis
