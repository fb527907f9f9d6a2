#include "pdf/order.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "pdf/moment.h"
#include "pdf/paper_names.h"
#include "pdf/pdf_error.h"
#include "text/code_page.h"
#include "text/excerpt.h"

namespace tarvis {
namespace {

constexpr std::size_t OperandCount = 3;

struct Option {
  std::string_view Name;
  bool HasValue;
  void (*Take)(PdfOrder& order, const std::string& value);
};

constexpr std::array Options = {
    Option{"--data", true, [](PdfOrder& order, const std::string& value) { order.DataFolder = value; }},
    Option{"--options", true, [](PdfOrder& order, const std::string& value) { order.OptionsFile = value; }},
    Option{"--code-page", true,
           [](PdfOrder& order, const std::string& value) { order.CodePageNumber = CodePageNumber(value); }},
    Option{"--paper", true,
           [](PdfOrder& order, const std::string& value) { order.Paper = PaperNamed(value); }},
    Option{"--date", true,
           [](PdfOrder& order, const std::string& value) { order.Date = MomentNamed(value); }},
    Option{"--set", true, [](PdfOrder& order, const std::string& value) { order.Settings.push_back(value); }},
    Option{"--attach", false, [](PdfOrder& order, const std::string&) { order.AttachesData = true; }},
    Option{"--tagged", false, [](PdfOrder& order, const std::string&) { order.IsTagged = true; }},
    Option{"--check", false,
           [](PdfOrder& order, const std::string&) { order.Task = PdfTask::CheckDocument; }},
    Option{"--progress", false, [](PdfOrder& order, const std::string&) { order.ShowsProgress = true; }},
    Option{"--help", false, [](PdfOrder& order, const std::string&) { order.Task = PdfTask::ShowHelp; }},
    Option{"--version", false,
           [](PdfOrder& order, const std::string&) { order.Task = PdfTask::ShowVersion; }},
};

[[noreturn]] void Refuse(const std::string& reason) {
  throw PdfError(reason + " (tarvis-pdf --help shows the options)");
}

// Walks through the arguments.
class Parser {
 public:
  explicit Parser(const std::vector<std::string>& arguments) : arguments_(arguments) {}

  PdfOrder Parse() {
    bool hasOptions = true;
    for (; next_ < arguments_.size() && !IsAnswered(); ++next_) {
      const std::string& argument = arguments_[next_];
      if (hasOptions && argument == "--") {
        hasOptions = false;
      } else if (hasOptions && argument.size() > 1 && argument.front() == '-') {
        TakeOption(argument);
      } else {
        operands_.push_back(argument);
      }
    }
    if (!IsAnswered()) TakeOperands();
    return order_;
  }

 private:
  // Nothing else matters where help is asked for.
  bool IsAnswered() const { return order_.Task == PdfTask::ShowHelp || order_.Task == PdfTask::ShowVersion; }

  void TakeOption(const std::string& argument) {
    const std::size_t equals = argument.find('=');
    const std::string name = argument.substr(0, equals);
    const auto* option = std::ranges::find(Options, name, &Option::Name);
    if (option == Options.end()) Refuse("no such option: '" + Excerpt(name) + "'");
    if (!option->HasValue && equals != std::string::npos) Refuse(name + " takes no value");
    option->Take(order_, option->HasValue ? ValueOf(name, argument, equals) : std::string());
  }

  std::string ValueOf(const std::string& name, const std::string& argument, std::size_t equals) {
    if (equals == std::string::npos && next_ + 1 == arguments_.size()) Refuse(name + " needs a value");
    std::string value = equals == std::string::npos ? arguments_[++next_] : argument.substr(equals + 1);
    if (value.empty()) Refuse(name + " needs a value");
    return value;
  }

  void TakeOperands() {
    if (operands_.size() > OperandCount) Refuse("too many arguments: '" + Excerpt(operands_.back()) + "'");
    const bool isChecked = order_.Task == PdfTask::CheckDocument;
    if (operands_.size() + (isChecked ? 1 : 0) < OperandCount) Refuse("MODE, EDITION and OUT.pdf are needed");
    operands_.resize(OperandCount);
    order_.Mode = operands_[0];
    order_.Edition = operands_[1];
    order_.Output = operands_[2];
    if (order_.Output.empty() && !isChecked) Refuse("the name of OUT.pdf is empty");
  }

  const std::vector<std::string>& arguments_;
  std::size_t next_ = 0;
  std::vector<std::string> operands_;
  PdfOrder order_;
};

}  // namespace

PdfOrder ParseOrder(const std::vector<std::string>& arguments) {
  return Parser(arguments).Parse();
}

}  // namespace tarvis
