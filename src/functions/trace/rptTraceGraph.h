// The traced graph with its legends and cursor values.
#pragma once

#include "report/cursor_graph_report.h"

namespace tarvis {

// Also that of the real-time trace.
inline constexpr CursorLayout TraceCursorLayout{
    .TitleName = {142, 142, 2834, 283},
    .TitleCurA = {2976, 142, 1984, 283},
    .TitleCurB = {4961, 142, 1984, 283},
    .TitleCurB_A = {6945, 142, 1984, 283},
    .ValueName = {142, 0, 2834, 283},
    .ValueCurA = {2976, 0, 1984, 283},
    .ValueCurB = {4961, 0, 1984, 283},
    .ValueCurB_A = {6945, 0, 1984, 283},
};

class rptTraceGraph : public CursorGraphReport {
 public:
  explicit rptTraceGraph(ReportContext context)
      : CursorGraphReport("rptTraceGraph", context, "Traced Graph", Entry::Grouped, Layout,
                          DataOf(context.Run.Trace)) {}

 private:
  static constexpr CursorGraphLayout Layout{
      .Graph = {142, 0, 8787, 7228},
      .CursorLabel = {142, 8079, 1559, 283},
      .Note = {1843, 7228, 3543, 1134},
      .IONote = Rect{5385, 7230, 3540, 1140},
      .GuideHeight = 420,
      .Cursors = TraceCursorLayout,
  };

  static CursorGraphData DataOf(const TraceData& trace) {
    const auto channels = trace.Channels();
    return {.Channels = {channels.begin(), channels.end()},
            .Graph = {trace.TraceGraph, trace.TraceGraphC},
            .Note = {trace.TraceNote, trace.TraceNoteC},
            .IONote = PicturePaths{trace.TraceIONote, trace.TraceIONoteC},
            .CursolSelect = trace.CursolSelect,
            .CursolInfo1 = trace.CursolInfo1,
            .CursolInfo2 = trace.CursolInfo2};
  }
};

}  // namespace tarvis
