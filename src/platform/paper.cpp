#include "platform/paper.h"

#include <QLocale>
#include <QPageSize>
#include <QPrinterInfo>
#include <algorithm>
#include <cmath>

#include "report/paper_setup.h"

namespace tarvis {
namespace {

constexpr double MillimetresPerInch = 25.4;

float Twips(double millimetres) {
  return static_cast<float>(std::round(millimetres / MillimetresPerInch * TwipsPerInch));
}

QPageSize UsualPaper() {
  const bool inches = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  return QPageSize(inches ? QPageSize::Letter : QPageSize::A4);
}

}  // namespace

PageSetup DefaultPaper() {
  QPageSize paper = QPrinterInfo::defaultPrinter().defaultPageSize();
  if (!paper.isValid()) paper = UsualPaper();
  const QSizeF size = paper.size(QPageSize::Millimeter);
  return SetupForPaper(Twips(std::min(size.width(), size.height())),
                       Twips(std::max(size.width(), size.height())));
}

}  // namespace tarvis
