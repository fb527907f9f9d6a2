#include "functions/user/rptUserSwitch.h"

#include "functions/user/digit_list.h"
#include "report/reading_line.h"

namespace tarvis {
namespace {

constexpr float SwitchTop = 8;

}  // namespace

rptUserSwitch::rptUserSwitch(ReportContext context)
    : FunctionReport("rptUserSwitch", 9030, context, "Switches List", 690, Entry::Plain, Keep::All) {
  ghGuide.Repeat = true;
  ghGuide.BeforePrint = [this] { ghGuide_BeforePrint(); };
  Detail.Format = [this] { Detail_Format(); };
  Detail.BeforePrint = [this] { Detail_BeforePrint(); };
  DescribeRows();
}

// The number is beside the rows of its digits; the name of the whole is as wide as position and name of a
// digit.
void rptUserSwitch::DescribeRows() {
  txtValueNo.Reads.SpansLines = true;
  txtValueName.Reads.Columns = 2;
  for (std::size_t row = 0; row < Rows; ++row)
    ReadOnLine(row + 1, {txtPos[row], txtValueBitName[row], txtValueBitVal[row], txtValueBitDefault[row]});
}

void rptUserSwitch::ActiveReport_ReportStart() {
  txtValueNo.Top = SwitchTop;
  Row = 0;
  float x = txtTitlePos.Left + txtTitlePos.Width;
  if (Run.Session.ShowPrmName != 0) {
    PlaceWithNames(x);
  } else {
    PlaceWithoutNames(x);
  }
  const bool showsDefault = Run.Session.ShowPrmDefault != 0;
  for (Field* field : {&txtTitleDefault, &txtValueDefault, txtValueBitDefault[0], txtValueBitDefault[1],
                       txtValueBitDefault[2], txtValueBitDefault[3]}) {
    field->Visible = showsDefault;
    if (showsDefault) field->Left = x;
  }
}

void rptUserSwitch::PlaceWithNames(float& x) {
  x += txtTitleName.Width + txtTitleValue.Width;
  txtValueName.Top = txtValueNo.Top;
  txtValueVal.Top = txtValueNo.Top;
  txtValueDefault.Top = txtValueNo.Top;
  PlaceRows(0, txtValueName.Top + txtValueName.Height);
}

// The values of the whole parameter keep their place and lie under row 0, which covers them. So nobody sees
// them, and the number is read beside row 0.
void rptUserSwitch::PlaceWithoutNames(float& x) {
  txtTitleName.Visible = false;
  txtValueName.Visible = false;
  txtTitleValue.Left = x;
  txtValueVal.Left = x;
  txtValueVal.Reads.As = PartRole::None;
  txtValueDefault.Reads.As = PartRole::None;
  for (std::size_t row = 0; row < Rows; ++row) {
    txtValueBitName[row]->Visible = false;
    txtValueBitVal[row]->Left = x;
  }
  x += txtTitleValue.Width;
  MoveRowTo(0, txtValueNo.Top);
  PlaceRows(1, txtValueBitVal[0]->Top + txtValueBitVal[0]->Height);
  txtValueNo.Height = static_cast<float>(Rows) * txtValueBitVal[0]->Height;
}

void rptUserSwitch::PlaceRows(std::size_t first, float y) {
  for (std::size_t row = first; row < Rows; ++row) {
    MoveRowTo(row, y);
    y = txtValueBitVal[row]->Top + txtValueBitVal[row]->Height;
  }
}

void rptUserSwitch::MoveRowTo(std::size_t row, float top) {
  for (Field* field : {txtPos[row], txtValueBitName[row], txtValueBitVal[row], txtValueBitDefault[row]}) {
    field->Top = top;
  }
}

// Errors are ignored statement by statement.
void rptUserSwitch::ActiveReport_FetchData(bool& endOfData) {
  if (Row >= Run.User.SwitchNum) {
    endOfData = true;
    return;
  }
  IgnoreErrors([&] {
    const UserSwitch& source = Run.User.Switches[Row];
    txtValueNo.Text = source.No;
    txtValueName.Text = source.Name;
    txtValueVal.Text = source.Value;
    txtValueDefault.Text = source.Default;
    FillDigits(source);
  });
  ++Row;
  endOfData = false;
}

// A file without digits keeps the design texts of the positions.
void rptUserSwitch::FillDigits(const UserSwitch& source) {
  const bool tellsDigits = Run.Header.FileSpec >= SpecWithDigits;
  DigitCount = tellsDigits ? 0 : Rows;
  for (std::size_t row = 0; row < Rows; ++row) {
    const SwitchDigit& digit = source.Digit[row];
    if (tellsDigits) {
      IgnoreErrors([&] { SetDigitList(digit, *txtPos[row]); });
      if (!txtPos[row]->Text.empty()) ++DigitCount;
    }
    txtValueBitName[row]->Text = digit.Text;
    txtValueBitVal[row]->Text = digit.Value;
    txtValueBitDefault[row]->Text = digit.Default;
  }
}

void rptUserSwitch::ghGuide_BeforePrint() {
  if (Run.User.SwitchNum == 0) Unload();
}

// Row 0 always shows, also without any digit.
void rptUserSwitch::Detail_Format() {
  const PrintSession& session = Run.Session;
  if (session.ShowPrmName == 0)
    txtValueNo.Height = txtValueBitVal[0]->Height * static_cast<float>(DigitCount);
  for (std::size_t row = 1; row < Rows; ++row) {
    const bool shown = DigitCount > static_cast<int>(row);
    txtPos[row]->Visible = shown;
    txtValueBitVal[row]->Visible = shown;
    txtValueBitName[row]->Visible = shown && session.ShowPrmName != 0;
    txtValueBitDefault[row]->Visible = shown && session.ShowPrmDefault != 0;
  }
}

// The tops that are set concern row 0 in each pass; rows 1 to 3 stay where they are, and a grown one runs
// into the row below it.
void rptUserSwitch::Detail_BeforePrint() {
  float height = 0;
  for (std::size_t row = 0; row < Rows; ++row) {
    if (!txtPos[row]->Visible) continue;
    for (Field* field : {txtPos[row], txtValueBitVal[row], txtValueBitDefault[row]}) {
      field->Height = txtValueBitName[row]->Height;
    }
    height += txtPos[row]->Height;
    txtPos[0]->Top = txtValueBitName[0]->Top;
    txtValueBitVal[0]->Top = txtPos[0]->Top;
    txtValueBitDefault[0]->Top = txtPos[0]->Top;
  }
  txtValueNo.Height = height;
  // Exactly 1: a 2 shows the names, but leaves the number's box short.
  if (Run.Session.ShowPrmName == 1) txtValueNo.Height = txtValueName.Height + height;
}

}  // namespace tarvis
