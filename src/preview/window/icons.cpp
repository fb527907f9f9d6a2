#include "preview/window/icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <algorithm>
#include <sstream>

namespace tarvis {
namespace {

QPainterPath ReadOutline(const char* outline) {
  QPainterPath path;
  std::istringstream in(outline);
  in.imbue(std::locale::classic());
  char command = 0;
  while (in >> command) {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    if (command != 'Z') in >> x >> y;
    if (command == 'R' || command == 'O') in >> width >> height;
    if (command == 'M') path.moveTo(x, y);
    if (command == 'L') path.lineTo(x, y);
    if (command == 'Z') path.closeSubpath();
    if (command == 'R') path.addRect(x, y, width, height);
    if (command == 'O') path.addEllipse(x, y, width, height);
  }
  return path;
}

class OutlineEngine : public QIconEngine {
 public:
  explicit OutlineEngine(const char* outline) : outline_(outline) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    constexpr double Square = 16;
    const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const double side = std::min(rect.width(), rect.height());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.center() + QPointF(0.5, 0.5) - QPointF(side, side) / 2);
    painter->scale(side / Square, side / Square);
    painter->setPen(QPen(QApplication::palette().color(group, QPalette::ButtonText), 1.2, Qt::SolidLine,
                         Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(ReadOutline(outline_));
    painter->restore();
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }
  QIconEngine* clone() const override { return new OutlineEngine(outline_); }

 private:
  const char* outline_;
};

}  // namespace

QIcon OutlineIcon(const char* outline) {
  return QIcon(new OutlineEngine(outline));
}

}  // namespace tarvis
