// The preview window's page box and zoom box.
#include <QComboBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <array>
#include <cmath>

#include "preview/pages/page_view.h"
#include "preview/window/preview_window.h"
#include "preview/window/side_pane.h"

namespace tarvis {
namespace {

constexpr std::array ZoomChoices{25, 50, 75, 100, 125, 150, 200, 300, 400, 800};  // percent

}  // namespace

QWidget* PreviewWindow::MakePageBox() {
  auto* holder = new QWidget(this);
  holder->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  auto* row = new QHBoxLayout(holder);
  row->setContentsMargins(4, 0, 4, 0);
  const int count = view_->Layout().PageCount();
  pageBox_ = new QLineEdit(holder);
  pageBox_->setObjectName(QStringLiteral("pageBox"));
  pageBox_->setAccessibleName(tr("Page number"));
  pageBox_->setToolTip(tr("Page number (Ctrl+G)"));
  pageBox_->setAlignment(Qt::AlignRight);
  pageBox_->setValidator(new QIntValidator(1, std::max(1, count), pageBox_));
  pageBox_->setFixedWidth(pageBox_->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 12);
  auto* total = new QLabel(QStringLiteral("/ %1").arg(count), holder);
  total->setObjectName(QStringLiteral("pageTotal"));
  row->addWidget(pageBox_);
  row->addWidget(total);
  connect(pageBox_, &QLineEdit::returnPressed, this, &PreviewWindow::ReadPageBox);
  connect(pageBox_, &QLineEdit::editingFinished, this, &PreviewWindow::ShowPlace);
  return holder;
}

QWidget* PreviewWindow::MakeZoomBox() {
  zoomBox_ = new QComboBox(this);
  zoomBox_->setObjectName(QStringLiteral("zoomBox"));
  zoomBox_->setAccessibleName(tr("Zoom"));
  zoomBox_->setToolTip(tr("Zoom"));
  zoomBox_->setEditable(true);
  zoomBox_->setInsertPolicy(QComboBox::NoInsert);
  for (const int percent : ZoomChoices) zoomBox_->addItem(QStringLiteral("%1 %").arg(percent));
  connect(zoomBox_, &QComboBox::activated, this, &PreviewWindow::ReadZoomBox);
  connect(zoomBox_->lineEdit(), &QLineEdit::returnPressed, this, &PreviewWindow::ReadZoomBox);
  connect(zoomBox_->lineEdit(), &QLineEdit::editingFinished, this, &PreviewWindow::ShowZoom);
  return zoomBox_;
}

void PreviewWindow::FocusPageBox() {
  pageBox_->setFocus(Qt::ShortcutFocusReason);
  pageBox_->selectAll();
}

void PreviewWindow::ReadPageBox() {
  bool isNumber = false;
  const int page = pageBox_->text().toInt(&isNumber);
  if (isNumber) Jump({std::clamp(page, 1, std::max(1, view_->Layout().PageCount())) - 1, 0});
  view_->setFocus();
}

void PreviewWindow::ReadZoomBox() {
  QString text = zoomBox_->currentText();
  text.remove(QLatin1Char('%'));
  bool isNumber = false;
  const double percent = locale().toDouble(text.trimmed(), &isNumber);
  if (isNumber) view_->SetZoom(percent / 100);
  ShowZoom();
  view_->setFocus();
}

void PreviewWindow::ShowPlace() {
  const int count = view_->Layout().PageCount();
  const int page = view_->CurrentPage();
  // What is being typed stays.
  if (!pageBox_->hasFocus()) pageBox_->setText(QString::number(page + 1));
  pane_->ShowPlace(view_->ReadPlace());
  ActionOf(Command::FirstPage)->setEnabled(page > 0);
  ActionOf(Command::PreviousPage)->setEnabled(page > 0);
  ActionOf(Command::NextPage)->setEnabled(page + 1 < count);
  ActionOf(Command::LastPage)->setEnabled(page + 1 < count);
  ActionOf(Command::Back)->setEnabled(history_.CanGoBack());
  ActionOf(Command::Forward)->setEnabled(history_.CanGoForward());
}

void PreviewWindow::ShowZoom() {
  zoomBox_->setEditText(QStringLiteral("%1 %").arg(std::lround(view_->Zoom() * 100)));
  ActionOf(Command::FitPage)->setChecked(view_->Layout().Mode() == ZoomMode::FitPage);
  ActionOf(Command::FitWidth)->setChecked(view_->Layout().Mode() == ZoomMode::FitWidth);
  ActionOf(Command::Continuous)->setChecked(view_->Layout().Continuous());
}

}  // namespace tarvis
