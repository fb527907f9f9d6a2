// A metafile, decoded.
#pragma once

#include "pictures/byte_reader.h"
#include "pictures/metafile/list/draw_list.h"
#include "pictures/metafile/list/record_counts.h"
#include "pictures/paintable_picture.h"

namespace tarvis {

class GlyphOutlines;

class MetafilePicture : public PaintablePicture {
 public:
  // `frame` is the part of the list that fills the target, `natural` the size in twips.
  MetafilePicture(DrawList list, const QRectF& frame, const QSizeF& natural, RecordCounts records);

  float NaturalWidth() const override { return static_cast<float>(natural_.width()); }
  float NaturalHeight() const override { return static_cast<float>(natural_.height()); }
  void Paint(QPainter& painter, const QRectF& target) const override;

  // Number of records that could not be played, and so are not shown.
  int SkippedRecords() const { return records_.AllSkipped(); }
  const RecordCounts& Records() const { return records_; }
  const DrawList& List() const { return list_; }
  // The part of the list that is shown.
  const QRectF& Frame() const { return frame_; }

 private:
  void AddTexts(const DrawList& list, const QTransform& place);

  DrawList list_;
  QRectF frame_;
  QSizeF natural_;
  RecordCounts records_;
};

bool LooksLikeEmf(Bytes bytes);
bool LooksLikeWmf(Bytes bytes);

// BadMetafile or OutOfBytes if the file is broken or shows nothing, TooCostly if it passes the budget.
std::shared_ptr<const MetafilePicture> LoadEmf(Bytes bytes, GlyphOutlines& glyphs, PictureBudget& budget);
std::shared_ptr<const MetafilePicture> LoadWmf(Bytes bytes, GlyphOutlines& glyphs, PictureBudget& budget);

}  // namespace tarvis
