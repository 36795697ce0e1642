#include "tests/support/StandIns.h"
