// Saving as PDF from the preview.
#include <sys/stat.h>

#include <QCheckBox>
#include <QDate>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

#include "preview/pdf_file.h"
#include "preview/window_fixture.h"
#include "support/full_disk.h"
#include "text/run_time_failure.h"

namespace tarvis {
namespace {

class SavePdf : public WindowTest {
 protected:
  QString Path(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }
  static void EnterPath(QFileDialog& dialog, const QString& path) {
    auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    name->setFocus();
    name->setText(path);
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save), Qt::LeftButton);
  }
  // Enters a path into the dialog for saving and confirms.
  void SaveTo(const QString& path) {
    OnDialog<QFileDialog>([path](QFileDialog& dialog) { EnterPath(dialog, path); });
    Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(answered_);
  }
  // Ticks the box `name`, which isn't ticked yet, saves to `path`, and waits for the file.
  void SaveWithBox(const char* name, const QString& path) {
    OnDialog<QFileDialog>([name, path](QFileDialog& dialog) {
      auto* box = dialog.findChild<QCheckBox*>(QString::fromLatin1(name));
      EXPECT_FALSE(box->isChecked());
      QTest::mouseClick(box, Qt::LeftButton, {}, {5, box->height() / 2});
      EnterPath(dialog, path);
    });
    Press(Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window_->IsBusy() && QFile::exists(path); }));
  }
  // Whether the box `name` is ticked when the dialog opens.
  bool IsBoxTicked(const char* name) {
    bool isTicked = false;
    OnDialog<QFileDialog>([&isTicked, name](QFileDialog& dialog) {
      isTicked = dialog.findChild<QCheckBox*>(QString::fromLatin1(name))->isChecked();
      dialog.reject();
    });
    Press(Qt::Key_S, Qt::ControlModifier);
    return isTicked;
  }
  // Asks for saving to `path`, expects a message, answers it by `answer`, and closes the dialog that is still
  // there. Returns the message.
  QString TryToSaveTo(const QString& path, QMessageBox::StandardButton answer) {
    QString words;
    OnDialog<QFileDialog>([&](QFileDialog& dialog) {
      OnDialog<QMessageBox>([&](QMessageBox& box) {
        words = box.text();
        QTest::mouseClick(box.button(answer), Qt::LeftButton);
      });
      EnterPath(dialog, path);
      EXPECT_TRUE(dialog.isVisible());
      dialog.reject();
    });
    Press(Qt::Key_S, Qt::ControlModifier);
    Return();
    EXPECT_FALSE(window_->IsBusy());
    return words;
  }
  static QString Today() { return QDate::currentDate().toString(Qt::ISODate); }
  void WriteOldFile() const {
    QFile file(Path("old.pdf"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("old");
  }
  QByteArray OldFile() const {
    QFile file(Path("old.pdf"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  // What the message about the failure says.
  QString WaitForFailure() {
    const auto box = [this] { return window_->findChild<QMessageBox*>(QStringLiteral("outputFailure")); };
    return QTest::qWaitFor([&] { return box() != nullptr; }) ? box()->informativeText() : QString();
  }

  QTemporaryDir folder_;
};

TEST_F(SavePdf, CtrlSProposesTitleDataFileAndDayAndWritesThePdf) {
  OpenTable(3);
  QString proposed;
  OnDialog<QFileDialog>([&](QFileDialog& dialog) {
    proposed = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
    dialog.reject();
  });
  Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(proposed, QStringLiteral("Parameter List axis1 %1.pdf").arg(Today()));
  Return();
  SaveTo(Path("list.pdf"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(Path("list.pdf")); }));
  EXPECT_EQ(PdfFact(Path("list.pdf"), "Pages"), QStringLiteral("3"));
  EXPECT_EQ(PdfFact(Path("list.pdf"), "Author"), QStringLiteral("Korvane"));
}

TEST_F(SavePdf, ATitleThatIsNoFileNameIsMadeOne) {
  Open(DocumentBuilder("a/b:c").TablePages(1).Build());
  QString proposed;
  OnDialog<QFileDialog>([&](QFileDialog& dialog) {
    proposed = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
    dialog.reject();
  });
  Click("savePdfButton");
  EXPECT_EQ(proposed, QStringLiteral("a_b_c axis1 %1.pdf").arg(Today()));
}

TEST_F(SavePdf, StartsInTheFolderWhereTheLastDocumentOfTheRunWasSaved) {
  OpenTable(1);
  SaveTo(Path("list.pdf"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !window_->IsBusy(); }));
  OpenTable(1);
  QString folder;
  OnDialog<QFileDialog>([&](QFileDialog& dialog) {
    folder = dialog.directory().absolutePath();
    dialog.reject();
  });
  Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(folder, folder_.path());
}

TEST_F(SavePdf, TheDataAreAttachedIfTheirBoxIsTickedWhichIsKeptForTheRun) {
  readData_ = [] { return std::vector<NamedBytes>{{"User.tmp", "File-Spec,3\r\n"}}; };
  OpenTable(1);
  SaveWithBox("attachData", Path("with.pdf"));
  EXPECT_TRUE(
      RunTool("pdfdetach", {QStringLiteral("-list"), Path("with.pdf")}).contains(QStringLiteral("User.tmp")));
  OpenTable(1);
  EXPECT_TRUE(IsBoxTicked("attachData"));
}

TEST_F(SavePdf, TagsAreWrittenIfTheirBoxIsTickedWhichIsKeptForTheRun) {
  const auto isTagged = [this](const char* name) {
    return RunTool("pdfinfo", {Path(name)}).contains(QRegularExpression(QStringLiteral("Tagged: +yes")));
  };
  OpenTable(1);
  SaveTo(Path("plain.pdf"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !window_->IsBusy() && QFile::exists(Path("plain.pdf")); }));
  EXPECT_FALSE(isTagged("plain.pdf"));
  OpenTable(1);
  SaveWithBox("tags", Path("tagged.pdf"));
  EXPECT_TRUE(isTagged("tagged.pdf"));
  OpenTable(1);
  EXPECT_TRUE(IsBoxTicked("tags"));
}

TEST_F(SavePdf, DataThatHaveChangedAreReportedAndNothingIsSaved) {
  readData_ = []() -> std::vector<NamedBytes> {
    throw RunTimeFailure("changed", {.File = "User.tmp", .Line = 0, .Key = {}, .Text = {}});
  };
  memory_->AttachesData = true;
  OpenTable(1);
  SaveTo(Path("with.pdf"));
  EXPECT_TRUE(WaitForFailure().contains(QStringLiteral("User.tmp")));
  EXPECT_FALSE(QFile::exists(Path("with.pdf")));
}

TEST_F(SavePdf, NoBoxOffersDataThatAreNotThere) {
  OpenTable(1);
  bool hasBox = true;
  OnDialog<QFileDialog>([&](QFileDialog& dialog) {
    hasBox = dialog.findChild<QCheckBox*>(QStringLiteral("attachData")) != nullptr;
    dialog.reject();
  });
  Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_FALSE(hasBox);
}

TEST_F(SavePdf, ALineSaysWhereTheFileIsUntilItIsClosed) {
  OpenTable(1);
  EXPECT_FALSE(Find<QWidget>("savedBar").isVisible());
  SaveTo(Path("list.pdf"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return Find<QWidget>("savedBar").isVisible(); }));
  EXPECT_EQ(Find<QLabel>("savedWords").text(), QStringLiteral("Saved as ") + Path("list.pdf"));
  Click("savedCloseButton");
  EXPECT_FALSE(Find<QWidget>("savedBar").isVisible());
}

