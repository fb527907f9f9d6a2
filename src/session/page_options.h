// What of the options each item page shows.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "run/print_options.h"
#include "session/function_list.h"

namespace tarvis {

struct PrintRun;

// The header options that the page edits.
HeaderOptions& HeaderOf(PrintOptions& options, PageId page);

// The five check boxes of the tab "Header && Footer", in the order of the page.
std::array<const std::int16_t*, 5> MarksOf(const HeaderOptions& header);

// The elements of the page's check boxes below "Printing Items", in the order of the options file.
std::vector<const std::int16_t*> MarksOf(const PrintOptions& options, PageId page);

// Looks into the data file of a page that offers overlapped data for how many data sets overlap, which sets
// `OverlapMode` and `OverlapNum` of the session. Does nothing for any other page. False if the file is there
// and can't be read: both keep their values, so that nobody knows what the data hold.
bool LoadOverlap(PrintRun& run, PageId page);

}  // namespace tarvis
