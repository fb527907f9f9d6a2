#include "platform/paper.h"

#include <QPrinterInfo>

#include "platform/system/usual_paper.h"
#include "report/paper_setup.h"

namespace tarvis {

PageSetup DefaultPaper() {
  const QPageSize paper = QPrinterInfo::defaultPrinter().defaultPageSize();
  const QSizeF size = UprightTwips(paper.isValid() ? paper : UsualPaper());
  return SetupForPaper(static_cast<float>(size.width()), static_cast<float>(size.height()));
}

}  // namespace tarvis
