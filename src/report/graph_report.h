// Reports that print graphs of the host, in colour or in black-and-white as `ColorType` chooses.
#pragma once

#include <string>

#include "report/function_report.h"

namespace tarvis {

inline constexpr CellStyle GraphHeading{.Size = 8.5F, .Bold = true};

// The host writes each picture in both looks. Only the path of the chosen look is ever tested.
struct PicturePaths {
  const std::string& BlackAndWhite;
  const std::string& Color;
};

class GraphReport : public FunctionReport {
 protected:
  using FunctionReport::FunctionReport;

  // A file that is not there is failure 6 (black-and-white) or 8 (colour). Any other `ColorType` gives no
  // picture.
  PicturePtr LoadGraph(const PicturePaths& paths);
  // The same, but an empty path gives no picture, and a file that is not there is failure 7.
  PicturePtr LoadLegend(const PicturePaths& paths);
};

}  // namespace tarvis
