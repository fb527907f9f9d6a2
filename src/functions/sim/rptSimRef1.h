// The reference setting of a regular pattern: eight rows of up to ten values, and the filter below.
#pragma once

#include <array>

#include "functions/sim/sim_ref_report.h"

namespace tarvis {

class rptSimRef1 : public SimRefReport {
 public:
  explicit rptSimRef1(ReportContext context);

  void ActiveReport_ReportStart() override;
  void ActiveReport_FetchData(bool& endOfData) override;

 private:
  static constexpr std::size_t Columns = 10;
  static constexpr std::array<PatternRow SimData::*, 8> Patterns{
      &SimData::StartTime,  &SimData::AccTime,      &SimData::RunTime,      &SimData::DecTime,
      &SimData::EndRefTime, &SimData::AccOffsetSpd, &SimData::DecOffsetSpd, &SimData::MaxSpd};

  void GroupFooter2_Format();

  Section& ghGuide = AddGuide(420);
  Field& txtTitleName = ghGuide.AddField("txtTitleName", {142, 142, 1984, 283}, TitleCell, "Items");
  Field& txtTitleUnit = ghGuide.AddField("txtTitleUnit", {2126, 142, 567, 283}, TitleCell, "Unit");
  const std::array<Field*, Columns> txtTitleValue{
      &ghGuide.AddField("txtTitleValue1", {2693, 142, 709, 283}, TitleCell, "1"),
      &ghGuide.AddField("txtTitleValue2", {3402, 142, 708, 283}, TitleCell, "2"),
      &ghGuide.AddField("txtTitleValue3", {4110, 142, 709, 283}, TitleCell, "3"),
      &ghGuide.AddField("txtTitleValue4", {4819, 142, 709, 283}, TitleCell, "4"),
      &ghGuide.AddField("txtTitleValue5", {5528, 142, 708, 283}, TitleCell, "5"),
      &ghGuide.AddField("txtTitleValue6", {6236, 142, 709, 283}, TitleCell, "6"),
      &ghGuide.AddField("txtTitleValue7", {6945, 142, 709, 283}, TitleCell, "7"),
      &ghGuide.AddField("txtTitleValue8", {7654, 142, 708, 283}, TitleCell, "8"),
      &ghGuide.AddField("txtTitleValue9", {8362, 142, 709, 283}, TitleCell, "9"),
      &ghGuide.AddField("txtTitleValue10", {9071, 142, 709, 283}, TitleCell, "10"),
  };

  Section& Detail = AddRows(300);
  Field& txtValueName = Detail.AddField("txtValueName", {142, 0, 1984, 283}, ValueCell);
  Field& txtValueUnit = Detail.AddField("txtValueUnit", {2126, 0, 567, 283}, RightAlignedCell);
  const std::array<Field*, Columns> txtValueVal{
      &Detail.AddField("txtValueVal1", {2693, 0, 709, 283}, RightAlignedCell),
      &Detail.AddField("txtValueVal2", {3402, 0, 708, 283}, RightAlignedCell),
      &Detail.AddField("txtValueVal3", {4110, 0, 709, 283}, RightAlignedCell),
      &Detail.AddField("txtValueVal4", {4819, 0, 709, 283}, RightAlignedCell),
      &Detail.AddField("txtValueVal5", {5528, 0, 708, 283}, RightAlignedCell),
      &Detail.AddField("txtValueVal6", {6236, 0, 709, 283}, RightAlignedCell),
      &Detail.AddField("txtValueVal7", {6945, 0, 709, 283}, RightAlignedCell),
      &Detail.AddField("txtValueVal8", {7654, 0, 708, 283}, RightAlignedCell),
      &Detail.AddField("txtValueVal9", {8362, 0, 709, 283}, RightAlignedCell),
      &Detail.AddField("txtValueVal10", {9071, 0, 709, 283}, RightAlignedCell),
  };

  Section& GroupFooter2 = AddGrowing(SectionKind::GroupFooter, "GroupFooter2", 1395);
  Field& txtTitleNameG = GroupFooter2.AddField("txtTitleNameG", {142, 283, 3685, 284}, TitleCell, "Items");
  Field& txtTitleValG =
      GroupFooter2.AddField("txtTitleValG", {3827, 283, 2834, 284}, TitleCell, "Setting Value");
  Field& txtTitleUnitG = GroupFooter2.AddField("txtTitleUnitG", {6661, 283, 2268, 284}, TitleCell, "Unit");
  Field& txtValueNameG1 = GroupFooter2.AddField("txtValueNameG1", {142, 567, 3685, 283}, ValueCell, "Filter");
  Field& txtValueValG1 = GroupFooter2.AddField("txtValueValG1", {3827, 567, 2834, 283}, ValueCell);
  Field& txtValueUnitG1 = GroupFooter2.AddField("txtValueUnitG1", {6661, 567, 2268, 283}, RightAlignedCell);
  Field& txtValueNameG2 =
      GroupFooter2.AddField("txtValueNameG2", {142, 850, 3685, 284}, ValueCell, "Filter Time");
  Field& txtValueValG2 = GroupFooter2.AddField("txtValueValG2", {3827, 850, 2834, 284}, ValueCell);
  Field& txtValueUnitG2 = GroupFooter2.AddField("txtValueUnitG2", {6661, 850, 2268, 284}, RightAlignedCell);
  Section& GroupFooter1 = AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 0);
};

}  // namespace tarvis
