// The list of places found beside the pages.
#include "preview/window/hit_list.h"

#include <QLabel>
#include <QListView>
#include <QPaintEngine>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QTabWidget>

#include "preview/window_fixture.h"

namespace tarvis {
namespace {

constexpr const char* LongRow =
    "Adjustment of the position loop with a Gain that follows the speed of the table and its load";

// Notes the texts that are painted on it.
class TextNotes : public QPaintDevice {
 public:
  explicit TextNotes(QSize size) : size_(size) {}
  QString Text() const { return engine_.Text; }
  QPaintEngine* paintEngine() const override { return &engine_; }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    if (metric == PdmWidth) return size_.width();
    if (metric == PdmHeight) return size_.height();
    if (metric == PdmDepth) return 32;
    if (metric == PdmDpiX || metric == PdmDpiY || metric == PdmPhysicalDpiX || metric == PdmPhysicalDpiY)
      return 96;
    return QPaintDevice::metric(metric);
  }

 private:
  struct Engine : QPaintEngine {
    Engine() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/, const QRectF& /*from*/) override {}
    void drawTextItem(const QPointF& /*place*/, const QTextItem& item) override { Text += item.text(); }
    Type type() const override { return User; }
    QString Text;
  };
  QSize size_;
  mutable Engine engine_;
};

class Found : public WindowTest {
 protected:
  HitList& List() { return Find<HitList>("hitList"); }
  QString Entry(int row) { return List().model()->index(row, 0).data().toString(); }
  void ClickEntry(int row) {
    const QRect entry = List().visualRect(List().model()->index(row, 0));
    QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, entry.center());
  }
  // The text that is painted in a place this wide.
  QString ShownEntry(int row, int width) {
    TextNotes notes(QSize(width, 40));
    QPainter painter(&notes);
    QStyleOptionViewItem option;
    option.initFrom(&List());
    option.widget = &List();
    option.rect = QRect(0, 0, width, 40);
    List().itemDelegate()->paint(&painter, option, List().model()->index(row, 0));
    painter.end();
    return notes.Text();
  }
  QTabWidget& Pane() { return Find<QTabWidget>("sidePane"); }
  bool IsInFront() { return Pane().currentWidget() == &List(); }
};

std::shared_ptr<const Document> RowsWithGain() {
  return DocumentBuilder()
      .Page()
      .Row({"Pn100", "Gain", "40.0"}, 720)
      .Row({"Pn101", "Ratio", "gain"}, 1003)
      .Page()
      .Text("The gain at the end", 1440, 5000)
      .Build();
}

TEST_F(Found, IsAListWithPageAndRowOfEachPlace) {
  Open(RowsWithGain());
  EXPECT_FALSE(Pane().isTabVisible(Pane().indexOf(&List())));
  SearchFor("gain");
  EXPECT_TRUE(IsInFront());
  ASSERT_EQ(List().model()->rowCount(), 3);
  EXPECT_EQ(Entry(0), QStringLiteral("1: Pn100 Gain 40.0"));
  EXPECT_EQ(Entry(1), QStringLiteral("1: Pn101 Ratio gain"));
  EXPECT_EQ(Entry(2), QStringLiteral("2: The gain at the end"));
  EXPECT_EQ(List().selectionModel()->selectedIndexes().value(0).row(), 0);
  EXPECT_TRUE(Find<QWidget>("findText").hasFocus());
}

TEST_F(Found, LeadsToThePlaceThatIsClicked) {
  Open(RowsWithGain());
  SearchFor("gain");
  ClickEntry(2);
  EXPECT_EQ(Page(), 1);
  EXPECT_EQ(Find<QLabel>("findCount").text(), QStringLiteral("3 of 3"));
}

TEST_F(Found, LeadsBackToTheCurrentPlaceThatWasScrolledAwayFrom) {
  Open(RowsWithGain());
  SearchFor("gain");
  View().GoTo({1, 5000});
  ASSERT_EQ(Page(), 1);
  ClickEntry(0);
  EXPECT_EQ(Page(), 0);
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Page(), 1) << "where one was";
  EXPECT_FALSE(window_->ActionOf(Command::Back)->isEnabled()) << "one click is one jump";
}

