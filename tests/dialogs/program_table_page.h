// The page of the program table, driven by the events that a user makes.
#pragma once

#include <QClipboard>

#include "dialogs/dialog_run.h"
#include "dialogs/pages/InfIdxTbl.h"

namespace tarvis {

inline const std::string WrongStep = "Input Error|Wrong the inputted STEP number.Please input again.";

class ProgramTablePage : public DialogRun {
 protected:
  // A print of a table with this many steps, its second tab in front.
  void OpenTable(int steps) {
    WriteFile("IdxIdxTbl.tmp", "IndexCnt," + std::to_string(steps) + "\r\n");
    Open(2, "", "IdxTbl");
    ClickTab(Page("InfIdxTbl").Tabs(), 1);
  }
  void OpenSettings() {
    Open(2, "", "PrnSetting");
    ChooseFunction(2);
    ClickTab(Page("InfIdxTbl").Tabs(), 1);
  }
  void TypeRange(const char* start, const char* end) {
    Type("TextStart", start);
    Type("TextEnd", end);
  }
  void Type(const char* box, const char* text) {
    auto& field = Find<StepBox>(box);
    QTest::mouseClick(&field, Qt::LeftButton);
    field.selectAll();
    Key(Qt::Key_Backspace);
    QTest::keyClicks(&field, QString::fromLatin1(text));
  }
  std::string Range() { return Find<StepBox>("TextStart").Text() + "-" + Find<StepBox>("TextEnd").Text(); }
  std::string Stored() const { return Run.Options.IdxTblOption.First + "-" + Run.Options.IdxTblOption.Last; }
  std::string Flags() const {
    return std::to_string(Run.Session.StepStartValid) + "," + std::to_string(Run.Session.StepEndValid);
  }
  void ExpectHeldIn(const char* box) {
    EXPECT_THAT(Desktop.Messages, testing::ElementsAre(WrongStep));
    EXPECT_TRUE(QTest::qWaitFor([box] { return FocusName() == box; })) << FocusName();
    EXPECT_EQ(Page("InfIdxTbl").Tabs().CurrentTab(), 1);
    EXPECT_EQ(ShownPages(), "InfIdxTbl");
    Desktop.Messages.clear();
  }
};

}  // namespace tarvis
