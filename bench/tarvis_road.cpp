// The program's way of making a document: from the host's files to pages, PDF and printer.
#include <QImage>

#include "document_roads.h"
#include "functions/catalog.h"
#include "pictures/picture_file_loader.h"
#include "platform/system/text_measurer.h"
#include "preview/jobs/printing.h"
#include "preview/output/page_choice.h"
#include "preview/output/pdf_export.h"
#include "preview/pages/page_layout.h"
#include "preview/pages/page_pictures.h"
#include "printfiles/host_files.h"
#include "printfiles/sim_file.h"
#include "printfiles/user_file.h"
#include "report/engine/composer.h"
#include "report/rptTarvis.h"
#include "run/print_run.h"
#include "support/fake_desktop.h"
#include "support/fake_windows.h"

namespace tarvis {
namespace {

constexpr int PageWidth = 794;  // A4 at 96 dots to the inch

bool GoOn(int /*done*/, int /*all*/) {
  return true;
}

class OwnRoad : public DocumentRoad {
 public:
  explicit OwnRoad(const BenchJob& job) {
    PrintSession& session = run_.Session;
    session.Mode = ModeOf(job.Mode);
    session.TempFolder = job.Folder;
    session.OverlapMode = job.Overlapped > 0 ? 1 : 0;
    session.OverlapNum = job.Overlapped;
    session.ShowPrmName = session.ShowPrmUnit = session.ShowPrmDefault = session.ShowPrmSwitches = 1;
    session.ActiveHeader = {1, 1, 1, 1, 1, "Bench"};
    run_.Options.UserHeader = run_.Options.SimHeader = session.ActiveHeader;
    run_.Options.UserOption.fill(1);
    run_.Options.SimOption.fill(1);
  }

  void Read() override {
    const bool isRead =
        LoadLines(run_, run_.Session.TempFolder + std::string(TextOf(run_.Session.Mode)) + ".tmp") >= 0 &&
        (run_.Session.Mode == Mode::User ? ReadUserFile(run_) : ReadSimFile(run_));
    if (!isRead) qFatal("%s", run_.Session.Diagnosis.c_str());
  }
  void Compose() override {
    const QtTextMeasurer measurer;
    rptTarvis report({run_, pictures_}, AllFunctions(), CreateFunctionReport, windows_);
    run_.Session.MasterReport = &report;
    document_ = tarvis::Compose(report, PageSetup(), measurer);
  }
  int PageCount() const override { return static_cast<int>(document_.Pages.size()); }
  void PaintPage(int page) override {
    RenderPage(document_, page, PageWidth, 0, PagePixelHeight(document_, PageWidth));
  }
  void SavePdf(const QString& path) override {
    const QString error = ExportPdf(document_, path, {}, GoOn);
    if (!error.isEmpty()) qFatal("%s", qPrintable(error));
  }
  void Print(QPrinter& printer) override {
    const std::vector<int> pages = PagesInOrder({}, PageCount());
    const QString error = PrintDocument(document_, pages, printer, PrintScale::AsComposed, GoOn);
    if (!error.isEmpty()) qFatal("%s", qPrintable(error));
  }

 private:
  FakeDesktop desktop_;
  PrintRun run_{desktop_};
  PictureFileLoader pictures_;
  FakeWindows windows_;
  Document document_;
};

}  // namespace

std::unique_ptr<DocumentRoad> TarvisRoad(const BenchJob& job) {
  return std::make_unique<OwnRoad>(job);
}

}  // namespace tarvis
