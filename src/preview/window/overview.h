// The overview of all pages: many small pages side by side, of which a click opens one as it was shown
// before.
#pragma once

#include <QObject>
#include <optional>

#include "preview/pages/page_input.h"

namespace tarvis {

class Overview : public QObject {
  Q_OBJECT
 public:
  // Both must outlive it.
  Overview(PageView& view, PageInput& input, QObject* parent);

  bool IsOpen() const { return before_.has_value(); }
  void Open();
  // Shows the page that is read as pages were shown before.
  void Close();

 signals:
  // Opened or closed.
  void Toggled();

 private:
  // How pages were shown.
  struct Look {
    bool Continuous;
    Columns Side;
    ZoomMode Mode;
    double Zoom;
  };

  void ClosePage(const PageView::Spot& spot);

  PageView& view_;
  std::optional<Look> before_;
};

}  // namespace tarvis
