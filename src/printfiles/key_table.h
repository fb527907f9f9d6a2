// The keys of a file, each with what its line fills. A reader is such a table, given to ReadLines.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>

#include "printfiles/line_value.h"

namespace tarvis {

struct PrintRun;

// Why a line is refused, in words; nothing if it is accepted.
using Refusal = std::optional<std::string>;
inline constexpr std::nullopt_t Accepted = std::nullopt;

using LineHandler = std::function<Refusal(LineValue&)>;

class KeyTable {
 public:
  // Keys must outlive the table, and each may be in it once.
  KeyTable(std::initializer_list<std::pair<const std::string_view, LineHandler>> lines) : lines_(lines) {}
  KeyTable() = default;

  void Add(std::string_view key, LineHandler handler) { lines_.emplace(key, std::move(handler)); }
  // The handler of `key`, null if the table doesn't know it.
  const LineHandler* Find(std::string_view key) const;

  friend KeyTable operator+(KeyTable left, KeyTable right);

 private:
  std::unordered_map<std::string_view, LineHandler> lines_;
};

// Gives each line that was loaded last to the handler of its key, in the order of the file. An unknown key or
// a refusal ends the read with false and goes to the session's diagnosis with file and line. A RunTimeFailure
// of a handler leaves with file, line, key and text added; so does a file of more than 32768 lines, before
// its first line.
bool ReadLines(PrintRun& run, const KeyTable& keys);

// The forms of a line. Each part is kept by reference, and must outlive the table.

// A line of fields.
template <typename... Parts>
LineHandler Fields(Parts&&... parts) {
  return [kept = std::tuple<Parts...>(std::forward<Parts>(parts)...)](LineValue& value) -> Refusal {
    std::apply([&value](auto&&... each) { value.Fields(each...); }, kept);
    return Accepted;
  };
}

// A line of fields whose last part takes all the rest.
template <typename... Parts>
LineHandler FieldsAndRest(Parts&&... parts) {
  return [kept = std::tuple<Parts...>(std::forward<Parts>(parts)...)](LineValue& value) -> Refusal {
    std::apply([&value](auto&&... each) { value.FieldsAndRest(each...); }, kept);
    return Accepted;
  };
}

// A line of one part that takes it whole.
template <typename Part>
LineHandler Rest(Part&& part) {
  return FieldsAndRest(std::forward<Part>(part));
}

// A line that counts only while `number` is above `bound`, and is passed over in silence otherwise.
LineHandler OnlyAbove(std::int16_t bound, const std::int16_t& number, LineHandler line);

}  // namespace tarvis
