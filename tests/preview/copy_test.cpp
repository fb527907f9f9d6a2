// Copying tables, columns, areas and graphs, and saving graphs.
#include <QContextMenuEvent>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <QXmlStreamReader>
#include <qpdf/QPDF.hh>

#include "preview/pages/page_places.h"
#include "preview/sample_picture.h"
#include "preview/text/column_selection.h"
#include "preview/window/selector.h"
#include "preview/window_fixture.h"

namespace tarvis {
namespace {

constexpr Rect FirstGraph{1582, 1500, 8787, 4000};
constexpr Rect SecondGraph{1582, 6000, 4320, 2880};
constexpr Rect TitleBand{1440, 930, 8925, 420};

std::shared_ptr<const Document> WithGraphs() {
  return DocumentBuilder("Trace")
      .Page()
      .Picture(std::make_shared<SamplePicture>(), TitleBand)
      .Picture(std::make_shared<ColourfulPicture>(), FirstGraph)
      .Picture(std::make_shared<SamplePicture>(), SecondGraph)
      .Page()
      .Row({"Pn100", "Gain"}, 720)
      .Entry("Graph & cursors", 0, 0, 930)
      .Build();
}

class Copying : public WindowTest {
 protected:
  void SetUp() override { QApplication::clipboard()->clear(); }
  const QMimeData& Clipboard() { return *QApplication::clipboard()->mimeData(); }
  // Chooses a command in the context menu that a right click at `at` opens.
  void ChooseInMenu(QPoint at, Command command) {
    QTimer::singleShot(0, window_.get(), [this, command] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_NE(menu, nullptr);
      menu->setActiveAction(window_->ActionOf(command));
      QTest::keyClick(menu, Qt::Key_Return);
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, View().viewport()->mapToGlobal(at));
    QApplication::sendEvent(View().viewport(), &event);
    Return();
  }
  QSize CopiedPixels() { return qvariant_cast<QImage>(Clipboard().imageData()).size(); }
  bool CanCopy() { return window_->ActionOf(Command::Copy)->isEnabled(); }
};

QSize PixelsOf(const Rect& box) {
  const auto pixels = [](float twips) { return qRound(double{twips} * 300 / 1440); };
  return {pixels(box.Width), pixels(box.Height)};
}

// The names of the elements, and the text of the title; both empty if it is no XML.
struct ReadSvg {
  QStringList Elements;
  QString Title;

  ReadSvg() = default;
  explicit ReadSvg(const QByteArray& bytes) {
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd()) {
      if (reader.readNext() != QXmlStreamReader::StartElement) continue;
      Elements.append(reader.name().toString());
      if (reader.name() == QLatin1String("title")) Title = reader.readElementText();
    }
    if (reader.hasError()) *this = ReadSvg();
  }
};

TEST_F(Copying, ATableIsATableInALetterToo) {
  Open(DocumentBuilder()
           .Page()
           .Text("Parameters <List>", 1440, 720)
           .Row({"Pn100", "Gain & more", "40.0"}, 1200)
           .Row({"Pn101", "", "8"}, 1483)
           .Build());
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(CopiedText(), QStringLiteral("Parameters <List>\nPn100\tGain & more\t40.0\nPn101\t\t8"));
  QTextDocument letter;
  letter.setHtml(Clipboard().html());
  EXPECT_EQ(letter.firstBlock().text(), QStringLiteral("Parameters <List>"));
  const auto* table = qobject_cast<QTextTable*>(letter.rootFrame()->childFrames().value(0));
  ASSERT_NE(table, nullptr);
  ASSERT_EQ(table->rows(), 2);
  ASSERT_EQ(table->columns(), 3);
  EXPECT_EQ(table->cellAt(0, 1).firstCursorPosition().block().text(), QStringLiteral("Gain & more"));
  EXPECT_EQ(table->cellAt(1, 1).firstCursorPosition().block().text(), QString());
  EXPECT_EQ(table->cellAt(1, 2).firstCursorPosition().block().text(), QStringLiteral("8"));
}

TEST_F(Copying, AColumnOfATableIsCopiedAsTextOverAllPagesWithItsEmptyCells) {
  Open(DocumentBuilder()
           .Page()
           .Row({"Pn100", "Gain", "40.0"}, 9000)
           .Row({"Pn101", "", "8"}, 9283)
           .Page()
           .Row({"Pn102", "Ratio", "1.5"}, 720)
           .Row({"not", "this"}, 5000)
           .Entry("Parameters", 0, 0, 0)
           .Entry("Comments", 0, 1, 4000)
           .Build());
  View().GoTo({0, 8000});
  ChooseInMenu(At(0, 1440 + 1800, 9100), Command::SelectColumn);
  EXPECT_EQ(CopiedText(), QStringLiteral("Gain\n\nRatio"));
  QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, At(0, 1500, 9100));
  EXPECT_FALSE(CanCopy());
  Press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(CopiedText(), QStringLiteral("Pn100\nPn101\nPn102"));
}

