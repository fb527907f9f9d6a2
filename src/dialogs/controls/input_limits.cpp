#include "dialogs/controls/input_limits.h"

#include "run/print_run.h"
#include "session/title_limit.h"
#include "text/text.h"

namespace tarvis {

namespace {

bool Fits(const PrintRun& run, int limit, const std::string& text) {
  return run.CodePage.ByteLength(text) <= static_cast<std::size_t>(limit);
}

}  // namespace

bool TrimToByteLimit(PrintRun& run, int limit, InputBox& box) {
  const std::string text = box.Text();
  if (Fits(run, limit, text)) {
    box.SetMaximumLength(limit);
    return true;
  }
  const std::string cut = CutToBytes(run.CodePage, text, static_cast<std::size_t>(limit));
  box.SetText(cut);
  box.SetMaximumLength(static_cast<int>(CharacterCount(cut)));
  ShowByteLimit(run, limit);
  box.GiveFocus();
  return false;
}

bool CheckByteLimit(PrintRun& run, int limit, InputBox& box) {
  if (Fits(run, limit, box.Text())) return true;
  ShowByteLimit(run, limit);
  box.GiveFocus();
  return false;
}

bool CheckLineLimit(PrintRun& run, int maxLines, int width, InputBox& box) {
  if (CountWrappedLines(run.CodePage, box.Text(), static_cast<std::size_t>(width)) <= maxLines) return true;
  run.Desktop.ShowMessage(
      InputErrorTitle, "Try with Less Lines. Up to " + std::to_string(maxLines) + "\nLines can be Inputted.");
  box.GiveFocus();
  return false;
}

}  // namespace tarvis
