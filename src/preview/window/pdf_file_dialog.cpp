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

// Null where the system's own dialog is shown.
QCheckBox* PdfFileDialog::AddBox(const QString& name, const QString& caption, const QString& tip, bool isOn) {
  auto* grid = qobject_cast<QGridLayout*>(layout());
  if (NameBox(*this) == nullptr || grid == nullptr) return nullptr;
  auto* box = new QCheckBox(caption, this);
  box->setObjectName(name);
  box->setToolTip(tip);
  box->setChecked(isOn);
  grid->addWidget(box, grid->rowCount(), 0, 1, grid->columnCount());
  return box;
}

void PdfFileDialog::OfferData(bool isOn) {
  attachData_ = AddBox(QStringLiteral("attachData"), Text("Attach the &data"),
                       Text("Puts the data files that the pages are made of into the PDF."), isOn);
}

void PdfFileDialog::OfferTags(bool isOn) {
  tags_ = AddBox(
      QStringLiteral("tags"), Text("&Tags for screen readers"),
      Text("Says which text is a heading, a cell of a table or a figure. The file becomes larger."), isOn);
}

bool PdfFileDialog::AttachesData() const {
  return attachData_ != nullptr && attachData_->isChecked();
}

bool PdfFileDialog::IsTagged() const {
  return tags_ != nullptr && tags_->isChecked();
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
