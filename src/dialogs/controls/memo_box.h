// A text box of several lines.
#pragma once

#include <QPlainTextEdit>

#include "dialogs/controls/text_box.h"

namespace tarvis {

// Line breaks are CR LF to the program, whatever the toolkit keeps; a LF alone in a text that the program
// writes comes back as it was. Tab leaves the box.
class MemoBox : public QPlainTextEdit, public InputBox {
  Q_OBJECT

 public:
  MemoBox(const char* name, int index, const char* accessibleName, int maximumLength, const Rect& bounds,
          QWidget* parent);

  std::string Text() const override;
  void SetText(const std::string& text) override;
  void SetMaximumLength(int characters) override { maximumLength_ = characters; }
  int MaximumLength() const override { return maximumLength_; }
  void GiveFocus() override;

  // From now on the Enter key is thrown away while the text holds `lineBreaks` line breaks or more.
  void LimitEnterKey(int lineBreaks) { enterLimit_ = lineBreaks; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  // How many characters the user may still add in place of the selection.
  qsizetype Room() const;
  void PressEnter();

  int maximumLength_;
  int enterLimit_ = -1;  // -1 for none
};

}  // namespace tarvis
