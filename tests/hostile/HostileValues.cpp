#include "tests/hostile/HostileValues.h"

#include "automation/Dates.h"
#include "automation/Object.h"
#include "tests/hostile/Pieces.h"
#include "tests/support/Thoroughness.h"

#include <cstdlib>
#include <iterator>
#include <limits>

namespace test_support
{

namespace
{

uint32_t SeedOf(const std::string& name)
{
    uint32_t seed = 2166136261u;
    for (const char c : name)
    {
        seed = (seed ^ static_cast<unsigned char>(c)) * 16777619u;
    }
    const char* const given = std::getenv("TELVIX_SEED");
    return given == nullptr ? seed : static_cast<uint32_t>(std::strtoul(given, nullptr, 10));
}

Value Raw(VARTYPE type, void (*fill)(VARIANT& variant, std::mt19937& engine), std::mt19937& engine)
{
    VARIANT variant{};
    variant.vt = type;
    fill(variant, engine);
    Value value;
    *value.Receive() = variant;
    return value;
}

double Extreme(std::mt19937& engine)
{
    constexpr double kExtremes[] = {
        std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN(), 1.7e308, std::numeric_limits<double>::denorm_min()};
    return kExtremes[engine() % std::size(kExtremes)];
}

struct TypeRow
{
    VARTYPE type;
    void (*fill)(VARIANT& variant, std::mt19937& engine);
};

// What does not come by itself: every other type that a variant can have.
constexpr TypeRow kTypes[] = {
    {VT_I1, [](VARIANT& v, std::mt19937& e) { v.cVal = static_cast<char>(e()); }},
    {VT_UI1, [](VARIANT& v, std::mt19937& e) { v.bVal = static_cast<BYTE>(e()); }},
    {VT_UI2, [](VARIANT& v, std::mt19937& e) { v.uiVal = static_cast<USHORT>(e()); }},
    {VT_UI4, [](VARIANT& v, std::mt19937& e) { v.ulVal = e(); }},
    {VT_INT, [](VARIANT& v, std::mt19937& e) { v.intVal = static_cast<int>(e()); }},
    {VT_UINT, [](VARIANT& v, std::mt19937& e) { v.uintVal = e(); }},
    {VT_I8, [](VARIANT& v, std::mt19937& e) { v.llVal = static_cast<LONGLONG>(uint64_t{e()} << 32 | e()); }},
    {VT_UI8, [](VARIANT& v, std::mt19937& e) { v.ullVal = uint64_t{e()} << 32 | e(); }},
    {VT_CY,
     [](VARIANT& v, std::mt19937& e) { v.cyVal.int64 = static_cast<LONGLONG>(uint64_t{e()} << 31 | e()); }},
    {VT_R4, [](VARIANT& v, std::mt19937& e) { v.fltVal = static_cast<float>(e()) / 7; }},
    {VT_R8, [](VARIANT& v, std::mt19937& e) { v.dblVal = Extreme(e); }},
    {VT_DATE, [](VARIANT& v, std::mt19937& e) { v.date = Extreme(e); }},
    {VT_BOOL, [](VARIANT& v, std::mt19937& e) { v.boolVal = static_cast<VARIANT_BOOL>(e()); }},
    {VT_ERROR, [](VARIANT& v, std::mt19937& e) { v.scode = static_cast<SCODE>(e()); }},
    {VT_BSTR, [](VARIANT& v, std::mt19937&) { v.bstrVal = nullptr; }},
    {VT_DISPATCH, [](VARIANT& v, std::mt19937&) { v.pdispVal = nullptr; }},
    {VT_UNKNOWN, [](VARIANT& v, std::mt19937&) { v.punkVal = nullptr; }},
    {VT_ARRAY | VT_UI1, [](VARIANT& v, std::mt19937&) { v.parray = SafeArrayCreateVector(VT_UI1, 0, 3); }},
    {VT_ARRAY | VT_BSTR, [](VARIANT& v, std::mt19937&) { v.parray = SafeArrayCreateVector(VT_BSTR, 0, 2); }},
};

} // namespace

HostileValues::HostileValues(std::string name) : mName(std::move(name)), mSeed(SeedOf(mName)), mEngine(mSeed)
{
}

HostileValues::~HostileValues()
{
    ReportFigure("hostile values, " + mName + ": " + std::to_string(mCount) + mReport + " (seed " +
                 std::to_string(mSeed) + ")");
}

std::wstring HostileValues::Piece()
{
    return std::wstring(kPieces[Below(std::size(kPieces))]);
}

std::wstring HostileValues::Pieces()
{
    std::wstring text;
    for (size_t count = Below(8); count > 0; --count)
    {
        text += Piece();
    }
    return text;
}

// Plain letters up to a little before or behind the end, and the mischief there.
std::wstring HostileValues::AboutAsLongAs(size_t size)
{
    const size_t filler = size + 3 - std::min<size_t>(size + 3, Below(9));
    const std::wstring letters(filler, OneIn(4) ? L'\u738b' : L'x');
    return OneIn(2) ? letters + Pieces() : Pieces() + letters + Piece();
}

std::wstring HostileValues::Text(size_t size)
{
    ++mCount;
    switch (Below(12))
    {
    case 0:
    case 1: return AboutAsLongAs(size);
    case 2: return std::wstring(Below(2 * size + 2), Piece().front());
    case 3: return OneIn(20) ? std::wstring(5000 + Below(3000), Piece().front()) + Pieces() : Piece();
    case 4: return OneIn(3) ? std::wstring() : kTextsOfValues[Below(std::size(kTextsOfValues))];
    default: return Pieces();
    }
}

std::wstring HostileValues::StorableText(size_t size)
{
    std::wstring text = Text(size);
    std::erase_if(
        text, [](wchar_t c) { return c == L'\0' || IS_SURROGATE_PAIR(c, 0xDC00) || IS_LOW_SURROGATE(c); });
    return text.substr(0, size);
}

Value HostileValues::Date()
{
    ++mCount;
    const double base = kDates[Below(std::size(kDates))];
    const double drift = OneIn(2) ? 0 : static_cast<double>(Below(size_t{86400} * 3)) / 86400 - 1.5;
    return automation::Date{base + drift};
}

Value HostileValues::Number()
{
    ++mCount;
    const double number = kNumbers[Below(std::size(kNumbers))];
    switch (Below(4))
    {
    case 0: return static_cast<long>(mEngine());
    case 1: return static_cast<short>(mEngine());
    case 2: return OneIn(2);
    default: return number;
    }
}

Value HostileValues::Any(size_t size)
{
    switch (Below(20))
    {
    case 0: return Date();
    case 1: return Number();
    case 2: {
        ++mCount;
        return OneIn(2) ? Value() : Value::Null();
    }
    case 3: {
        ++mCount;
        const TypeRow& row = kTypes[Below(std::size(kTypes))];
        return Raw(row.type, row.fill, mEngine);
    }
    case 4: return OneIn(4) ? Value(automation::Object()) : Date();
    default: return Text(size);
    }
}

} // namespace test_support
