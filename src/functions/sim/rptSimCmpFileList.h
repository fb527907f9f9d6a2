// Which file is which simulation.
#pragma once

#include "functions/sim/sim_cmp_report.h"

namespace tarvis {

class rptSimCmpFileList : public SimCmpReport {
 public:
  explicit rptSimCmpFileList(ReportContext context)
      : SimCmpReport("rptSimCmpFileList", context, "List of File Name", Keep::All) {}

  void ActiveReport_FetchData(bool& endOfData) override {
    endOfData = Row >= Run.Session.OverlapNum;
    if (endOfData) return;
    txtValNo.Text = SimulationNo(Row);
    // No blank before the number.
    txtValueOverlap.Text = Row == 0 ? "Overlapping target" : "Overlapping data" + std::to_string(Row);
    txtValueFile.Text = Simulation(Row).FileName;
    ++Row;
  }

 private:
  Field& txtTitleNo = ghGuide.AddField("txtTitleNo", {138, 140, 708, 283}, TitleCell, "No");
  Field& txtTitleOverlap =
      ghGuide.AddField("txtTitleOverlap", {850, 142, 2410, 283}, TitleCell, "Overlapping");
  Field& txtTitleFile = ghGuide.AddField("txtTitleFile", {3260, 142, 5669, 283}, TitleCell, "File name");
  Field& txtValNo = Detail.AddField("txtValNo", {138, 0, 708, 283}, CentredCell);
  Field& txtValueOverlap = Detail.AddField("txtValueOverlap", {850, 0, 2410, 283}, ValueCell);
  Field& txtValueFile = Detail.AddField("txtValueFile", {3260, 0, 5669, 283}, ValueCell);
};

}  // namespace tarvis
