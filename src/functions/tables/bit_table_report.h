// A table whose rows spell out the bits of their ID, one column a bit: the zone and the jog speed table.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "report/function_report.h"
#include "report/named_column.h"

namespace tarvis {

struct BitTableLayout {
  const char* Caption;
  float UnitLabelLeft;
  float UnitLeft;
  float UnitWidth;
  NamedColumn Id;
  std::span<const NamedColumn> Bits;  // from the highest bit at the left to bit 0
  std::span<const NamedColumn> Texts;
};

class BitTableReport : public FunctionReport {
 public:
  void ActiveReport_FetchData(bool& endOfData) override;

 protected:
  // `layout` must have static storage.
  BitTableReport(const char* name, ReportContext context, const BitTableLayout& layout);

  virtual std::int16_t RowCount() const = 0;
  // Shows the row with this index: its ID, and its texts in the order of the layout's text columns.
  virtual void ShowRow(int index) = 0;
  // The number and, lowest bit first, an X for each bit that is set; a bit without a column is dropped.
  void ShowId(std::int16_t id);
  void ShowText(std::size_t column, const std::string& text) { texts_[column]->Text = text; }

 private:
  Field& AddUnit(const BitTableLayout& layout);
  Field& AddColumn(const NamedColumn& column, const CellStyle& style);

  Section& ghGuide;
  Section& Detail;
  Section& GroupFooter2;
  Section& GroupFooter1;
  Field* id_ = nullptr;
  std::vector<Field*> bits_;
  std::vector<Field*> texts_;

 protected:
  Field& txtUnit;
};

}  // namespace tarvis
