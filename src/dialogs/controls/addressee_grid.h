// The grid of PrintSetting that shows the addressee of the cover letter. Nothing is ever read back from it.
#pragma once

#include <QTableWidget>
#include <string>

#include "dialogs/controls/place.h"

namespace tarvis {

class AddresseeGrid : public QTableWidget {
  Q_OBJECT

 public:
  AddresseeGrid(const Rect& bounds, QWidget* parent);

  // Rows 1 to 4: title, company, department, name.
  void SetSettingValue(int row, const std::string& text);
  std::string SettingValue(int row) const;
};

}  // namespace tarvis
