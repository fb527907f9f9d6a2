// Pictures of pages for the screen: rendered in a background thread, kept within a budget of bytes.
#pragma once

#include <QImage>
#include <QObject>
#include <QThreadPool>
#include <map>
#include <memory>
#include <vector>

#include "preview/render_policy.h"
#include "report/engine/document.h"

namespace tarvis {

// Rows `top` to `top + height` of page `page`, the whole page being `pageWidth` device pixels wide.
QImage RenderPage(const Document& document, int page, int pageWidth, int top, int height);

// Height in device pixels of a page that is `pageWidth` wide.
int PagePixelHeight(const Document& document, int pageWidth);

class PagePictures : public QObject {
  Q_OBJECT
 public:
  // Keeps at most `budget` bytes of pictures, unless what is wanted takes more.
  explicit PagePictures(std::shared_ptr<const Document> document, std::int64_t budget,
                        QObject* parent = nullptr);
  // Waits for the rendering that is under way.
  ~PagePictures() override;

  // What is to be rendered from now on, most urgent first.
  void Want(std::vector<Strip> strips);
  // Null if it isn't rendered.
  const QImage* Find(const Strip& strip);
  // The same, rendered on the spot if needed.
  const QImage& Make(const Strip& strip);
  // Strips of the page in the size that best stands in for `pageWidth`, which may be that size itself.
  std::vector<Strip> StandIns(int page, int pageWidth) const;
  std::int64_t Bytes() const;

 signals:
  void PageReady(int page);

 private:
  struct Entry {
    QImage Picture;
    std::int64_t LastUse = 0;
  };

  void StartNext();
  void Keep(const Strip& strip, QImage picture);

  std::shared_ptr<const Document> document_;
  std::int64_t budget_;
  std::map<Strip, Entry> entries_;
  std::vector<Strip> wanted_;
  std::int64_t uses_ = 0;
  bool busy_ = false;
  QThreadPool worker_;
};

}  // namespace tarvis
