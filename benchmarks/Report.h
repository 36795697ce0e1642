// What the benchmark says: tables for reading (Markdown, printed as they are done), and every figure in a
// file of comma-separated values, one a line.
#pragma once

#include "benchmarks/Measurement.h"

#include <string>
#include <vector>

namespace benchmarks
{

class Table
{
  public:
    explicit Table(std::vector<std::string> headings) : mLines{std::move(headings)} {}

    void Add(std::vector<std::string> cells) { mLines.push_back(std::move(cells)); }
    std::string Markdown() const;

  private:
    std::vector<std::vector<std::string>> mLines;
};

// What a figure belongs to; empty texts where it does not apply.
struct Case
{
    std::string Part;
    std::string Place;
    std::string Kind;
    std::string Direction;
    size_t Records = 0;
};

class Report
{
  public:
    // Opens the files; throws std::runtime_error when it cannot.
    Report(const std::string& csvFile, const std::string& markdownFile);

    void Figure(const Case& of, const std::string& name, double value);
    // Calls and lookups by target and member.
    void Figures(const Case& of, const std::string& prefix, const Traffic& traffic);
    void Print(const std::string& markdown);
    void Print(const std::string& title, const Table& table);
    // Where the work is, on the error output.
    static void Progress(const std::string& text);

  private:
    struct File
    {
        explicit File(const std::string& path);
        File(const File&) = delete;
        File& operator=(const File&) = delete;
        ~File();
        std::FILE* Stream;
    };

    File mCsv;
    File mMarkdown;
};

std::string Text(double value, int decimals);
std::string Text(size_t value);

} // namespace benchmarks
