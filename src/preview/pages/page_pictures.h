// Pictures of pages for the screen: rendered in a background thread, kept within a budget of bytes.
#pragma once

#include <QImage>
#include <QObject>
#include <QThreadPool>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "preview/pages/render_policy.h"
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
  // Renders these strips next and waits for them, but no longer than `milliseconds`.
  void WaitFor(const std::vector<Strip>& strips, int milliseconds);
  // Strips of the page in the size that is the best substitute for `pageWidth`.
  std::vector<Strip> SubstituteStrips(int page, int pageWidth) const;
  std::int64_t Bytes() const;

 signals:
  void StripReady(const tarvis::Strip& strip);

 private:
  struct Entry {
    QImage Picture;
    std::int64_t LastUse = 0;
  };

  struct Rendered {
    Strip Key;
    QImage Picture;
  };

  void StartNext();
  void Render(const Document& document, const Strip& strip);
  // Takes over what the worker has rendered, and returns its key.
  std::optional<Strip> TakeRendered();
  void Keep(const Strip& strip, QImage picture);

  std::shared_ptr<const Document> document_;
  std::int64_t budget_;
  std::map<Strip, Entry> entries_;
  std::vector<Strip> wanted_;
  std::int64_t uses_ = 0;
  bool busy_ = false;
  std::mutex mutex_;  // guards rendered_, which the worker fills
  std::condition_variable arrived_;
  std::optional<Rendered> rendered_;
  QThreadPool worker_;
};

}  // namespace tarvis
