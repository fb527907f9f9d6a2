// The logo of the cover letter: choosing, dropping and showing a picture file.
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <chrono>
#include <condition_variable>
#include <future>
#include <mutex>
#include <thread>

#include "dialogs/controls/logo_preview.h"
#include "dialogs/cover_editor.h"
#include "pictures/picture_file_loader.h"

namespace tarvis {
namespace {

TEST_F(CoverEditor, TheFileDialogSuppliesTheLogoAndItsCancelLeavesIt) {
  Run.Options.DrowLogo = "old.bmp";
  OpenEditor();
  Click(In("cmdConpare"));
  EXPECT_EQ(Box("txtDrow_8").Text(), "old.bmp");
  EXPECT_EQ(AskedFilter,
            "All Images of |*.BMP;*.DIB;*.JPG;*.GIF;*.WMF;*.EMF;*.ICO;*.CUR|BMP Image (*.BMP)|*.BMP|DIB "
            "Image (*.DIB)|*.DIB|"
            "JPG Image (*.JPG)|*.JPG|GIF Image (*.GIF)|*.GIF|WMF Image (*.WMF)|*.WMF|EMF Image (*.EMF)|*.EMF|"
            "ICO Image (*.ICO)|*.ICO|CUR Image (*.CUR)|*.CUR");
  EXPECT_EQ(AskedFrom, "old.bmp");
  Chosen = "/pictures/new.bmp";
  Click(In("cmdConpare"));
  EXPECT_EQ(Box("txtDrow_8").Text(), "/pictures/new.bmp");
  EXPECT_EQ(Run.Options.DrowLogo, "old.bmp");
  Enter("txtDrow_8", 0);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Box("txtDrow_8").Text(), "old.bmp");
}

TEST(FileFilter, OffersEachPatternInBothCases) {
  EXPECT_EQ(ToolkitFilter("All Images of |*.BMP;*.GIF|BMP Image (*.BMP)|*.BMP").toStdString(),
            "All Images of (*.BMP *.bmp *.GIF *.gif);;BMP Image (*.BMP *.bmp)");
}

TEST_F(CoverEditor, AFileDroppedOnThePathReplacesIt) {
  Run.Options.DrowLogo = "old.bmp";
  OpenEditor();
  QMimeData dragged;
  dragged.setUrls({QUrl("https://example.invalid/x.bmp"), QUrl::fromLocalFile("/pictures/my logo.gif")});
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
  QApplication::sendEvent(&In("txtDrow_8"), &enter);
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
  QApplication::sendEvent(&In("txtDrow_8"), &drop);
  EXPECT_TRUE(drop.isAccepted());
  EXPECT_EQ(Box("txtDrow_8").Text(), "/pictures/my logo.gif");
}

// A share that answers when it is released. The threads that ask it may outlive the test.
class Share {
 public:
  PictureReader Reader() const {
    return [state = state_](const std::string& path) {
      {
        std::unique_lock lock(state->Mutex);
        state->Asked.push_back(path);
        state->Changed.wait(lock, [&state] { return state->Released; });
      }
      auto picture = ReadPicture(path);
      const std::lock_guard lock(state->Mutex);
      ++state->Answered;
      state->Last = picture;
      return picture;
    };
  }
  void Release() {
    const std::lock_guard lock(state_->Mutex);
    state_->Released = true;
    state_->Changed.notify_all();
  }
  std::vector<std::string> Asked() const {
    const std::lock_guard lock(state_->Mutex);
    return state_->Asked;
  }
  std::size_t Answered() const {
    const std::lock_guard lock(state_->Mutex);
    return state_->Answered;
  }
  // Whether nobody keeps the picture of the last answer any more: it can't be shown from then on.
  bool IsLastForgotten() const {
    const std::lock_guard lock(state_->Mutex);
    return state_->Answered > 0 && state_->Last.expired();
  }

