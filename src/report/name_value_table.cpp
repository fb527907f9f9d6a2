#include "report/name_value_table.h"

#include <utility>

namespace tarvis {
namespace {

constexpr float GuideTop = 142;
constexpr float CellHeight = 283;

Field& AddTitle(Section& guide, const char* name, const TableColumn& column) {
  return guide.AddField(name, {column.Left, GuideTop, column.Width, CellHeight}, TitleCell, column.Title);
}

Field& AddValue(Section& detail, const char* name, const TableColumn& column) {
  CellStyle style = ValueCell;
  style.Alignment = column.Values;
  return detail.AddField(name, {column.Left, 0, column.Width, CellHeight}, style);
}

const std::string& TextOf(const std::string* text) {
  static const std::string blank;
  return text == nullptr ? blank : *text;
}

}  // namespace

NameValueTable::NameValueTable(const char* name, ReportContext context, const char* caption, Entry entry,
                               const TableColumns& columns, std::vector<TableRow> rows, float detailHeight)
    : FunctionReport(name, 9000, context, caption, 690, entry, Keep::All),
      Rows(std::move(rows)),
      ghGuide(AddGuide(420)),
      txtTitleName(AddTitle(ghGuide, "txtTitleName", columns.Name)),
      txtTitleValue(AddTitle(ghGuide, "txtTitleValue", columns.Value)),
      txtTitleUnit(columns.Unit ? &AddTitle(ghGuide, "txtTitleUnit", *columns.Unit) : nullptr),
      Detail(AddRows(detailHeight)),
      txtValueName(AddValue(Detail, "txtValueName", columns.Name)),
      txtValueVal(AddValue(Detail, "txtValueVal", columns.Value)),
      txtValueUnit(columns.Unit ? &AddValue(Detail, "txtValueUnit", *columns.Unit) : nullptr),
      GroupFooter2(AddGrowing(SectionKind::GroupFooter, "GroupFooter2", 10)),
      GroupFooter1(AddGrowing(SectionKind::GroupFooter, "GroupFooter1", 0)) {
  ghGuide.Repeat = true;
}

void NameValueTable::ActiveReport_FetchData(bool& endOfData) {
  const auto index = static_cast<std::size_t>(Row);
  endOfData = index >= Rows.size();
  if (endOfData) return;
  const TableRow& row = Rows[index];
  txtValueName.Text = TextOf(row.Name);
  txtValueVal.Text = TextOf(row.Value);
  if (txtValueUnit != nullptr) txtValueUnit->Text = TextOf(row.Unit);
  ++Row;
}

}  // namespace tarvis
