#include "tests/support/PageTable.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace test_support
{

namespace
{

std::string WithoutBlanksAround(const std::string& text)
{
    const size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

PageCells CellsOf(const std::string& line)
{
    PageCells cells;
    std::istringstream rest(line.substr(1));
    for (std::string cell; std::getline(rest, cell, '|');)
    {
        cells.push_back(WithoutBlanksAround(cell));
    }
    return cells;
}

} // namespace

std::vector<PageCells> TableOfPage(const std::string& page, const std::string& heading)
{
    std::ifstream file(TELVIX_DOCS "/" + page);
    EXPECT_TRUE(file) << TELVIX_DOCS "/" << page;
    std::vector<PageCells> rows;
    bool isInside = false;
    for (std::string line; std::getline(file, line);)
    {
        if (!line.starts_with("|"))
        {
            isInside = false;
        }
        else if (isInside && !line.starts_with("|---"))
        {
            rows.push_back(CellsOf(line));
        }
        isInside = isInside || line.starts_with("| " + heading + " |");
    }
    return rows;
}

} // namespace test_support
