#include "printfiles/option_lines.h"

#include <memory>
#include <type_traits>
#include <utility>

namespace tarvis {
namespace {

// File versions: 3 added the last element of TraceOption, 4 the last three of SimOption.
constexpr std::int16_t NoTraceDetail = 2;
constexpr std::int16_t NoSimComparison = 3;

// What is written of a text is what the reader finds again. A CR would end the line, and the text after it
// would be a line of its own, with a key that the reader refuses.
std::string Written(const std::string& text) {
  return text.substr(0, text.find('\r'));
}

// A CR alone ends a line of the text as CR LF does, but only the pair has an escape.
std::string Written(Escaped text) {
  std::string pairs;
  bool openPair = false;
  for (const char character : text.Text) {
    if (openPair && character != '\n') pairs += '\n';
    pairs += character;
    openPair = character == '\r';
  }
  if (openPair) pairs += '\n';
  return EscapeNewlines(pairs);
}
std::string Written(std::int16_t number) {
  return std::to_string(number);
}

template <typename Element, std::size_t Count>
std::string Written(const std::array<Element, Count>& elements) {
  std::string list;
  for (const Element& element : elements) list += (list.empty() ? "" : ",") + Written(element);
  return list;
}

// Counts the elements of a line until it meets a number.
class ElementSearch {
 public:
  explicit ElementSearch(const std::int16_t& number) : number_(&number) {}

  template <typename Part>
  void Pass(const Part& part) {
    ++passed_;
    if constexpr (std::is_same_v<Part, std::int16_t>) {
      if (&part == number_) found_ = passed_;
    }
  }
  template <typename Element, std::size_t Count>
  void Pass(const std::array<Element, Count>& elements) {
    for (const Element& element : elements) Pass(element);
  }

  std::optional<int> Found() const { return found_; }

