#include "tests/support/Fakes.h"
#include "tests/support/Interceptor.h"

namespace
{

const test_support::LeakCheck kIntercepted{"intercepted objects", &test_support::InterceptedObjects};

} // namespace
