#include "tests/support/Fakes.h"
