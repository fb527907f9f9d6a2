#include "pictures/metafile/list/metafile_picture.h"

#include <cmath>

#include "pictures/metafile/list/draw_list_painter.h"

namespace tarvis {

MetafilePicture::MetafilePicture(DrawList list, const QRectF& frame, const QSizeF& natural,
                                 RecordCounts records)
    : list_(std::move(list)), frame_(frame), natural_(natural), records_(std::move(records)) {
  const auto usable = [](double size) { return std::isfinite(size) && size > 0; };
  if (!usable(frame.width()) || !usable(frame.height()) || !usable(natural.width()) ||
      !usable(natural.height()))
    throw BadMetafile("it has no extent");
}

void MetafilePicture::Paint(QPainter& painter, const QRectF& target) const {
  if (!target.isEmpty()) DrawListPainter(list_, painter, frame_, target).Paint();
}

}  // namespace tarvis