 private:
  struct State {
    std::mutex Mutex;
    std::condition_variable Changed;
    std::vector<std::string> Asked;
    std::weak_ptr<const PaintablePicture> Last;
    std::size_t Answered = 0;
    bool Released = false;
  };
  std::shared_ptr<State> state_ = std::make_shared<State>();
};

class LogoPicture : public CoverEditor {
 protected:
  std::string SavePicture(const std::string& name, const QColor& colour) const {
    QImage logo(40, 20, QImage::Format_RGB32);
    logo.fill(colour);
    EXPECT_TRUE(logo.save(QString::fromStdString(Folder() + "/" + name)));
    return Folder() + "/" + name;
  }
  QColor Seen() {
    const QWidget& preview = In("imgLogo");
    if (!preview.isVisible()) return {};
    const QImage seen = const_cast<QWidget&>(preview).grab().toImage();
    return seen.pixelColor(seen.width() / 2, seen.height() / 2);
  }
  void TypePath(const std::string& path) {
    Enter("txtDrow_8", 0);
    Key(Qt::Key_A, Qt::ControlModifier);
    Paste(path);
  }
  void LeavePath() { Key(Qt::Key_Tab); }
};

TEST_F(LogoPicture, IsShownWhenTheDialogOpens) {
  Run.Options.DrowLogo = SavePicture("logo.bmp", Qt::red);
  OpenEditor();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Seen() == QColor(Qt::red); }));
}

TEST_F(LogoPicture, IsReadWhenTheBoxIsLeftAndNotAtEachLetter) {
  Share share;
  Read = share.Reader();
  share.Release();
  const std::string path = SavePicture("logo.bmp", Qt::red);
  OpenEditor();
  Enter("txtDrow_8", 0);
  QTest::keyClicks(&In("txtDrow_8"), QString::fromStdString(path));
  QApplication::processEvents();
  EXPECT_TRUE(share.Asked().empty());
  LeavePath();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Seen() == QColor(Qt::red); }));
  EXPECT_THAT(share.Asked(), testing::ElementsAre(path));
}

TEST_F(LogoPicture, IsShownWhenItWasChosenOrDropped) {
  OpenEditor();
  Chosen = QString::fromStdString(SavePicture("red.bmp", Qt::red));
  Click(In("cmdConpare"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Seen() == QColor(Qt::red); }));
  QMimeData dragged;
  dragged.setUrls({QUrl::fromLocalFile(QString::fromStdString(SavePicture("blue.bmp", Qt::blue)))});
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
  QApplication::sendEvent(&In("txtDrow_8"), &enter);
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dragged, Qt::LeftButton, {});
  QApplication::sendEvent(&In("txtDrow_8"), &drop);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Seen() == QColor(Qt::blue); }));
}

TEST_F(LogoPicture, GoesAsSoonAsThePathIsAnotherOne) {
  Run.Options.DrowLogo = SavePicture("logo.bmp", Qt::red);
  OpenEditor();
  ASSERT_TRUE(QTest::qWaitFor([this] { return Seen() == QColor(Qt::red); }));
  Enter("txtDrow_8", 0);
  Key(Qt::Key_Backspace);
  EXPECT_FALSE(In("imgLogo").isVisible());
  Key(Qt::Key_Z, Qt::ControlModifier);
  LeavePath();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Seen() == QColor(Qt::red); }));
}

// No path at all, no file, a file that is no picture, a folder.
TEST_F(LogoPicture, IsEmptyForAPathThatNamesNone) {
  WriteFile("letter.bmp", "no picture");
  for (const std::string& path : {Folder() + "/missing.bmp", Folder() + "/letter.bmp", Folder()}) {
    SCOPED_TRACE(path);
    EXPECT_EQ(ReadPicture(path), nullptr);
  }
  Share share;
  Read = share.Reader();
  share.Release();
  Run.Options.DrowLogo = Folder() + "/letter.bmp";
  OpenEditor();
  ASSERT_TRUE(QTest::qWaitFor([&share] { return share.Answered() == 1; }));
  QApplication::processEvents();
  EXPECT_FALSE(In("imgLogo").isVisible());
  EXPECT_TRUE(Desktop.Messages.empty());
}

