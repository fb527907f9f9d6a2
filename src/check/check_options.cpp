#include "check/check_options.h"

#include "run/print_run.h"
#include "session/choices.h"
#include "session/page_options.h"
#include "session/step_range.h"

namespace tarvis {
namespace {

template <typename Marks>
void RequireMarks(PrintRun& run, const Marks& marks) {
  for (const std::int16_t* mark : marks) RequireMark(run, *mark);
}

}  // namespace

void RequireChoices(PrintRun& run) {
  const PrintOptions& options = run.Options;
  if (options.Cover != 0) RequireChoice(run, options.SelectCover, 0, static_cast<int>(options.User.size()));
  RequireChoice(run, options.ColorType, 0, 1);
  for (const PageId page : ListedPages) RequireMarks(run, MarksOf(HeaderOf(run.Options, page)));
  for (const PageId page : ListedPages) {
    if (page == PageId::InfIdxTbl) RequireChoice(run, options.IdxTblOption.Range, 0, TypedRange);
    RequireMarks(run, MarksOf(options, page));
  }
}

std::string OptionsContents(const PrintRun& run) {
  const PrintOptions& options = run.Options;
  return "options of version " + std::to_string(options.FileSpec) + ", " +
         (options.Cover == 1 ? "cover letter No. " + std::to_string(options.SelectCover)
                             : "no cover letter") +
         ", " + (options.ColorType == 1 ? "colour" : "black and white");
}

}  // namespace tarvis
