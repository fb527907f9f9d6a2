#include "preview/pages/page_pictures.h"

#include <QPainter>
#include <algorithm>
#include <chrono>
#include <exception>
#include <utility>

#include "preview/paint/painter_canvas.h"
#include "preview/paint/toolkit_geometry.h"

namespace tarvis {
namespace {

QImage RenderStrip(const Document& document, const Strip& strip) {
  const int pageHeight = PagePixelHeight(document, strip.Width);
  const StripCut cut = CutIntoStrips(strip.Width, pageHeight);
  const int top = strip.Index * cut.Height;
  return RenderPage(document, strip.Page, strip.Width, top, std::min(cut.Height, pageHeight - top));
}

}  // namespace

int PagePixelHeight(const Document& document, int pageWidth) {
  const QSizeF paper = PaperSizeOf(document);
  return std::max(1, NearestPixel(paper.height() * pageWidth / paper.width()));
}

QImage RenderPage(const Document& document, int page, int pageWidth, int top, int height) {
  QImage picture(std::max(1, pageWidth), std::max(1, height), QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                         QPainter::SmoothPixmapTransform);
  const double scale = pageWidth / PaperSizeOf(document).width();
  painter.translate(0, -top);
  painter.scale(scale, scale);
  PixelCanvas canvas(painter, document.CodePage);
  PaintPage(document, static_cast<std::size_t>(page), canvas);
  return picture;
}

PagePictures::PagePictures(std::shared_ptr<const Document> document, std::int64_t budget, QObject* parent)
    : QObject(parent), document_(std::move(document)), budget_(budget) {
  worker_.setMaxThreadCount(1);
  worker_.setExpiryTimeout(-1);  // the thread's fonts are loaded once
}

PagePictures::~PagePictures() {
  worker_.waitForDone();
}

void PagePictures::Want(std::vector<Strip> strips) {
  wanted_ = std::move(strips);
  StartNext();
}

const QImage* PagePictures::Find(const Strip& strip) {
  const auto found = entries_.find(strip);
  if (found == entries_.end()) return nullptr;
  found->second.LastUse = ++uses_;
  return &found->second.Picture;
}

void PagePictures::WaitFor(const std::vector<Strip>& strips, int milliseconds) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
  wanted_.insert(wanted_.begin(), strips.begin(), strips.end());
  const auto isMissing = [this](const Strip& strip) { return !entries_.contains(strip); };
  while (std::any_of(strips.begin(), strips.end(), isMissing)) {
    StartNext();
    std::unique_lock lock(mutex_);
    if (!arrived_.wait_until(lock, deadline, [this] { return rendered_.has_value(); })) return;
    lock.unlock();
    TakeRendered();
  }
}

std::vector<Strip> PagePictures::SubstituteStrips(int page, int pageWidth) const {
  std::vector<int> widths;
  const auto first = entries_.lower_bound(Strip{page, 0, 0});
  const auto end = entries_.lower_bound(Strip{page + 1, 0, 0});
  for (auto entry = first; entry != end; ++entry) {
    if (entry->first.Width != pageWidth) widths.push_back(entry->first.Width);
  }
  const int best = SubstituteWidth(widths, pageWidth);
  std::vector<Strip> strips;
  for (auto entry = first; entry != end; ++entry) {
    if (entry->first.Width == best) strips.push_back(entry->first);
  }
  return strips;
}

std::int64_t PagePictures::Bytes() const {
  std::int64_t bytes = 0;
  for (const auto& [strip, entry] : entries_) bytes += entry.Picture.sizeInBytes();
  return bytes;
}

// One strip is rendered at a time, so that what is wanted last is never far back in a queue.
void PagePictures::StartNext() {
  if (busy_) return;
  const auto next = std::find_if(wanted_.begin(), wanted_.end(),
                                 [&](const Strip& strip) { return !entries_.contains(strip); });
  if (next == wanted_.end()) return;
  busy_ = true;
  worker_.start([this, document = document_, strip = *next] {
    try {
      Render(*document, strip);
    } catch (...) {  // such as a font that can't be loaded: it ends the run where exceptions are reported
      QMetaObject::invokeMethod(
          this, [failure = std::current_exception()] { std::rethrow_exception(failure); },
          Qt::QueuedConnection);
    }
  });
}

// Runs in the thread of the worker.
void PagePictures::Render(const Document& document, const Strip& strip) {
  Rendered rendered{strip, RenderStrip(document, strip)};
  {
    const std::scoped_lock lock(mutex_);
    rendered_ = std::move(rendered);
  }
  arrived_.notify_one();
  QMetaObject::invokeMethod(
      this,
      [this] {
        const std::optional<Strip> taken = TakeRendered();
        StartNext();
        if (taken) emit StripReady(*taken);
      },
      Qt::QueuedConnection);
}

std::optional<Strip> PagePictures::TakeRendered() {
  std::unique_lock lock(mutex_);
  if (!rendered_) return {};  // taken by someone who waited for it
  const Rendered rendered = *std::exchange(rendered_, std::nullopt);
  lock.unlock();
  busy_ = false;
  Keep(rendered.Key, rendered.Picture);
  return rendered.Key;
}

void PagePictures::Keep(const Strip& strip, QImage picture) {
  entries_[strip] = {std::move(picture), ++uses_};
  std::vector<CachedStrip> cached;
  for (const auto& [key, entry] : entries_)
    cached.push_back({key, entry.Picture.sizeInBytes(), entry.LastUse});
  std::vector<Strip> kept = wanted_;
  kept.push_back(strip);
  for (const Strip& old : Evict(std::move(cached), kept, budget_)) entries_.erase(old);
}

}  // namespace tarvis
