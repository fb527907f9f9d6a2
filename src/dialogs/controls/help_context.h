// The help context number of a control; one without its own takes that of its container.
#pragma once

#include <QVariant>
#include <QWidget>
#include <cstdint>

namespace tarvis {

inline constexpr char HelpContextProperty[] = "HelpContextId";

inline void SetHelpContext(QWidget& control, std::int32_t context) {
  control.setProperty(HelpContextProperty, context);
}

// 0 for none.
inline std::int32_t HelpContextOf(const QWidget* control) {
  for (; control != nullptr; control = control->parentWidget()) {
    const QVariant context = control->property(HelpContextProperty);
    if (context.isValid()) return context.toInt();
  }
  return 0;
}

}  // namespace tarvis
