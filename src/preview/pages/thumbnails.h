// Small pictures of all pages in a column.
#pragma once

#include <QAbstractScrollArea>
#include <memory>

#include "preview/pages/page_pictures.h"

namespace tarvis {

class Thumbnails : public QAbstractScrollArea {
  Q_OBJECT
 public:
  explicit Thumbnails(std::shared_ptr<const Document> document, QWidget* parent = nullptr);

  // Marks a page and scrolls it into view.
  void SetCurrent(int page);
  int Current() const { return current_; }
  int Count() const { return static_cast<int>(document_->Pages.size()); }
  // The place of a page's thumbnail in the viewport.
  QRect PlaceOf(int page) const;

 signals:
  void PageChosen(int page);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QSize PictureSize() const;
  int RowHeight() const;
  Strip StripOf(int page) const;
  void Update();
  void WantShown();

  std::shared_ptr<const Document> document_;
  PagePictures pictures_;
  int current_ = 0;
};

}  // namespace tarvis
