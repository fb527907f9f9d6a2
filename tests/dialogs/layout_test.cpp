// What the eye would find wrong: clipped captions, controls on top of each other, keys that fight.
#include <QGroupBox>
#include <QLineEdit>
#include <map>

#include "dialogs/dialog_run.h"

namespace tarvis {
namespace {

class Layout : public DialogRun {
 protected:
  // Saves a picture of the dialog for the eye, where TARVIS_GRABS names a folder.
  void Grab(const QWidget& window, const std::string& name) {
    const QString folder = qEnvironmentVariable("TARVIS_GRABS");
    if (!folder.isEmpty())
      const_cast<QWidget&>(window).grab().save(folder + "/" + QString::fromStdString(name) + ".png");
  }

  // Labels and controls that stand side by side on one surface.
  static std::vector<QWidget*> Visible(const QWidget& container) {
    std::vector<QWidget*> shown;
    for (QWidget* child : container.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      const auto* frame = qobject_cast<QFrame*>(child);
      const bool rule = frame != nullptr && frame->frameShape() == QFrame::HLine;
      if (child->isVisible() && !rule) shown.push_back(child);
    }
    return shown;
  }
  // The told places of neighbours overlap by up to two pixels of their empty edges.
  static bool Overlap(const QWidget& a, const QWidget& b) {
    return a.geometry().adjusted(1, 1, -1, -1).intersects(b.geometry().adjusted(1, 1, -1, -1));
  }
  static void ExpectApart(const QWidget& container) {
    const std::vector<QWidget*> shown = Visible(container);
    for (std::size_t i = 0; i < shown.size(); ++i) {
      EXPECT_TRUE(container.rect().contains(shown[i]->geometry())) << shown[i]->objectName().toStdString();
      for (std::size_t j = i + 1; j < shown.size(); ++j) {
        EXPECT_FALSE(Overlap(*shown[i], *shown[j]))
            << shown[i]->objectName().toStdString() << " lies on " << shown[j]->objectName().toStdString();
      }
    }
  }
  static void ExpectCaptionsWhole(const QWidget& window) {
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
      if (!button->isVisible() || button->objectName().isEmpty()) continue;
      const bool oneLine = button->sizeHint().width() <= button->width();
      const QRect two = button->fontMetrics().boundingRect(
          QRect(0, 0, button->width() - 22, 100), Qt::TextWordWrap, PlainCaption(button->text()).trimmed());
      EXPECT_TRUE(oneLine || (two.height() <= button->height() + 1 && two.width() <= button->width() - 22))
          << button->objectName().toStdString();
    }
  }
  // No two mnemonics that are alive at the same time are alike.
  static void ExpectMnemonicsUnlike(const QWidget& window) {
    std::map<QString, std::string> owners;
    const auto claim = [&owners](const QString& caption, const std::string& owner) {
      const QString key = QKeySequence::mnemonic(caption).toString();
      if (key.isEmpty()) return;
      EXPECT_TRUE(owners.emplace(key, owner).second)
          << owner << " and " << owners[key] << " share " << key.toStdString();
    };
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
      if (button->isVisible()) claim(button->text(), button->objectName().toStdString());
    }
    for (const QLabel* label : window.findChildren<QLabel*>()) {
      if (label->isVisible() && label->buddy() != nullptr)
        claim(label->text(), label->objectName().toStdString());
    }
    for (const QGroupBox* group : window.findChildren<QGroupBox*>())
      claim(group->title(), group->objectName().toStdString());
    for (const QTabBar* bar : window.findChildren<QTabBar*>()) {
      for (int tab = 0; bar->isVisible() && tab < bar->count(); ++tab) claim(bar->tabText(tab), "tab");
    }
  }
  static void ExpectEverythingNamed(const QWidget& window) {
    for (const QWidget* control : window.findChildren<QWidget*>()) {
      if (control->objectName().isEmpty() || control->objectName().startsWith(QString::fromLatin1("qt_")))
        continue;
      if (!(control->focusPolicy() & Qt::TabFocus)) continue;
      EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName().toStdString();
    }
  }
  void LookAtPage(const std::string& name) {
    ItemPage& page = Page(name.c_str());
    for (int tab = 0; tab < page.Tabs().Bar()->count(); ++tab) {
      SCOPED_TRACE(name + " tab " + std::to_string(tab));
      ClickTab(page.Tabs(), tab);
      ExpectApart(*page.Tabs().Page(tab));
      ExpectCaptionsWhole(*Dialog);
      ExpectMnemonicsUnlike(*Dialog);
      Grab(*Dialog, name + std::to_string(tab));
    }
  }
};

