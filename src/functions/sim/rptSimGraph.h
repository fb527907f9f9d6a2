// The graph of a dynamics simulation with its legends and cursor values.
#pragma once

#include "report/cursor_graph_report.h"

namespace tarvis {

class rptSimGraph : public CursorGraphReport {
 public:
  explicit rptSimGraph(ReportContext context)
      : CursorGraphReport("rptSimGraph", context, "Simulated Graph", Entry::Grouped, Layout,
                          DataOf(context.Run.Sim)) {}

 private:
  static constexpr CursorGraphLayout Layout{
      .Graph = {142, 0, 8787, 7228},
      .CursorLabel = {142, 8079, 1842, 284},
      .Note = {1984, 7370, 4110, 992},
      .IONote = Rect{6094, 7370, 2835, 992},
      .GuideHeight = 285,
      .Cursors =
          {
              .TitleName = {142, 0, 4960, 283},
              .TitleCurA = {5102, 0, 1276, 283},
              .TitleCurB = {6378, 0, 1276, 283},
              .TitleCurB_A = {7654, 0, 1275, 283},
              .ValueName = {142, 0, 4960, 283},
              .ValueCurA = {5102, 0, 1276, 283},
              .ValueCurB = {6378, 0, 1276, 283},
              .ValueCurB_A = {7654, 0, 1275, 283},
          },
  };

  static CursorGraphData DataOf(const SimData& sim) {
    const auto channels = sim.Channels();
    return {.Channels = {channels.begin(), channels.end()},
            .Graph = {sim.SimGraph, sim.SimGraphC},
            .Note = {sim.SimNote, sim.SimNoteC},
            .IONote = PicturePaths{sim.SimIONote, sim.SimIONoteC},
            .CursolSelect = sim.CursolSelect,
            .CursolInfo1 = sim.CursolInfo1,
            .CursolInfo2 = sim.CursolInfo2};
  }
};

}  // namespace tarvis
