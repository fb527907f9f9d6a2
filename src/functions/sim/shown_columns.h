// Columns that show by a count, as the simulation tables have them.
#pragma once

#include <cstddef>

#include "report/engine/control.h"

namespace tarvis {

// Hides the columns beyond `count`, counted from 1; the first one only at a count of exactly 0. Nothing is
// shown again: the count doesn't change while a report runs.
template <typename Fields>
void HideColumnsBeyond(int count, const Fields& columns) {
  for (std::size_t index = 0; index < columns.size(); ++index) {
    const int number = static_cast<int>(index) + 1;
    if (number == 1 ? count == 0 : count < number) columns[index]->Visible = false;
  }
}

}  // namespace tarvis
