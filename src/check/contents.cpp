#include "check/contents.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "run/print_run.h"
#include "text/excerpt.h"
#include "text/text.h"

namespace tarvis {
namespace {

// "1 switch", "2 switches"
std::string Counted(int count, std::string_view one, std::string_view many) {
  return std::to_string(count) + " " + std::string(count == 1 ? one : many);
}

std::string Comment(const PrintRun& run) {
  return run.User.Comment.empty() ? "no comment"
                                  : "comment '" + Excerpt(NewlinesToBlanks(run.User.Comment)) + "'";
}

std::string Parameters(const PrintRun& run) {
  return Counted(run.User.UserNum, "parameter", "parameters") + ", " +
         Counted(run.User.SwitchNum, "switch parameter", "switch parameters") + ", " + Comment(run);
}

std::string CursorRows(int count) {
  return Counted(count, "cursor row", "cursor rows");
}

// A channel without a name isn't used.
std::string Channels(const Recording& recording) {
  const auto used =
      std::ranges::count_if(recording.Channels(), [](const TraceItem* item) { return !item->Name.empty(); });
  return Counted(static_cast<int>(used), "channel", "channels");
}

std::string Overlap(int mode, int number) {
  return mode == 1 ? "overlap of " + Counted(number, "data set", "data sets") : "no overlap";
}

std::string Graph(const std::string& path) {
  return path.empty() ? "no black-and-white graph" : "graph '" + Excerpt(path) + "'";
}

template <typename Slots>
int UsedSlots(const Slots& slots) {
  return static_cast<int>(std::ranges::count_if(slots, [](const auto& slot) { return !slot.Slot.empty(); }));
}

}  // namespace

std::string OptionsContents(const PrintRun& run) {
  const PrintOptions& options = run.Options;
  return "options of version " + std::to_string(options.FileSpec) + ", " +
         (options.Cover == 1 ? "cover letter No. " + std::to_string(options.SelectCover)
                             : "no cover letter") +
         ", " + (options.ColorType == 1 ? "colour" : "black and white");
}

std::string UserContents(const PrintRun& run) {
  return Parameters(run);
}

std::string UPWizardContents(const PrintRun& run) {
  const UPWizardData& wizard = run.UPWizard;
  return "diagram '" + Excerpt(wizard.Base) + "', " + Counted(UsedSlots(wizard.Ry), "relay", "relays") +
         ", " + Counted(UsedSlots(wizard.OutNum), "output number", "output numbers") + ", " +
         Counted(UsedSlots(wizard.OutStr), "output name", "output names");
}

std::string TraceContents(const PrintRun& run) {
  const TraceData& trace = run.Trace;
  return Graph(trace.TraceGraph) + ", " + CursorRows(trace.CursolSelect) + ", " + Channels(trace) + ", " +
         Overlap(trace.OverlapMode, trace.OverlapNum) + ", " + Parameters(run);
}

std::string RealTraceContents(const PrintRun& run) {
  return Graph(run.RealTrace.RealTraceGraph) + ", " + CursorRows(run.RealTrace.CursolSelect) + ", " +
         Parameters(run);
}

std::string MechaContents(const PrintRun& run) {
  const bool hasCursors = run.Mecha.CursolSelect != 0;
  return Graph(run.Mecha.MechaGraph1) + ", " + (hasCursors ? "cursor table" : "no cursor table") + ", " +
         Comment(run);
}

std::string SimContents(const PrintRun& run) {
  const SimData& sim = run.Sim;
  return Graph(sim.SimGraph) + ", " + CursorRows(sim.CursolSelect) + ", " + Channels(sim) + ", pattern '" +
         Excerpt(sim.PatternSetting.PatternName) + "' of " +
         Counted(sim.PatternSetting.PatternCount, "value", "values") + ", " +
         Overlap(sim.OverlapMode, sim.OverlapNum) + ", " +
         Counted(sim.CmpUserNum, "compared parameter", "compared parameters") + ", " + Parameters(run);
}

std::string IdxTblContents(const PrintRun& run) {
  const IdxTblData& table = run.IdxTbl;
  int defined = 0;
  for (int step = 0; step < table.IndexCnt; ++step) defined += table.Index[step].Defined == 1 ? 1 : 0;
  return Counted(table.IndexCnt, "step", "steps") + ", " + std::to_string(defined) + " with a program, " +
         (table.TblType == 1 ? "with" : "without") + " ACC and DEC, " + Comment(run);
}

std::string ZoneTblContents(const PrintRun& run) {
  return Counted(run.ZoneTbl.ZoneCnt, "zone", "zones") + ", " + Comment(run);
}

std::string JogTblContents(const PrintRun& run) {
  return Counted(run.JogTbl.JspdCnt, "jog speed", "jog speeds") + ", " + Comment(run);
}

}  // namespace tarvis