TEST_F(SavePdf, NoLineSaysThatAFileWasSavedThatWasNot) {
  OpenTable(3);
  const FullDisk full;
  SaveTo(Path("list.pdf"));
  WaitForFailure();
  EXPECT_FALSE(Find<QWidget>("savedBar").isVisible());
}

TEST_F(SavePdf, OverwritingIsAskedForFirst) {
  OpenTable(1);
  WriteOldFile();
  bool asked = false;
  OnDialog<QFileDialog>([&](QFileDialog& dialog) {
    OnDialog<QMessageBox>([&](QMessageBox& box) {
      asked = true;
      box.button(QMessageBox::No)->click();
    });
    EnterPath(dialog, Path("old.pdf"));
    dialog.reject();
  });
  Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(asked);
  EXPECT_EQ(OldFile(), QByteArray("old"));
}

TEST_F(SavePdf, AFailedSaveIsReportedAndThePreviewStays) {
  OpenTable(3);
  const FullDisk full;
  SaveTo(Path("list.pdf"));
  EXPECT_TRUE(WaitForFailure().contains(Path("list.pdf")));
  EXPECT_TRUE(window_->isVisible());
  EXPECT_FALSE(QFile::exists(Path("list.pdf")));
}

TEST_F(SavePdf, AnOldFileThatCouldNotBeOverwrittenIsStillThere) {
  OpenTable(3);
  WriteOldFile();
  const FullDisk full;
  OnDialog<QFileDialog>([this](QFileDialog& dialog) {
    OnDialog<QMessageBox>(
        [](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton); });
    EnterPath(dialog, Path("old.pdf"));
  });
  Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(WaitForFailure().contains(Path("old.pdf")));
  EXPECT_EQ(OldFile(), QByteArray("old"));
}