TEST_F(Found, HoldsItsOldEntriesUntilTheirEndIsAnnounced) {
  Open(RowsWithGain());
  SearchFor("gain");
  QStringList entries;
  QObject::connect(List().model(), &QAbstractItemModel::modelAboutToBeReset, window_.get(), [&] {
    for (int row = 0; row < List().model()->rowCount(); ++row) entries.append(Entry(row));
  });
  Type("x");
  EXPECT_EQ(entries.size(), 3);
  EXPECT_EQ(entries.value(2), QStringLiteral("2: The gain at the end"));
}

TEST_F(Found, KeepsTheWordThatWasFoundInSightInARowThatIsCut) {
  Open(DocumentBuilder().Page().Text(LongRow, 1440, 720, 6).Build());
  SearchFor("gain");
  const QString shown = ShownEntry(0, 150);
  EXPECT_TRUE(shown.startsWith(QStringLiteral("1: …"))) << shown.toStdString();
  EXPECT_TRUE(shown.contains(QStringLiteral("Gain"))) << shown.toStdString();
  EXPECT_TRUE(shown.endsWith(QStringLiteral("…"))) << shown.toStdString();
  EXPECT_EQ(ShownEntry(0, 2000), Entry(0)) << "nothing is cut where there is room";
  EXPECT_FALSE(List().horizontalScrollBar()->isVisible());
}

TEST_F(Found, KeepsALastWordInSightToo) {
  Open(DocumentBuilder().Page().Row({"Pn100", "Encoder output 𠮷𠮷 resolution", "gain"}, 720).Build());
  SearchFor("gain");
  EXPECT_TRUE(ShownEntry(0, 130).endsWith(QStringLiteral(" gain"))) << ShownEntry(0, 130).toStdString();
  EXPECT_TRUE(ShownEntry(0, 130).startsWith(QStringLiteral("1: …"))) << ShownEntry(0, 130).toStdString();
}

TEST_F(Found, HasATabThatIsReadWholeWithTheOthersWithoutArrows) {
  Open(RowsWithGain());
  const int before = Pane().width();
  SearchFor("gain");
  const auto* tabs = Pane().findChild<QTabBar*>();
  const QFontMetrics font = tabs->fontMetrics();
  const auto fits = [&] {
    int right = 0;
    for (int tab = 0; tab < tabs->count(); ++tab) {
      if (tabs->tabRect(tab).width() < font.horizontalAdvance(tabs->tabText(tab))) return false;
      right = std::max(right, tabs->tabRect(tab).right());
    }
    return right < Pane().width();
  };
  EXPECT_TRUE(QTest::qWaitFor(fits));
  for (const QToolButton* arrow : tabs->findChildren<QToolButton*>()) EXPECT_FALSE(arrow->isVisible());
  Press(Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Pane().width() == before; })) << "as wide as before";
}

TEST_F(Found, IsWalkedThroughByKeysFromTheCurrentPlaceOn) {
  Open(RowsWithGain());
  SearchFor("gain");
  Press(Qt::Key_Return);
  List().setFocus();
  Press(Qt::Key_Down);
  EXPECT_EQ(Find<QLabel>("findCount").text(), QStringLiteral("3 of 3"));
  EXPECT_TRUE(List().hasFocus());
}

TEST_F(Found, FollowsTheStepsOfTheFindBar) {
  Open(RowsWithGain());
  SearchFor("gain");
  Press(Qt::Key_Return);
  EXPECT_EQ(List().selectionModel()->selectedIndexes().value(0).row(), 1);
}

TEST_F(Found, GivesWayToTheTabBeforeWhenNothingIsFoundOrTheBarIsClosed) {
  Open(RowsWithGain());
  Pane().setCurrentIndex(1);
  SearchFor("gain");
  EXPECT_TRUE(IsInFront());
  Type("x");
  EXPECT_EQ(Pane().currentIndex(), 1);
  Press(Qt::Key_Backspace);
  EXPECT_TRUE(IsInFront());
  Press(Qt::Key_Escape);
  EXPECT_EQ(Pane().currentIndex(), 1);
  EXPECT_EQ(List().model()->rowCount(), 0);
}

TEST_F(Found, IsNotWhatTheNextPreviewStartsWith) {
  Open(RowsWithGain());
  SearchFor("gain");
  window_->close();
  ASSERT_TRUE(memory_->Window.has_value());
  EXPECT_EQ(memory_->Window->SidePaneTab, 0);
}

}  // namespace
}  // namespace tarvis
