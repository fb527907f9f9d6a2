#include "dialogs/controls/controls.h"

#include <QApplication>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

#include "report/engine/text_measurer.h"
#include "text/run_time_failure.h"

namespace tarvis {

namespace {

constexpr int SmallestFontPixels = 8;  // smaller text can't be read
constexpr float TitleInset = 135;      // twips, of the title of a group
constexpr float RowTolerance = 120;    // twips by which controls of one row may be out of line

// The parts of a check box or an option button, as the style draws them.
struct ButtonParts {
  QStyle::ControlElement Whole;
  QStyle::SubElement Contents;
};
constexpr ButtonParts CheckBoxParts{QStyle::CE_CheckBox, QStyle::SE_CheckBoxContents};
constexpr ButtonParts OptionButtonParts{QStyle::CE_RadioButton, QStyle::SE_RadioButtonContents};

// The styles draw captions on one line only, so a caption of two lines is drawn here.
void PaintWrapped(QAbstractButton& button, QStyleOptionButton option, const ButtonParts& parts) {
  QStylePainter painter(&button);
  const QString caption = option.text.trimmed();
  const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus);
  option.text.clear();
  option.state.setFlag(QStyle::State_HasFocus, false);
  painter.drawControl(parts.Whole, option);
  const QRect contents = button.style()->subElementRect(parts.Contents, &option, &button);
  constexpr int Flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextWordWrap;
  painter.drawItemText(contents, Flags, option.palette, option.state.testFlag(QStyle::State_Enabled), caption,
                       QPalette::WindowText);
  if (!hasFocus) return;
  QStyleOptionFocusRect focus;
  focus.QStyleOption::operator=(option);
  focus.rect = contents.adjusted(-2, 0, 0, 0);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

// Sets the geometry and returns whether the caption takes two lines.
bool PlaceCaption(QAbstractButton& button, const Rect& bounds) {
  QRect place = PixelRect(bounds, button);
  const int wanted = button.sizeHint().width();
  const int lineHeight = button.fontMetrics().height();
  const bool roomForTwo = place.height() >= 2 * lineHeight - 2;
  const bool wraps = wanted > place.width() && roomForTwo;
  if (!wraps) place.setWidth(std::max(place.width(), wanted));
  if (wraps) place.setHeight(std::max(place.height(), 2 * lineHeight));
  button.setGeometry(place);
  return wraps;
}

}  // namespace

QString PlainCaption(const QString& caption) {
  QString plain;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&' && i + 1 < caption.size()) ++i;
    plain += caption[i];
  }
  return plain;
}

void NameControl(QWidget& control, const char* name, int index, const QString& accessibleName) {
  QString objectName = QString::fromLatin1(name);
  if (index != NoFamily) objectName += QString::fromLatin1("_%1").arg(index);
  control.setObjectName(objectName);
  control.setAccessibleName(accessibleName.trimmed());
}

QFont DialogFont() {
  QFont font{QString(QLatin1String(FontFamily))};
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(std::max(QFontInfo(QApplication::font()).pixelSize(), SmallestFontPixels));
  return font;
}

void SetReadingOrder(QWidget& container) {
  std::vector<QWidget*> controls;
  for (QWidget* child : container.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (child->focusPolicy() & Qt::TabFocus) controls.push_back(child);
  }
  std::stable_sort(controls.begin(), controls.end(),
                   [](const QWidget* a, const QWidget* b) { return a->y() < b->y(); });
  for (auto row = controls.begin(); row != controls.end();) {
    const int lowest = (*row)->y() + Pixels(RowTolerance, container);
    const auto next =
        std::find_if(row, controls.end(), [lowest](const QWidget* control) { return control->y() > lowest; });
    std::stable_sort(row, next, [](const QWidget* a, const QWidget* b) { return a->x() < b->x(); });
    row = next;
  }
  for (std::size_t i = 1; i < controls.size(); ++i) QWidget::setTabOrder(controls[i - 1], controls[i]);
}

TickBox::TickBox(const char* name, int index, const char* caption, const Rect& bounds, QWidget* parent)
    : QCheckBox(QString::fromLatin1(caption), parent) {
  NameControl(*this, name, index, PlainCaption(text()));
  wraps_ = PlaceCaption(*this, bounds);
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)  // where the older signal is deprecated
  connect(this, &QCheckBox::checkStateChanged, this, &TickBox::ValueChanged);