TEST_F(SavePdf, AFolderThatTakesNoFilesIsReported) {
  OpenTable(3);
  SaveTo(QStringLiteral("/proc/list.pdf"));  // a folder where not even the administrator can write
  EXPECT_TRUE(WaitForFailure().contains(QStringLiteral("/proc/list.pdf")));
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(SavePdf, ANameWithQuotesIsSavedAsItWasTyped) {
  OpenTable(1);
  for (const char* name : {"a\"b\".pdf", "\"quoted\".pdf", "one\".pdf"}) {
    SaveTo(Path(name));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window_->IsBusy(); }));
    EXPECT_TRUE(QFile::exists(Path(name))) << name;
    Return();
  }
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files).size(), 3);
}

TEST_F(SavePdf, ANameWithQuotesGetsItsMissingEnding) {
  OpenTable(1);
  for (const char* name : {"axis \"1\"", "disk 5\"", "\"\"", "\"\" ", "\""}) {
    SaveTo(Path(name));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window_->IsBusy(); }));
    EXPECT_TRUE(QFile::exists(Path(name) + QStringLiteral(".pdf"))) << name;
    Return();
  }
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files).size(), 5);
}

TEST_F(SavePdf, AFileWhoseNameHasQuotesIsAskedForBeforeItIsOverwritten) {
  OpenTable(1);
  QFile old(Path("\"old\".pdf"));
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.close();
  EXPECT_TRUE(TryToSaveTo(old.fileName(), QMessageBox::No).contains(QStringLiteral("already exists")));
  EXPECT_EQ(old.size(), 0);
}

TEST_F(SavePdf, AFifoAndALinkThatLeadsNowhereAreNeverReplaced) {
  OpenTable(1);
  const QString fifo = Path("fifo.pdf");
  ASSERT_EQ(mkfifo(fifo.toLocal8Bit().constData(), 0600), 0);
  EXPECT_TRUE(TryToSaveTo(fifo, QMessageBox::Ok).contains(QStringLiteral("not an ordinary file")));
  struct stat now = {};
  ASSERT_EQ(lstat(fifo.toLocal8Bit().constData(), &now), 0);
  EXPECT_TRUE(S_ISFIFO(now.st_mode));
  const QString link = Path("link.pdf");
  ASSERT_TRUE(QFile::link(Path("nowhere"), link));
  EXPECT_TRUE(TryToSaveTo(link, QMessageBox::Ok).contains(QStringLiteral("not an ordinary file")));
  EXPECT_FALSE(QFile::exists(Path("nowhere")));
}

TEST_F(SavePdf, ClosingTheWindowWhileAnExportRunsIsSafe) {
  OpenTable(700);
  SaveTo(Path("long.pdf"));
  EXPECT_TRUE(window_->IsBusy());
  window_.reset();
  EXPECT_FALSE(QFile::exists(Path("long.pdf")));
}

}  // namespace
}  // namespace tarvis
