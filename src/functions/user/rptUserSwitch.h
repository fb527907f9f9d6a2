// The switch list: a block for each switch parameter, one line for the whole and one for each digit group.
// No module list names it, since the parameter list shows the digits; it is reached by its name.
#pragma once

#include <array>
#include <cstdint>

#include "report/function_report.h"

namespace tarvis {

class rptUserSwitch : public FunctionReport {
 public:
  explicit rptUserSwitch(ReportContext context);

  void ActiveReport_ReportStart() override;
  void ActiveReport_FetchData(bool& endOfData) override;

 private:
  static constexpr std::size_t Rows = 4;

  void ghGuide_BeforePrint();
  void Detail_Format();
  void Detail_BeforePrint();

  void DescribeRows();
  void PlaceWithNames(float& x);
  void PlaceWithoutNames(float& x);
  void PlaceRows(std::size_t first, float y);
  void MoveRowTo(std::size_t row, float top);
  void FillDigits(const UserSwitch& source);

  std::int16_t DigitCount = 0;  // digit groups of the current row

  Section& ghGuide = AddGuide(420);
  Field& txtTitleNo = ghGuide.AddField("txtTitleNo", {135, 135, 855, 285}, TitleCell, "No.");
  Field& txtTitlePos = ghGuide.AddField("txtTitlePos", {990, 135, 855, 285}, TitleCell, "Digit Position");
  Field& txtTitleName = ghGuide.AddField("txtTitleName", {1845, 135, 5385, 285}, TitleCell, "Name");
  Field& txtTitleValue = ghGuide.AddField("txtTitleValue", {7230, 135, 855, 285}, TitleCell, "Setting");
  Field& txtTitleDefault = ghGuide.AddField("txtTitleDefault", {8085, 135, 855, 285}, TitleCell, "Default");

  Section& Detail = AddRows(3225);
  Field& txtValueNo = Detail.AddField("txtValueNo", {135, 135, 855, 285}, CentredCell);
  Field& txtValueName = Detail.AddField("txtValueName", {990, 135, 6240, 285}, ValueCell);
  Field& txtValueVal = Detail.AddField("txtValueVal", {7230, 135, 855, 285}, CentredCell);
  Field& txtValueDefault = Detail.AddField("txtValueDefault", {8085, 135, 855, 285}, CentredCell);
  std::array<Field*, Rows> txtPos{
      &Detail.AddField("txtPos0", {990, 420, 855, 570}, CentredCell, "0"),
      &Detail.AddField("txtPos1", {990, 990, 855, 570}, CentredCell, "1"),
      &Detail.AddField("txtPos2", {990, 1560, 855, 570}, CentredCell, "2"),
      &Detail.AddField("txtPos3", {990, 2130, 855, 570}, CentredCell, "3"),
  };
  std::array<Field*, Rows> txtValueBitName{
      &Detail.AddField("txtValueBit0Name", {1845, 420, 5385, 570}, ValueCell),
      &Detail.AddField("txtValueBit1Name", {1845, 990, 5385, 570}, ValueCell),
      &Detail.AddField("txtValueBit2Name", {1845, 1560, 5385, 570}, ValueCell),
      &Detail.AddField("txtValueBit3Name", {1845, 2130, 5385, 570}, ValueCell),
  };
  std::array<Field*, Rows> txtValueBitVal{
      &Detail.AddField("txtValueBit0Val", {7230, 420, 855, 570}, CentredCell),
      &Detail.AddField("txtValueBit1Val", {7230, 990, 855, 570}, CentredCell),
      &Detail.AddField("txtValueBit2Val", {7230, 1560, 855, 570}, CentredCell),
      &Detail.AddField("txtValueBit3Val", {7230, 2130, 855, 570}, CentredCell),
  };
  std::array<Field*, Rows> txtValueBitDefault{
      &Detail.AddField("txtValueBit0Default", {8085, 420, 855, 570}, CentredCell),
      &Detail.AddField("txtValueBit1Default", {8085, 990, 855, 570}, CentredCell),
      &Detail.AddField("txtValueBit2Default", {8085, 1560, 855, 570}, CentredCell),
      &Detail.AddField("txtValueBit3Default", {8085, 2130, 855, 570}, CentredCell),
  };

  Section& GroupFooter2 = AddGrowing(SectionKind::GroupFooter, "GroupFooter2", 10);
  Section& GroupFooter1 = AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 0);
};

}  // namespace tarvis
