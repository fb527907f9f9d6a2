// Fuzzes the reader of UPWizard.tmp.
#include "fuzz_reader.h"
#include "printfiles/upwizard_file.h"

TARVIS_FUZZ_READER(tarvis::ReadUPWizardFile, "UPWizard.tmp")
