// The state while an enhanced metafile plays, and the tables of its records.
#pragma once

#include <unordered_map>

#include "pictures/metafile/context/record_reading.h"
#include "pictures/metafile/emf/emf_record_types.h"

namespace tarvis {

struct EmfPlayback {
  EmfPlayback(DrawList& list, GlyphOutlines& glyphs) : Draw(list, glyphs), Bitmaps(list.Budget()) {}

  Drawing Draw;
  std::unordered_map<std::uint32_t, MetaObject> Objects;
  RecordBitmaps Bitmaps;

  const MetaPalette& Palette() { return *Draw.State().Palette; }
  // Stock objects by their reserved numbers; SkipRecord if there is none.
  MetaObject Object(std::uint32_t index) const;
};

constexpr std::size_t BoundsSize = 16;  // of the rectangle that many records begin with, in bytes

// Plays one record. The reader holds the whole record and is positioned after its type and size. OutOfBytes
// if the record is broken, SkipRecord if it can't be played.
using EmfRecordFunction = void (*)(EmfPlayback& playback, ByteReader& reader);

struct EmfRecord {
  Emr Type;
  EmfRecordFunction Play;  // null: nothing to draw, and nothing missed
};

std::span<const EmfRecord> EmfStateRecords();
std::span<const EmfRecord> EmfObjectRecords();
std::span<const EmfRecord> EmfShapeRecords();
std::span<const EmfRecord> EmfClipRecords();
std::span<const EmfRecord> EmfTextRecords();
std::span<const EmfRecord> EmfImageRecords();

// The rectangles of a region at the reader's place.
MetaRegion ReadEmfRegion(ByteReader& reader, std::size_t size);

}  // namespace tarvis
