#include <gtest/gtest.h>

#include "dialogs/test_application.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  tarvis::TestApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
