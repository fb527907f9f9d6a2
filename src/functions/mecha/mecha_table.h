// The layout of the three tables of a mechanical analysis, which differ only in their rows.
#pragma once

#include <utility>

#include "report/name_value_table.h"

namespace tarvis {

class MechaTable : public NameValueTable {
 protected:
  MechaTable(const char* name, ReportContext context, const char* caption, std::vector<TableRow> rows)
      : NameValueTable(name, context, caption, Entry::Plain, Columns, std::move(rows)) {}

 private:
  static constexpr TableColumns Columns{.Name = {"Items", 142, 3685},
                                        .Value = {"Value", 3827, 2834, Align::Right},
                                        .Unit = TableColumn{"Unit", 6661, 2268, Align::Right}};
};

}  // namespace tarvis
