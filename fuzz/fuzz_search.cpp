#include "LibFuzzerMain.h"

ORLIMO_FUZZ_MAIN(Fuzz::Search)
