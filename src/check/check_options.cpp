#include "check/check_options.h"

#include <initializer_list>

#include "run/print_run.h"
#include "session/choices.h"
#include "session/step_range.h"

namespace tarvis {
namespace {

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

std::string OptionsContents(const PrintRun& run) {
  const PrintOptions& options = run.Options;
  return "options of version " + std::to_string(options.FileSpec) + ", " +
         (options.Cover == 1 ? "cover letter No. " + std::to_string(options.SelectCover)
                             : "no cover letter") +
         ", " + (options.ColorType == 1 ? "colour" : "black and white");
}

}  // namespace tarvis
