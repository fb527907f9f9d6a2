// On which page the dialog opens, for each mode and edition.
#include "dialogs/dialog_run.h"

namespace tarvis {
namespace {

struct Opening {
  std::int16_t Edition;
  const char* Version;
  const char* Mode;
  int Index;
  bool ListEnabled;
  const char* Page;
};

class OpenedDialog : public DialogRun, public testing::WithParamInterface<Opening> {};

TEST_P(OpenedDialog, ShowsTheFunctionThatTheHostNamed) {
  WriteFile("IdxIdxTbl.tmp", "IndexCnt,128\r\n");
  Open(GetParam().Edition, GetParam().Version, GetParam().Mode);
  EXPECT_EQ(Find<QComboBox>("cmbFunc").currentIndex(), GetParam().Index);
  EXPECT_EQ(Find("cmbFunc").isEnabled(), GetParam().ListEnabled);
  EXPECT_EQ(ShownPages(), GetParam().Page);
}

INSTANTIATE_TEST_SUITE_P(
    AllModes, OpenedDialog,
    testing::Values(
        Opening{2, "", "User", 0, false, "InfUser"}, Opening{2, "x", "Trace", 1, false, "InfTrace"},
        Opening{2, "100", "IdxTbl", 2, false, "InfIdxTbl"}, Opening{2, "", "ZoneTbl", 3, false, "InfZoneTbl"},
        Opening{2, "", "JogTbl", 4, false, "InfJogTbl"}, Opening{2, "", "PrnSetting", 0, true, "InfUser"},
        Opening{4, "100", "User", 0, false, "InfUser"}, Opening{4, "100", "Trace", 1, false, "InfTrace"},
        Opening{4, "100", "RealTrace", 2, false, "InfRealTrace"},
        Opening{4, "200", "Mecha", 3, false, "InfMecha"}, Opening{4, "200", "Sim", 4, false, "InfSim"},
        Opening{4, "200", "SimEx", 4, false, "InfSimOverlap"},
        Opening{4, "200", "PrnSetting", 0, true, "InfUser"}, Opening{1, "100", "User", 0, false, "InfUser"},
        Opening{1, "100", "UPWizard", 1, false, "InfTrace"}, Opening{1, "100", "Trace", 2, false, "InfTrace"},
        Opening{1, "200", "RealTrace", 3, false, "InfRealTrace"},
        Opening{1, "200", "Mecha", 4, false, "InfMecha"}, Opening{1, "200", "Sim", 5, false, "InfSim"},
        Opening{1, "200", "PrnSetting", 0, true, "InfUser"}));

}  // namespace
}  // namespace tarvis
