// Whether there is a printer, and what the user reads if not.
#include "platform/system_printers.h"

#include <gtest/gtest.h>

#include <QPrinterInfo>

#include "platform/message_watch.h"
#include "support/fake_desktop.h"

namespace tarvis {
namespace {

TEST(SystemPrinters, CountsThePrintersOfTheSystem) {
  FakeDesktop desktop;
  FirstWindowWatch watch(desktop);
  EXPECT_EQ(SystemPrinters(false, desktop, watch).NDevices(), QPrinterInfo::availablePrinterNames().size());
}

TEST(SystemPrinters, CountsSavingAsPdfWithoutAskingThePrintSystem) {
  FakeDesktop desktop;
  FirstWindowWatch watch(desktop);
  EXPECT_EQ(SystemPrinters(true, desktop, watch).NDevices(), 1);
}

TEST(SystemPrinters, ReportsThatThereIsNoneAndWaitsForTheUser) {
  FakeDesktop desktop;
  FirstWindowWatch watch(desktop);
  MessageWatch messages;
  SystemPrinters(false, desktop, watch).PrintDialog();
  ASSERT_EQ(messages.Seen().size(), 1U);
  EXPECT_EQ(messages.Seen().front().Text, "No printer is installed. Install a printer and try again.");
}

}  // namespace
}  // namespace tarvis
