// All data of one run in one object: created in main, passed by reference to readers, reports and dialogs.
#pragma once

#include <ctime>
#include <functional>

#include "run/desktop.h"
#include "run/file_header.h"
#include "run/mecha_data.h"
#include "run/print_options.h"
#include "run/real_trace_data.h"
#include "run/session.h"
#include "run/sim_data.h"
#include "run/table_data.h"
#include "run/trace_data.h"
#include "run/upwizard_data.h"
#include "run/user_data.h"
#include "text/code_page.h"

namespace tarvis {

// Process-wide data without hidden globals: a test makes its own.
struct PrintRun {
  // `desktop` must outlive the run.
  explicit PrintRun(tarvis::Desktop& desktop);
  ~PrintRun();  // with all records, so that only one file compiles it
  PrintRun(const PrintRun&) = delete;
  PrintRun& operator=(const PrintRun&) = delete;

  tarvis::Desktop& Desktop;
  tarvis::CodePage CodePage;  // the system's code page, 1252 unless the configuration names another

  PrintSession Session;
  PrintOptions Options;
  tarvis::FileHeader Header;  // of the data file read last
  UserData User;
  UPWizardData UPWizard;
  TraceData Trace;
  RealTraceData RealTrace;
  MechaData Mecha;
  SimData Sim;
  IdxTblData IdxTbl;
  ZoneTblData ZoneTbl;
  JogTblData JogTbl;

  std::function<std::tm()> Now;  // the clock, local time; the system's own unless a test pins it
  FileSettler SettleFile;        // the program's own needs the operating system; without one it does nothing
};

}  // namespace tarvis
