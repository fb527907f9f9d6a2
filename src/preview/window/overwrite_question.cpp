#include "preview/window/overwrite_question.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

#include "printfiles/replace_file.h"

namespace tarvis {
namespace {

QString Translated(const char* text) {
  return QCoreApplication::translate("OverwriteQuestion", text);
}

QMessageBox::StandardButton Ask(QWidget* parent, const char* name, const QString& words,
                                QMessageBox::StandardButtons buttons) {
  QMessageBox box(QMessageBox::Warning, parent->windowTitle(), words, buttons, parent);
  box.setObjectName(QString::fromLatin1(name));
  box.setDefaultButton(QMessageBox::No);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

bool MayWriteTo(const QString& path, QWidget* parent) {
  const QString shown = QDir::toNativeSeparators(path);
  if (!CanBeReplaced(QFileInfo(path).filesystemFilePath())) {
    Ask(parent, "noFile",
        Translated("\"%1\" is not an ordinary file and is not replaced.\nPlease choose another name.")
            .arg(shown),
        QMessageBox::Ok);
    return false;
  }
  if (!QFileInfo::exists(path)) return true;
  return Ask(parent, "replaceFile",
             Translated("\"%1\" already exists.\nDo you want to replace it?").arg(shown),
             QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

}  // namespace tarvis
