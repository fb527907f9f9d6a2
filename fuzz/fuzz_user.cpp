// Fuzzes the reader of User.tmp.
#include "fuzz_reader.h"
#include "printfiles/user_file.h"

TARVIS_FUZZ_READER(tarvis::ReadUserFile, "User.tmp")
