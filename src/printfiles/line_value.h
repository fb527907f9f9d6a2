// The text after the key of a line, read piece by piece.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "text/numbers.h"
#include "text/run_time_failure.h"
#include "text/text.h"

namespace tarvis {

// A text whose line breaks are written in the file as the four characters \r\n.
struct Escaped {
  std::string& Text;
};

// The type of a part decides its form: a text is taken as it is, an Escaped text unescaped, a number
// converted strictly. An array takes one field for each element.
class LineValue {
 public:
  explicit LineValue(std::string_view text) : rest_(text) {}

  // Up to the next comma; empty if nothing is left.
  std::string_view Field() {
    ++element_;
    return NextField(rest_);
  }
  // All that is left, commas included.
  std::string_view Rest() {
    if (element_ > 0) ++element_;
    return std::exchange(rest_, {});
  }
  // The piece taken last as a number. A RunTimeFailure names the element.
  std::int16_t Number(std::string_view piece) const {
    try {
      return StrictInteger(piece);
    } catch (const RunTimeFailure& failure) {
      throw failure.At({.File = {}, .Line = 0, .Key = {}, .Element = element_});
    }
  }

  // Each part takes a field. What is left of the line is dropped.
  template <typename... Parts>
  void Fields(Parts&&... parts) {
    (TakeField(parts), ...);
  }

  // Each part takes a field, but the last one takes all the rest.
  template <typename Part, typename... Parts>
  void FieldsAndRest(Part&& part, Parts&&... parts) {
    if constexpr (sizeof...(parts) == 0) {
      Store(part, Rest());
    } else {
      TakeField(part);
      FieldsAndRest(std::forward<Parts>(parts)...);
    }
  }

 private:
  static void Store(std::string& text, std::string_view piece) { text = piece; }
  static void Store(Escaped text, std::string_view piece) { text.Text = UnescapeNewlines(piece); }
  void Store(std::int16_t& number, std::string_view piece) const { number = Number(piece); }

  template <typename Part>
  void TakeField(Part& part) {
    Store(part, Field());
  }
  template <typename Element, std::size_t Count>
  void TakeField(std::array<Element, Count>& elements) {
    for (Element& element : elements) TakeField(element);
  }

  std::string_view rest_;
  int element_ = 0;  // how many pieces of a list have been taken
};

}  // namespace tarvis
