// Fuzzes the reader of Trace.tmp.
#include "fuzz_reader.h"
#include "printfiles/trace_file.h"

TARVIS_FUZZ_READER(tarvis::ReadTraceFile, "Trace.tmp")
