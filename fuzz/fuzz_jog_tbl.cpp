// Fuzzes the reader of IdxJogTbl.tmp.
#include "fuzz_reader.h"
#include "printfiles/jog_tbl_file.h"

TARVIS_FUZZ_READER(tarvis::ReadJogTblFile, "IdxJogTbl.tmp")
