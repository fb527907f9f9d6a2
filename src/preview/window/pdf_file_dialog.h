// The dialog that asks where a PDF is to be saved.
#pragma once

#include <QFileDialog>

class QCheckBox;

namespace tarvis {

// The toolkit shows the system's own dialog instead of this one where there is one. It recognizes its own
// class by its meta-object, so this class must not have one.
class PdfFileDialog : public QFileDialog {
 public:
  // `path` is proposed.
  PdfFileDialog(QWidget* parent, const QString& path);

  // Adds the box "Attach the data", which is on or off. The system's own dialog has no room for it.
  void OfferData(bool isOn);
  // The same for the box "Tags for screen readers".
  void OfferTags(bool isOn);
  // Whether these boxes are there and on.
  bool AttachesData() const;
  bool IsTagged() const;

  // What was chosen, exactly as it was typed.
  QString Path() const;

 protected:
  void accept() override;

 private:
  QString TypedPath() const;
  QCheckBox* AddBox(const QString& name, const QString& caption, const QString& tip, bool isOn);

  QString path_;
  QCheckBox* attachData_ = nullptr;
  QCheckBox* tags_ = nullptr;
};

}  // namespace tarvis
