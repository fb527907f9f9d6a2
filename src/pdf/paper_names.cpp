#include "pdf/paper_names.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string_view>

#include "pdf/pdf_error.h"
#include "text/excerpt.h"
#include "text/text.h"

namespace tarvis {
namespace {

// In millimetres. Below the least size pages have no room beside their margins; PDF knows nothing above the
// largest.
constexpr double LeastSize = 50;
constexpr double LargestSize = 5000;

struct NamedPaper {
  std::string_view Name;
  double Width;
  double Height;
};

constexpr std::array Papers = {NamedPaper{"A4", 210, 297}, NamedPaper{"A5", 148, 210},
                               NamedPaper{"Letter", 215.9, 279.4}};

std::optional<double> Millimetres(std::string_view text) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool isNumber = error == std::errc() && end == text.data() + text.size();
  if (!isNumber || !(value >= LeastSize && value <= LargestSize)) return std::nullopt;
  return value;
}

}  // namespace

PaperSize PaperNamed(const std::string& name) {
  for (const NamedPaper& paper : Papers) {
    if (EqualIgnoringCase(paper.Name, name)) return PaperOfMillimetres(paper.Width, paper.Height);
  }
  const std::string_view text = name;
  const std::size_t cross = std::min(text.find('x'), text.size());
  const std::optional<double> width = Millimetres(text.substr(0, cross));
  const std::optional<double> height = Millimetres(text.substr(std::min(cross + 1, text.size())));
  if (!width || !height) {
    throw PdfError("--paper: neither A4, Letter, A5 nor WxH in millimetres, 50 to 5000 each: '" +
                   Excerpt(name) + "'");
  }
  return PaperOfMillimetres(*width, *height);
}

}  // namespace tarvis
