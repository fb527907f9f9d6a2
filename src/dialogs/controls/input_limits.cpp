#include "dialogs/controls/input_limits.h"

#include <QString>

#include "run/print_run.h"
#include "text/text.h"

namespace tarvis {

namespace {

bool Fits(const PrintRun& run, int limit, const std::string& text) {
  return run.Page.ByteLength(text) <= static_cast<std::size_t>(limit);
}

// Never cuts inside a character.
void DropLastCharacter(QString& text) {
  const bool pair =
      text.size() > 1 && text.back().isLowSurrogate() && text[text.size() - 2].isHighSurrogate();
  text.chop(pair ? 2 : 1);
}

std::string CutToLimit(const PrintRun& run, int limit, const std::string& text) {
  QString cut = QString::fromStdString(text);
  // A character takes a byte at least; a pair of code units may be one character.
  cut.truncate(qsizetype{2} * limit);
  if (!cut.isEmpty() && cut.back().isHighSurrogate()) cut.chop(1);
  while (!Fits(run, limit, cut.toStdString())) DropLastCharacter(cut);
  return cut.toStdString();
}

void TellByteLimit(PrintRun& run, int limit) {
  run.Desktop.ShowMessage(InputErrorTitle, "Try with  Less Characters.  Up to " + std::to_string(limit) +
                                               " Characters can be Inputted.");
}

}  // namespace

bool TrimToByteLimit(PrintRun& run, int limit, InputBox& box) {
  const std::string text = box.Text();
  if (Fits(run, limit, text)) {
    box.SetMaximumLength(limit);
    return true;
  }
  const std::string cut = CutToLimit(run, limit, text);
  box.SetText(cut);
  box.SetMaximumLength(static_cast<int>(QString::fromStdString(cut).size()));
  TellByteLimit(run, limit);
  box.GiveFocus();
  return false;
}

bool CheckByteLimit(PrintRun& run, int limit, InputBox& box) {
  if (Fits(run, limit, box.Text())) return true;
  TellByteLimit(run, limit);
  box.GiveFocus();
  return false;
}

bool CheckLineLimit(PrintRun& run, int maxLines, int width, InputBox& box) {
  if (CountWrappedLines(run.Page, box.Text(), static_cast<std::size_t>(width)) <= maxLines) return true;
  run.Desktop.ShowMessage(
      InputErrorTitle, "Try with Less Lines. Up to " + std::to_string(maxLines) + "\nLines can be Inputted.");
  box.GiveFocus();
  return false;
}

}  // namespace tarvis
