// The electrical schematic diagram: places, layers and pictures of its parts.
#include "functions/wizard/rptUPWizard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/host_run.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Wizard : HostRun {
  Wizard() {
    for (const char* name : {"base.bmp", "relay.bmp"}) Folder.Write(name, "x");
    Data.Base = Folder.SystemPath() + "base.bmp";
    Data.ControlCaption = "Control Method";
    Data.Control = "Position control";
    Data.RatioCaption = "Encoder Dividing Ratio";
    Data.Ratio = "2048";
    Data.RatioUnit = "[P/R]";
    for (int slot = 1; slot <= 8; ++slot) {
      Data.Ry[slot] = {std::to_string(slot), "CN1-" + std::to_string(slot), Folder.SystemPath() + "relay.bmp",
                       "Relay " + std::to_string(slot)};
    }
    for (int slot = 1; slot <= 4; ++slot) Data.OutNum[slot] = {"", "O" + std::to_string(slot)};
    for (int slot = 1; slot <= 7; ++slot) Data.OutStr[slot] = {"", "Output " + std::to_string(slot)};
    Report.Run.Header.MechaInfo = "Servo pack 400 W";
  }
  Document Compose() { return Report.ComposeAlone("rptUPWizard"); }
  std::string FailureOf() {
    EXPECT_THROW(Compose(), RunEnded);
    return Report.Desktop.Messages.empty() ? "" : Report.Desktop.Messages.back();
  }
  static Rect PlaceOf(const Document& document, const std::string& control) {
    const auto printed = PrintedOf(document, control);
    return printed.empty() ? Rect{} : printed[0].Box;
  }

  UPWizardData& Data = Report.Run.UPWizard;
};

const char* const Failure13 =
    "Printing Error|Parameter Wizard BMP File is not found.\nPrinting Process is canceled.";

TEST_F(Wizard, IsOnOnePage) {
  const Document document = Compose();
  EXPECT_EQ(document.Pages.size(), 1U);
  EXPECT_EQ(document.Contents.at(0).Text, "Electrical Schematic Diagram");
}

TEST_F(Wizard, DrawsFromBackToFront) {
  std::vector<std::string> order;
  const Document document = Compose();
  for (const Item& item : document.Items) {
    if (item.Kind != ItemKind::Text) order.emplace_back(document.Names[item.Control]);
  }
  EXPECT_THAT(order, ElementsAre("Image1", "imgBase", "imgRy7", "imgRy6", "imgRy5", "imgRy4", "imgRy3",
                                 "ImgRy2", "imgRy1", "Shape4", "Shape2", "Shape3", "Shape1"));
  EXPECT_EQ(document.Items.back().Kind, ItemKind::Text) << "the texts come last";
}

TEST_F(Wizard, PicturesFillTheirBoxes) {
  const Document document = Compose();
  EXPECT_EQ(PlaceOf(document, "imgBase"), (Rect{705, 630 + 765, 7650, 7365}));
  EXPECT_EQ(PlaceOf(document, "imgRy1"), (Rect{1260, 630 + 5280, 2700, 420}));
  EXPECT_EQ(PlaceOf(document, "ImgRy2"), (Rect{1260, 630 + 5610, 2700, 420}));
  EXPECT_EQ(PlaceOf(document, "imgRy7"), (Rect{1260, 630 + 7260, 2700, 420}));
}

TEST_F(Wizard, FramesHaveTheirWeightAndTheRatioBoxCoversTheBase) {
  const Document document = Compose();
  for (const Item& item : document.Items) {
    if (document.Names[item.Control] == "Shape4") {
      EXPECT_EQ(item.Weight, 2);
      EXPECT_FALSE(item.Filled);
    }
    if (document.Names[item.Control] == "Shape1") {
      EXPECT_TRUE(item.Filled);
    }
  }
}

TEST_F(Wizard, PlacesTheTextsOfTheRowsOnTheirGrid) {
  const Document document = Compose();
  const auto topOf = [&](const std::string& control) {
    for (const Item& item : document.Items) {
      if (document.Names[item.Control] == control) return item.Box.Top;
    }
    return -1.0F;
  };
  EXPECT_EQ(topOf("txtRyNumber2") - topOf("txtRyNumber1"), 330);
  EXPECT_EQ(topOf("txtOutNumber2") - topOf("txtOutNumber1"), 660);
  EXPECT_EQ(topOf("txtOutName6") - topOf("txtOutName1"), 5 * 330);
  EXPECT_EQ(topOf("txtOutName1"), topOf("txtRyNumber1"));
}

TEST_F(Wizard, TextsAreTheHostsWithoutFallback) {
  Data.ControlCaption.clear();
  Data.RatioUnit.clear();
  const Document document = Compose();
  EXPECT_THAT(PrintedOf(document, "lblControl"), IsEmpty());
  EXPECT_THAT(PrintedOf(document, "txtPGRatioUnit"), IsEmpty());
  EXPECT_THAT(PrintedOf(document, "txtServoName")[0].Texts, ElementsAre("Servo pack 400 W"));
}

TEST_F(Wizard, IgnoresTheLastSlots) {
  Data.Ry[8].Picture = "C:\\missing.bmp";
  const Document document = Compose();
  for (const Item& item : document.Items) {
    if (item.Kind != ItemKind::Text) continue;
    const auto text = document.Texts[item.Source].Text;
    EXPECT_TRUE(text != "Relay 8" && text != "O4" && text != "Output 7") << text;
  }
}

TEST_F(Wizard, ARelayWithoutPictureStillPrintsItsTexts) {
  Data.Ry[2].Picture.clear();
  const Document document = Compose();
  EXPECT_THAT(PrintedOf(document, "ImgRy2"), IsEmpty());
  EXPECT_THAT(PrintedOf(document, "txtRyName2")[0].Texts, ElementsAre("Relay 2"));
}

TEST_F(Wizard, ARelayWithAPictureOnlyPrintsThePicture) {
  Data.Ry[2].Name.clear();
  Data.Ry[2].Number.clear();
  const Document document = Compose();
  EXPECT_EQ(PrintedOf(document, "ImgRy2").size(), 1U);
  EXPECT_THAT(PrintedOf(document, "txtRyName2"), IsEmpty());
}

TEST_F(Wizard, AMissingBaseIsFailureThirteen) {
  Data.Base.clear();
  EXPECT_EQ(FailureOf(), Failure13);
}

TEST_F(Wizard, AMissingRelayPictureIsFailureThirteenBeforeTheBaseIsLookedAt) {
  Data.Ry[7].Picture = "C:\\missing.bmp";
  Data.Base = "C:\\missing too.bmp";
  EXPECT_EQ(FailureOf(), Failure13);
  ASSERT_FALSE(Report.Desktop.Diagnoses.empty());
  EXPECT_THAT(Report.Desktop.Diagnoses.back(), testing::HasSubstr("missing.bmp"));
}

TEST_F(Wizard, LongTextsDoNotMoveTheRows) {
  Data.Ry[1].Name = "a relay name so long that it takes several lines of its column";
  const Document document = Compose();
  const auto lines = PrintedOf(document, "txtRyName1")[0].Texts;
  EXPECT_GT(lines.size(), 1U);
  EXPECT_EQ(PlaceOf(document, "ImgRy2").Top, 630 + 5610);
}

}  // namespace
}  // namespace tarvis
