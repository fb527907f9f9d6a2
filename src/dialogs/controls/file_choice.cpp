#include "dialogs/controls/file_choice.h"

#include <QDir>
#include <QFileDialog>
#include <QStringList>

namespace tarvis {

QString ChooseFile(QWidget* parent, const QString& filter) {
  return QDir::toNativeSeparators(QFileDialog::getOpenFileName(parent, {}, {}, ToolkitFilter(filter)));
}

QString ToolkitFilter(const QString& filter) {
  const QStringList parts = filter.split(u'|');
  QStringList entries;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QStringList patterns;
    for (const QString& pattern : parts[i + 1].split(u';')) patterns << pattern << pattern.toLower();
    const QString description = parts[i].section(u'(', 0, 0);
    entries << description + u'(' + patterns.join(u' ') + u')';
  }
  return entries.join(QString::fromLatin1(";;"));
}

}  // namespace tarvis
