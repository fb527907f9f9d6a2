// Fuzzes the reader of IdxIdxTbl.tmp.
#include "fuzz_reader.h"
#include "printfiles/idx_tbl_file.h"

TARVIS_FUZZ_READER(tarvis::ReadIdxTblFile, "IdxIdxTbl.tmp")
