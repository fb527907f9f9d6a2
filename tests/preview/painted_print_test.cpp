// Printing by the toolkit's painter, where the print system takes no PDFs.
#include <gtest/gtest.h>

#include <QPrinter>
#include <QTemporaryDir>

#include "preview/document_builder.h"
#include "preview/jobs/print_system.h"
#include "preview/jobs/printing.h"
#include "preview/never_cancelled.h"
#include "preview/pdf_file.h"

namespace tarvis {
namespace {

class PaintedPrint : public testing::Test {
 protected:
  PaintedPrint() : printer_(QPrinter::HighResolution) {
    printer_.setOutputFormat(QPrinter::PdfFormat);
    printer_.setOutputFileName(path_);
  }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath(QStringLiteral("painted.pdf"));
  QPrinter printer_;
};

TEST_F(PaintedPrint, HasTheChosenPagesInTheirOrder) {
  ASSERT_FALSE(TakesPdf(printer_));
  const auto document =
      DocumentBuilder().Page().Text("one", 1440, 1000).Page().Text("two", 1440, 1000).Build();
  EXPECT_EQ(PrintDocument(*document, {1, 0}, printer_, PrintScale::AsComposed, GoOn), QString());
  EXPECT_EQ(PdfText(path_).simplified(), QStringLiteral("two one"));
}

TEST_F(PaintedPrint, PaintsNoFurtherPageOnceItIsCancelled) {
  const auto document = DocumentBuilder().TablePages(3).Build();
  int asked = 0;
  const auto stop = [&](int done, int) {
    ++asked;
    return done < 1;
  };
  EXPECT_EQ(PrintDocument(*document, {0, 1, 2}, printer_, PrintScale::AsComposed, stop), QString());
  EXPECT_EQ(asked, 2);
}

}  // namespace
}  // namespace tarvis
