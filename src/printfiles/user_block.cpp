#include "printfiles/user_block.h"

#include "printfiles/counted_block.h"
#include "printfiles/header_keys.h"

namespace tarvis {
namespace {

// Four fields, and a description that takes all the rest and may hold line breaks.
void ReadFiveFieldRecord(SwitchDigit& record, LineValue& value) {
  value.FieldsAndRest(record.First, record.Count, record.Value, record.Default, Escaped{record.Text});
}

auto FillDigit(std::size_t digit) {
  return [digit](UserSwitch& row, LineValue& value) { ReadFiveFieldRecord(row.Digit.at(digit), value); };
}

void FillUserName(UserPrm& row, LineValue& value) {
  value.FieldsAndRest(row.No, row.Name);
}
void FillUserValue(UserPrm& row, LineValue& value) {
  value.Fields(row.Value, row.Default, row.Unit);
}
void FillSwitch(UserSwitch& row, LineValue& value) {
  value.FieldsAndRest(row.No, row.Value, row.Default, row.Name);
}

}  // namespace

KeyTable UserBlockKeys(UserData& user) {
  const CountedBlock parameters("UserNum", user.UserNum, user.Prm);
  const CountedBlock switches("SwitchNum", user.SwitchNum, user.Switches);
  return CommentKeys(user) + KeyTable{
                                 {"UserNum", parameters.Count()},
                                 {"UserName", parameters.Begin(FillUserName)},
                                 {"UserValue", parameters.End(FillUserValue)},
                                 {"SwitchNum", switches.Count()},
                                 {"Switch", switches.Begin(FillSwitch)},
                                 {"Switch0", switches.Continue(FillDigit(0))},
                                 {"Switch1", switches.Continue(FillDigit(1))},
                                 {"Switch2", switches.Continue(FillDigit(2))},
                                 {"Switch3", switches.End(FillDigit(3))},
                             };
}

}  // namespace tarvis
