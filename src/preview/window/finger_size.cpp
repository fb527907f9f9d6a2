#include "preview/window/finger_size.h"

#include <QInputDevice>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>

namespace tarvis {
namespace {

constexpr int FingerPixels = 36;  // logical
constexpr int IconPixels = 24;

}  // namespace

bool HasTouchScreen() {
  const QList<const QInputDevice*> devices = QInputDevice::devices();
  return std::ranges::any_of(devices, [](const QInputDevice* device) {
    return device->type() == QInputDevice::DeviceType::TouchScreen;
  });
}

void FitFingers(QToolBar& bar) {
  bar.setIconSize(QSize(IconPixels, IconPixels));
  for (QToolButton* button : bar.findChildren<QToolButton*>())
    button->setMinimumSize(FingerPixels, FingerPixels);
}

}  // namespace tarvis
