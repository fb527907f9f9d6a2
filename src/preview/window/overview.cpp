#include "preview/window/overview.h"

#include <utility>

namespace tarvis {
namespace {

constexpr double SmallWidth = 180;  // of a page, in logical pixels

}  // namespace

Overview::Overview(PageView& view, PageInput& input, QObject* parent) : QObject(parent), view_(view) {
  setObjectName(QStringLiteral("overview"));
  connect(&input, &PageInput::Pressed, this, &Overview::ClosePage);
}

void Overview::Open() {
  const PageLayout& layout = view_.Layout();
  if (IsOpen()) return;
  before_ = {layout.Continuous(), layout.Side(), layout.Mode(), layout.Zoom()};
  view_.SetContinuous(true);
  view_.SetColumns(Columns::AsManyAsFit);
  view_.SetZoom(layout.Zoom() * SmallWidth / layout.PageSize().width());
  emit Toggled();
}

void Overview::Close() {
  if (!IsOpen()) return;
  const Look look = *std::exchange(before_, {});
  const int page = view_.CurrentPage();
  view_.SetContinuous(look.Continuous);
  view_.SetColumns(look.Side);
  if (look.Mode == ZoomMode::Factor) {
    view_.SetZoom(look.Zoom);
  } else {
    view_.SetZoomMode(look.Mode);
  }
  view_.GoTo({page, 0});
  emit Toggled();
}

void Overview::ClosePage(const PageView::Spot& spot) {
  if (!IsOpen() || spot.Page < 0) return;
  Close();
  view_.GoTo({spot.Page, 0});
}

}  // namespace tarvis
