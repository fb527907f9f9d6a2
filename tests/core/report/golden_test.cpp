// The comparison with goldens itself: it finds the first line that differs.
#include "support/golden.h"

#include <gtest/gtest.h>

namespace tarvis {
namespace {

TEST(Golden, TheSameTextHasNoDifference) {
  EXPECT_EQ(FirstDifference("page 1\n  cell\n", "page 1\n  cell\n"), "");
}

TEST(Golden, NamesTheFirstLineThatDiffers) {
  EXPECT_EQ(FirstDifference("page 1\n  cell a\n  x\n", "page 1\n  cell b\n  y\n"),
            "line 2\n  stored:   cell a\n  made:     cell b");
}

TEST(Golden, NamesTheTextThatEndsFirst) {
  EXPECT_EQ(FirstDifference("page 1\n", "page 1\npage 2\n"),
            "line 2\n  stored: (end of text)\n  made:   page 2");
  EXPECT_EQ(FirstDifference("page 1\n\n", "page 1\n"), "line 2\n  stored: \n  made:   (end of text)");
}

TEST(Golden, AMissingLineEndIsADifferenceToo) {
  EXPECT_EQ(FirstDifference("page 1\n", "page 1"), "the texts differ only in their line ends");
}

}  // namespace
}  // namespace tarvis
