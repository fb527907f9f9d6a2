// The program table with its print range: one logic over the plain and the extended layout.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "report/function_report.h"
#include "report/named_column.h"
#include "run/table_data.h"

namespace tarvis {

using UnitOfTable = UnitRow IdxTblData::*;
using TextOfStep = std::string IdxRow::*;

// A unit line of the title block: caption and unit of a record.
struct IdxUnitLine {
  const char* Label;
  const char* Caption;  // of the design, replaced by the file's
  const char* Field;
  UnitOfTable Unit;
  float Top;
  float Height;
};

// One column: title, value, and the text of the step that it shows.
struct IdxColumn {
  NamedColumn Cell;
  TextOfStep Text;
};

struct IdxLayout {
  float TitleHeight;
  float GuideHeight;
  float UnitLabelWidth;
  float UnitLeft;
  float ValueSize;  // points; the step number is always 9
  std::span<const IdxUnitLine> Units;
  std::span<const IdxColumn> Columns;  // the first one is the step number
};

class IdxTblReport : public FunctionReport {
 public:
  void ActiveReport_ReportStart() override;
  void ActiveReport_FetchData(bool& endOfData) override;

 protected:
  // `layout` must have static storage.
  IdxTblReport(const char* name, ReportContext context, const IdxLayout& layout);

 private:
  void AddUnitLines();
  void AddColumns();
  void ghGuide_BeforePrint();
  void Detail_Format();
  void FormatDefinedSteps();
  void FormatStepRange();
  void ShowRow();
  void LeaveOut();

  const IdxLayout& layout_;
  std::int16_t FirstStep = 0;
  std::int16_t LastStep = 0;
  IdxRow shown_;  // texts of the row that is to be shown; fetched, and rewritten for a gap

  Section& ghGuide;
  Section& Detail;
  Section& GroupFooter2;
  Section& GroupFooter1;
  std::vector<Label*> unitLabels_;
  std::vector<Field*> unitFields_;
  std::vector<Field*> values_;
};

}  // namespace tarvis
