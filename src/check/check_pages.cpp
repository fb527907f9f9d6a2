#include "check/check_pages.h"

#include <memory>
#include <string>

#include "check/ending_desktop.h"
#include "functions/catalog.h"
#include "report/engine/composer.h"
#include "run/print_run.h"

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

}  // namespace

void MakePages(PrintRun& run, const PrintFunction& function, DataSetKind kind) {
  ListModules(run, function, kind);
  for (int index = 0; index <= run.Session.ModuleLast; ++index) {
    MakePagesOf(run, run.Session.ModuleNames[index]);
  }
}

}  // namespace tarvis
