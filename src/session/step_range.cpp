#include "session/step_range.h"

#include <algorithm>

#include "run/print_run.h"
#include "session/choices.h"
#include "text/numbers.h"

namespace tarvis {
namespace {

constexpr const char* FirstStep = "0";
constexpr const char* LastStep = "127";
constexpr std::int16_t Valid = -1;
constexpr std::int16_t Invalid = 0;

bool IsDigitsOnly(const std::string& text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Silent. The last comparison is one of texts: "127" is less than "5".
void RepairRange(PrintRun& run) {
  IdxTblOptions& option = run.Options.IdxTblOption;
  if (!IsDigitsOnly(option.First)) option.First = FirstStep;
  if (!IsDigitsOnly(option.Last)) option.Last = LastStep;
  if (LenientReal(option.First) < 0) option.First = FirstStep;
  if (LenientReal(option.Last) > run.Session.StepLimit) option.Last = LastStep;
  if (option.Last < option.First) option.First = FirstStep;
}

}  // namespace

void LoadStepRange(PrintRun& run) {
  if (run.Options.IdxTblOption.Range == TypedRange) RepairRange(run);
  RequireChoice(run, run.Options.IdxTblOption.Range, 0, TypedRange);
}

void ChooseStepRange(PrintRun& run, std::int16_t choice) {
  IdxTblOptions& option = run.Options.IdxTblOption;
  option.Range = choice;
  if (choice == TypedRange) {
    if (option.Last.empty()) option.Last = LastStep;
    if (option.First.empty()) option.First = FirstStep;
    return;
  }
  run.Session.StepStartValid = Valid;
  run.Session.StepEndValid = Valid;
  option.First.clear();
  option.Last.clear();
}

void CheckStepRange(PrintRun& run, const std::string& start, const std::string& end) {
  PrintSession& session = run.Session;
  if (!IsDigitsOnly(start)) {
    session.StepStartValid = Invalid;
    return;
  }
  if (!IsDigitsOnly(end)) {
    session.StepEndValid = Invalid;
    return;
  }
  session.StepStartValid = LenientReal(start) > LenientReal(end) ? Invalid : Valid;
  if (session.StepStartValid == Invalid) return;
  run.Options.IdxTblOption.First = start;
  session.StepEndValid = LenientReal(end) >= session.StepLimit ? Invalid : Valid;
  if (session.StepEndValid == Valid) run.Options.IdxTblOption.Last = end;
}

bool StepRangeIsValid(const PrintSession& session) {
  return session.StepStartValid != Invalid && session.StepEndValid != Invalid;
}

}  // namespace tarvis
