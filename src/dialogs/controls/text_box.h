// Text boxes whose maximum length holds for what the user types, never for what the program writes.
#pragma once

#include <QClipboard>
#include <QLineEdit>
#include <string>

#include "dialogs/controls/place.h"

namespace tarvis {

// What the input limits need of a text box.
class InputBox {
 public:
  virtual ~InputBox() = default;

  // UTF-8; a line break is CR LF.
  virtual std::string Text() const = 0;
  // Takes the text whole, however long, and runs the box's change handling at once.
  virtual void SetText(const std::string& text) = 0;
  // In characters as the system counts them: UTF-16 code units, CR and LF one each. 0 for no limit.
  virtual void SetMaximumLength(int characters) = 0;
  virtual int MaximumLength() const = 0;
  // Does nothing while the box can't take the focus.
  virtual void GiveFocus() = 0;
};

// A text box of one line: of a text of several lines it takes the first one, whichever way the text is
// entered.
class LineBox : public QLineEdit, public InputBox {
  Q_OBJECT

 public:
  LineBox(const char* name, int index, const char* accessibleName, int maximumLength, const Rect& bounds,
          QWidget* parent);

  std::string Text() const override { return text().toStdString(); }
  void SetText(const std::string& text) override;
  void SetMaximumLength(int characters) override;
  int MaximumLength() const override { return maximumLength_; }
  void GiveFocus() override;

  // As if the user had typed it over the old text: it can be undone.
  void TypeOver(const QString& text);

 protected:
  // What the box takes of a piece of text that is pasted, dropped or composed by an input method.
  virtual QString Accepted(const QString& piece) const;

  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;

 private:
  void PasteFrom(QClipboard::Mode source);
  void ApplyMaximumLength(qsizetype length);

  int maximumLength_;
};

}  // namespace tarvis
