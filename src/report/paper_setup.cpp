#include "report/paper_setup.h"

#include <algorithm>

#include "report/rptTarvis.h"

namespace tarvis {

PageSetup SetupForPaper(float width, float height) {
  PageSetup setup;
  const float narrowest = setup.Left + MasterPrintWidth + setup.Right;
  const float scale = std::max(narrowest / width, 1.0F);
  setup.Width = width * scale;
  setup.Height = height * scale;
  return setup;
}

}  // namespace tarvis
