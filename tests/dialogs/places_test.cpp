// Where each control of the dialogs is designed to be, in twips.
#include "dialogs/cover_editor.h"

namespace tarvis {
namespace {

// Places are relative to what contains a control.
struct Designed {
  const char* Name;
  Rect Place;
};

// clang-format off
const std::vector<Designed> OfDialog = {
    {"Frame1", {120, 45, 5300, 2640}},
    {"chkCover", {240, 225, 1815, 375}},
    {"cmdEdit", {2640, 240, 1695, 495}},
    {"lblCover1", {360, 810, 3375, 255}},
    {"optDrow_0", {330, 1035, 1455, 375}},
    {"optDrow_1", {1800, 1035, 1455, 375}},
    {"optDrow_2", {3240, 1035, 1455, 375}},
    {"Spread", {105, 1440, 5145, 1140}},
    {"Frame2", {135, 2800, 5300, 3980}},
    {"cmbFunc", {480, 360, 3975, 330}},
    {"InfUser", {180, 840, 5055, 3050}},
    {"InfTrace", {180, 840, 5055, 3050}},
    {"InfRealTrace", {180, 840, 5055, 3050}},
    {"InfWizard", {180, 840, 5055, 3050}},
    {"InfMecha", {180, 840, 5055, 3050}},
    {"InfSim", {180, 840, 5055, 3050}},
    {"InfSimOverlap", {180, 840, 5055, 3050}},
    {"InfIdxTbl", {180, 840, 5055, 3050}},
    {"InfZoneTbl", {180, 840, 5055, 3050}},
    {"InfJogTbl", {180, 840, 5055, 3050}},
    {"Frame3", {135, 6850, 5300, 615}},
    {"optColor_0", {480, 240, 1815, 255}},
    {"optColor_1", {2400, 240, 855, 255}},
    {"cmdOK", {975, 7650, 1455, 375}},
    {"cmdCancel", {3015, 7650, 1455, 375}},
};

const std::vector<Designed> OfFirstTab = {
    {"Label2", {150, 390, 835, 180}},
    {"chkHeader_0", {330, 660, 1215, 255}},
    {"txtTitle", {1305, 660, 3330, 315}},
    {"chkHeader_1", {330, 1020, 1215, 255}},
    {"chkHeader_2", {330, 1380, 1215, 255}},
    {"chkHeader_3", {330, 1710, 1215, 255}},
    {"Label3", {150, 2220, 780, 180}},
    {"chkFooter", {330, 2460, 1215, 255}},
};

const std::vector<Designed> OfUser = {
    {"Label4", {150, 390, 2535, 210}},
    {"chkItemUser_0", {360, 600, 1215, 255}},
    {"chkItemUser_1", {360, 840, 1485, 255}},
    {"chkItemUser_2", {2400, 600, 1485, 255}},
    {"chkItemUser_3", {2400, 840, 1695, 255}},
    {"Label1", {150, 1800, 495, 210}},
    {"chkItemEtc", {330, 2040, 1485, 255}},
};

const std::vector<Designed> OfComments = {
    {"Label1", {150, 600, 495, 210}},
    {"chkItemEtc", {330, 840, 1485, 255}},
};

const std::vector<Designed> OfTrace = {
    {"Label6", {120, 360, 870, 210}},
    {"chkItemOverlap", {360, 600, 2205, 255}},
    {"Label4", {150, 870, 1155, 210}},
    {"chkItemGraph_0", {360, 1080, 2385, 255}},
    {"chkItemGraph_1", {360, 1320, 2355, 255}},
    {"Label5", {150, 1560, 2535, 210}},
    {"chkItemUser_0", {360, 1755, 1485, 255}},
    {"chkItemUser_1", {600, 2040, 1215, 255}},
    {"chkItemUser_2", {600, 2280, 1485, 255}},
    {"chkItemUser_3", {2760, 2040, 1215, 255}},
    {"chkItemUser_4", {2760, 2280, 1455, 255}},
    {"Label1", {150, 2520, 495, 210}},
    {"chkItemEtc", {360, 2700, 1485, 255}},
};

const std::vector<Designed> OfRealTrace = {
    {"Label4", {150, 390, 1155, 210}},
    {"chkItemGraph_0", {330, 600, 2340, 255}},
    {"Label5", {150, 1080, 2535, 210}},
    {"chkItemUser_0", {330, 1275, 1485, 255}},
    {"chkItemUser_1", {600, 1560, 1215, 255}},
    {"chkItemUser_2", {600, 1800, 1485, 255}},
    {"chkItemUser_3", {2760, 1560, 1215, 255}},
    {"chkItemUser_4", {2760, 1800, 1935, 255}},
    {"Label1", {150, 2280, 495, 210}},
    {"chkItemEtc", {330, 2520, 1485, 255}},
};

const std::vector<Designed> OfMecha = {
    {"Label4", {150, 390, 1155, 210}},
    {"chkItemGraph_0", {330, 600, 3120, 255}},
    {"chkItemGraph_1", {330, 840, 2160, 255}},
    {"chkItemGraph_2", {330, 1080, 2160, 255}},
    {"chkItemGraph_3", {330, 1320, 3120, 255}},
    {"Label1", {150, 1800, 495, 210}},
    {"chkItemEtc", {330, 1980, 1485, 255}},
};

const std::vector<Designed> OfSim = {
    {"Label4", {150, 390, 1155, 210}},
    {"chkItemGraph_0", {330, 600, 1695, 375}},
    {"chkItemGraph_1", {330, 960, 1965, 375}},
    {"chkItemGraph_2", {2760, 600, 1800, 255}},
    {"chkItemGraph_3", {2760, 960, 1845, 375}},
    {"Label5", {150, 1320, 2535, 210}},
    {"chkItemUser_0", {330, 1515, 1485, 255}},
    {"chkItemUser_1", {600, 1800, 1215, 255}},
    {"chkItemUser_2", {600, 2040, 1485, 255}},
    {"chkItemUser_3", {2760, 1800, 1215, 255}},
    {"chkItemUser_4", {2760, 2040, 1695, 255}},
    {"Label1", {150, 2400, 495, 210}},
    {"chkItemEtc", {330, 2640, 1485, 255}},
};

const std::vector<Designed> OfOverlapping = {
    {"Label4", {150, 480, 870, 210}},
    {"chkItemOverlap_0", {360, 720, 1695, 375}},
    {"chkItemOverlap_1", {2520, 720, 1725, 375}},
    {"chkItemOverlap_2", {360, 1200, 3045, 255}},
    {"Label5", {840, 1440, 1215, 495}},
    {"Label1", {2115, 1440, 2415, 495}},
};

const std::vector<Designed> OfDetails = {
    {"Label8", {120, 360, 1155, 210}},
    {"chkItemGraph_0", {300, 570, 1695, 375}},
    {"chkItemGraph_1", {300, 930, 1965, 375}},
    {"chkItemGraph_2", {2730, 570, 1800, 375}},
    {"chkItemGraph_3", {2730, 960, 1845, 375}},
    {"Label6", {120, 1290, 2535, 210}},
    {"chkItemUser_0", {300, 1485, 1485, 255}},
    {"chkItemUser_1", {570, 1770, 1215, 255}},
    {"chkItemUser_2", {570, 2010, 1485, 255}},
    {"chkItemUser_3", {2730, 1770, 1215, 255}},
    {"chkItemUser_4", {2730, 2010, 1695, 255}},
    {"Label7", {120, 2370, 495, 210}},
    {"chkItemEtc", {300, 2610, 1485, 255}},
};

const std::vector<Designed> OfProgramTable = {
    {"Label4", {150, 390, 1905, 210}},
    {"optRange_0", {360, 640, 2415, 255}},
    {"optRange_1", {360, 980, 3615, 255}},
    {"optRange_2", {360, 1320, 2055, 255}},
    {"LabelStart", {2520, 1350, 495, 255}},
    {"TextStart", {3000, 1320, 495, 270}},
    {"LabelEnd", {3720, 1350, 495, 255}},
    {"TextEnd", {4200, 1320, 495, 270}},
    {"Label1", {150, 1800, 495, 210}},
    {"chkItemEtc", {330, 2040, 1485, 255}},
};

const std::vector<Designed> OfSubmitter = {
    {"txtDrow_0", {1500, 555, 4600, 315}},
    {"txtDrow_1", {1500, 930, 4600, 540}},
    {"txtDrow_2", {1500, 1590, 4600, 315}},
    {"txtDrow_3", {1500, 2070, 4600, 315}},
    {"txtDrow_4", {1500, 1950, 4600, 540}},
    {"txtDrow_5", {1500, 2550, 4600, 315}},
    {"txtDrow_6", {1500, 2910, 4600, 315}},
    {"txtDrow_7", {1500, 3270, 4600, 315}},
    {"txtDrow_8", {1165, 4005, 4935, 315}},
    {"cmdConpare", {6345, 4005, 915, 345}},
};

const std::vector<Designed> OfAddressee = {
    {"_0", {1500, 705, 5145, 315}},
    {"_1", {1500, 1245, 4600, 315}},
    {"_2", {1500, 1785, 4600, 540}},
    {"_3", {1500, 2565, 4600, 315}},
    {"_4", {1500, 3150, 4600, 540}},
};

const std::vector<Designed> OfGreeting = {
    {"lblGreeting", {315, 675, 5775, 825}},
    {"txtGreeting", {135, 1440, 7700, 2100}},
};

// clang-format on

bool IsCaption(const QWidget& control) {
  const auto* label = qobject_cast<const QLabel*>(&control);
  return (label != nullptr && !label->wordWrap()) || qobject_cast<const QCheckBox*>(&control) != nullptr ||
         qobject_cast<const QRadioButton*>(&control) != nullptr;
}

// Where a control belongs that is designed for this place. A caption that doesn't fit has what it needs: to
// the right on one line, or, where two lines have room, downwards; a label of one line in height, above and
// below.
QRect Expected(const QWidget& control, const Rect& place) {
  QRect expected = PixelRect(place, control);
  if (!IsCaption(control)) return expected;
  const QSize hint = control.sizeHint();
  const int line = control.fontMetrics().height();
  const bool isLabel = qobject_cast<const QLabel*>(&control) != nullptr;
  if (!isLabel && hint.width() > expected.width() && expected.height() >= 2 * line - 2) {
    expected.setHeight(std::max(expected.height(), 2 * line));
    return expected;
  }
  expected.setWidth(std::max(expected.width(), hint.width()));
  const int missing = isLabel ? std::max(0, hint.height() - expected.height()) : 0;
  return expected.adjusted(0, -((missing + 1) / 2), 0, missing / 2);
}

class Places : public CoverEditor {
 protected:
  void ExpectPlaces(const QWidget& container, const std::vector<Designed>& controls) {
    for (const Designed& control : controls) ExpectPlace(container, control.Name, control.Place);
  }
  static void ExpectPlace(const QWidget& container, const std::string& name, const Rect& place) {
    const auto* control = container.findChild<QWidget*>(QString::fromStdString(name));
    ASSERT_NE(control, nullptr) << name;
    EXPECT_EQ(control->geometry(), Expected(*control, place)) << name;
  }
  // The first tab, and what else is designed of the page's tabs.
  void ExpectPage(const char* name, const std::vector<Designed>& items, int tab = 1) {
    SCOPED_TRACE(name);
    const TabControl& tabs = Page(name).Tabs();
    EXPECT_EQ(tabs.geometry(), PixelRect({0, 0, 4935, 3015}, tabs));
    ExpectPlaces(*tabs.Page(0), OfFirstTab);
    if (!items.empty()) ExpectPlaces(*tabs.Page(tab), items);
  }
};

TEST_F(Places, MatchTheDesignOfThePrintSettingDialog) {
  Open(2, "", "PrnSetting");
  EXPECT_EQ(Dialog->size(), PixelRect({0, 0, 5535, 8130}, *Dialog).size());
  ExpectPlaces(*Dialog, OfDialog);
}

TEST_F(Places, MatchTheDesignOfTheItemPages) {
  Open(2, "", "PrnSetting");
  ExpectPage("InfUser", OfUser);
  ExpectPage("InfWizard", {});
  ExpectPage("InfTrace", OfTrace);
  ExpectPage("InfRealTrace", OfRealTrace);
  ExpectPage("InfMecha", OfMecha);
  ExpectPage("InfSim", OfSim);
  ExpectPage("InfSimOverlap", OfOverlapping);
  ExpectPage("InfSimOverlap", OfDetails, 2);
  ExpectPage("InfIdxTbl", OfProgramTable);
  ExpectPage("InfZoneTbl", OfComments);
  ExpectPage("InfJogTbl", OfComments);
}

TEST_F(Places, MatchTheDesignOfTheCoverEditor) {
  OpenEditor();
  EXPECT_EQ(Editor->size(), PixelRect({0, 0, 8505, 5400}, *Editor).size());
  ExpectPlaces(*Editor, {{"SSTab1", {120, 120, 8265, 4590}},
                         {"cmdOK", {2340, 4890, 1455, 375}},
                         {"cmdCancel", {4515, 4890, 1455, 375}}});
  ExpectPlaces(*Tabs().Page(0), OfSubmitter);
  for (int block = 1; block <= 3; ++block) {
    for (const Designed& control : OfAddressee)
      ExpectPlace(*Tabs().Page(block), "txtUser" + std::to_string(block) + control.Name, control.Place);
  }
  ExpectPlaces(*Tabs().Page(4), OfGreeting);
}

TEST_F(Places, MatchTheDesignOfTheLabelsOfTheCoverEditor) {
  OpenEditor();
  const std::pair<const char*, int> families[] = {{"Label1", 9}, {"Label2", 5}, {"Label3", 5}, {"Label4", 5}};
  for (const auto& [family, count] : families) {
    for (int index = 0; index < count; ++index) {
      const QWidget& label = In(family + ("_" + std::to_string(index)));
      EXPECT_EQ(label.x(), Pixels(120, label)) << label.objectName().toStdString();
    }
  }
  const QWidget& path = In("Label1_8");
  EXPECT_EQ(path.y(), Pixels(3735, path));
}

}  // namespace
}  // namespace tarvis
