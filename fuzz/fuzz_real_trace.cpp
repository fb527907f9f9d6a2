// Fuzzes the reader of RealTrace.tmp.
#include "fuzz_reader.h"
#include "printfiles/real_trace_file.h"

TARVIS_FUZZ_READER(tarvis::ReadRealTraceFile, "RealTrace.tmp")
