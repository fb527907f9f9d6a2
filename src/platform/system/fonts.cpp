#include "platform/system/fonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>
#include <algorithm>
#include <array>

#include "run/failures.h"

namespace tarvis {
namespace {

const std::array Families = {QStringLiteral("Arial"), QStringLiteral("Liberation Sans")};

}  // namespace

void RequireFonts(Desktop& desktop) {
  const QStringList installed = QFontDatabase::families();
  if (std::ranges::any_of(Families, [&](const QString& family) { return installed.contains(family); }))
    return;
  const std::string instead = QFontInfo(QFont(Families.back())).family().toStdString();
  if (instead.empty()) {  // the toolkit then draws a box for each letter
    desktop.Diagnose("no font is installed, so no text can be shown; install Arial or Liberation Sans");
    desktop.EndProcess(ExitAfterRunTimeFailure);
  }
  desktop.Diagnose("neither Arial nor Liberation Sans is installed; pages are set in " + instead);
}

}  // namespace tarvis
