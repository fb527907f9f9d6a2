#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

#include "preview/print_server.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  tarvis::PrintServer& server = tarvis::PrintServer::Instance();
  server.Start();
  int result = 0;
  {
    QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    result = RUN_ALL_TESTS();
  }
  server.Stop();
  return result;
}
