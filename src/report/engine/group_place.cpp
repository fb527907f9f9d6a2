#include "report/engine/group_place.h"

namespace tarvis {

GroupPlace PlaceOf(const GroupRoom& room) {
  if (!room.IsComplete && room.Group <= room.FreshPage + RoundingRoom) return GroupPlace::NotKnownYet;
  if (!room.IsComplete) return GroupPlace::CannotBeKept;
  const float height = room.Headers + room.Group;
  if (!room.StartsNewPage && room.Used + height <= room.Page + RoundingRoom) return GroupPlace::ThisPage;
  const bool freshPageHasMoreRoom = room.HasRows || room.StartsNewPage;
  if (freshPageHasMoreRoom && height <= room.FreshPage + RoundingRoom) return GroupPlace::FreshPage;
  return GroupPlace::CannotBeKept;
}

}  // namespace tarvis
