// The electrical schematic diagram on paper: the whole page, read from a file.
#include "support/golden.h"
#include "support/host_run.h"
#include "support/structure_text.h"

namespace tarvis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct Schematic : HostRun {
  Schematic() { Wizard.Base = Picture("base.bmp"); }

  UPWizardData& Wizard = Run.UPWizard;
};

TEST_F(Schematic, PrintsAFileOnOnePage) {
  Run.Session.Mode = Mode::UPWizard;
  Run.Options.PrmWizHeader = {1, 1, 1, 0, 1, "Parameter wizard"};
  std::vector<std::string> lines{"File-Spec,3", "MechaInfo,Servo pack 400 W", "BASE," + PathOf("base.bmp"),
                                 "CONTROL,Control Method,Position control",
                                 "RATIO,Encoder Dividing Ratio,2048,[P/R]"};
  for (int slot = 1; slot <= 8; ++slot) {
    const std::string number = std::to_string(slot);
    lines.push_back("RY," + number + ",CN1-" + number + "," + Picture("ry" + number + ".bmp") + ",Input " +
                    number);
    if (slot <= 4) lines.push_back("OUTNUM," + number + ",CN1-2" + number);
    if (slot <= 7) lines.push_back("OUTSTR," + number + ",Output " + number);
  }
  WriteLines("UPWizard.tmp", lines);
  const Document document = Report.ComposeMaster();
  EXPECT_THAT(document.Pages, SizeIs(1));
  EXPECT_THAT(EntriesOf(document), ElementsAre("1: Electrical Schematic Diagram @ 855"));
  ExpectGolden("parameter_wizard", Dump(document));
  ExpectGolden("parameter_wizard_structure", StructureOf(document));
}

TEST_F(Schematic, EndsTheRunWithoutAPictureThatARelayNames) {
  for (int relay = 1; relay <= 7; ++relay) {
    Wizard.Ry[relay].Picture = PathOf("gone.bmp");
    ExpectFailure("rptUPWizard", "Parameter Wizard BMP File is not found.");
    EXPECT_THAT(Report.Pictures.Loaded, IsEmpty()) << "nothing is composed before the failure";
    Wizard.Ry[relay].Picture.clear();
    Wizard.Base = Picture("base.bmp");  // the end of a run takes it for no picture of the next
  }
}

TEST_F(Schematic, PrintsARelayOfWhichOnlyAPartIsGiven) {
  Wizard.Ry[1].Picture = Picture("relay.bmp");
  Wizard.Ry[2].Number = "CN1-41";
  const Document document = Report.ComposeAlone("rptUPWizard");
  EXPECT_THAT(PrintedOf(document, "imgRy1"), SizeIs(1));
  EXPECT_THAT(PrintedOf(document, "txtRyName1"), IsEmpty());
  EXPECT_THAT(PrintedOf(document, "txtRyNumber1"), IsEmpty());
  EXPECT_THAT(PrintedOf(document, "ImgRy2"), IsEmpty());
  EXPECT_THAT(ColumnOf(document, "txtRyNumber2"), ElementsAre("CN1-41"));
}

TEST_F(Schematic, CondensesACaptionThatIsLongerThanItsBox) {
  Wizard.RatioCaption = "Encoder Dividing Ratio";
  const Document document = Report.ComposeAlone("rptUPWizard");
  for (const Item& item : document.Items) {
    if (document.Names[item.Control] != "lblPGRatio") continue;
    EXPECT_EQ(item.Box.Width, 1600);
    EXPECT_GT(document.Texts[item.Source].Advance, 1700);
  }
  EXPECT_THAT(PrintedOf(document, "lblPGRatio").at(0).Texts, SizeIs(1));
}

}  // namespace
}  // namespace tarvis
