#include "preview/window/save_dialog.h"

#include <QFileInfo>
#include <QLineEdit>

#include "preview/window/overwrite_question.h"

namespace tarvis {
namespace {

constexpr QChar Quote = QLatin1Char('"');

// The ending of the first kind of `filters`, which ends like "(*.pdf)".
QString EndingOf(const QString& filters) {
  return filters.section(QStringLiteral("*."), 1, 1).section(QLatin1Char(')'), 0, 0);
}

}  // namespace

QLineEdit* SaveDialog::NameBox() const {
  return findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

SaveDialog::SaveDialog(QWidget* parent, const QString& caption, const QString& path, const QString& filters)
    : QFileDialog(parent, caption, QFileInfo(path).absolutePath(), filters) {
  setAcceptMode(QFileDialog::AcceptSave);
  setDefaultSuffix(EndingOf(filters));
  connect(this, &QFileDialog::filterSelected, this,
          [this](const QString& filter) { setDefaultSuffix(EndingOf(filter)); });
  // MayWriteTo asks for all names in the same words.
  setOption(QFileDialog::DontConfirmOverwrite, NameBox() != nullptr);
  selectFile(QFileInfo(path).fileName());
}

// The toolkit takes quotes for marks around each of several names. One file is saved here, and quotes are
// part of its name.
QString SaveDialog::TypedPath() const {
  const QLineEdit* name = NameBox();
  if (name == nullptr || !name->text().contains(Quote)) return selectedFiles().value(0);
  const QString path = directory().absoluteFilePath(name->text());
  return QFileInfo(path).suffix().isEmpty() ? path + QLatin1Char('.') + defaultSuffix() : path;
}

void SaveDialog::accept() {
  const QString path = TypedPath();
  if (QFileInfo(path).isDir() && path.contains(Quote)) return setDirectory(path);
  const bool isOurs = NameBox() != nullptr && !path.isEmpty() && !QFileInfo(path).isDir();
  if (isOurs && !MayWriteTo(path, this)) return;
  path_ = path;
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): the toolkit takes quotes for marks around names
  if (path.contains(Quote)) return QDialog::accept();
  QFileDialog::accept();
}

QString SaveDialog::Path() const {
  return path_.isEmpty() ? selectedFiles().value(0) : path_;
}

}  // namespace tarvis
