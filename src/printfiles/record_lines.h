// The lines of the small records that several files share.
#pragma once

#include "printfiles/key_table.h"
#include "printfiles/mecha_data.h"
#include "printfiles/trace_data.h"

namespace tarvis {

inline LineHandler CursorLine(CursorRow& row) {
  return FieldsAndRest(row.ValueA, row.ValueB, row.ValueDiff, row.NameUnit);
}

inline LineHandler ItemLine(TraceItem& item) {
  return Fields(item.Name, item.Display, item.Unit);
}

inline LineHandler SettingLine(NameValueUnit& setting) {
  return Fields(setting.Name, setting.Value, setting.Unit);
}

}  // namespace tarvis
