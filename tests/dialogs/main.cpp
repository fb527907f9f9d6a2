// Runs the tests of the dialogs on the offscreen platform.
#include <gtest/gtest.h>

#include "dialogs/test_application.h"

// Ending a run is an exception in these tests. Where it passes through the toolkit's own frames, these don't
// free what they would have freed on their way back; the real program ends its process there.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own name
extern "C" const char* __lsan_default_suppressions() {
  return "leak:QArrayData::allocate\n"
         "leak:QtSharedPointer::ExternalRefCountData::getAndRef\n"
         "leak:QMutableEventPoint::detach\n"
         "leak:QEventPoint::QEventPoint\n";
}

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  tarvis::TestApplication application(argc, argv);
  tarvis::SetUserFont(tarvis::DrawnFontPixels);
  return RUN_ALL_TESTS();
}
