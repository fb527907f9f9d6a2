#include "printfiles/key_place.h"

#include <string>

#include "run/print_run.h"
#include "text/excerpt.h"
#include "text/text.h"

namespace tarvis {

FailurePlace PlaceOf(const PrintRun& run, std::string_view key) {
  const PrintSession& session = run.Session;
  FailurePlace place{.File = session.LinesFile, .Line = 0, .Key = std::string(key), .Text = ""};
  for (int index = session.LineCount - 1; index >= 0; --index) {
    std::string_view value = session.Lines[index];
    if (NextField(value) != key) continue;
    place.Line = index + 1;
    place.Text = Excerpt(value);
    break;
  }
  return place;
}

FailurePlace PlaceOf(const PrintRun& run, std::string_view key, int element, const std::string& text) {
  FailurePlace place = PlaceOf(run, key);
  place.Element = element;
  place.Text = Excerpt(text);
  return place;
}

}  // namespace tarvis
