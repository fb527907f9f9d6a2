// The dialog that asks under which name a file is to be saved.
#pragma once

#include <QFileDialog>

class QLineEdit;

namespace tarvis {

// The toolkit shows the system's own dialog instead of this one where there is one. It recognizes its own
// class by its meta-object, so this class must not have one.
class SaveDialog : public QFileDialog {
 public:
  // `path` is proposed. `filters` are kinds of files as the toolkit writes them, such as "PDF files (*.pdf)",
  // the first one of which gives its ending to names that have none.
  SaveDialog(QWidget* parent, const QString& caption, const QString& path, const QString& filters);

  // What was chosen, exactly as it was typed.
  QString Path() const;

 protected:
  void accept() override;

  // Null where the system's own dialog is shown.
  QLineEdit* NameBox() const;

 private:
  QString TypedPath() const;

  QString path_;
};

}  // namespace tarvis
