#include "functions/user/rptUserPrm.h"

#include <algorithm>
#include <cmath>

#include "functions/user/digit_list.h"
#include "report/reading_line.h"
#include "text/text.h"

namespace tarvis {
namespace {

constexpr float ParameterTop = 10;

// Geometry enters the running x and y as whole twips, halves to the even one.
float Whole(float twips) {
  return std::nearbyint(twips);
}

}  // namespace

rptUserPrm::rptUserPrm(ReportContext context)
    : FunctionReport("rptUserPrm", 9300, context, "Parameters List", 690, Entry::Grouped, Keep::All) {
  ghGuide.Repeat = true;
  ghGuide.BeforePrint = [this] { ghGuide_BeforePrint(); };
  Detail.Format = [this] { Detail_Format(); };
  Detail.BeforePrint = [this] { Detail_BeforePrint(); };
  DescribeDigitBlock();
}

// The number is beside the rows of its digits: a heading, and below it a value with its meaning. The cell
// around the number holds nothing.
void rptUserPrm::DescribeDigitBlock() {
  txtValueNo.Reads.As = PartRole::None;
  txtValueNoReal.Reads.SpansLines = true;
  for (std::size_t group = 0; group < Groups; ++group) {
    ReadOnLine(2 * group + 1, {txtPos[group]});
    ReadOnLine(2 * group + 2, {txtValueBitValue[group], txtValueBitName[group]});
  }
}

void rptUserPrm::ActiveReport_ReportStart() {
  const PrintSession& session = Run.Session;
  // The digit block asks for exactly 1, the columns for anything but 0.
  ShowDigits = session.ShowPrmName == 1 && session.ShowPrmSwitches == 1 ? 1 : 0;
  Row = 0;
  for (Control* control : {static_cast<Control*>(&txtValueNo), static_cast<Control*>(&shapeNibble),
                           static_cast<Control*>(&txtValueNoReal), static_cast<Control*>(&txtValueName),
                           static_cast<Control*>(&txtValueVal), static_cast<Control*>(&txtValueUnit),
                           static_cast<Control*>(&txtValueDefault)}) {
    control->Top = ParameterTop;
  }
  float x = Whole(txtTitleNo.Left + txtTitleNo.Width);
  PlaceNameColumns(x);
  if (ShowDigits == 1) {
    StackDesignBlock();
  } else {
    HideDigitBlock();
  }
  PlaceUnitColumn(x);
  PlaceDefaultColumn(x);
}

void rptUserPrm::PlaceNameColumns(float& x) {
  if (Run.Session.ShowPrmName != 0) {
    x += Whole(txtTitleName.Width + txtTitleValue.Width);
    return;
  }
  txtTitleName.Visible = false;
  txtValueName.Visible = false;
  txtTitleValue.Left = x;
  txtValueVal.Left = x;
  x += Whole(txtTitleValue.Width);
  txtValueNoReal.Height = txtTitleNo.Height;
}

void rptUserPrm::StackDesignBlock() {
  float y = txtValueName.Top + txtValueName.Height;
  spaceNibbleTop.Top = y;
  spaceNibbleBottom.Top = y;
  y += spaceNibbleTop.Height;
  for (std::size_t group = 0; group < Groups; ++group) {
    txtPos[group]->Top = y;
    txtValueBitName[group]->Top = y + txtPos[group]->Height;
    txtValueBitValue[group]->Top = y + txtPos[group]->Height;
    y += txtPos[group]->Height + txtValueBitName[group]->Height;
  }
  shapeNibble.Width = txtTitleNo.Width + txtTitleName.Width + txtTitleValue.Width + txtTitleUnit.Width +
                      txtTitleDefault.Width;
}

void rptUserPrm::HideDigitBlock() {
  shapeNibble.Visible = false;
  spaceNibbleTop.Visible = false;
  spaceNibbleBottom.Visible = false;
  for (std::size_t group = 0; group < Groups; ++group) {
    txtPos[group]->Visible = false;
    txtValueBitValue[group]->Visible = false;
    txtValueBitName[group]->Visible = false;
  }
}

void rptUserPrm::PlaceUnitColumn(float& x) {
  if (Run.Session.ShowPrmUnit != 0) {
    txtTitleUnit.Left = x;
    txtValueUnit.Left = x;
    x += Whole(txtTitleUnit.Width);
    return;
  }
  // x stays: the default column takes the place of the unit column.
  txtTitleUnit.Visible = false;
  txtValueUnit.Visible = false;
  txtTitleDefault.Left = x;
  txtValueDefault.Left = x;
  NarrowDigitBlock(txtTitleUnit.Width);
}

void rptUserPrm::PlaceDefaultColumn(float x) {
  if (Run.Session.ShowPrmDefault != 0) {
    txtTitleDefault.Left = x;
    txtValueDefault.Left = x;
    return;
  }
  txtTitleDefault.Visible = false;
  txtValueDefault.Visible = false;
  NarrowDigitBlock(txtTitleDefault.Width);
}

// The value boxes keep their width and place.
void rptUserPrm::NarrowDigitBlock(float by) {
  if (ShowDigits != 1) return;
  shapeNibble.Width -= by;
  spaceNibbleTop.Width -= by;
  spaceNibbleBottom.Width -= by;
  for (std::size_t group = 0; group < Groups; ++group) {
    txtPos[group]->Width -= by;
    txtValueBitName[group]->Width -= by;
  }
}

// Errors are ignored statement by statement.
void rptUserPrm::ActiveReport_FetchData(bool& endOfData) {
  const UserData& user = Run.User;
  if (Row >= user.UserNum) {
    endOfData = true;
    return;
  }
  const std::string* number = nullptr;
  IgnoreErrors([&] {
    const UserPrm& parameter = user.Prm[Row];
    number = &parameter.No;
    txtValueNoReal.Text = parameter.No;
    txtValueName.Text = parameter.Name;
    txtValueVal.Text = parameter.Value;
    txtValueUnit.Text = parameter.Unit;
    txtValueDefault.Text = parameter.Default;
  });
  DigitCount = 0;
  if (SwitchRow < user.SwitchNum) {
    IgnoreErrors([&] {
      const UserSwitch& next = user.Switches[SwitchRow];
      // Both lists are in the same order: a switch without a parameter blocks all that follow it.
      if (number != nullptr && EqualIgnoringCase(next.No, *number)) {
        FillDigitGroups(next);
        ++SwitchRow;
      } else {
        ClearDigitGroups();
      }
    });
  }
  ++Row;
  endOfData = false;
}

void rptUserPrm::FillDigitGroups(const UserSwitch& digits) {
  if (Run.Header.FileSpec >= SpecWithDigits) {
    for (std::size_t group = 0; group < Groups; ++group) {
      const SwitchDigit& digit = digits.Digit[group];
      // A number that fails skips the call, and the text of the row before stays.
      IgnoreErrors([&] { SetDigitList(digit, *txtPos[group]); });
      if (!txtPos[group]->Text.empty()) ++DigitCount;
    }
  } else {
    // Nothing resets the headings of such a file: each row's text is put before the last one's.
    DigitCount = Groups;
  }
  for (std::size_t group = 0; group < Groups; ++group) {
    if (txtPos[group]->Text.empty()) continue;
    SplitDigitText(digits.Digit[group].Text, *txtPos[group], *txtValueBitName[group],
                   *txtValueBitValue[group]);
  }
}

void rptUserPrm::ClearDigitGroups() {
  for (std::size_t group = 0; group < Groups; ++group) {
    txtPos[group]->Text.clear();
    txtValueBitName[group]->Text.clear();
    txtValueBitValue[group]->Text.clear();
  }
}

// A description is a heading, a line break, then a value and its meaning separated by a colon. Positions
// below count bytes from 0; the cuts fall on ASCII characters, so they don't depend on how long characters
// are.
void rptUserPrm::SplitDigitText(const std::string& text, Field& heading, Field& meaning, Field& value) {
  heading.Text = "digit " + heading.Text + "  ";
  meaning.Text.clear();
  value.Text.clear();
  const std::size_t lineEnd = text.find("\r\n");
  if (lineEnd == std::string::npos) return;
  heading.Text.append(text, 0, lineEnd);
  const std::size_t colon = text.find(':', lineEnd);
  if (colon == std::string::npos || colon + 1 == text.size()) return;
  meaning.Text = text.substr(colon + 1);
  value.Text = text.substr(lineEnd + 2, colon - lineEnd - 2);
}

void rptUserPrm::ghGuide_BeforePrint() {
  if (Run.User.UserNum == 0) Unload();
}

void rptUserPrm::Detail_Format() {
  if (ShowDigits != 1) {
    HideDigitBlock();
    return;
  }
  for (std::size_t group = 0; group < Groups; ++group) {
    const bool shown = DigitCount >= static_cast<int>(group) + 1;
    txtPos[group]->Visible = shown;
    txtValueBitValue[group]->Visible = shown;
    txtValueBitName[group]->Visible = shown;
  }
  shapeNibble.Visible = DigitCount >= 1;
  spaceNibbleTop.Visible = DigitCount >= 1;
  spaceNibbleBottom.Visible = DigitCount >= 1;
}

void rptUserPrm::Detail_BeforePrint() {
  // Hidden cells count too.
  const float h = Whole(std::max({txtValueNo.Height, txtValueNoReal.Height, txtValueName.Height,
                                  txtValueVal.Height, txtValueUnit.Height, txtValueDefault.Height}));
  for (Field* cell : {&txtValueNoReal, &txtValueName, &txtValueVal, &txtValueUnit, &txtValueDefault}) {
    cell->Height = h;
  }
  float y = Whole(txtValueNo.Top) + h;
  if (spaceNibbleTop.Visible) {
    spaceNibbleTop.Top = y;
    y += Whole(spaceNibbleTop.Height);
  }
  for (std::size_t group = 0; group < Groups; ++group) {
    if (!txtPos[group]->Visible) continue;
    // The meaning has grown; the value next to it takes its height.
    txtValueBitValue[group]->Height = txtValueBitName[group]->Height;
    txtPos[group]->Top = y;
    txtValueBitValue[group]->Top = y + txtPos[group]->Height;
    txtValueBitName[group]->Top = y + txtPos[group]->Height;
    y += Whole(txtPos[group]->Height + txtValueBitName[group]->Height);
  }
  if (spaceNibbleTop.Visible) {
    spaceNibbleBottom.Top = y;
    y += Whole(spaceNibbleTop.Height);  // not of the bottom spacer
    shapeNibble.Height = y - txtValueNo.Top - 2;
    txtValueNo.Height = shapeNibble.Height;
  } else {
    shapeNibble.Height = 0;
    txtValueNo.Height = y - txtValueNo.Top;
  }
}

}  // namespace tarvis
