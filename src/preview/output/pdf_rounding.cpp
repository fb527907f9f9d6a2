#include "preview/output/pdf_rounding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <unordered_map>
#include <vector>

#include "preview/output/pdf_greys.h"
#include "report/engine/units.h"

namespace tarvis {
namespace {

constexpr double FinestStep = 0.1;  // twips
constexpr int MostDecimals = 12;
// Of a matrix, whose errors grow over the whole picture: as many as the toolkit writes.
constexpr int FactorDigits = 9;
constexpr int WidthDecimals = 3;
constexpr int ColourDecimals = 3;  // a byte has 256 values

// Never with an exponent, which the format doesn't know.
void AppendRounded(std::string& out, double value, int decimals) {
  std::array<char, 340> digits;
  const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                          std::chars_format::fixed, std::clamp(decimals, 0, MostDecimals));
  std::string_view text(digits.data(), static_cast<std::size_t>(end - digits.data()));
  if (text.find('.') != text.npos) {
    text = text.substr(0, text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.remove_suffix(1);
  }
  out += text == "-0" ? "0" : text;
  out += ' ';
}

// As many decimals as give a number that many significant digits.
int DecimalsOf(double value, int digits) {
  return value == 0 ? 0 : digits - 1 - static_cast<int>(std::floor(std::log10(std::abs(value))));
}

double Rounded(double value, int decimals) {
  const double factor = std::pow(10, decimals);
  return std::round(value * factor) / factor;
}

// What the operands of an operator are.
enum class Meaning {
  Other,
  Places,
  Matrix,
  TextMatrix,
  Move,
  Widths,
  Colour,
  Save,
  Restore,
  BeginText,
  Refused
};

Meaning MeaningOf(std::string_view name) {
  static const std::unordered_map<std::string_view, Meaning> Meanings{
      {"m", Meaning::Places},     {"l", Meaning::Places},      {"c", Meaning::Places},
      {"v", Meaning::Places},     {"y", Meaning::Places},      {"re", Meaning::Places},
      {"cm", Meaning::Matrix},    {"Tm", Meaning::TextMatrix}, {"Td", Meaning::Move},
      {"w", Meaning::Widths},     {"d", Meaning::Widths},      {"rg", Meaning::Colour},
      {"RG", Meaning::Colour},    {"g", Meaning::Colour},      {"G", Meaning::Colour},
      {"sc", Meaning::Colour},    {"SC", Meaning::Colour},     {"scn", Meaning::Colour},
      {"SCN", Meaning::Colour},   {"q", Meaning::Save},        {"Q", Meaning::Restore},
      {"BT", Meaning::BeginText}, {"TD", Meaning::Refused},    {"T*", Meaning::Refused},
      {"TL", Meaning::Refused},   {"BI", Meaning::Refused},    {"'", Meaning::Refused},
      {"\"", Meaning::Refused}};
  const auto found = Meanings.find(name);
  return found == Meanings.end() ? Meaning::Other : found->second;
}

struct Operand {
  std::string_view Text;
  std::optional<double> Number;
};

class Rounding {
 public:
  Rounding(std::string_view content, Inks inks) : inks_(inks), rest_(content) {
    out_.reserve(content.size());
  }

  std::optional<std::string> Run();

 private:
  std::string_view NextToken();
  bool Carry(std::string_view name);
  bool CarryMatrix(std::string_view name, Meaning meaning);
  bool CarryOther(std::string_view name, Meaning meaning);
  void StartText(double scale);
  void MakeGrey();
  template <typename DecimalsOfNumber>
  void WriteOperands(DecimalsOfNumber decimalsOf);
  bool WriteMatrix();
  bool WriteMove();
  void WriteName(std::string_view name);
  void Save();
  bool Restore();
  // Of numbers in the current units.
  int PlaceDecimals() const { return DecimalsFor(scales_.back()); }
  static int DecimalsFor(double scale) { return static_cast<int>(std::ceil(std::log10(scale / FinestStep))); }
  double MatrixScale() const;

