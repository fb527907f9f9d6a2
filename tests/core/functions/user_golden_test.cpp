// Pages of the parameter list as a reviewer can read them: rows, digit blocks, hidden columns, page breaks.
#include <gtest/gtest.h>

#include "support/golden.h"
#include "support/host_run.h"
#include "support/structure_text.h"

namespace tarvis {
namespace {

// Plain rows, a row with two digit groups, a name of three lines, and a comment.
std::string SampleFile() {
  std::string file = "File-Spec,3\r\nMechaInfo,Servo pack 400 W\r\nFile,axis1.usr\r\nUserNum,6\r\n";
  const auto add = [&](const std::string& number, const std::string& name, const std::string& values) {
    file += "UserName," + number + "," + name + "\r\nUserValue," + values + "\r\n";
  };
  add("Pn000", "Basic Function Selection", "0x0011,0x0000,-");
  add("Pn100", "Speed Loop Gain", "62.0,40.0,Hz");
  add("Pn101",
      "A name that tells all about the parameter, with its commas, and takes three lines of its column for "
      "that",
      "15.00,20.00,ms");
  add("Pn102", "Position Loop Gain", "64.0,40.0,1/s");
  add("Pn103", "Moment of Inertia Ratio", "340,100,%");
  add("Pn104", "", ",,");
  file += "SwitchNum,1\r\nSwitch,pn000,0x0011,0x0000,Basic Function Selection\r\n";
  file += "Switch0,0,1,1,0,Direction\\r\\n1:Clockwise is forward\r\n";
  file += "Switch1,1,2,1,0,Control Method\\r\\n01:Position control: pulse train\r\n";
  file += "Switch2,3,0,,,\r\nSwitch3,3,0,,,\r\n";
  return file + "Comment,as delivered\\r\\nchecked twice\r\n";
}

struct ParameterPages : HostRun {
  ParameterPages() {
    Folder.Write("User.tmp", SampleFile());
    Report.Run.Session.Mode = Mode::User;
    Report.Run.Options.UserHeader = {1, 1, 1, 1, 1, "Parameters"};
    Report.Run.Options.UserOption = {1, 1, 1, 1, 1};
  }
  std::string Print(const PageSetup& setup = {}) { return Dump(Report.ComposeMaster(setup)); }
};

TEST_F(ParameterPages, ShowAllColumns) {
  ExpectGolden("user_all_columns", Print());
}

TEST_F(ParameterPages, OmitNames) {
  Report.Run.Options.UserOption = {0, 1, 1, 1, 0};
  ExpectGolden("user_without_names", Print());
}

TEST_F(ParameterPages, OmitUnitAndDefault) {
  Report.Run.Options.UserOption = {1, 1, 0, 0, 0};
  ExpectGolden("user_without_unit_and_default", Print());
}

TEST_F(ParameterPages, BrokenOverPagesOfSmallPaper) {
  Report.Run.Options.UserOption[4] = 0;
  // A5 across: the digit block and the rows below it don't fit one page.
  const Document document = Report.ComposeMaster({11906, 8391, 1440, 0, 720, 720});
  ExpectGolden("user_small_paper", Dump(document));
  ExpectGolden("user_small_paper_structure", StructureOf(document));
}

}  // namespace
}  // namespace tarvis
