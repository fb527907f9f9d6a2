// Repeated lines of a file that a count line announces.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "printfiles/key_table.h"
#include "text/checked_array.h"

namespace tarvis {

// Makes the handlers of one block's lines, and keeps its row number for the length of one file. A row of
// several lines has a Begin and an End line, and may have Continue lines between; a row of one line has a
// Whole line.
template <typename Row>
class CountedBlock {
 public:
  // `count` and `rows` must outlive the handlers. Rows get the indices 0 to count, the last one a spare.
  CountedBlock(std::string_view countKey, std::int16_t& count, CheckedArray<Row>& rows)
      : state_(std::make_shared<State>(State{std::string(countKey), count, rows})) {}

  // Drops the rows and sets the size of the block. The row number stays, also at a second count line of one
  // file. A count below -1 is a RunTimeFailure.
  LineHandler Count() const {
    return [state = state_](LineValue& value) -> Refusal {
      value.FieldsAndRest(state->Number);
      if (state->Number < -1) throw RunTimeFailure("a count can't be below -1");
      state->Rows.Resize(state->Number);
      state->CountSeen = true;
      return Accepted;
    };
  }

  // These two refuse a line before the count line, and one more than it announces.
  template <typename Fill>
  LineHandler Begin(Fill fill) const {
    return Line(fill, {.Announced = true, .Moves = false});
  }
  template <typename Fill>
  LineHandler Whole(Fill fill) const {
    return Line(fill, {.Announced = true, .Moves = true});
  }

  // These two ask nothing: the spare row takes a surplus line, and one beyond it is a RunTimeFailure.
  template <typename Fill>
  LineHandler Continue(Fill fill) const {
    return Line(fill, {.Announced = false, .Moves = false});
  }
  template <typename Fill>
  LineHandler End(Fill fill) const {
    return Line(fill, {.Announced = false, .Moves = true});
  }

 private:
  struct State {
    std::string CountKey;
    std::int16_t& Number;
    CheckedArray<Row>& Rows;
    bool CountSeen = false;
    int Index = 0;

    Refusal Refuse() const {
      if (!CountSeen) return "comes before '" + CountKey + "'";
      if (Index > Rows.HighestIndex() - 1) return "one more than '" + CountKey + "' announces";
      return Accepted;
    }
    Row& RowOrSpare() {
      if (Index <= Rows.HighestIndex()) return Rows[Index];
      throw RunTimeFailure(CountSeen ? "two more than '" + CountKey + "' announces"
                                     : "comes before '" + CountKey + "'");
    }
  };

  struct Rules {
    bool Announced;
    bool Moves;
  };

  // `fill` takes the row and the line's value.
  template <typename Fill>
  LineHandler Line(Fill fill, Rules rules) const {
    return [state = state_, fill, rules](LineValue& value) -> Refusal {
      if (rules.Announced) {
        if (Refusal refusal = state->Refuse()) return refusal;
      }
      fill(state->RowOrSpare(), value);
      if (rules.Moves) ++state->Index;
      return Accepted;
    };
  }

  std::shared_ptr<State> state_;
};

}  // namespace tarvis
