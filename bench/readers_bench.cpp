// Reading the largest files of each kind: 32,768 lines, from bytes in memory. The bytes per second are those
// of the file.
#include <benchmark/benchmark.h>

#include <string>

#include "printfiles/host_files.h"
#include "printfiles/idx_tbl_file.h"
#include "printfiles/jog_tbl_file.h"
#include "printfiles/mecha_file.h"
#include "printfiles/print_options_file.h"
#include "printfiles/real_trace_file.h"
#include "printfiles/sim_file.h"
#include "printfiles/trace_file.h"
#include "printfiles/upwizard_file.h"
#include "printfiles/user_file.h"
#include "printfiles/zone_tbl_file.h"
#include "run/print_run.h"
#include "support/fake_desktop.h"

namespace tarvis {
namespace {

constexpr int MostLines = 32768;

// A text of `head` and of the `rows` lines over and over, up to the largest number of lines.
std::string LargestFile(const std::string& head, int headLines, const std::string& rows, int rowLines) {
  std::string file = head;
  for (int line = headLines; line + rowLines <= MostLines; line += rowLines) file += rows;
  return file;
}

std::string ParameterBlock() {
  return LargestFile(
      "File-Spec,3\r\nUserNum,11000\r\nSwitchNum,4000\r\n", 3,
      "UserName,Pn102,Position loop gain of the first set\r\nUserValue,40.0,40.0,1/s\r\n"
      "UserName,Pn103,Inertia ratio\r\nUserValue,100,100,%\r\n"
      "UserName,Pn110,Online tuning switches\r\nUserValue,0x0012,0x0010,\r\n"
      "Switch,Pn110,0x0012,0x0010,Online tuning switches\r\n"
      "Switch0,0,1,2,0,Tuning method\\r\\n2:Not used\r\n"
      "Switch1,1,1,1,1,Speed feedback compensation\\r\\n1:Disabled\r\n"
      "Switch2,2,1,0,0,Friction compensation\\r\\n0:Disabled\r\nSwitch3,3,1,0,0,Reserved\\r\\n0:Do not "
      "change\r\n",
      11);
}

void ReadLargest(benchmark::State& state, bool (*reader)(PrintRun& run), const std::string& file) {
  FakeDesktop desktop;
  PrintRun run(desktop);
  for (auto _ : state) {
    LoadBytes(run, "User.tmp", file);
    if (!reader(run)) {
      state.SkipWithError(run.Session.Diagnosis.c_str());
      break;
    }
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file.size()));
  state.counters["lines"] = run.Session.LineCount;
}

#define READS(NAME, READER, FILE) \
  BENCHMARK_CAPTURE(ReadLargest, NAME, READER, FILE)->Unit(benchmark::kMillisecond)

const std::string CursorRows =
    "CursolSelect,2\r\nCursolInfo1,12.0,85.0,73.0,Torque reference [%]\r\nCursolInfo2,100,1500,1400,Feedback "
    "speed\r\n";
const std::string Settings = "SamplingCycle,Sampling time,250,us\r\nGetDataDate,Mar. 05, 2026 16:58:30\r\n";

READS(User, ReadUserFile, ParameterBlock());
READS(Trace, ReadTraceFile, LargestFile("File-Spec,3\r\n", 1, CursorRows + Settings, 5));
READS(RealTrace, ReadRealTraceFile, LargestFile("File-Spec,3\r\n", 1, CursorRows, 3));
READS(Mecha, ReadMechaFile, LargestFile("", 0, CursorRows + Settings, 5));
READS(Sim, ReadSimFile,
      LargestFile("PatternSetting,Pattern,0,Trapezoid,10\r\n", 1,
                  Settings + "MaxSpd,Speed,r/min,100,200,300,400,500,600,700,800,900,1000\r\n", 3));
READS(UPWizard, ReadUPWizardFile,
      LargestFile("", 0, "RY,7,RY7,C:\\Host\\bin\\wizard\\relay.bmp,Main contactor\r\n", 1));
READS(IdxTbl, ReadIdxTblFile,
      LargestFile("IndexCnt,32767\r\n", 1,
                  "Index,12,I+400000,12000,+200000,6000,500,500,NNNN,IT500,3,1,1\r\n", 1));
READS(ZoneTbl, ReadZoneTblFile, LargestFile("ZoneCnt,32767\r\n", 1, "Zone,31,-1000000,+1000000\r\n", 1));
READS(JogTbl, ReadJogTblFile, LargestFile("JspdCnt,32767\r\n", 1, "Jspd,15,12000\r\n", 1));
READS(
    Options, ReadPrintOptionsFile,
    LargestFile(
        "File-Spec,4\r\n", 1,
        "TraceHeader,1,1,1,1,1,Tracing\r\nTraceOption,1,1,1,1,1,1,1,1,1\r\nGreeting,Dear Sir,\\r\\nhere they "
        "are.\r\n",
        3));

}  // namespace
}  // namespace tarvis

BENCHMARK_MAIN();
