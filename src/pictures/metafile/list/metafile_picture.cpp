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
  AddTexts(list_, {});
}

// `place` maps the units of `list` to those of the picture.
void MetafilePicture::AddTexts(const DrawList& list, const QTransform& place) {
  const auto part = [this](QPointF size) {
    return PictureText::Place{static_cast<float>(size.x() / frame_.width()),
                              static_cast<float>(size.y() / frame_.height())};
  };
  const auto size = [&place](QPointF vector) { return place.map(vector) - place.map(QPointF()); };
  for (const ListText& text : list.Texts()) {
    if (!frame_.contains(place.map(text.Origins.front()))) continue;
    PictureText line;
    line.Text = QString::fromUcs4(text.Characters.data(), static_cast<qsizetype>(text.Characters.size()))
                    .toStdString();
    for (std::size_t index = 0; index < text.Origins.size(); ++index) {
      for (const QPointF edge : {text.Origins[index], text.Ends[index]})
        line.Edges.push_back(part(place.map(edge) - frame_.topLeft()));
    }
    line.Up = part(size(text.Up));
    line.Down = part(size(text.Down));
    texts_.push_back(std::move(line));
  }
  for (const ListPart& inner : list.Parts()) AddTexts(*inner.List, inner.Place * place);
}

void MetafilePicture::Paint(QPainter& painter, const QRectF& target) const {
  if (!target.isEmpty()) DrawListPainter(list_, painter, frame_, target).Paint();
}

}  // namespace tarvis
