// The parameter list: one row a parameter, and under a switch parameter a framed block with its digits.
#pragma once

#include <array>
#include <cstdint>

#include "report/function_report.h"

namespace tarvis {

class rptUserPrm : public FunctionReport {
 public:
  explicit rptUserPrm(ReportContext context);

  void ActiveReport_ReportStart() override;
  void ActiveReport_FetchData(bool& endOfData) override;

 private:
  static constexpr int Groups = 4;
  static constexpr CellStyle NoBorder{.Alignment = Align::Centre};
  static constexpr CellStyle Heading{.Border = true, .Filled = true, .Fill = 0xF0F0F0};
  static constexpr CellStyle Spacer{.Filled = true, .RoomOnly = true};
  static constexpr CellStyle BottomSpacer{.Size = 11.5F, .Filled = true, .RoomOnly = true};

  void ghGuide_BeforePrint();
  void Detail_Format();
  void Detail_BeforePrint();

  void DescribeDigitBlock();
  void StackDesignBlock();
  void HideDigitBlock();
  void PlaceNameColumns(float& x);
  void PlaceUnitColumn(float& x);
  void PlaceDefaultColumn(float x);
  void NarrowDigitBlock(float by);
  void FillDigitGroups(const UserSwitch& digits);
  void ClearDigitGroups();
  void SplitDigitText(const std::string& text, Field& heading, Field& meaning, Field& value);

  std::int16_t DigitCount = 0;  // digit groups of the current row
  std::int16_t SwitchRow = 0;   // next switch to match
  std::int16_t ShowDigits = 0;  // 1 when the digit block can print at all

  Section& ghGuide = AddGuide(450);
  Field& txtTitleNo = ghGuide.AddField("txtTitleNo", {142, 142, 708, 283}, TitleCell, "No.");
  Field& txtTitleName = ghGuide.AddField("txtTitleName", {850, 142, 3827, 283}, TitleCell, "Name");
  Field& txtTitleValue =
      ghGuide.AddField("txtTitleValue", {4677, 142, 1134, 283}, TitleCell, "Setting Value");
  Field& txtTitleUnit = ghGuide.AddField("txtTitleUnit", {5805, 142, 1984, 285}, TitleCell, "Unit");
  Field& txtTitleDefault =
      ghGuide.AddField("txtTitleDefault", {7795, 142, 1134, 283}, TitleCell, "Default Setting");

  Section& Detail = AddRows(3585);
  Shape& shapeNibble = Detail.AddShape("shapeNibble", {142, 142, 8810, 283});
  Field& txtValueNo = Detail.AddField("txtValueNo", {142, 142, 708, 283}, CentredCell);
  Field& txtValueNoReal = Detail.AddField("txtValueNoReal", {135, 135, 705, 285}, NoBorder);
  Field& txtValueName = Detail.AddField("txtValueName", {850, 142, 3827, 283}, ValueCell);
  Field& txtValueVal = Detail.AddField("txtValueVal", {4677, 142, 1134, 283}, RightAlignedCell);
  Field& txtValueUnit = Detail.AddField("txtValueUnit", {5805, 135, 1984, 285}, ValueCell);
  Field& txtValueDefault = Detail.AddField("txtValueDefault", {7800, 285, 1134, 285}, RightAlignedCell);
  Field& spaceNibbleTop = Detail.AddField("spaceNibbleTop", {992, 425, 7795, 142}, Spacer);
  // Holds a "1", which makes it grow by a line; the room below each framed block comes from that.
  Field& spaceNibbleBottom = Detail.AddField("spaceNibbleBottom", {283, 2835, 8504, 141}, BottomSpacer, "1");
  std::array<Field*, Groups> txtPos{
      &Detail.AddField("txtPos0", {1134, 567, 7653, 283}, Heading, "0"),
      &Detail.AddField("txtPos1", {1134, 1134, 7653, 283}, Heading, "1"),
      &Detail.AddField("txtPos2", {1134, 1701, 7653, 283}, Heading, "2"),
      &Detail.AddField("txtPos3", {1134, 2268, 7653, 283}, Heading, "3"),
  };
  std::array<Field*, Groups> txtValueBitValue{
      &Detail.AddField("txtValueBit0Value", {1134, 850, 567, 284}, CentredCell, "0"),
      &Detail.AddField("txtValueBit1Value", {1134, 1417, 567, 284}, CentredCell, "1"),
      &Detail.AddField("txtValueBit2Value", {1134, 1984, 567, 284}, CentredCell, "2"),
      &Detail.AddField("txtValueBit3Value", {1134, 2551, 567, 284}, CentredCell, "3"),
  };
  std::array<Field*, Groups> txtValueBitName{
      &Detail.AddField("txtValueBit0Name", {1701, 850, 7086, 284}, ValueCell),
      &Detail.AddField("txtValueBit1Name", {1701, 1417, 7086, 284}, ValueCell),
      &Detail.AddField("txtValueBit2Name", {1701, 1984, 7086, 284}, ValueCell),
      &Detail.AddField("txtValueBit3Name", {1701, 2551, 7086, 284}, ValueCell),
  };

  Section& GroupFooter2 = AddGrowing(SectionKind::GroupFooter, "GroupFooter2", 15);
  Section& GroupFooter1 = AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 10);
};

}  // namespace tarvis
