// The state while an old-style metafile plays, and the tables of its records.
#pragma once

#include "pictures/metafile/context/record_reading.h"
#include "pictures/metafile/wmf/wmf_record_types.h"

namespace tarvis {

struct WmfPlayback {
  WmfPlayback(DrawList& list, GlyphOutlines& glyphs) : Draw(list, glyphs), Bitmaps(list.Budget()) {}

  Drawing Draw;
  std::vector<MetaObject> Objects;  // by number; freed numbers hold nothing and are given out again
  std::vector<bool> Taken;
  RecordBitmaps Bitmaps;

  const MetaPalette& Palette() { return *Draw.State().Palette; }
  // Takes the lowest free number, for an object that can't be played too.
  void Add(MetaObject object);
  void Delete(std::size_t index);
  // SkipRecord if there is none.
  const MetaObject& Object(std::size_t index) const;
};

// Plays the parameters of one record. OutOfBytes if the record is broken, SkipRecord if it can't be played.
using WmfRecordFunction = void (*)(WmfPlayback& playback, ByteReader& reader);

struct WmfRecord {
  Meta Function;
  WmfRecordFunction Play;  // null: nothing to draw, and nothing missed
};

std::span<const WmfRecord> WmfStateRecords();
std::span<const WmfRecord> WmfObjectRecords();
std::span<const WmfRecord> WmfShapeRecords();
std::span<const WmfRecord> WmfTextRecords();
std::span<const WmfRecord> WmfImageRecords();

// These records hold their parameters in reverse order: y before x, and bottom, right, top, left.
inline QPointF ReadYX(ByteReader& reader) {
  const double y = reader.I16();
  return {static_cast<double>(reader.I16()), y};
}

inline QRectF ReadBoxFromBottom(ByteReader& reader) {
  const QPointF bottomRight = ReadYX(reader);
  return BoxOf(bottomRight, ReadYX(reader));
}

}  // namespace tarvis
