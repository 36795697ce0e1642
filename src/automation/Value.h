// An automation value: a VARIANT that owns what it holds. Everything read from or handed to an automation
// object travels as a Value; the functions below read one with OLE Automation's own coercions, in a fixed
// locale (English, United States), so that no result depends on the machine's regional settings.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <windows.h>

#include <oaidl.h>

namespace automation
{

class Object;

// An automation date: days since 1899-12-30, the fraction is the time of day (OLE Automation's DATE).
struct Date
{
    double days = 0;

    // NOLINTNEXTLINE(modernize-use-nullptr): clang-tidy 14 takes the comparison's own 0 for a pointer
    auto operator<=>(const Date&) const = default;
};

class Value
{
  public:
    Value() noexcept { VariantInit(&mVariant); } // Empty
    Value(const wchar_t* text);
    Value(std::wstring_view text);
    Value(const std::wstring& text) : Value(std::wstring_view(text)) {}
    Value(bool truth) noexcept;
    Value(short number) noexcept;
    Value(int number) noexcept : Value(static_cast<long>(number)) {}
    Value(long number) noexcept;
    Value(double number) noexcept;
    Value(Date date) noexcept;
    Value(const Object& object) noexcept;
    // A copy of a VARIANT; of a by-reference one, a copy of the value that it refers to.
    explicit Value(const VARIANT& variant);
    // A one-dimensional array of bytes.
    explicit Value(const std::vector<BYTE>& bytes);

    static Value Null() noexcept;
    // The value that an automation client passes for an omitted argument.
    static Value Missing() noexcept;

    Value(const Value& other);
    Value(Value&& other) noexcept;
    Value& operator=(Value other) noexcept;
    ~Value() { VariantClear(&mVariant); }

    VARTYPE Type() const noexcept { return mVariant.vt; }
    const VARIANT& Raw() const noexcept { return mVariant; }
    // Cleared and ready to be filled by a call.
    VARIANT* Receive() noexcept;
    // Gives the VARIANT away, to a caller that will clear it; the value is Empty afterwards.
    VARIANT Detach() noexcept;

  private:
    VARIANT mVariant;
};

bool IsEmptyOrNull(const Value& value);
// The characters of the value as a text; 0 for what is none.
long LengthOf(const Value& value) noexcept;
// Empty, Null or the empty text: no value, wherever a host or Outlook may give any of the three.
bool IsAbsent(const Value& value);
bool IsMissing(const Value& value);

// Coercions. All throw Error (DISP_E_TYPEMISMATCH, DISP_E_OVERFLOW) where OLE Automation refuses; Null is
// refused by each of them, Empty gives "", 0, False and the zero date.
std::wstring TextOf(const Value& value);
long LongOf(const Value& value);
short ShortOf(const Value& value);
double DoubleOf(const Value& value);
bool TruthOf(const Value& value);
Date DateOf(const Value& value);
// The object held; a null object for Empty and Null. Throws where the value is something else.
Object ObjectOf(const Value& value);
// The bytes of an array of bytes; throws where the value is something else.
std::vector<BYTE> BytesOf(const Value& value);

// TextOf, with Null read as the empty text.
std::wstring TextOrEmpty(const Value& value);

} // namespace automation