#ifdef Q_OS_UNIX
// Opening a pipe that nobody writes to would take for ever.
TEST_F(LogoPicture, IsNeverReadFromAPipe) {
  const std::string pipe = Folder() + "/pipe.bmp";
  ASSERT_EQ(std::system(("mkfifo '" + pipe + "'").c_str()), 0);
  EXPECT_EQ(ReadPicture(pipe), nullptr);
}
#endif

TEST_F(LogoPicture, DoesNotWaitForADeadShare) {
  Share share;
  Read = share.Reader();
  Run.Options.DrowLogo = "/share/logo.bmp";
  OpenEditor();
  const std::string next = SavePicture("red.bmp", Qt::red);
  TypePath(next);
  LeavePath();
  ASSERT_TRUE(QTest::qWaitFor([&share] { return share.Asked().size() == 2; }));
  Click(In("cmdOK"));
  EXPECT_FALSE(Editor->isVisible());
  EXPECT_EQ(Run.Options.DrowLogo, next);
  delete Editor.data();
  share.Release();
  EXPECT_TRUE(QTest::qWaitFor([&share] { return share.Answered() == 2; }));
}

TEST_F(LogoPicture, IsNotShownIfItComesLateForAnotherPath) {
  Share share;
  Read = share.Reader();
  Run.Options.DrowLogo = SavePicture("red.bmp", Qt::red);
  OpenEditor();
  ASSERT_TRUE(QTest::qWaitFor([&share] { return share.Asked().size() == 1; }));
  TypePath(Folder() + "/missing.bmp");
  share.Release();
  ASSERT_TRUE(QTest::qWaitFor([&] { return share.IsLastForgotten() || In("imgLogo").isVisible(); }));
  EXPECT_FALSE(In("imgLogo").isVisible());
}

TEST_F(LogoPicture, IsNotShownIfItArrivedJustBeforeThePathBecameAnotherOne) {
  const std::string path = SavePicture("red.bmp", Qt::red);
  auto reading = std::make_shared<int>();  // a copy of it is kept as long as the thread that reads
  QWidget dialog;
  LogoPreview preview(
      {0, 0, 3000, 3000}, [reading](const std::string& name) { return ReadPicture(name); }, &dialog);
  const auto idle = reading.use_count();
  preview.ShowFile(path);
  while (reading.use_count() > idle) std::this_thread::yield();  // without any event of the toolkit
  preview.Forget();
  QApplication::processEvents();
  EXPECT_FALSE(preview.isVisibleTo(&dialog));
  preview.ShowFile(path);
  EXPECT_TRUE(QTest::qWaitFor([&] { return preview.isVisibleTo(&dialog); }));
}

TEST_F(LogoPicture, IsChosenFromTheFolderOfThePresentOne) {
  EXPECT_EQ(FolderOf(Folder() + "\\logo.bmp").toStdString(), Folder());
  EXPECT_EQ(FolderOf(Folder() + "/missing/logo.bmp"), QString());
  EXPECT_EQ(FolderOf("logo.bmp"), QString());
  EXPECT_EQ(FolderOf(""), QString());
}

TEST_F(LogoPicture, IsChosenWithoutWaitingForAFolderThatDoesNotAnswer) {
  std::promise<void> released;
  const auto answersLate = [release = released.get_future().share()](const std::filesystem::path&) {
    release.wait_for(std::chrono::seconds(20));
    return true;
  };
  EXPECT_EQ(FolderOf(Folder() + "/logo.bmp", answersLate), QString());
  released.set_value();
}

}  // namespace
}  // namespace tarvis
