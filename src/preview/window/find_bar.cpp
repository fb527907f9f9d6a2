#include "preview/window/find_bar.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "preview/window/icons.h"

namespace tarvis {
namespace {

QToolButton* MakeButton(const char* name, const QString& tip, const char* icon, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setAccessibleName(tip);
  button->setToolTip(tip);
  button->setIcon(OutlineIcon(icon));
  button->setAutoRaise(true);
  return button;
}

}  // namespace

FindBar::FindBar(QWidget* parent)
    : QWidget(parent),
      text_(new QLineEdit(this)),
      caseMatters_(new QCheckBox(tr("Match &case"), this)),
      wholeWords_(new QCheckBox(tr("Whole w&ords"), this)),
      count_(new QLabel(this)) {
  setObjectName(QStringLiteral("findBar"));
  text_->setObjectName(QStringLiteral("findText"));
  text_->setAccessibleName(tr("Text to find"));
  text_->setPlaceholderText(tr("Find"));
  text_->setClearButtonEnabled(true);
  text_->setMinimumWidth(140);
  text_->setMaximumWidth(320);
  caseMatters_->setObjectName(QStringLiteral("findCase"));
  wholeWords_->setObjectName(QStringLiteral("findWords"));
  count_->setObjectName(QStringLiteral("findCount"));
  auto* previous = MakeButton("findPreviousButton", tr("Previous hit (Shift+F3)"), "M4 10 L8 6 L12 10", this);
  auto* next = MakeButton("findNextButton", tr("Next hit (F3)"), "M4 6 L8 10 L12 6", this);
  auto* close = MakeButton("findCloseButton", tr("Close (Esc)"), "M4 4 L12 12 M12 4 L4 12", this);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 3, 6, 3);
  for (QWidget* widget :
       std::initializer_list<QWidget*>{close, text_, previous, next, caseMatters_, wholeWords_}) {
    row->addWidget(widget);
  }
  row->addWidget(count_, 1);
  connect(text_, &QLineEdit::textChanged, this, &FindBar::Changed);
  connect(caseMatters_, &QCheckBox::toggled, this, &FindBar::Changed);
  connect(wholeWords_, &QCheckBox::toggled, this, &FindBar::Changed);
  connect(previous, &QToolButton::clicked, this, &FindBar::PreviousWanted);
  connect(next, &QToolButton::clicked, this, &FindBar::NextWanted);
  connect(close, &QToolButton::clicked, this, &FindBar::Closed);
  hide();
}

void FindBar::Open() {
  show();
  text_->setFocus(Qt::ShortcutFocusReason);
  text_->selectAll();
}

QString FindBar::Text() const {
  return text_->text();
}

SearchOptions FindBar::Options() const {
  return {caseMatters_->isChecked(), wholeWords_->isChecked()};
}

void FindBar::ShowCount(int current, int total) {
  if (text_->text().isEmpty()) {
    count_->clear();
  } else {
    count_->setText(total == 0 ? tr("not found") : tr("%1 of %2").arg(current).arg(total));
  }
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    emit Closed();
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (event->modifiers().testFlag(Qt::ShiftModifier)) {
      emit PreviousWanted();
    } else {
      emit NextWanted();
    }
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace tarvis
