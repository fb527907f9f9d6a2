// tarvis-pdf: makes the PDF that the preview would save, without a user, a display or a printer.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <string>
#include <vector>

#include "pdf/interruption.h"
#include "pdf/pdf_desktop.h"
#include "pdf/pdf_error.h"
#include "pdf/program.h"
#include "platform/files/program_arguments.h"
#include "platform/system/process_guard.h"
#include "platform/system/standard_output.h"
#include "run/failures.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

constexpr int ExitAfterNumberedFailure = 2;

constexpr const char* Usage =
    "Usage: tarvis-pdf [OPTION...] MODE EDITION OUT.pdf\n"
    "Makes the PDF of what the print module prints with the kept options, without window, display or "
    "printer.\n"
    "Nothing but OUT.pdf is written, and nothing is deleted; - is standard output.\n"
    "\n"
    "MODE is User, UPWizard, Trace, RealTrace, Mecha, Sim, SimEx, IdxTbl, ZoneTbl or JogTbl; EDITION is 1, 2 "
    "or "
    "4.\n"
    "\n"
    "  --data FOLDER       the host's data files are there\n"
    "  --options FILE      options from that file, not those that are kept\n"
    "  --set NAME=VALUE    sets one option, by its name in the options file; NAME.N is its element N\n"
    "  --code-page NUMBER  code page of the files\n"
    "  --paper SIZE        A4, Letter, A5, or WxH in millimetres\n"
    "  --date DATE         a fixed date, so that the same input gives the same bytes\n"
    "  --attach            puts the data files into the PDF, too\n"
    "  --tagged            headings, tables and figures as such, for screen readers (PDF/UA)\n"
    "  --check             composes the document and writes nothing; OUT.pdf may be left out\n"
    "  --progress          shows on standard error how far the work is\n"
    "  --help              shows this\n"
    "  --version           shows the version\n"
    "\n"
    "Exit status: 0 if the document was made, 2 after a numbered failure, 1 after any other.\n";

struct Outcome {
  int ExitStatus = EXIT_SUCCESS;
  std::string Words;  // empty if all is well
};

Outcome Answer(const char* text) {
  const std::string failure = WriteStandardOutput(text);
  if (failure.empty()) return {};
  return {ExitAfterRunTimeFailure, "standard output can't be written: " + failure};
}

Outcome Serve(const std::vector<std::string>& arguments, const PdfProcess& process, PdfDesktop& desktop) {
  try {
    const PdfOrder order = ParseOrder(arguments);
    if (order.Task == PdfTask::ShowHelp) return Answer(Usage);
    if (order.Task == PdfTask::ShowVersion) return Answer("tarvis-pdf " TARVIS_VERSION "\n");
    CarryOut(order, process, desktop);
    return {};
  } catch (const ReportedFailure& failure) {
    std::string words =
        "failure " + std::to_string(static_cast<int>(failure.Number)) + ": " + FailureMessage(failure.Number);
    if (!failure.Reason.empty()) words += " " + failure.Reason;
    return {ExitAfterNumberedFailure, words};
  } catch (const ProcessWouldEnd& end) {
    return {end.ExitStatus, "no document was made"};
  } catch (const RunTimeFailure& failure) {
    return {ExitAfterRunTimeFailure, std::string("run-time error: ") + failure.what()};
  } catch (const std::bad_alloc&) {
    return {ExitAfterRunTimeFailure, "there is not enough memory"};
  } catch (const std::exception& failure) {
    return {ExitAfterRunTimeFailure, failure.what()};
  }
}

// Writes one line for a failure, with all that is known of its cause, or one for each warning about a
// document that was made.
void Report(const Outcome& outcome, const PdfDesktop& desktop) {
  const std::string name = "tarvis-pdf: ";
  std::string lines;
  if (outcome.Words.empty()) {
    for (const std::string& note : desktop.Notes()) lines += name + note + "\n";
  } else {
    lines = name + outcome.Words;
    for (const std::string& note : desktop.Notes()) lines += "; " + note;
    lines += "\n";
  }
  std::fputs(lines.c_str(), stderr);
}

}  // namespace
}  // namespace tarvis

int main(int argc, char** argv) {
  using namespace tarvis;
  const PdfProcess process{.Name = argv[0], .IsOutputOpen = IsStandardOutputOpen()};
  GuardProcess();
  UseOneMemoryPool();
  NoteInterruptions();
  PdfDesktop desktop;
  const Outcome outcome = Serve(ProgramArguments(argc, argv), process, desktop);
  Report(outcome, desktop);
  std::fflush(nullptr);
  std::_Exit(outcome.ExitStatus);
}
