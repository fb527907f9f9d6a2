// Tables of captions supplied by the host with their values, and mostly their units: one guide row that
// repeats, one row a record. A definition states its columns and its rows.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "report/function_report.h"

namespace tarvis {

// Left and width hold for the title and for the values below it, in twips.
struct TableColumn {
  const char* Title;
  float Left;
  float Width;
  Align Values = Align::Left;
};

struct TableColumns {
  TableColumn Name;
  TableColumn Value;
  std::optional<TableColumn> Unit;
};

// The places of the texts of one row; the fetch reads them. A row made without a record is blank.
struct TableRow {
  TableRow() = default;
  TableRow(const NameValue& record) : Name(&record.Name), Value(&record.Value) {}
  TableRow(const NameValueUnit& record) : Name(&record.Name), Value(&record.Value), Unit(&record.Unit) {}
  TableRow(const std::string& name, const std::string& value, const std::string& unit)
      : Name(&name), Value(&value), Unit(&unit) {}

  const std::string* Name = nullptr;
  const std::string* Value = nullptr;
  const std::string* Unit = nullptr;
};

class NameValueTable : public FunctionReport {
 public:
  void ActiveReport_FetchData(bool& endOfData) override;

 protected:
  // The records of `rows` must outlive the report, as those of the run do.
  NameValueTable(const char* name, ReportContext context, const char* caption, Entry entry,
                 const TableColumns& columns, std::vector<TableRow> rows, float detailHeight = 300);

  // A definition whose rows depend on the data sets them at its start.
  std::vector<TableRow> Rows;

  Section& ghGuide;
  Field& txtTitleName;
  Field& txtTitleValue;
  Field* const txtTitleUnit;  // none in a table without units

  Section& Detail;
  Field& txtValueName;
  Field& txtValueVal;
  Field* const txtValueUnit;

  Section& GroupFooter2;
  Section& GroupFooter1;
};

}  // namespace tarvis
