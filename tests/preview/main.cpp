// Runs the tests of the preview on the offscreen platform.
#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "preview/print_server.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  tarvis::PrintServer& server = tarvis::PrintServer::Instance();
  server.Start();
  // Dialogs propose files in the user's home; what one test leaves there would be asked for by the next one.
  const QTemporaryDir home;
  qputenv("HOME", home.path().toLocal8Bit());
  int result = 0;
  {
    QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    result = RUN_ALL_TESTS();
  }
  server.Stop();
  return result;
}
