// What fails only when the pages are made, long after it was read, still names its line in the file.
#include <gtest/gtest.h>

#include "support/host_run.h"
#include "support/test_run.h"

namespace tarvis {
namespace {

using Lines = std::vector<std::string>;

struct LateFailure : HostRun {
  // The words of the failure that ends the print of a data file whose first line names its graph.
  std::string Of(const std::string& mode, const Lines& lines) {
    Lines file = {mode + "Graph," + Picture("graph.bmp")};
    file.insert(file.end(), lines.begin(), lines.end());
    WriteLines(mode + ".tmp", file);
    Run.Session.Mode = ModeOf(mode);
    Run.Options.SimOption[0] = 1;
    return RunTimeFailureOf([&] { Report.ComposeMaster(); });
  }
};

TEST_F(LateFailure, NamesTheElementOfAPattern) {
  EXPECT_EQ(Of("Sim", {"PatternSetting,Pattern,,Trapezoid,2"}),
            "Sim.tmp:2: PatternSetting: element 2: not a number: ''");
  EXPECT_EQ(Of("Sim", {"PatternSetting,Pattern,free,Points,2"}),
            "Sim.tmp:2: PatternSetting: element 2: not a number: 'free'");
  EXPECT_EQ(Of("Sim", {"PatternSetting,Pattern,1,Points,42"}),
            "Sim.tmp:2: PatternSetting: element 4: only 41 values have room: '42'");
}

TEST_F(LateFailure, NamesFileAndKeyOfAPatternThatIsMissing) {
  EXPECT_EQ(Of("Sim", {}), "Sim.tmp: PatternSetting: element 2: not a number: ''");
}

TEST_F(LateFailure, NamesTheLineOfAChannelThatCounts) {
  const std::string channel = "DataTrace2,Torque,1,%";
  EXPECT_EQ(Of("Trace", {channel, "I/Otrace2,Servo on,,V"}),
            "Trace.tmp:3: I/Otrace2: element 2: not a number: ''");
  EXPECT_EQ(Of("Sim", {"PatternSetting,Pattern,0,Trapezoid,2", channel, "DataTrace2,Torque,shown,%"}),
            "Sim.tmp:4: DataTrace2: element 2: not a number: 'shown'");
}

}  // namespace
}  // namespace tarvis
