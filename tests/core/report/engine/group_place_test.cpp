// Where a group goes that is to be kept on one page, case by case.
#include "report/engine/group_place.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvis {
namespace {

struct Case {
  const char* Name;
  GroupRoom Room;
  GroupPlace Place;
};

constexpr bool Ended = true;
constexpr bool NewPage = true;
constexpr bool Rows = true;

class GroupPlaceOf : public testing::TestWithParam<Case> {};

TEST_P(GroupPlaceOf, FollowsFromTheRoomOnThisPageAndOnAFreshOne) {
  EXPECT_EQ(PlaceOf(GetParam().Room), GetParam().Place);
}

// Headers, group, whether it has ended, used, page, fresh page, whether a new page begins, whether rows are
// there.
INSTANTIATE_TEST_SUITE_P(
    Groups, GroupPlaceOf,
    testing::Values(
        Case{"EmptyPage", {0, 1000, Ended, 0, 1000, 1000, !NewPage, !Rows}, GroupPlace::ThisPage},
        Case{"ExactlyTheRest", {0, 400, Ended, 600, 1000, 1000, !NewPage, Rows}, GroupPlace::ThisPage},
        Case{"OneTwipTooLong", {0, 401, Ended, 600, 1000, 1000, !NewPage, Rows}, GroupPlace::FreshPage},
        Case{"RoundingDoesNotCount",
             {0, 400.005F, Ended, 600, 1000, 1000, !NewPage, Rows},
             GroupPlace::ThisPage},
        Case{"TheWaitingHeadersCount",
             {100, 301, Ended, 600, 1000, 1000, !NewPage, Rows},
             GroupPlace::FreshPage},
        Case{"FreshPageExactlyFull",
             {100, 900, Ended, 600, 1000, 1000, !NewPage, Rows},
             GroupPlace::FreshPage},
        Case{"LongerThanAPage", {100, 901, Ended, 600, 1000, 1000, !NewPage, Rows}, GroupPlace::CannotBeKept},
        Case{"RepeatedHeadersLeaveTooLittle",
             {0, 800, Ended, 600, 1000, 700, !NewPage, Rows},
             GroupPlace::CannotBeKept},
        Case{"OnlyHeadersAbove", {0, 800, Ended, 600, 1000, 1000, !NewPage, !Rows}, GroupPlace::CannotBeKept},
        Case{"NewPageInAnyCase", {0, 100, Ended, 600, 1000, 1000, NewPage, !Rows}, GroupPlace::FreshPage},
        Case{"NewPageButTooLong", {0, 1001, Ended, 0, 1000, 1000, NewPage, Rows}, GroupPlace::CannotBeKept},
        Case{"EndUnknown", {0, 900, !Ended, 600, 1000, 1000, !NewPage, Rows}, GroupPlace::NotKnownYet},
        Case{"EndUnknownOnAFullPage",
             {0, 1000, !Ended, 600, 1000, 1000, !NewPage, Rows},
             GroupPlace::NotKnownYet},
        Case{"EndUnknownAndLongerThanAPage",
             {0, 1001, !Ended, 0, 1000, 1000, !NewPage, Rows},
             GroupPlace::CannotBeKept},
        // The headers that wait above don't count before the end is known: they may stay on this page.
        Case{"EndUnknownBelowHeaders",
             {200, 900, !Ended, 0, 1000, 1000, !NewPage, Rows},
             GroupPlace::NotKnownYet}),
    [](const auto& each) { return std::string(each.param.Name); });

}  // namespace
}  // namespace tarvis
