#include "preview/window/page_box.h"

#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>

namespace tarvis {

PageBox::PageBox(int pageCount, QWidget* parent)
    : QWidget(parent), pageCount_(std::max(1, pageCount)), number_(new QLineEdit(this)) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  number_->setObjectName(QStringLiteral("pageBox"));
  number_->setAccessibleName(tr("Page number"));
  number_->setToolTip(tr("Page number (Ctrl+G)"));
  number_->setAlignment(Qt::AlignRight);
  number_->setValidator(new QIntValidator(1, pageCount_, number_));
  number_->setFixedWidth(number_->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 12);
  auto* total = new QLabel(QStringLiteral("/ %1").arg(pageCount), this);
  total->setObjectName(QStringLiteral("pageTotal"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(4, 0, 4, 0);
  row->addWidget(number_);
  row->addWidget(total);
  connect(number_, &QLineEdit::returnPressed, this, &PageBox::Read);
  connect(number_, &QLineEdit::editingFinished, this, &PageBox::ShowNumber);
}

void PageBox::ShowPage(int page) {
  page_ = page;
  ShowNumber();
}

void PageBox::StartTyping() {
  number_->setFocus(Qt::ShortcutFocusReason);
  number_->selectAll();
}

void PageBox::Read() {
  emit PageTyped(std::clamp(number_->text().toInt(), 1, pageCount_) - 1);
}

void PageBox::ShowNumber() {
  if (!number_->hasFocus()) number_->setText(QString::number(page_ + 1));
}

}  // namespace tarvis
