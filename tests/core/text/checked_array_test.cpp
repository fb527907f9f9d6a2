// Arrays whose index comes from a file.
#include "text/checked_array.h"

#include <gtest/gtest.h>

#include <string>

#include "support/test_run.h"

namespace tarvis {
namespace {

TEST(CheckedArray, StopsAtIndicesOutside) {
  CheckedArray<std::string> array("Names");
  EXPECT_EQ(RunTimeFailureOf([&] { array[0]; }), "Names: subscript out of range: '0'");
  array.Resize(2);
  EXPECT_EQ(array.HighestIndex(), 2);
  EXPECT_EQ(RunTimeFailureOf([&] { array[3]; }), "Names: subscript out of range: '3'");
  EXPECT_EQ(RunTimeFailureOf([&] { array[-1]; }), "Names: subscript out of range: '-1'");
  EXPECT_EQ(RunTimeFailureOf([&] { array.Resize(-2); }), "Names: subscript out of range: '-2'");
  EXPECT_EQ(RunTimeFailureOf([&] { array.ResizeKeeping(-2); }), "Names: subscript out of range: '-2'");
}

TEST(CheckedArray, DropsItsElementsWhenItIsResized) {
  CheckedArray<std::string> array("Names");
  array.Resize(9);
  for (const int index : {5, 3, 9}) array[index] = "old";
  array.Resize(4);
  array[2] = "old";
  array.Resize(9);
  for (int index = 0; index <= 9; ++index) EXPECT_EQ(array[index], "") << index;
}

TEST(CheckedArray, KeepsWhatRemainsInRange) {
  CheckedArray<std::string> array("Names");
  array.ResizeKeeping(3);
  for (int index = 0; index <= 3; ++index) array[index] = std::to_string(index);
  array.ResizeKeeping(1);
  EXPECT_EQ(array.HighestIndex(), 1);
  array.ResizeKeeping(3);
  EXPECT_EQ(array[1], "1");
  EXPECT_EQ(array[2], "");
  array.Resize(3);
  EXPECT_EQ(array[1], "");
}

TEST(CheckedArray, HasNothingOnceCleared) {
  CheckedArray<std::string> array("Names");
  array.Resize(3);
  array[0] = "old";
  array.Clear();
  EXPECT_EQ(array.HighestIndex(), -1);
  array.Resize(3);
  EXPECT_EQ(array[0], "");
}

TEST(BoundedArray, CountsFromItsLowestIndex) {
  BoundedArray<std::string, 1, 3> slots;
  slots[1] = "a";
  slots[3] = "c";
  EXPECT_EQ(*slots.begin(), "a");
  EXPECT_EQ(RunTimeFailureOf([&] { slots[0]; }), "subscript out of range: '0'");
  EXPECT_EQ(RunTimeFailureOf([&] { slots[4]; }), "subscript out of range: '4'");
}

}  // namespace
}  // namespace tarvis
