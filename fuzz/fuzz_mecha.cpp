// Fuzzes the reader of Mecha.tmp.
#include "fuzz_reader.h"
#include "printfiles/mecha_file.h"

TARVIS_FUZZ_READER(tarvis::ReadMechaFile, "Mecha.tmp")
