// Where a group goes that is to be kept on one page.
#pragma once

namespace tarvis {

enum class GroupPlace {
  NotKnownYet,   // the group may still end before the page does
  ThisPage,      // it fits below what is there
  FreshPage,     // it fits on a page of its own
  CannotBeKept,  // it is longer than a page, or a fresh page would have no more room than this one
};

// All lengths in twips.
struct GroupRoom {
  float Headers = 0;           // height of the headers that wait above the group
  float Group = 0;             // height of the group, as far as it has been composed
  bool IsComplete = false;     // the group has ended
  float Used = 0;              // what is taken of this page
  float Page = 0;              // height of a page
  float FreshPage = 0;         // height of a page below the headers that repeat there
  bool StartsNewPage = false;  // a new page begins before the group in any case
  bool HasRows = false;        // this page has more than headers of the reports around the group
};

[[nodiscard]] GroupPlace PlaceOf(const GroupRoom& room);

// What is only this much too long, in twips, fits.
inline constexpr float RoundingRoom = 0.01F;

}  // namespace tarvis
