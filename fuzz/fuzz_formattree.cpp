#include "LibFuzzerMain.h"

ORLIMO_FUZZ_MAIN(Fuzz::FormatTree)
