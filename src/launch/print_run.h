// All data of one run in one object: created in main, passed by reference to readers, reports and dialogs.
#pragma once

#include <ctime>
#include <functional>

#include "launch/desktop.h"
#include "launch/session.h"
#include "printfiles/code_page.h"
#include "printfiles/file_header.h"
#include "printfiles/mecha_data.h"
#include "printfiles/print_options.h"
#include "printfiles/real_trace_data.h"
#include "printfiles/sim_data.h"
#include "printfiles/table_data.h"
#include "printfiles/trace_data.h"
#include "printfiles/upwizard_data.h"
#include "printfiles/user_data.h"

namespace tarvis {

// Process-wide data without hidden globals: a test makes its own.
struct PrintRun {
  // `desktop` must outlive the run.
  explicit PrintRun(tarvis::Desktop& desktop);

  tarvis::Desktop& Desktop;
  CodePage Page;  // the system's code page, 1252 unless the configuration names another

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
};

}  // namespace tarvis