TEST_F(Layout, EveryPageOfTheTableEditionIsLegible) {
  Open(2, "200", "PrnSetting");
  for (int index = 0; index < 5; ++index) {
    ChooseFunction(index);
    LookAtPage(ShownPages());
  }
}

TEST_F(Layout, EveryPageOfTheComparingEditionIsLegible) {
  Open(4, "200", "PrnSetting");
  for (int index = 2; index < 5; ++index) {
    ChooseFunction(index);
    LookAtPage(ShownPages());
  }
}

TEST_F(Layout, TheSimulationPageIsLegible) {
  Open(1, "200", "Sim");
  LookAtPage("InfSim");
}

TEST_F(Layout, TheDialogItselfIsLegible) {
  Run.Options.Cover = 1;
  Run.Options.User[0] = {"Dear Sirs", "Korvane Works", "Drives\r\nTest Bay 4", "M. Aldous", ""};
  Open(2, "200", "PrnSetting");
  EXPECT_EQ(Dialog->size(), QSize(369, 542));
  EXPECT_EQ(Dialog->windowTitle(), "Printing Item Setting");
  ExpectApart(*Dialog);
  for (const char* frame : {"Frame1", "Frame2", "Frame3"}) ExpectApart(Find(frame));
  ExpectEverythingNamed(*Dialog);
  Grab(*Dialog, "PrintSetting");
}

TEST_F(Layout, CaptionsReadAsToldWithoutTheirMnemonicMarks) {
  Open(2, "200", "PrnSetting");
  EXPECT_EQ(PlainCaption(Check("chkCover").text()), "Attaching the Cover");
  EXPECT_EQ(PlainCaption(Find<OptionButton>("optDrow_2").text()), " Where to Submit (No.3)");
  EXPECT_EQ(PlainCaption(Page("InfUser").Tabs().Bar()->tabText(0)), "Header & Footer");
  EXPECT_EQ(PlainCaption(Check("chkItemUser_1", "InfUser").text()), "Switches Info");
}

TEST_F(Layout, TabWalksInReadingOrder) {
  Run.Options.Cover = 1;
  Open(2, "200", "PrnSetting");
  Find("chkCover").setFocus();
  std::vector<std::string> walked;
  for (int step = 0; step < 40 && (walked.empty() || FocusName() != "chkCover"); ++step) {
    walked.push_back(FocusName());
    Key(Qt::Key_Tab);
  }
  const auto place = [&walked](const char* name) {
    return std::find(walked.begin(), walked.end(), name) - walked.begin();
  };
  EXPECT_LT(place("chkCover"), place("optDrow_0"));
  EXPECT_LT(place("optDrow_0"), place("Spread"));
  EXPECT_LT(place("Spread"), place("cmbFunc"));
  EXPECT_LT(place("cmbFunc"), place("chkHeader_0"));
  EXPECT_LT(place("chkHeader_0"), place("txtTitle"));
  EXPECT_LT(place("txtTitle"), place("chkHeader_1"));
  EXPECT_LT(place("chkHeader_3"), place("chkFooter"));
  EXPECT_LT(place("chkFooter"), place("optColor_0"));
  EXPECT_LT(place("optColor_0"), place("cmdOK"));
  EXPECT_LT(place("cmdOK"), place("cmdCancel"));
  EXPECT_LT(place("cmdCancel"), static_cast<std::ptrdiff_t>(walked.size()));
}

}  // namespace
}  // namespace tarvis
