#include "preview/window/pdf_file_dialog.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>

namespace tarvis {
namespace {

// Translated without the class, which has no meta-object.
QString Text(const char* text) {
  return QCoreApplication::translate("PdfFileDialog", text);
}

}  // namespace

PdfFileDialog::PdfFileDialog(QWidget* parent, const QString& path)
    : SaveDialog(parent, Text("Save as PDF"), path, Text("PDF files (*.pdf)")) {
  setObjectName(QStringLiteral("savePdfDialog"));
}

// Null where the system's own dialog is shown.
QCheckBox* PdfFileDialog::AddBox(const QString& name, const QString& caption, const QString& tip, bool isOn) {
  auto* grid = qobject_cast<QGridLayout*>(layout());
  if (NameBox() == nullptr || grid == nullptr) return nullptr;
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

}  // namespace tarvis
