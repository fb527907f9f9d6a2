// The dialog that asks where a PDF is to be saved.
#pragma once

#include <QFileDialog>

namespace tarvis {

// The toolkit shows the system's own dialog instead of this one where there is one. It recognizes its own
// class by its meta-object, so this class must not have one.
class PdfFileDialog : public QFileDialog {
 public:
  // `path` is proposed.
  PdfFileDialog(QWidget* parent, const QString& path);

  // What was chosen, exactly as it was typed.
  QString Path() const;

 protected:
  void accept() override;

 private:
  QString TypedPath() const;

  QString path_;
};

}  // namespace tarvis