TEST_F(Copying, TheColumnIsThatOfTheClickedCellNotThatOfTheNearestText) {
  Open(DocumentBuilder().Page().Row({"Pn100", "Gain", "40.0"}, 1000).Row({"Pn101", "", "8"}, 1283).Build());
  const auto copyColumnAfterClick = [this](double x, double y) {
    QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, At(0, x, y));
    Press(Qt::Key_Space, Qt::ControlModifier);
    return CopiedText();
  };
  const double secondCell = 1440 + 1700;
  EXPECT_EQ(copyColumnAfterClick(secondCell + 900, 1420), QStringLiteral("Gain\n")) << "empty";
  EXPECT_EQ(copyColumnAfterClick(secondCell + 1640, 1140), QStringLiteral("Gain\n")) << "right of its text";
}

TEST_F(Copying, TheColumnFollowsTextThatWasSelectedSinceTheClick) {
  Open(DocumentBuilder().Page().Row({"Pn100", "Gain", "40.0"}, 1000).Build());
  QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, At(0, 1500, 1140));
  Find<Selector>("selector").Select({0, 2, 0}, {0, 2, 1});
  Press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(CopiedText(), QStringLiteral("40.0"));
}

TEST_F(Copying, AColumnIsMarkedOnEachOfItsPages) {
  const auto document = DocumentBuilder()
                            .Page()
                            .Row({"Pn100", "Gain"}, 9000)
                            .Page()
                            .Row({"Pn101", "Ratio"}, 720)
                            .Row({"Pn102", "Limit"}, 1003)
                            .Page()
                            .Text("The end", 1440, 720)
                            .Build();
  ColumnSelection column(*document);
  column.Select(0, {1500, 9100});
  EXPECT_EQ(column.Boxes(0), std::vector({QRectF(1440, 9000, 1700, 283)}));
  EXPECT_EQ(column.Boxes(1), std::vector({QRectF(1440, 720, 1700, 283), QRectF(1440, 1003, 1700, 283)}));
  EXPECT_TRUE(column.Boxes(2).empty());
}

TEST_F(Copying, NoColumnIsSelectedWhereNoTableIs) {
  Open(DocumentBuilder().Page().Text("Speed Loop Gain", 1440, 1000, 12).Build());
  ChooseInMenu(At(0, 1600, 1100), Command::SelectColumn);
  EXPECT_FALSE(CanCopy());
}

TEST_F(Copying, AGraphIsCopiedAsVectorsAndAsAPicture) {
  Open(WithGraphs());
  Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  const ReadSvg svg(Clipboard().data(QStringLiteral("image/svg+xml")));
  EXPECT_EQ(svg.Title, QStringLiteral("Graph & cursors"));
  EXPECT_TRUE(svg.Elements.contains(QStringLiteral("linearGradient")));
  EXPECT_TRUE(svg.Elements.contains(QStringLiteral("image")));
  EXPECT_TRUE(svg.Elements.contains(QStringLiteral("path")));
  const QByteArray bytes = Clipboard().data(QStringLiteral("application/pdf"));
  QPDF pdf;
  pdf.processMemoryFile("clipboard", bytes.constData(), static_cast<std::size_t>(bytes.size()));
  const std::vector<QPDFObjectHandle> pages = pdf.getAllPages();
  ASSERT_EQ(pages.size(), 1U);
  QPDFObjectHandle page = pages.front();
  QPDFObjectHandle box = page.getKey("/MediaBox");
  EXPECT_NEAR(box.getArrayItem(2).getNumericValue(), 8787 / 20.0, 0.1);
  EXPECT_NEAR(box.getArrayItem(3).getNumericValue(), 4000 / 20.0, 0.1);
  EXPECT_EQ(CopiedPixels(), PixelsOf(FirstGraph));
}

