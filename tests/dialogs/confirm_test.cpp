// The dialog that is confirmed at once, and the same without a dialog: options, session and messages are
// the same.
#include "session/confirm.h"

#include "dialogs/dialog_run.h"
#include "printfiles/host_files.h"
#include "session/function_list.h"

namespace tarvis {
namespace {

const std::string LongTitle(41, 't');

// What the end of the options file says, by what it is about.
struct Kept {
  std::string About;
  std::string Lines;
};

const std::vector<Kept> KeptOptions = {
    {"defaults", ""},
    {"cover_without_addressee", "Cover,1\r\nSelectCover,0\r\n"},
    {"cover_of_the_third_addressee", "Cover,2\r\nSelectCover,3\r\nColorType,1\r\n"},
    {"no_cover_but_an_addressee", "Cover,0\r\nSelectCover,2\r\n"},
    {"long_titles", "UserHeader,1,1,1,1,1," + LongTitle + "\r\nTraceHeader,0,1,1,1,1," + LongTitle +
                        "\r\nSimHeader,1,1,1,1,1," + LongTitle + "\r\nJogTblHeader,1,1,1,1,1," + LongTitle +
                        "\r\nIdxTblHeader,1,1,1,1,1,Steps\nand more\r\n"},
    {"grey_boxes", "UserOption,2,0,2,1,2\r\nTraceOption,2,2,2,2,2,2,2,2,2\r\nZoneTblOption,2\r\n"},
    {"typed_range", "IdxTblOption,2,5,127,0\r\n"},
    {"typed_range_that_is_no_number", "IdxTblOption,2,x,,1\r\n"},
    {"typed_range_beyond_the_table", "IdxTblOption,2,3,900,1\r\n"},
    {"range_that_is_not_used", "IdxTblOption,1,3,9,2\r\n"},
};

class Confirming : public DialogRun, public testing::WithParamInterface<Kept> {
 protected:
  Confirming() {
    WriteFile("IdxIdxTbl.tmp", "File-Spec,4\r\nIndexCnt,128\r\n");
    WriteFile("Trace.tmp", "OverlapMode,1\r\nOverlapNum,3\r\n");
    WriteFile("Sim.tmp", "OverlapMode,1\r\nOverlapNum,4\r\n");
    Load(Run);
    Quiet.Session.SystemFolder = Quiet.Session.TempFolder = Run.Session.TempFolder;
    Quiet.Now = PinnedTime;
    DefaultPrintOptions(Quiet);
    Load(Quiet);
  }

  static void Load(PrintRun& run) {
    LoadBytes(run, "PrintOption.ToT", GetParam().Lines);
    ASSERT_TRUE(ReadPrintOptionsFile(run));
  }

  static std::string StateOf(const PrintSession& session) {
    return std::string(TextOf(session.Mode)) + " " + std::to_string(session.OverlapMode) + " " +
           std::to_string(session.OverlapNum) + " " + std::to_string(session.SimExMode) + " " +
           std::to_string(session.StepLimit);
  }

  void ConfirmBoth(const ModeChoice& choice) {
    Open(choice.Edition, "200", std::string(TextOf(choice.Mode)));
    QTest::mouseClick(&Find<QPushButton>("cmdOK"), Qt::LeftButton);
    if (choice.Mode == Mode::PrnSetting) ExpectRunEnded();
    Quiet.Session.HostEdition = choice.Edition;
    Quiet.Session.HostVersion = "200";
    Quiet.Session.Mode = choice.Mode;
    ConfirmKeptOptions(Quiet);
    ASSERT_TRUE(WritePrintOptionsFile(Quiet, Folder() + "/quiet.ToT"));
  }

  std::string QuietFile() const {
    std::ostringstream text;
    text << std::ifstream(Folder() + "/quiet.ToT", std::ios::binary).rdbuf();
    return text.str();
  }

  FakeDesktop Silence;
  PrintRun Quiet{Silence};
};

struct ConfirmingInEveryMode : Confirming {};

TEST_P(ConfirmingInEveryMode, IsTheSameWithAndWithoutTheDialog) {
  for (const std::int16_t edition : {std::int16_t{1}, std::int16_t{2}, std::int16_t{4}}) {
    for (const Mode mode : {Mode::User, Mode::UPWizard, Mode::Trace, Mode::RealTrace, Mode::Mecha, Mode::Sim,
                            Mode::SimEx, Mode::IdxTbl, Mode::ZoneTbl, Mode::JogTbl}) {
      const ModeChoice* choice = FindModeChoice(edition, mode);
      if (choice == nullptr) continue;
      SCOPED_TRACE(std::string(TextOf(mode)) + " of edition " + std::to_string(edition));
      for (PrintRun* run : {&Run, &Quiet}) {
        run->Session.OverlapMode = run->Session.OverlapNum = run->Session.SimExMode = 0;
        run->Session.StepLimit = 0;
        DefaultPrintOptions(*run);
        Load(*run);
      }
      Desktop.Messages.clear();
      Silence.Messages.clear();
      ConfirmBoth(*choice);
      EXPECT_EQ(QuietFile(), OptionsFile());
      EXPECT_EQ(StateOf(Quiet.Session), StateOf(Run.Session));
      EXPECT_EQ(Silence.Messages, Desktop.Messages);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(KeptOptions, ConfirmingInEveryMode, testing::ValuesIn(KeptOptions),
                         [](const auto& kept) { return kept.param.About; });

}  // namespace
}  // namespace tarvis
