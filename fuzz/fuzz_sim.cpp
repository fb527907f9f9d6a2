// Fuzzes the reader of Sim.tmp.
#include "fuzz_reader.h"
#include "printfiles/sim_file.h"

TARVIS_FUZZ_READER(tarvis::ReadSimFile, "Sim.tmp")
