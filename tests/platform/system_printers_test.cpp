#include "platform/system_printers.h"

#include <gtest/gtest.h>

#include <QPrinterInfo>

#include "platform/message_watch.h"

namespace tarvis {
namespace {

TEST(SystemPrinters, CountsThePrintersOfTheSystem) {
  EXPECT_EQ(SystemPrinters(false).NDevices(), QPrinterInfo::availablePrinterNames().size());
}

TEST(SystemPrinters, CountsSavingAsPdfAsOneMoreWhereToldTo) {
  EXPECT_EQ(SystemPrinters(true).NDevices(), SystemPrinters(false).NDevices() + 1);
}

TEST(SystemPrinters, TellsThatThereIsNoneAndWaitsForTheUser) {
  MessageWatch watch;
  SystemPrinters(false).PrintDialog();
  ASSERT_EQ(watch.Seen().size(), 1U);
  EXPECT_EQ(watch.Seen().front().Text, "No printer is installed. Install a printer and try again.");
}

}  // namespace
}  // namespace tarvis
