#include "pdf/program.h"

#include <ctime>
#include <memory>

#include "pdf/document_maker.h"
#include "pdf/interruption.h"
#include "pdf/pdf_error.h"
#include "pdf/prepare_run.h"
#include "pdf/progress_line.h"
#include "pdf/quiet_toolkit.h"
#include "platform/system/fonts.h"
#include "platform/system/host_settings.h"
#include "platform/system/standard_output.h"
#include "platform/system/usual_paper.h"
#include "preview/output/whole_file.h"
#include "run/print_run.h"

namespace tarvis {
namespace {

constexpr const char* StandardOutput = "-";

void WriteOutput(const std::string& pdf, const std::string& output) {
  if (output != StandardOutput) {
    const QString failure = WriteWholeFile(pdf, output);
    if (!failure.isEmpty()) throw PdfError(failure.toStdString());
    return;
  }
  const std::string failure = WriteStandardOutput(pdf);
  if (!failure.empty()) throw PdfError("standard output can't be written: " + failure);
}

// Checked before the work starts, where that is possible.
void RequireOutput(const PdfOrder& order, const PdfProcess& process) {
  if (order.Task != PdfTask::MakeDocument || order.Output != StandardOutput || process.IsOutputOpen) return;
  throw PdfError("standard output is closed");
}

PaperSize PaperOf(const PdfOrder& order) {
  return order.Paper ? *order.Paper : UprightSize(UsualPaper());
}

void StopIfInterrupted() {
  if (IsInterrupted()) EndAsInterrupted();
}

std::string MakePdfOf(DocumentMaker& maker, const PdfOrder& order, ProgressLine& line) {
  const PdfExtras extras{.Data = order.AttachesData ? DataInPdf::Attached : DataInPdf::None,
                         .Tags = order.IsTagged ? TagsInPdf::Written : TagsInPdf::None};
  return maker.MakePdf(order.Date.value_or(std::time(nullptr)), extras, [&line](int done, int total) {
    StopIfInterrupted();  // the file is written when all pages are made
    line.ShowStep("making page", done, total);
    return true;
  });
}

}  // namespace

void CarryOut(const PdfOrder& order, const PdfProcess& process, PdfDesktop& desktop) {
  RequireOutput(order, process);
  PdfDesktop unheard;  // with a folder of data files, nobody needs the host's settings
  const std::unique_ptr<HostSettings> settings = OpenHostSettings(order.DataFolder ? unheard : desktop);
  PrintRun run(desktop);
  PrepareRun(run, order, *settings);
  const std::unique_ptr<QGuiApplication> toolkit = StartQuietToolkit(process.Name);
  RequireFonts(desktop);
  ProgressLine line(order.ShowsProgress);
  line.Show("composing");
  DocumentMaker maker(run, PaperOf(order));
  if (order.Task == PdfTask::CheckDocument) {
    maker.Check();
    StopIfInterrupted();
    return;
  }
  const std::string pdf = MakePdfOf(maker, order, line);
  StopIfInterrupted();
  line.Show("writing");
  WriteOutput(pdf, order.Output);
}

}  // namespace tarvis
