// Small text routines that the readers, reports and dialogs use. A line break is CR LF.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "text/code_page.h"

namespace tarvis {

// Takes the text up to the first comma off the front of `text`; the comma goes too. Without a comma that is
// the whole of `text`, which is empty then.
std::string_view NextField(std::string_view& text);

// Takes the text up to the first CR off the front of `text`. One more character after the CR goes too,
// whatever it is. Without a CR that is the whole of `text`, which is empty then.
std::string_view NextTextLine(std::string_view& text);

// CR LF becomes the four characters \r\n; a CR or LF alone stays.
std::string EscapeNewlines(std::string_view text);
// The four characters \r\n become CR LF, wherever they are.
std::string UnescapeNewlines(std::string_view text);
// CR LF becomes one blank.
std::string NewlinesToBlanks(std::string_view text);

// The number of line breaks: 2 for a text of three lines. Above 32767 it throws RunTimeFailure.
std::int16_t CountLineBreaks(std::string_view text);

// `text` cut to at most `bytes` bytes of the code page. The cut may halve a double-byte character, which
// comes back as whatever the code page makes of it, or a CR LF.
std::string LeftBytes(const CodePage& page, std::string_view text, std::size_t bytes);

// `text` without the characters at its end that reach beyond `bytes` bytes of the code page. No character is
// halved.
std::string CutToBytes(const CodePage& page, std::string_view text, std::size_t bytes);

// The number of lines that `text` takes at `width` bytes of the code page a line; `width` is above 0. A
// trailing line break adds none.
int CountWrappedLines(const CodePage& page, std::string_view text, std::size_t width);

// The first `count` characters, counted in UTF-16 code units as the host counts them.
std::string LeftCharacters(std::string_view text, std::size_t count);

// The number of characters, counted in UTF-16 code units as the host counts them.
std::size_t CharacterCount(std::string_view text);

// Whether two texts are equal without regard to case, by Unicode's simple case folding. Blanks count.
bool EqualIgnoringCase(std::string_view left, std::string_view right);

}  // namespace tarvis