#else
  connect(this, &QCheckBox::stateChanged, this, &TickBox::ValueChanged);
#endif
}

std::int16_t TickBox::Value() const {
  switch (checkState()) {
    case Qt::Unchecked:
      return 0;
    case Qt::Checked:
      return 1;
    case Qt::PartiallyChecked:
      return 2;
  }
  return 0;
}

void TickBox::SetValue(std::int16_t value) {
  switch (value) {
    case 0:
      return setCheckState(Qt::Unchecked);
    case 1:
      return setCheckState(Qt::Checked);
    case 2:
      return setCheckState(Qt::PartiallyChecked);
    default:
      throw RunTimeFailure(
          "invalid check box value",
          {.File = {}, .Line = 0, .Key = objectName().toStdString(), .Text = std::to_string(value)});
  }
}

void TickBox::nextCheckState() {
  setCheckState(Value() == 0 ? Qt::Checked : Qt::Unchecked);
}

void TickBox::paintEvent(QPaintEvent* event) {
  if (!wraps_) return QCheckBox::paintEvent(event);
  QStyleOptionButton option;
  initStyleOption(&option);
  PaintWrapped(*this, option, CheckBoxParts);
}

OptionButton::OptionButton(const char* name, int index, const char* caption, const Rect& bounds,
                           QWidget* parent)
    : QRadioButton(QString::fromLatin1(caption), parent) {
  NameControl(*this, name, index, PlainCaption(text()));
  wraps_ = PlaceCaption(*this, bounds);
}

void OptionButton::paintEvent(QPaintEvent* event) {
  if (!wraps_) return QRadioButton::paintEvent(event);
  QStyleOptionButton option;
  initStyleOption(&option);
  PaintWrapped(*this, option, OptionButtonParts);
}

GroupFrame::GroupFrame(const char* name, const char* caption, const Rect& bounds, QWidget* parent)
    : QGroupBox(QString::fromLatin1(caption), parent) {
  NameControl(*this, name, NoFamily, PlainCaption(title()));
  Place(*this, bounds);
}

bool GroupFrame::event(QEvent* event) {
  if (event->type() != QEvent::Shortcut || buddy_ == nullptr || !buddy_->isEnabled())
    return QGroupBox::event(event);
  buddy_->setFocus(Qt::ShortcutFocusReason);
  return true;
}

void GroupFrame::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  const int titleHeight = fontMetrics().height();
  const int titleWidth = fontMetrics().horizontalAdvance(PlainCaption(title()));
  const QRect titleBox(Pixels(TitleInset, *this), 0, titleWidth, titleHeight);
  painter.setClipRegion(QRegion(rect()) - QRegion(titleBox.adjusted(-3, 0, 3, 0)));
  painter.setPen(palette().color(QPalette::Mid));
  const int lineAt = titleHeight / 2;
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, lineAt + 0.5, -0.5, -0.5), 2, 2);
  painter.setClipping(false);
  painter.drawItemText(titleBox, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, palette(),
                       isEnabled(), title(), QPalette::WindowText);
}

QLabel* MakeLabel(const char* name, int index, const char* caption, const Rect& bounds, QWidget* parent,
                  LabelLines lines) {
  auto* label = new QLabel(QString::fromLatin1(caption), parent);
  label->setTextFormat(Qt::PlainText);
  NameControl(*label, name, index, PlainCaption(label->text()));
  label->setWordWrap(lines == LabelLines::Wrapped);
  QRect place = PixelRect(bounds, *label);
  const QSize wanted = label->sizeHint();
  if (lines == LabelLines::Wrapped) {
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  } else {
    place.setWidth(std::max(place.width(), wanted.width()));
    const int missing = std::max(0, wanted.height() - place.height());
    place.adjust(0, -((missing + 1) / 2), 0, missing / 2);
  }
  label->setGeometry(place);
  return label;
}

QPushButton* MakeButton(const char* name, const char* caption, const Rect& bounds, QWidget* parent) {
  auto* button = new QPushButton(QString::fromLatin1(caption), parent);
  NameControl(*button, name, NoFamily, PlainCaption(button->text()));
  Place(*button, bounds);
  return button;
}

}  // namespace tarvis
