#include "preview/window/zoom_box.h"

#include <QLineEdit>
#include <array>
#include <cmath>

namespace tarvis {
namespace {

constexpr std::array ZoomChoices{25, 50, 75, 100, 125, 150, 200, 300, 400, 800};  // percent

}  // namespace

ZoomBox::ZoomBox(QWidget* parent) : QComboBox(parent) {
  setObjectName(QStringLiteral("zoomBox"));
  setAccessibleName(tr("Zoom"));
  setToolTip(tr("Zoom"));
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  for (const int percent : ZoomChoices) addItem(QStringLiteral("%1 %").arg(percent));
  connect(this, &QComboBox::activated, this, &ZoomBox::Read);
  connect(lineEdit(), &QLineEdit::returnPressed, this, &ZoomBox::Read);
  connect(lineEdit(), &QLineEdit::editingFinished, this, [this] { ShowZoom(zoom_); });
}

void ZoomBox::ShowZoom(double zoom) {
  zoom_ = zoom;
  setEditText(QStringLiteral("%1 %").arg(std::lround(zoom * 100)));
}

void ZoomBox::Read() {
  QString text = currentText();
  text.remove(QLatin1Char('%'));
  bool isNumber = false;
  const double percent = locale().toDouble(text.trimmed(), &isNumber);
  if (isNumber) emit ZoomChosen(percent / 100);
  ShowZoom(zoom_);
  emit Used();
}

}  // namespace tarvis
