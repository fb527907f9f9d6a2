#include "session/confirm.h"

#include <string>

#include "run/failures.h"
#include "run/print_run.h"
#include "session/choices.h"
#include "session/page_options.h"
#include "session/setting_rules.h"
#include "session/step_range.h"
#include "session/title_limit.h"

namespace tarvis {
namespace {

void LoadCover(PrintRun& run) {
  PrintOptions& options = run.Options;
  if (options.Cover == 0) return;
  SwitchCover(options, true);
  if (options.SelectCover > 0)
    RequireChoice(run, options.SelectCover, 1, static_cast<int>(options.User.size()));
}

// As the page loads it: the text of the title comes right after its mark, so a message about the text comes
// before a failure at a later mark.
void LoadHeader(PrintRun& run, HeaderOptions& header) {
  for (const std::int16_t* mark : MarksOf(header)) {
    RequireMark(run, *mark);
    if (mark == &header.Title) TakeTitle(run, header.TitleText);
  }
}

void LoadPage(PrintRun& run, PageId page) {
  LoadHeader(run, HeaderOf(run.Options, page));
  // Who prints without a dialog sees nowhere that only one data set is taken for all.
  if (!LoadOverlap(run, page))
    ReportFailure(run, page == PageId::InfTrace ? Failure::WrongTraceFile : Failure::WrongSimulationFile);
  if (page == PageId::InfIdxTbl) {
    LoadStepRange(run);
    ChooseStepRange(run, run.Options.IdxTblOption.Range);
  }
  for (const std::int16_t* mark : MarksOf(run.Options, page)) RequireMark(run, *mark);
}

}  // namespace

void ConfirmKeptOptions(PrintRun& run) {
  LoadCover(run);
  const std::span<const FunctionEntry> functions = OfferedFunctions(run);
  const ModeChoice& choice = OpenMode(run, functions);
  LoadStepLimit(run);
  RequireChoice(run, run.Options.ColorType, 0, 1);
  LoadPage(run, PageOf(run.Session, functions[static_cast<std::size_t>(choice.Index)]));
  StampOptions(run);
}

}  // namespace tarvis
