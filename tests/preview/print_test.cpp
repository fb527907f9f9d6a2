// Printing from the preview: paper, files, and print systems that fail.
#include <thread>

#include "preview/print_fixture.h"

namespace tarvis {
namespace {

constexpr double UnitLeft = (1440 + 3 * 1700 + 30) / 20.0;  // points, on paper of the document's own size

TEST_F(Print, narrow_paper_is_told_and_the_pages_can_be_scaled_to_it) {
  OpenTable(1);
  PrintOnSmallPaper(UseA5, QStringLiteral("Scale to fit"));
  TakeJob();
  EXPECT_TRUE(question_.contains(QStringLiteral("too narrow"))) << question_.toStdString();
  EXPECT_EQ(Asked("media"), QStringLiteral("A5"));
  EXPECT_NEAR(LeftOfUnit(), UnitLeft * 420 / 595.3, 0.5);
}

TEST_F(Print, narrow_paper_can_be_printed_on_as_it_is) {
  OpenTable(1);
  PrintOnSmallPaper(UseA5, QStringLiteral("Print as it is"));
  TakeJob();
  EXPECT_NEAR(LeftOfUnit(), UnitLeft, 0.5);
}

TEST_F(Print, narrow_paper_can_be_a_reason_not_to_print) {
  OpenTable(1);
  PrintOnSmallPaper(UseA5, QStringLiteral("Cancel"));
  EXPECT_FALSE(question_.isEmpty());
  Return();
  ExpectPrinting();
  EXPECT_EQ(Asked("media"), QStringLiteral("A4")) << "nothing was printed before";
}

TEST_F(Print, paper_that_lies_across_is_too_short_and_told) {
  OpenTable(1);
  PrintOnSmallPaper([](QDialog& properties) { Choose(properties, "landscape"); },
                    QStringLiteral("Scale to fit"));
  TakeJob();
  EXPECT_TRUE(question_.contains(QStringLiteral("too short"))) << question_.toStdString();
  EXPECT_EQ(Pages("received.pdf"), QStringList({"1"})) << "the foot of the page is there";
}

TEST_F(Print, a_queue_that_is_removed_while_printing_is_told_and_the_preview_can_print_again) {
  LoseWhilePrinting([](PrintServer& server) { return server.RemoveQueue(); },
                    "doesn't know this printer any more");
  ASSERT_TRUE(PrintServer::Instance().RestoreQueue());
  ExpectPrinting();
}

TEST_F(Print, a_server_that_stops_while_printing_is_told_and_the_preview_can_print_again) {
  LoseWhilePrinting([](PrintServer& server) { return server.StopServer(); },
                    "The print system doesn't answer");
  ASSERT_TRUE(PrintServer::Instance().StartServer());
  ExpectPrinting();
}

TEST_F(Print, closing_the_window_while_a_print_runs_cancels_it) {
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