TEST_F(Copying, TheGraphUnderTheMouseIsTheOneThatTheMenuCopies) {
  Open(WithGraphs());
  ChooseInMenu(At(0, 3000, 7000), Command::CopyGraph);
  EXPECT_EQ(CopiedPixels(), PixelsOf(SecondGraph));
}

TEST_F(Copying, TheBandOfATitleIsNoGraph) {
  Open(DocumentBuilder().Page().Picture(std::make_shared<SamplePicture>(), TitleBand).Build());
  EXPECT_FALSE(window_->ActionOf(Command::CopyGraph)->isEnabled());
  EXPECT_FALSE(window_->ActionOf(Command::SaveGraph)->isEnabled());
}

TEST_F(Copying, GraphsOutOfSightAreNotOffered) {
  Open(WithGraphs());
  EXPECT_TRUE(window_->ActionOf(Command::CopyGraph)->isEnabled());
  View().GoTo({1, 5000});
  EXPECT_FALSE(window_->ActionOf(Command::CopyGraph)->isEnabled());
}

class SavedGraph : public Copying {
 protected:
  // Saves the graph in sight under a name in a folder of its own, and returns what the file holds.
  QByteArray Save(const char* name) {
    const QString path = folder_.filePath(QString::fromUtf8(name));
    OnDialog<QFileDialog>([path](QFileDialog& dialog) {
      auto* box = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      box->setText(path);
      QTest::keyClick(box, Qt::Key_Return);
    });
    Press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(answered_);
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  QTemporaryDir folder_;
};

TEST_F(SavedGraph, IsAnSvgOrAPngByItsName) {
  Open(WithGraphs());
  EXPECT_EQ(ReadSvg(Save("graph.svg")).Title, QStringLiteral("Graph & cursors"));
  EXPECT_TRUE(Find<QLabel>("savedWords").text().endsWith(QStringLiteral("graph.svg")));
  Return();
  const QImage picture = QImage::fromData(Save("graph.PNG"), "PNG");
  EXPECT_EQ(picture.size(), PixelsOf(FirstGraph));
  EXPECT_NEAR(picture.dotsPerMeterX(), 300 / 0.0254, 1);
  EXPECT_EQ(memory_->Folder, folder_.path()) << "where the next file is proposed";
}

TEST_F(SavedGraph, IsProposedByItsTitleAndTheDay) {
  Open(WithGraphs());
  OnDialog<QFileDialog>([](QFileDialog& dialog) {
    const QString name = QFileInfo(dialog.selectedFiles().value(0)).fileName();
    EXPECT_EQ(name,
              QStringLiteral("Graph & cursors axis1 %1.svg").arg(QDate::currentDate().toString(Qt::ISODate)));
    dialog.reject();
  });
  Press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(answered_);
}

TEST_F(Copying, AnAreaThatIsDraggedWithCtrlIsCopiedAsAPicture) {
  Open(WithGraphs());
  Drag(At(0, 2000, 2000), At(0, 4880, 3440), Qt::ControlModifier);
  ASSERT_TRUE(CanCopy());
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_NEAR(CopiedPixels().width(), 600, 8);
  EXPECT_NEAR(CopiedPixels().height(), 300, 8);
  const QImage picture = qvariant_cast<QImage>(Clipboard().imageData());
  EXPECT_NE(picture.pixelColor(100, 8), QColor(Qt::white)) << "the gradient of the graph";
}

TEST_F(Copying, AnAreaIsMarkedByTheNextDragAfterTheCommand) {
  Open(WithGraphs());
  Press(Qt::Key_M, Qt::ControlModifier);
  EXPECT_TRUE(window_->ActionOf(Command::MarkArea)->isChecked());
  EXPECT_EQ(View().viewport()->cursor().shape(), Qt::CrossCursor);
  Drag(At(0, 2000, 2000), At(0, 4880, 3440));
  EXPECT_FALSE(window_->ActionOf(Command::MarkArea)->isChecked());
  EXPECT_TRUE(CanCopy());
  QTest::mouseClick(View().viewport(), Qt::LeftButton, Qt::NoModifier, At(0, 2000, 2000));
  EXPECT_FALSE(CanCopy()) << "a click takes the mark away";
}

TEST_F(Copying, EscEndsMarkingAndTakesTheMarkAway) {
  Open(WithGraphs());
  Press(Qt::Key_M, Qt::ControlModifier);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(window_->ActionOf(Command::MarkArea)->isChecked());
  Drag(At(0, 2000, 2000), At(0, 4880, 3440), Qt::ControlModifier);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(CanCopy());
}

TEST_F(Copying, EscInTheMidstOfADragEndsMarking) {
  Open(WithGraphs());
  QWidget* viewport = View().viewport();
  for (const Qt::KeyboardModifier held : {Qt::NoModifier, Qt::ControlModifier}) {
    if (held == Qt::NoModifier) Press(Qt::Key_M, Qt::ControlModifier);
    QTest::mousePress(viewport, Qt::LeftButton, held, At(0, 2000, 2000));
    QTest::mouseMove(viewport, At(0, 3000, 2500));
    ASSERT_TRUE(CanCopy());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(CanCopy());
    QTest::mouseMove(viewport, At(0, 4880, 3440));
    QTest::mouseRelease(viewport, Qt::LeftButton, held, At(0, 4880, 3440));
    EXPECT_FALSE(CanCopy()) << "what follows marks nothing";
    EXPECT_FALSE(window_->ActionOf(Command::MarkArea)->isChecked());
  }
}

TEST_F(Copying, AMarkedAreaEndsAtTheEdgeOfItsPage) {
  Open(WithGraphs());
  Press(Qt::Key_0, Qt::ControlModifier);
  Drag(At(0, 9000, 3000), At(0, 14000, 3600), Qt::ControlModifier);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_NEAR(CopiedPixels().width(), (11906 - 9000) * 300 / 1440.0, 12);
}

TEST_F(Copying, OnlyOneOfTextAndAreaIsMarked) {
  Open(WithGraphs());
  Drag(At(0, 2000, 2000), At(0, 4880, 3440), Qt::ControlModifier);
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(CopiedText(), QStringLiteral("Pn100\tGain"));
  Drag(At(0, 2000, 2000), At(0, 4880, 3440), Qt::ControlModifier);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(Clipboard().hasImage());
  EXPECT_FALSE(Clipboard().hasText());
}

TEST_F(Copying, AMarkedAreaCanBeZoomedTo) {
  Open(WithGraphs());
  EXPECT_FALSE(window_->ActionOf(Command::ZoomToArea)->isEnabled());
  Drag(At(0, 2000, 2000), At(0, 4880, 3440), Qt::ControlModifier);
  Press(Qt::Key_5, Qt::ControlModifier);
  const QRectF place = PlaceInView(View(), 0, QRectF(2000, 2000, 2880, 1440));
  const QRectF seen(View().viewport()->rect());
  EXPECT_TRUE(seen.adjusted(-8, -8, 8, 8).contains(place));
  EXPECT_GT(std::max(place.width() / seen.width(), place.height() / seen.height()), 0.95);
  EXPECT_NEAR(place.center().x(), seen.center().x(), 8);
  EXPECT_NEAR(place.center().y(), seen.center().y(), 8);
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_LT(View().CurrentPlace().Top, 100) << "back to where one was";
}

}  // namespace
}  // namespace tarvis