  const Inks inks_;
  std::string_view rest_;
  std::string out_;
  std::vector<Operand> operands_;
  std::vector<double> scales_{static_cast<double>(TwipsPerPoint)};  // twips to the unit
  double textScale_ = 1;                                            // units to the unit of text
  double lostX_ = 0;  // what rounding has taken of the moves in a text, which each start from the one before
  double lostY_ = 0;
  std::vector<std::size_t> saves_;  // where each "q" begins that has no "Q" yet
};

constexpr std::string_view Blanks = " \t\r\n\f";

// The PDF library's own tokenizer takes more than twice as long as all of the rounding does with this one.
std::string_view Rounding::NextToken() {
  const std::size_t begin = rest_.find_first_not_of(Blanks);
  if (begin == rest_.npos) return {};
  rest_.remove_prefix(begin);
  std::size_t length = 1;
  if (rest_[0] == '<' && !rest_.starts_with("<<")) {
    length = std::min(rest_.find('>'), rest_.size() - 1) + 1;
  } else if (rest_[0] != '[' && rest_[0] != ']') {
    length = std::min(rest_.find_first_of(" \t\r\n\f[]</", 1), rest_.size());
  }
  const std::string_view token = rest_.substr(0, length);
  rest_.remove_prefix(length);
  return token;
}

std::optional<std::string> Rounding::Run() {
  for (std::string_view token = NextToken(); !token.empty(); token = NextToken()) {
    const char first = token[0];
    if (first == '(' || first == '%' || token == "<") return std::nullopt;
    double number = 0;
    const auto [end, error] = std::from_chars(token.data(), token.data() + token.size(), number);
    if (error == std::errc() && end == token.data() + token.size()) {
      operands_.push_back({token, number});
    } else if (first == '/' || first == '[' || first == ']' || first == '<') {
      operands_.push_back({token, std::nullopt});
    } else if (!Carry(token)) {
      return std::nullopt;
    }
  }
  if (!operands_.empty()) return std::nullopt;
  return std::move(out_);
}

// Writes an operator with its operands; false if it isn't known.
bool Rounding::Carry(std::string_view name) {
  const Meaning meaning = MeaningOf(name);
  if (meaning == Meaning::Save) {
    Save();
    return operands_.empty();
  }
  if (meaning == Meaning::Restore) return operands_.empty() && Restore();
  return meaning == Meaning::Matrix || meaning == Meaning::TextMatrix ? CarryMatrix(name, meaning)
                                                                      : CarryOther(name, meaning);
}

bool Rounding::CarryMatrix(std::string_view name, Meaning meaning) {
  if (operands_.size() != 6) return false;
  const double scale = MatrixScale();
  if (!WriteMatrix()) return false;
  if (meaning == Meaning::Matrix) {
    scales_.back() *= scale;
  } else {
    StartText(scale);
  }
  WriteName(name);
  return true;
}

void Rounding::StartText(double scale) {
  textScale_ = scale;
  lostX_ = 0;
  lostY_ = 0;
}

bool Rounding::CarryOther(std::string_view name, Meaning meaning) {
  switch (meaning) {
    case Meaning::Refused:
      return false;
    case Meaning::Places:
      WriteOperands([this](double) { return PlaceDecimals(); });
      break;
    case Meaning::Widths:
      WriteOperands([this](double) { return std::max(WidthDecimals, PlaceDecimals()); });
      break;
    case Meaning::Colour:
      if (inks_ == Inks::Greys) MakeGrey();
      WriteOperands([](double) { return ColourDecimals; });
      break;
    case Meaning::Move:
      if (!WriteMove()) return false;
      break;
    case Meaning::BeginText:
      StartText(1);
      break;
    default:  // the numbers of an operator that is not known here may mean anything
      WriteOperands([](double number) { return DecimalsOf(number, FactorDigits); });
  }
  WriteName(name);
  return true;
}

// The name of a pattern can follow its colour.
void Rounding::MakeGrey() {
  constexpr std::size_t Parts = 3;
  const auto end = operands_.begin() + std::min(Parts, operands_.size());
  const auto hasNumber = [](const Operand& operand) { return operand.Number.has_value(); };
  if (operands_.size() < Parts || !std::all_of(operands_.begin(), end, hasNumber)) return;
  const double grey = GreyOf(*operands_[0].Number, *operands_[1].Number, *operands_[2].Number);
  for (auto operand = operands_.begin(); operand != end; ++operand) operand->Number = grey;
}

template <typename DecimalsOfNumber>
void Rounding::WriteOperands(DecimalsOfNumber decimalsOf) {
  for (const Operand& operand : operands_) {
    if (operand.Number) {
      AppendRounded(out_, *operand.Number, decimalsOf(*operand.Number));
    } else {
      out_ += operand.Text;
      out_ += ' ';
    }
  }
}

// How many outer units an inner one has, in the direction in which that is more.
double Rounding::MatrixScale() const {
  const auto part = [this](std::size_t index) { return operands_[index].Number.value_or(1); };
  return std::max(std::hypot(part(0), part(1)), std::hypot(part(2), part(3)));
}

// Its shift is in the units around it.
bool Rounding::WriteMatrix() {
  if (!std::ranges::all_of(operands_, [](const Operand& operand) { return operand.Number.has_value(); }))
    return false;
  for (std::size_t index = 0; index < operands_.size(); ++index) {
    const double value = *operands_[index].Number;
    AppendRounded(out_, value, index < 4 ? DecimalsOf(value, FactorDigits) : PlaceDecimals());
  }
  return MatrixScale() > 0;
}

bool Rounding::WriteMove() {
  if (operands_.size() != 2 || !operands_[0].Number || !operands_[1].Number) return false;
  const int decimals = DecimalsFor(scales_.back() * textScale_);
  const auto write = [&](double value, double& lost) {
    const double wanted = value + lost;
    AppendRounded(out_, wanted, decimals);
    lost = wanted - Rounded(wanted, std::clamp(decimals, 0, MostDecimals));
  };
  write(*operands_[0].Number, lostX_);
  write(*operands_[1].Number, lostY_);
  return true;
}

void Rounding::WriteName(std::string_view name) {
  out_ += name;
  out_ += '\n';
  operands_.clear();
}

constexpr std::string_view SaveState = "q\n";

void Rounding::Save() {
  saves_.push_back(out_.size());
  scales_.push_back(scales_.back());
  out_ += SaveState;
}

// What was saved for nothing is left out.
bool Rounding::Restore() {
  if (saves_.empty()) return false;
  if (out_.size() == saves_.back() + SaveState.size()) {
    out_.resize(saves_.back());
  } else {
    out_ += "Q\n";
  }
  saves_.pop_back();
  scales_.pop_back();
  return true;
}

}  // namespace

std::optional<std::string> RoundedContent(std::string_view content, Inks inks) {
  return Rounding(content, inks).Run();
}

}  // namespace tarvis
