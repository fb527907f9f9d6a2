// What one key of a host file fills, for tests that walk through all keys of a file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "support/test_run.h"

namespace tarvis {

// The text parts of a line, in order. A part that unescapes is marked; the last one takes a field or all the
// rest.
struct TextPart {
  TextPart(std::string& text, bool unescapes = false) : Text(&text), Unescapes(unescapes) {}

  std::string* Text;
  bool Unescapes;
};
inline TextPart Unescaped(std::string& text) {
  return {text, true};
}

enum class LastPart { kField, kRest };

struct TextLine {
  std::string Key;
  LastPart Last;
  std::vector<TextPart> Parts;
};

// The line of a cursor, and of a channel.
inline TextLine CursorLineOf(const char* key, CursorRow& row) {
  return {key, LastPart::kRest, {row.ValueA, row.ValueB, row.ValueDiff, row.NameUnit}};
}
inline TextLine ItemLineOf(const char* key, TraceItem& item) {
  return {key, LastPart::kField, {item.Name, item.Display, item.Unit}};
}

struct NumberLine {
  std::string Key;
  std::int16_t* Number;
};

// A file of the host: its name, its reader, and the lines that must come before all others.
struct HostFile {
  std::string Name;
  bool (*Read)(PrintRun& run);
  std::vector<std::string> Ahead;
};

// Reads `line` after the lines that must come before it.
bool ReadLine(TestRun& test, const HostFile& file, const std::string& line);

// Each key fills its parts, cuts or keeps commas and unescapes as the table says; takes a short line, an
// overlong one and a second one; and is unknown in lower case, with a blank before it and with one after it.
void ExpectTextLines(TestRun& test, const HostFile& file, const std::vector<TextLine>& lines);

// Each key stores a whole number of 16 bits, and stops the program at anything else.
void ExpectNumberLines(TestRun& test, const HostFile& file, const std::vector<NumberLine>& lines);

// The six header keys.
void ExpectHeaderLines(TestRun& test, const HostFile& file);

// Each of these keys is unknown to the file.
void ExpectUnknownKeys(TestRun& test, const HostFile& file, const std::vector<std::string>& keys);

// The parameter block fills its rows, and each of its keys is unknown in lower case.
void ExpectParameterBlock(TestRun& test, const HostFile& file);

}  // namespace tarvis
