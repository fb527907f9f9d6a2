// The date of the data acquisition, below the band.
#pragma once

#include "report/text_block_report.h"

namespace tarvis {

class rptDataDate : public TextBlockReport {
 public:
  explicit rptDataDate(ReportContext context)
      : TextBlockReport("rptDataDate", context, "Acquisition Date of the Data") {}

  void ActiveReport_ReportStart() override { Field1.Text = Run.Session.DataDate; }
};

}  // namespace tarvis
