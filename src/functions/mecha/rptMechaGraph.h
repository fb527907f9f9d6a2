// The gain and phase graphs of a mechanical analysis with their cursor table.
#pragma once

#include "report/cursor_table.h"
#include "report/graph_report.h"

namespace tarvis {

class rptMechaGraph : public GraphReport {
 public:
  explicit rptMechaGraph(ReportContext context);

  void ActiveReport_ReportStart() override;
  void ActiveReport_FetchData(bool& endOfData) override;

 private:
  // Required: the first title is 7 twips off the line of its neighbours.
  static constexpr CursorLayout Cursors{
      .TitleName = {135, 135, 2834, 285},
      .TitleCurA = {2976, 142, 1985, 283},
      .TitleCurB = {4961, 142, 1984, 283},
      .TitleCurB_A = {6945, 142, 1984, 283},
      .ValueName = {142, 0, 2834, 283},
      .ValueCurA = {2976, 0, 1985, 283},
      .ValueCurB = {4961, 0, 1984, 283},
      .ValueCurB_A = {6945, 0, 1984, 283},
  };

  void HideCursorColumns();

  Section& ghGraph = AddGrowing(SectionKind::GroupHeader, "ghGraph", 8520);
  Label& Label2 = ghGraph.AddLabel("Label2", {142, 142, 1842, 283}, "[Gain Graph]", GraphHeading);
  Image& imgGraph1 = ghGraph.AddImage("imgGraph1", {142, 425, 8787, 3544});
  Label& Label5 = ghGraph.AddLabel("Label5", {142, 4110, 1842, 284}, "[Phase Graph]", GraphHeading);
  Image& imgGraph2 = ghGraph.AddImage("imgGraph2", {142, 4394, 8787, 3544});
  Label& Label4 = ghGraph.AddLabel("Label4", {142, 8220, 1842, 284}, "[Cursor Data]", GraphHeading);

  Section& ghGuide = AddGuide(420);
  Section& Detail = AddRows(300);
  CursorTable cursors_{ghGuide, Detail, Cursors};

  Section& GroupFooter2 = AddGrowing(SectionKind::GroupFooter, "GroupFooter2", 10);
  Section& GroupFooter3 = AddGrowing(SectionKind::GroupFooter, "GroupFooter3", 0);
  Section& GroupFooter1 = AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 0);
};

}  // namespace tarvis
