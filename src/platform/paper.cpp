#include "platform/paper.h"

#include <QPrinterInfo>

#include "platform/system/usual_paper.h"
#include "report/paper_setup.h"

namespace tarvis {

PageSetup DefaultPaper() {
  const QPageSize paper = QPrinterInfo::defaultPrinter().defaultPageSize();
  const PaperSize size = UprightSize(paper.isValid() ? paper : UsualPaper());
  return SetupForPaper(size.Width, size.Height);
}

}  // namespace tarvis
