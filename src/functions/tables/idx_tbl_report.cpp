#include "functions/tables/idx_tbl_report.h"

#include <cmath>
#include <limits>

#include "functions/tables/table_cells.h"
#include "printfiles/print_options_file.h"
#include "text/excerpt.h"
#include "text/numbers.h"
#include "text/text.h"

namespace tarvis {
namespace {

constexpr float IdxCellHeight = 283;
// Rows are this high from the first text on that is longer than its column; they stay so.
constexpr float HighRow = 400;
constexpr std::size_t LongPos = 17;
constexpr std::size_t LongSpd = 14;
constexpr std::size_t LongRdst = 14;

enum Range { AllSteps = 0, DefinedSteps = 1, StepRange = 2 };

// The longest numeric prefix as a 16-bit number, halves to the even one. `element` counts from 1.
std::int16_t LenientStep(PrintRun& run, const std::string& text, int element) {
  const double step = std::nearbyint(LenientReal(text));
  if (step < std::numeric_limits<std::int16_t>::min() || step > std::numeric_limits<std::int16_t>::max()) {
    FailurePlace place = OptionPlace(run, run.Options.IdxTblOption.Range);
    place.Element = element;
    place.Text = Excerpt(text);
    throw RunTimeFailure("number out of range", place);
  }
  return static_cast<std::int16_t>(step);
}

}  // namespace

IdxTblReport::IdxTblReport(const char* name, ReportContext context, const IdxLayout& layout)
    : FunctionReport(name, 9060, context, "Program Table", layout.TitleHeight, Entry::Plain, Keep::All),
      layout_(layout),
      ghGuide(AddGuide(layout.GuideHeight)),
      Detail(AddRows(405)),
      GroupFooter2(AddGrowing(SectionKind::GroupFooter, "GroupFooter2", 0)),
      GroupFooter1(AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 0)) {
  AddUnitLines();
  AddColumns();
  ghGuide.Repeat = true;
  ghGuide.BeforePrint = [this] { ghGuide_BeforePrint(); };
  Detail.Format = [this] { Detail_Format(); };
}

void IdxTblReport::AddUnitLines() {
  ghTitle.AddLabel("Label6", {4252, 850, 709, 284}, "[Unit]", {.Size = 9, .Bold = true});
  for (const IdxUnitLine& line : layout_.Units) {
    unitLabels_.push_back(&ghTitle.AddLabel(line.Label, {5102, line.Top, layout_.UnitLabelWidth, line.Height},
                                            line.Caption, Nine));
    unitFields_.push_back(
        &ghTitle.AddField(line.Field, {layout_.UnitLeft, line.Top, 2976, line.Height}, Nine));
  }
}

void IdxTblReport::AddColumns() {
  CellStyle style = ValueCell;
  style.Size = layout_.ValueSize;
  for (const IdxColumn& column : layout_.Columns) {
    const NamedColumn& cell = column.Cell;
    ghGuide.AddField(cell.TitleControl, {cell.Left, 15, cell.Width, IdxCellHeight}, NineBold, cell.Title);
    values_.push_back(&Detail.AddField(cell.ValueControl, {cell.Left, 0, cell.Width, IdxCellHeight},
                                       values_.empty() ? NineBold : style));
  }
  values_.front()->Reads.As = PartRole::RowHeader;
}

void IdxTblReport::ActiveReport_ReportStart() {
  FunctionReport::ActiveReport_ReportStart();
  for (std::size_t line = 0; line < layout_.Units.size(); ++line) {
    const UnitRow& unit = Run.IdxTbl.*layout_.Units[line].Unit;
    unitLabels_[line]->SetCaption(unit.Caption);
    unitFields_[line]->Text = ":  " + unit.Unit;
  }
  FirstStep = LenientStep(Run, Run.Options.IdxTblOption.First, 2);
  LastStep = LenientStep(Run, Run.Options.IdxTblOption.Last, 3);
}

// The row stays: Detail_Format moves it to the next one that is to be looked at.
void IdxTblReport::ActiveReport_FetchData(bool& endOfData) {
  endOfData = Row >= Run.IdxTbl.IndexCnt;
  if (!endOfData) shown_ = Run.IdxTbl.Index[Row];
}

void IdxTblReport::ghGuide_BeforePrint() {
  if (Run.IdxTbl.IndexCnt == 0) Unload();
}

void IdxTblReport::Detail_Format() {
  switch (Run.Options.IdxTblOption.Range) {
    case AllSteps:
      ShowRow();
      ++Row;
      break;
    case DefinedSteps:
      FormatDefinedSteps();
      break;
    case StepRange:
      FormatStepRange();
      break;
    default:
      // The row would never move, and the data never end.
      throw RunTimeFailure("no such print range", OptionPlace(Run, Run.Options.IdxTblOption.Range));
  }
}

// A gap of steps without a program becomes one ":" row, but for one at the start or at the end of the table.
void IdxTblReport::FormatDefinedSteps() {
  const IdxTblData& table = Run.IdxTbl;
  if (table.Index[Row].Defined == 1) {
    ShowRow();
    ++Row;
    return;
  }
  if (Row == 0) LeaveOut();
  auto next = static_cast<std::int16_t>(Row + 1);
  while (next < table.IndexCnt && table.Index[next].Defined != 1) ++next;
  if (next < table.IndexCnt) {
    shown_ = {};
    shown_.Step = ":";
  } else {
    LeaveOut();
  }
  // A row that is left out is shown all the same, so its texts may make the rows high.
  ShowRow();
  Row = next;
}

void IdxTblReport::FormatStepRange() {
  if (Row > LastStep) {
    LeaveOut();
    Row = Run.IdxTbl.IndexCnt;
  } else if (Row < FirstStep) {
    LeaveOut();
    Row = FirstStep;
  } else {
    ShowRow();
    ++Row;
  }
}

void IdxTblReport::ShowRow() {
  if (CharacterCount(shown_.Pos) >= LongPos || CharacterCount(shown_.Spd) >= LongSpd ||
      CharacterCount(shown_.Rdst) >= LongRdst) {
    for (Field* value : values_) value->Height = HighRow;
  }
  for (std::size_t column = 0; column < values_.size(); ++column) {
    values_[column]->Text = shown_.*layout_.Columns[column].Text;
  }
}

void IdxTblReport::LeaveOut() {
  LayoutAction = 5;
}

}  // namespace tarvis
