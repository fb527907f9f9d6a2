// The limit on titles of functions, and the message of all limits that are counted in bytes.
#pragma once

#include <string>

namespace tarvis {

struct PrintRun;

// In bytes of the code page.
inline constexpr int TitleLimit = 40;

// Title of every message about an input.
inline constexpr char InputErrorTitle[] = "Input Error";

// What the title box of an item page makes of a kept title: its first line, cut at the limit with a
// message.
void TakeTitle(PrintRun& run, std::string& title);

// Shows the message that a text has more than `limit` bytes.
void ShowByteLimit(PrintRun& run, int limit);

}  // namespace tarvis
