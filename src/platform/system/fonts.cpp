#include "platform/system/fonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>
#include <algorithm>
#include <array>

#include "report/engine/text_measurer.h"
#include "run/failures.h"

namespace tarvis {
namespace {

const std::array Families = {QString(QLatin1String(FontFamily)), QString(QLatin1String(SubstituteFamily))};

}  // namespace

void RequireFonts(Desktop& desktop) {
  const QStringList installed = QFontDatabase::families();
  if (std::ranges::any_of(Families, [&](const QString& family) { return installed.contains(family); }))
    return;
  const std::string instead = QFontInfo(QFont(Families.back())).family().toStdString();
  if (instead.empty()) {  // the toolkit then draws a box for each letter
    desktop.Diagnose(std::string("no font is installed, so no text can be shown; install ") + FontFamily +
                     " or " + SubstituteFamily);
    desktop.EndProcess(ExitAfterRunTimeFailure);
  }
  desktop.Diagnose(std::string("neither ") + FontFamily + " nor " + SubstituteFamily +
                   " is installed; pages are set in " + instead);
}

}  // namespace tarvis
