// Printing from the preview: paper, files, and print systems that fail.
#include <QElapsedTimer>
#include <thread>

#include "preview/print_fixture.h"

namespace tarvis {
namespace {

constexpr double UnitLeft = (1440 + 3 * 1700 + 30) / 20.0;  // points, on paper of the document's own size

TEST_F(Print, NarrowPaperIsReportedAndThePagesCanBeScaledToIt) {
  OpenTable(1);
  PrintOnSmallPaper(UseA5, QStringLiteral("Scale to fit"));
  TakeJob();
  EXPECT_TRUE(question_.contains(QStringLiteral("too narrow"))) << question_.toStdString();
  EXPECT_EQ(Asked("media"), QStringLiteral("A5"));
  EXPECT_NEAR(LeftOfUnit(), UnitLeft * 420 / 595.3, 0.5);
}

TEST_F(Print, NarrowPaperCanBePrintedOnAsItIs) {
  OpenTable(1);
  PrintOnSmallPaper(UseA5, QStringLiteral("Print as it is"));
  TakeJob();
  EXPECT_NEAR(LeftOfUnit(), UnitLeft, 0.5);
}

TEST_F(Print, NarrowPaperCanBeAReasonNotToPrint) {
  OpenTable(1);
  PrintOnSmallPaper(UseA5, QStringLiteral("Cancel"));
  EXPECT_FALSE(question_.isEmpty());
  Return();
  ExpectPrinting();
  EXPECT_EQ(Asked("media"), QStringLiteral("A4")) << "nothing was printed before";
}

TEST_F(Print, PaperThatLiesAcrossIsTooShortAndReported) {
  OpenTable(1);
  PrintOnSmallPaper([](QDialog& properties) { Choose(properties, "landscape"); },
                    QStringLiteral("Scale to fit"));
  TakeJob();
  EXPECT_TRUE(question_.contains(QStringLiteral("too short"))) << question_.toStdString();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"1"})) << "the foot of the page is there";
}

TEST_F(Print, AQueueThatIsRemovedWhilePrintingIsReportedAndThePreviewCanPrintAgain) {
  LoseWhilePrinting([](PrintServer& server) { return server.RemoveQueue(); },
                    "doesn't know this printer any more");
  ASSERT_TRUE(PrintServer::Instance().RestoreQueue());
  ExpectPrinting();
}

TEST_F(Print, AServerThatStopsWhilePrintingIsReportedAndThePreviewCanPrintAgain) {
  LoseWhilePrinting([](PrintServer& server) { return server.StopServer(); },
                    "The print system doesn't answer");
  ASSERT_TRUE(PrintServer::Instance().StartServer());
  ExpectPrinting();
}

TEST_F(Print, AServerThatIsStuckKeepsNobodyFromClosingTheWindow) {
  const auto picture = StartAndHold();
  ASSERT_TRUE(PrintServer::Instance().PauseServer());
  picture->Release();
  ASSERT_TRUE(PrintServer::Instance().IsAwaited());
  QElapsedTimer time;
  time.start();
  window_.reset();
  EXPECT_LT(time.elapsed(), 10'000) << "milliseconds";
  ASSERT_TRUE(PrintServer::Instance().ResumeServer());
  TakeJob();  // it was on its way already
}

TEST_F(Print, NothingElseIsPrintedOrSavedWhileAPrintRuns) {
  const auto picture = StartAndHold();
  for (const Command command : {Command::Print, Command::SavePdf})
    EXPECT_FALSE(window_->ActionOf(command)->isEnabled());
  picture->Release();
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window_->IsBusy(); }, 20'000));
  for (const Command command : {Command::Print, Command::SavePdf})
    EXPECT_TRUE(window_->ActionOf(command)->isEnabled());
  TakeJob();
}

TEST_F(Print, ClosingTheWindowWhileAPrintRunsCancelsIt) {
  const auto picture = StartAndHold();
  const auto* job = window_->findChild<BackgroundJob*>();
  ASSERT_NE(job, nullptr);
  std::thread release([job, picture] {
    while (!job->Cancelled()) std::this_thread::yield();
    picture->Release();
  });
  window_.reset();
  release.join();
  OpenTable(1);
  ExpectPrinting();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"1"}));
}

}  // namespace
}  // namespace tarvis
