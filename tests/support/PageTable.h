// Tables of the documentation, for tests that hold a page against what the component does.
#pragma once

#include <string>
#include <vector>

namespace test_support
{

using PageCells = std::vector<std::string>;

// The rows of the table of a page in docs whose first column has this heading; cells without the blanks
// around them. Fails the test where the page cannot be read.
std::vector<PageCells> TableOfPage(const std::string& page, const std::string& heading);

} // namespace test_support
