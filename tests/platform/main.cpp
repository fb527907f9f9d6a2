// Runs the tests of the platform on the offscreen platform.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  new QApplication(argc,
                   argv);  // on the heap, since tests of the program's own application object replace it
  const int status = RUN_ALL_TESTS();
  delete qApp;
  return status;
}
