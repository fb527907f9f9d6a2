// The lines in which the controls of a section are read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include "report/engine/control.h"

namespace tarvis {

inline void ReadOnLine(std::size_t line, std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->Reads.Line = static_cast<std::uint8_t>(line);
}

}  // namespace tarvis
