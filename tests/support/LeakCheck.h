// Counters that must read zero after every test: a program of tests registers what it counts (a namespace
// scope LeakCheck object), and each test that leaves something behind fails by itself.
#pragma once

#include <functional>
#include <string>

namespace test_support
{

class LeakCheck
{
  public:
    // what: what is counted, in the plural, for example "fake objects".
    LeakCheck(std::string what, std::function<long()> count);
};

// Called once by the main function.
void ListenForLeaks();

} // namespace test_support
