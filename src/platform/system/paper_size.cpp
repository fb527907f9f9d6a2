#include "platform/system/paper_size.h"

#include <cmath>

#include "report/engine/units.h"

namespace tarvis {
namespace {

float Twips(double millimetres) {
  constexpr double MillimetresPerInch = 25.4;
  return static_cast<float>(std::round(millimetres / MillimetresPerInch * TwipsPerInch));
}

}  // namespace

PaperSize PaperOfMillimetres(double width, double height) {
  return {Twips(width), Twips(height)};
}

}  // namespace tarvis
