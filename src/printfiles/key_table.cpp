#include "printfiles/key_table.h"

#include "run/print_run.h"
#include "text/excerpt.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

constexpr std::int32_t MostLines = 32768;  // the readers count lines in 16 bits

Refusal TakeLine(const KeyTable& keys, std::string_view key, LineValue value) {
  const LineHandler* handler = keys.Find(key);
  if (handler == nullptr) return "unknown key '" + Excerpt(key) + "'";
  Refusal refusal = (*handler)(value);
  if (refusal) return std::string(key) + ": " + *refusal;
  return Accepted;
}

}  // namespace

const LineHandler* KeyTable::Find(std::string_view key) const {
  const auto found = lines_.find(key);
  return found == lines_.end() ? nullptr : &found->second;
}

KeyTable operator+(KeyTable left, KeyTable right) {
  left.lines_.merge(right.lines_);
  return left;
}

bool ReadLines(PrintRun& run, const KeyTable& keys) {
  PrintSession& session = run.Session;
  if (session.LineCount > MostLines) {
    throw RunTimeFailure("overflow: more than 32768 lines",
                         {.File = session.LinesFile, .Line = MostLines + 1, .Key = {}, .Text = {}});
  }
  for (std::int32_t index = 0; index < session.LineCount; ++index) {
    std::string_view value = session.Lines[index];
    const std::string_view key = NextField(value);
    try {
      if (const Refusal refusal = TakeLine(keys, key, LineValue(value))) {
        session.Diagnosis = session.LinesFile + ":" + std::to_string(index + 1) + ": " + *refusal;
        return false;
      }
    } catch (const RunTimeFailure& failure) {
      throw failure.AtKey(
          {.File = session.LinesFile, .Line = index + 1, .Key = std::string(key), .Text = Excerpt(value)});
    }
  }
  return true;
}

LineHandler OnlyAbove(std::int16_t bound, const std::int16_t& number, LineHandler line) {
  return [bound, &number, line = std::move(line)](LineValue& value) -> Refusal {
    return number > bound ? line(value) : Accepted;
  };
}

}  // namespace tarvis
