#include "functions/user/digit_list.h"

#include <cstdint>
#include <string>

#include "text/numbers.h"
#include "text/run_time_failure.h"

namespace tarvis {

void SetDigitList(const SwitchDigit& digit, Field& field) {
  const std::int16_t first = StrictInteger(digit.First);
  const std::int16_t count = StrictInteger(digit.Count);
  field.Text.clear();
  for (int index = 0; index < count; ++index) {
    if (index > 0) field.Text += ", ";
    const int position = first + index;
    if (position > INT16_MAX) {
      throw RunTimeFailure("overflow",
                           {.File = {}, .Line = 0, .Key = field.Name, .Text = std::to_string(position)});
    }
    field.Text += std::to_string(position);
  }
}

}  // namespace tarvis
