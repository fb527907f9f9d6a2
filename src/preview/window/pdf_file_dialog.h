// The dialog that asks where a PDF is to be saved.
#pragma once

#include "preview/window/save_dialog.h"

class QCheckBox;

namespace tarvis {

class PdfFileDialog : public SaveDialog {
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

 private:
  QCheckBox* AddBox(const QString& name, const QString& caption, const QString& tip, bool isOn);

  QCheckBox* attachData_ = nullptr;
  QCheckBox* tags_ = nullptr;
};

}  // namespace tarvis
