#include "functions/tables/bit_table_report.h"

#include "functions/tables/table_cells.h"

namespace tarvis {
namespace {

constexpr CellStyle BitCell{.Size = 9, .Alignment = Align::Centre, .Border = true, .Filled = true};
constexpr CellStyle TextCell{.Size = 9, .Border = true, .Filled = true};
constexpr float BitCellHeight = 300;

}  // namespace

BitTableReport::BitTableReport(const char* name, ReportContext context, const BitTableLayout& layout)
    : FunctionReport(name, 9000, context, layout.Caption, 1140, Entry::Plain, Keep::All),
      ghGuide(AddGuide(300)),
      Detail(AddRows(405)),
      GroupFooter2(AddGrowing(SectionKind::GroupFooter, "GroupFooter2", 285)),
      GroupFooter1(AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 0)),
      txtUnit(AddUnit(layout)) {
  ghGuide.Repeat = true;
  id_ = &AddColumn(layout.Id, NineBold);
  id_->Reads.As = PartRole::RowHeader;
  for (const NamedColumn& column : layout.Bits) bits_.push_back(&AddColumn(column, BitCell));
  for (const NamedColumn& column : layout.Texts) texts_.push_back(&AddColumn(column, TextCell));
  GroupFooter2.AddLabel("Label3", {1276, 30, 4818, 283}, "X:Active    Blank:Non-Active", Nine);
}

Field& BitTableReport::AddUnit(const BitTableLayout& layout) {
  ghTitle.AddLabel("Label2", {layout.UnitLabelLeft, 850, 567, 284}, "Unit:", Nine);
  return ghTitle.AddField("txtUnit", {layout.UnitLeft, 850, layout.UnitWidth, 284}, Nine);
}

Field& BitTableReport::AddColumn(const NamedColumn& column, const CellStyle& style) {
  const Rect place{column.Left, 0, column.Width, BitCellHeight};
  ghGuide.AddField(column.TitleControl, place, NineBold, column.Title);
  return Detail.AddField(column.ValueControl, place, style);
}

void BitTableReport::ActiveReport_FetchData(bool& endOfData) {
  endOfData = Row >= RowCount();
  if (endOfData) return;
  ShowRow(Row);
  ++Row;
}

void BitTableReport::ShowId(std::int16_t id) {
  id_->Text = std::to_string(id);
  const auto pattern = static_cast<std::uint16_t>(id);
  for (std::size_t bit = 0; bit < bits_.size(); ++bit) {
    bits_[bits_.size() - 1 - bit]->Text = (pattern >> bit & 1U) != 0 ? "X" : "";
  }
}

}  // namespace tarvis
