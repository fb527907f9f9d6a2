#include "platform/system/usual_paper.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

#include "report/engine/units.h"

namespace tarvis {
namespace {

constexpr double MillimetresPerInch = 25.4;

double Twips(double millimetres) {
  return std::round(millimetres / MillimetresPerInch * static_cast<double>(TwipsPerInch));
}

}  // namespace

QPageSize UsualPaper() {
  const bool inches = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  return QPageSize(inches ? QPageSize::Letter : QPageSize::A4);
}

QSizeF UprightTwips(const QPageSize& paper) {
  const QSizeF size = paper.size(QPageSize::Millimeter);
  return {Twips(std::min(size.width(), size.height())), Twips(std::max(size.width(), size.height()))};
}

}  // namespace tarvis
