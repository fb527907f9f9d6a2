// The lines of the small records that several files share.
#pragma once

#include "printfiles/key_table.h"
#include "run/mecha_data.h"
#include "run/trace_data.h"

namespace tarvis {

inline LineHandler CursorLine(CursorRow& row) {
  return FieldsAndRest(row.ValueA, row.ValueB, row.ValueDiff, row.NameUnit);
}

// A cursor's line counts only if it follows a `CursolSelect` that asks for it.
template <typename Record>
KeyTable CursorKeys(Record& record) {
  return {
      {"CursolSelect", Rest(record.CursolSelect)},
      {"CursolInfo1", OnlyAbove(0, record.CursolSelect, CursorLine(record.CursolInfo1))},
      {"CursolInfo2", OnlyAbove(1, record.CursolSelect, CursorLine(record.CursolInfo2))},
  };
}

inline LineHandler ItemLine(TraceItem& item) {
  return Fields(item.Name, item.Display, item.Unit);
}

inline LineHandler SettingLine(NameValueUnit& setting) {
  return Fields(setting.Name, setting.Value, setting.Unit);
}

inline KeyTable RecordingKeys(Recording& recording) {
  return CursorKeys(recording) +
         KeyTable{
             {"OverlapMode", Rest(recording.OverlapMode)},   {"OverlapNum", Rest(recording.OverlapNum)},
             {"DataTrace1", ItemLine(recording.DataTrace1)}, {"DataTrace2", ItemLine(recording.DataTrace2)},
             {"DataTrace3", ItemLine(recording.DataTrace3)}, {"I/Otrace1", ItemLine(recording.IOTrace1)},
             {"I/Otrace2", ItemLine(recording.IOTrace2)},    {"I/Otrace3", ItemLine(recording.IOTrace3)},
         };
}

}  // namespace tarvis