 private:
  const std::int16_t* number_;
  int passed_ = 0;
  std::optional<int> found_;
};

// A line of one part that is the whole value.
template <typename Part>
OptionLine Whole(std::string_view key, Part&& part) {
  const std::tuple<Part> kept(std::forward<Part>(part));
  return {key, Rest(static_cast<Part>(std::get<0>(kept))), [kept] { return Written(std::get<0>(kept)); },
          [kept](const std::int16_t& number) -> std::optional<int> {
            ElementSearch search(number);
            search.Pass(std::get<0>(kept));
            if (search.Found()) return 0;
            return std::nullopt;
          }};
}

// An element that others follow also ends at its first comma, so that the reader finds the others in place.
template <typename Part>
std::string WrittenBeforeOthers(const Part& part) {
  if constexpr (std::is_same_v<Part, std::string>) return Written(part.substr(0, part.find(',')));
  return Written(part);
}

template <typename First, typename... Parts>
std::string Joined(const First& first, const Parts&... parts) {
  if constexpr (sizeof...(parts) == 0) {
    return Written(first);
  } else {
    return WrittenBeforeOthers(first) + "," + Joined(parts...);
  }
}

// A line of fields.
template <typename... Parts>
OptionLine List(std::string_view key, Parts&... parts) {
  return {key, Fields(parts...),
          [kept = std::tie(parts...)] {
            return std::apply([](const auto&... each) { return Joined(each...); }, kept);
          },
          [kept = std::tie(parts...)](const std::int16_t& number) {
            ElementSearch search(number);
            std::apply([&search](const auto&... each) { (search.Pass(each), ...); }, kept);
            return search.Found();
          }};
}

template <typename Element>
OptionLine Elements(std::string_view key, OptionElements<Element>& elements) {
  typename OptionElements<Element>::Values& values = elements;
  return List(key, values);
}

OptionLine Header(std::string_view key, HeaderOptions& header) {
  return List(key, header.Title, header.ModelsInfo, header.PrintDate, header.FileName, header.Pages,
              header.TitleText);
}

OptionLine AcceptedOnly(std::string_view key) {
  return {key, [](LineValue&) { return Accepted; }, [] { return std::string(); },
          [](const std::int16_t&) { return std::nullopt; }};
}

template <typename Element>
void ReadElements(OptionElements<Element>& elements, Element first, Element last, LineValue& value) {
  for (int element = static_cast<int>(first); element <= static_cast<int>(last); ++element)
    value.Fields(elements[static_cast<Element>(element)]);
}

// TraceOption and SimOption share the text of the former's element 9: SimOption asks whether it was empty
// before it sets its own last elements. That stays so, whatever the line order makes of it.
std::pair<OptionLine, OptionLine> TraceAndSimOption(PrintOptions& options) {
  const auto element9 = std::make_shared<std::string>();
  OptionLine trace = Elements("TraceOption", options.TraceOption);
  trace.Read = [&options, element9](LineValue& value) -> Refusal {
    ReadElements(options.TraceOption, TraceElement::Trigger, TraceElement::Comments, value);
    if (options.FileSpec <= NoTraceDetail) return Accepted;
    *element9 = value.Field();
    if (!element9->empty()) options.TraceOption[TraceElement::OverlapDetail] = value.Number(*element9);
    return Accepted;
  };
  OptionLine sim = Elements("SimOption", options.SimOption);
  sim.Read = [&options, element9](LineValue& value) -> Refusal {
    ReadElements(options.SimOption, SimElement::Reference, SimElement::Comments, value);
    if (options.FileSpec <= NoSimComparison) {
      options.SimOption[SimElement::TimeComparison] = 1;
      options.SimOption[SimElement::ParameterComparison] = 1;
      options.SimOption[SimElement::OverlapDetail] = 1;
    } else if (!element9->empty()) {
      ReadElements(options.SimOption, SimElement::TimeComparison, SimElement::OverlapDetail, value);
    }
    return Accepted;
  };
  return {trace, sim};
}

void AddSender(std::vector<OptionLine>& lines, PrintOptions& options) {
  lines.push_back(Whole("DrowCorp", options.DrowCorp));
  lines.push_back(Whole("DrowSect", Escaped{options.DrowSect}));
  lines.push_back(Whole("DrowName", options.DrowName));
  lines.push_back(Whole("DrowEmail", options.DrowEmail));
  lines.push_back(Whole("DrowZip", options.DrowZip));
  lines.push_back(Whole("DrowAdr", Escaped{options.DrowAdr}));
  lines.push_back(Whole("DrowTEL", options.DrowTEL));
  lines.push_back(Whole("DrowFAX", options.DrowFAX));
  lines.push_back(Whole("DrowLogo", options.DrowLogo));
}

struct AddresseeKeys {
  std::string_view Title;
  std::string_view Corp;
  std::string_view Sect;
  std::string_view Name;
  std::string_view Adr;
};

constexpr std::array<AddresseeKeys, 3> KeysOfAddressees = {{
    {"User1Title", "User1Corp", "User1Sect", "User1Name", "User1Adr"},
    {"User2Title", "User2Corp", "User2Sect", "User2Name", "User2Adr"},
    {"User3Title", "User3Corp", "User3Sect", "User3Name", "User3Adr"},
}};

void AddAddressee(std::vector<OptionLine>& lines, const AddresseeKeys& keys, AddresseeBlock& block) {
  lines.push_back(Whole(keys.Title, block.Title));
  lines.push_back(Whole(keys.Corp, block.Corp));
  lines.push_back(Whole(keys.Sect, Escaped{block.Sect}));
  lines.push_back(Whole(keys.Name, block.Name));
  lines.push_back(Whole(keys.Adr, Escaped{block.Adr}));
}

// `ColorType` is in the middle of the functions, not in the order of the record.
void AddFunctions(std::vector<OptionLine>& lines, PrintOptions& options) {
  auto [traceOption, simOption] = TraceAndSimOption(options);
  IdxTblOptions& idxTbl = options.IdxTblOption;
  lines.push_back(Header("UserHeader", options.UserHeader));
  lines.push_back(Elements("UserOption", options.UserOption));
  lines.push_back(Header("PrmWizHeader", options.PrmWizHeader));
  lines.push_back(AcceptedOnly("PrmWizOption"));
  lines.push_back(Header("TraceHeader", options.TraceHeader));
  lines.push_back(std::move(traceOption));
  lines.push_back(Header("RealTraceHeader", options.RealTraceHeader));
  lines.push_back(Elements("RealTraceOption", options.RealTraceOption));
  lines.push_back(Header("MechaHeader", options.MechaHeader));
  lines.push_back(Elements("MechaOption", options.MechaOption));
  lines.push_back(Header("SimHeader", options.SimHeader));
  lines.push_back(std::move(simOption));
  lines.push_back(Whole("ColorType", options.ColorType));
  lines.push_back(Header("IdxTblHeader", options.IdxTblHeader));
  lines.push_back(List("IdxTblOption", idxTbl.Range, idxTbl.First, idxTbl.Last, idxTbl.Comment));
  lines.push_back(Header("ZoneTblHeader", options.ZoneTblHeader));
  lines.push_back(List("ZoneTblOption", options.ZoneTblOption));
  lines.push_back(Header("JogTblHeader", options.JogTblHeader));
  lines.push_back(List("JogTblOption", options.JogTblOption));
}

}  // namespace

std::vector<OptionLine> OptionLines(PrintOptions& options) {
  std::vector<OptionLine> lines = {
      Whole("File-Spec", options.FileSpec), Whole("FileType", options.FileType),
      Whole("Made-by", options.MadeBy),     Whole("DateTime", options.DateTime),
      Whole("Cover", options.Cover),        Whole("SelectCover", options.SelectCover),
  };
  AddSender(lines, options);
  for (std::size_t block = 0; block < options.User.size(); ++block) {
    AddAddressee(lines, KeysOfAddressees[block], options.User[block]);
  }
  lines.push_back(Whole("GreetingCnt", options.GreetingCnt));
  lines.push_back(Whole("Greeting", Escaped{options.Greeting}));
  AddFunctions(lines, options);
  return lines;
}

}  // namespace tarvis
