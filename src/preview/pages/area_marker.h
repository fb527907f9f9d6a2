// Marking an area of a page by the mouse: by a drag with Ctrl held, or by the next drag after `Start`.
#pragma once

#include <QObject>
#include <QPointF>
#include <QRectF>
#include <optional>

class QMouseEvent;

namespace tarvis {

class PageInput;
class PageView;

struct PageArea {
  int Page = 0;
  QRectF Box;  // twips
};

class AreaMarker : public QObject {
  Q_OBJECT
 public:
  // Gets the mouse on `view` before `input` does. The view must outlive it.
  AreaMarker(PageView& view, PageInput& input, QObject* parent);

  // The next drag marks an area, until it is done or `Stop` is called, which also ends a drag that goes on
  // and takes away what it has marked.
  void Start();
  void Stop();
  bool IsWaiting() const { return waiting_; }
  // Whether an area is waited for or being dragged.
  bool IsMarking() const { return waiting_ || start_; }

  const std::optional<PageArea>& Area() const { return area_; }
  void Clear();

 signals:
  // The area, or whether one is waited for.
  void Changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Press(const QMouseEvent& event);
  bool Move(const QMouseEvent& event);
  bool Release(const QMouseEvent& event);

  PageView& view_;
  bool waiting_ = false;
  struct Corner {
    int Page;
    QPointF Point;   // twips
    QPointF InView;  // logical pixels
  };
  std::optional<Corner> start_;  // while the mouse is pressed
  std::optional<PageArea> area_;
};

}  // namespace tarvis
