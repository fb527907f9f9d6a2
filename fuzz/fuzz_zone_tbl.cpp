// Fuzzes the reader of IdxZoneTbl.tmp.
#include "fuzz_reader.h"
#include "printfiles/zone_tbl_file.h"

TARVIS_FUZZ_READER(tarvis::ReadZoneTblFile, "IdxZoneTbl.tmp")
