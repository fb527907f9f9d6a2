// The graph of a real-time trace with its legend and cursor values: a traced graph without an I/O legend.
#pragma once

#include "functions/trace/rptTraceGraph.h"

namespace tarvis {

class rptRealTraceGraph : public CursorGraphReport {
 public:
  explicit rptRealTraceGraph(ReportContext context)
      : CursorGraphReport("rptRealTraceGraph", context, "Real-Time Tracing Graph", Entry::Plain, Layout,
                          DataOf(context.Run.RealTrace)) {}

 private:
  static constexpr CursorGraphLayout Layout{
      .Graph = {142, 0, 8787, 7228},
      .CursorLabel = {142, 8079, 1842, 283},
      .Note = {1984, 7228, 6945, 1134},
      .IONote = {},
      .GuideHeight = 420,
      .Cursors = TraceCursorLayout,
  };

  static CursorGraphData DataOf(const RealTraceData& trace) {
    return {.Channels = {},
            .Graph = {trace.RealTraceGraph, trace.RealTraceGraphC},
            .Note = {trace.RealTraceNote, trace.RealTraceNoteC},
            .IONote = {},
            .CursolSelect = trace.CursolSelect,
            .CursolInfo1 = trace.CursolInfo1,
            .CursolInfo2 = trace.CursolInfo2};
  }
};

}  // namespace tarvis
