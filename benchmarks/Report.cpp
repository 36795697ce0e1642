#include "benchmarks/Report.h"

#include "automation/Text.h"

#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace benchmarks
{

namespace
{

std::string Line(const std::vector<std::string>& cells, const std::vector<size_t>& widths)
{
    std::string line;
    for (size_t i = 0; i < widths.size(); ++i)
    {
        const std::string cell = i < cells.size() ? cells[i] : std::string();
        line += "| " + cell + std::string(widths[i] - cell.size() + 1, ' ');
    }
    return line + "|\n";
}

} // namespace

std::string Table::Markdown() const
{
    std::vector<size_t> widths(mLines.front().size(), 3);
    for (const auto& cells : mLines)
    {
        for (size_t i = 0; i < cells.size(); ++i)
        {
            widths[i] = std::max(widths[i], cells[i].size());
        }
    }
    std::string text;
    for (const auto& cells : mLines)
    {
        text += Line(cells, widths);
        if (&cells == &mLines.front())
        {
            for (const size_t width : widths)
            {
                text += "|" + std::string(width + 2, '-');
            }
            text += "|\n";
        }
    }
    return text;
}

Report::File::File(const std::string& path) : Stream(std::fopen(path.c_str(), "wb"))
{
    if (Stream == nullptr)
    {
        throw std::runtime_error("cannot write " + path);
    }
}

Report::File::~File()
{
    std::fclose(Stream);
}

Report::Report(const std::string& csvFile, const std::string& markdownFile)
    : mCsv(csvFile), mMarkdown(markdownFile)
{
    std::fputs("part,place,kind,direction,records,figure,value\n", mCsv.Stream);
}

void Report::Figure(const Case& of, const std::string& name, double value)
{
    std::fprintf(mCsv.Stream, "%s,%s,%s,%s,%zu,%s,%.9g\n", of.Part.c_str(), of.Place.c_str(), of.Kind.c_str(),
                 of.Direction.c_str(), of.Records, name.c_str(), value);
    std::fflush(mCsv.Stream);
}

void Report::Figures(const Case& of, const std::string& prefix, const Traffic& traffic)
{
    for (const auto& [member, count] : traffic.Calls)
    {
        Figure(of, prefix + "calls " + automation::ToUtf8(member), static_cast<double>(count));
    }
    for (const auto& [member, count] : traffic.Lookups)
    {
        Figure(of, prefix + "lookups " + automation::ToUtf8(member), static_cast<double>(count));
    }
}

void Report::Print(const std::string& markdown)
{
    for (std::FILE* const stream : {stdout, mMarkdown.Stream})
    {
        std::fputs((markdown + "\n").c_str(), stream);
        std::fflush(stream);
    }
}

void Report::Print(const std::string& title, const Table& table)
{
    Print("### " + title + "\n\n" + table.Markdown());
}

void Report::Progress(const std::string& text)
{
    std::fprintf(stderr, "... %s\n", text.c_str());
}

std::string Text(double value, int decimals)
{
    if (!std::isfinite(value))
    {
        return "-";
    }
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

std::string Text(size_t value)
{
    std::string text = std::to_string(value);
    for (size_t at = text.size(); at > 3; at -= 3)
    {
        text.insert(at - 3, ",");
    }
    return text;
}

} // namespace benchmarks
