// The lines of the options file in the order in which they are written: one table for reading and writing.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "printfiles/key_table.h"
#include "run/print_options.h"

namespace tarvis {

struct OptionLine {
  std::string_view Key;
  LineHandler Read;
  std::function<std::string()> Write;  // the value after the comma
  // Which element this number of the options is, counted from 1; 0 if it is the whole value; nothing if it
  // belongs to another line.
  std::function<std::optional<int>(const std::int16_t& number)> ElementOf;
};

// The lines read into and are written from `options`, for the length of one file.
std::vector<OptionLine> OptionLines(PrintOptions& options);

}  // namespace tarvis
