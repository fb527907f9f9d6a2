// What of the options each item page shows.
#pragma once

#include <cstdint>
#include <vector>

#include "run/print_options.h"
#include "session/function_list.h"

namespace tarvis {

// The header options that the page edits.
HeaderOptions& HeaderOf(PrintOptions& options, PageId page);

// The elements of the page's check boxes below "Printing Items", in the order of the options file.
std::vector<const std::int16_t*> MarksOf(const PrintOptions& options, PageId page);

// The data file that the page looks into for overlapped data; nullptr for none.
const char* OverlapFileOf(PageId page);

}  // namespace tarvis
