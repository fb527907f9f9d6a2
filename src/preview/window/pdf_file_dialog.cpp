#include "preview/window/pdf_file_dialog.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include "preview/window/overwrite_question.h"

namespace tarvis {
namespace {

constexpr QChar Quote = QLatin1Char('"');

// Translated without the class, which has no meta-object.
QString Text(const char* text) {
  return QCoreApplication::translate("PdfFileDialog", text);
}

// Null where the system's own dialog is shown.
QLineEdit* NameBox(const QFileDialog& dialog) {
  return dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

}  // namespace

PdfFileDialog::PdfFileDialog(QWidget* parent, const QString& path)
    : QFileDialog(parent, Text("Save as PDF"), QFileInfo(path).absolutePath(), Text("PDF files (*.pdf)")) {
  setObjectName(QStringLiteral("savePdfDialog"));
  setAcceptMode(QFileDialog::AcceptSave);
  setDefaultSuffix(QStringLiteral("pdf"));
  // MayWriteTo asks for all names in the same words.
  setOption(QFileDialog::DontConfirmOverwrite, NameBox(*this) != nullptr);
  selectFile(QFileInfo(path).fileName());
  const QLineEdit* name = NameBox(*this);
  if (name == nullptr) return;
  // The toolkit takes the text between quotes for the name, and disables the button if there is none.
  connect(name, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (!text.contains(Quote)) return;
    findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->setEnabled(true);
  });
}

void PdfFileDialog::OfferData(bool isOn) {
  auto* grid = qobject_cast<QGridLayout*>(layout());
  if (NameBox(*this) == nullptr || grid == nullptr) return;
  attachData_ = new QCheckBox(Text("Attach the &data"), this);
  attachData_->setObjectName(QStringLiteral("attachData"));
  attachData_->setToolTip(Text("Puts the data files that the pages are made of into the PDF."));
  attachData_->setChecked(isOn);
  grid->addWidget(attachData_, grid->rowCount(), 0, 1, grid->columnCount());
}

bool PdfFileDialog::AttachesData() const {
  return attachData_ != nullptr && attachData_->isChecked();
}

// The toolkit takes quotes for marks around each of several names. One file is saved here, and quotes are
// part of its name.
QString PdfFileDialog::TypedPath() const {
  const QLineEdit* name = NameBox(*this);
  if (name == nullptr || !name->text().contains(Quote)) return selectedFiles().value(0);
  const QString path = directory().absoluteFilePath(name->text());
  return QFileInfo(path).suffix().isEmpty() ? path + QStringLiteral(".pdf") : path;
}

void PdfFileDialog::accept() {
  const QString path = TypedPath();
  if (QFileInfo(path).isDir() && path.contains(Quote)) return setDirectory(path);
  const bool isOurs = NameBox(*this) != nullptr && !path.isEmpty() && !QFileInfo(path).isDir();
  if (isOurs && !MayWriteTo(path, this)) return;
  path_ = path;
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): the toolkit takes quotes for marks around names
  if (path.contains(Quote)) return QDialog::accept();
  QFileDialog::accept();
}

QString PdfFileDialog::Path() const {
  return path_.isEmpty() ? selectedFiles().value(0) : path_;
}

}  // namespace tarvis
