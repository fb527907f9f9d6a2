// The mechanical settings: the model with its picture, inertia and resonance points.
#pragma once

#include "functions/sim/setting_columns.h"

namespace tarvis {

class rptSimSettingMecha : public NameValueTable {
 public:
  explicit rptSimSettingMecha(ReportContext context);

  void ActiveReport_FetchData(bool& endOfData) override;

 private:
  void LoadModel();
  void Detail_Format();
  void SetValueHeights(float height);

  Image& imgModel = Detail.AddImage("imgModel", {3827, 0, 850, 567});
};

}  // namespace tarvis
