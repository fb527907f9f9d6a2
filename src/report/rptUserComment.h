// The comment of the data file, below the band.
#pragma once

#include "report/text_block_report.h"

namespace tarvis {

class rptUserComment : public TextBlockReport {
 public:
  explicit rptUserComment(ReportContext context) : TextBlockReport("rptUserComment", context, "Comments") {}

  void ActiveReport_ReportStart() override { Field1.Text = Run.User.Comment; }
};

}  // namespace tarvis
