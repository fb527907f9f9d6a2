#include "platform/system/usual_paper.h"

#include <QLocale>
#include <algorithm>

namespace tarvis {

QPageSize UsualPaper() {
  const bool inches = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  return QPageSize(inches ? QPageSize::Letter : QPageSize::A4);
}

PaperSize UprightSize(const QPageSize& paper) {
  const QSizeF size = paper.size(QPageSize::Millimeter);
  return PaperOfMillimetres(std::min(size.width(), size.height()), std::max(size.width(), size.height()));
}

}  // namespace tarvis
