#include "sandbox/outlook/Filter.h"

#include "sandbox/outlook/Failures.h"
#include "sandbox/outlook/PropertyValues.h"

#include <cwchar>
#include <string_view>

namespace sandbox::outlook
{

namespace
{

struct Operator
{
    const wchar_t* text;
    bool less;
    bool equal;
    bool greater;
};

// Longer ones first: "<" begins some of them.
constexpr Operator kOperators[] = {
    {L"<=", true, true, false}, {L">=", false, true, true}, {L"<>", true, false, true},
    {L"<", true, false, false}, {L">", false, false, true}, {L"=", false, true, false},
};

// Negative, 0 or positive; texts without regard to case.
int CompareTexts(const Value& left, const Value& right)
{
    const BSTR a = left.Raw().bstrVal;
    const BSTR b = right.Raw().bstrVal;
    return CompareStringOrdinal(a, static_cast<int>(SysStringLen(a)), b, static_cast<int>(SysStringLen(b)),
                                TRUE) -
           CSTR_EQUAL;
}

int CompareValues(const Value& left, const Value& right)
{
    switch (right.Type())
    {
    case VT_BSTR: return CompareTexts(left, right);
    case VT_I4: return left.Raw().lVal < right.Raw().lVal ? -1 : left.Raw().lVal > right.Raw().lVal;
    case VT_DATE: return left.Raw().date < right.Raw().date ? -1 : left.Raw().date > right.Raw().date;
    default: return (left.Raw().boolVal != VARIANT_FALSE) - (right.Raw().boolVal != VARIANT_FALSE);
    }
}

class Comparison : public Condition
{
  public:
    Comparison(PropertyId id, const Operator& operation, Value value)
        : mId(id), mOperation(operation), mValue(std::move(value))
    {
    }

    bool Holds(const ItemDraft& item) const override
    {
        Value scratch;
        const int order = CompareValues(item.Peek(mId, scratch), mValue);
        return order < 0 ? mOperation.less : order > 0 ? mOperation.greater : mOperation.equal;
    }

  private:
    PropertyId mId;
    const Operator& mOperation;
    Value mValue;
};

class Joined : public Condition
{
  public:
    Joined(ConditionRef left, ConditionRef right, bool both)
        : mLeft(std::move(left)), mRight(std::move(right)), mBoth(both)
    {
    }

    bool Holds(const ItemDraft& item) const override
    {
        return mLeft->Holds(item) == mBoth ? mRight->Holds(item) : !mBoth;
    }

  private:
    ConditionRef mLeft;
    ConditionRef mRight;
    bool mBoth;
};

class Negated : public Condition
{
  public:
    explicit Negated(ConditionRef condition) : mCondition(std::move(condition)) {}

    bool Holds(const ItemDraft& item) const override { return !mCondition->Holds(item); }

  private:
    ConditionRef mCondition;
};

class Parser
{
  public:
    explicit Parser(const std::wstring& text) : mRest(text) {}

    ConditionRef Whole()
    {
        ConditionRef condition = Alternatives();
        SkipBlanks();
        if (!mRest.empty())
        {
            FailCondition(mRest);
        }
        return condition;
    }

  private:
    ConditionRef Alternatives()
    {
        ConditionRef condition = Conjunction();
        while (TakeWord(L"or"))
        {
            condition = std::make_shared<Joined>(condition, Conjunction(), false);
        }
        return condition;
    }

    ConditionRef Conjunction()
    {
        ConditionRef condition = Single();
        while (TakeWord(L"and"))
        {
            condition = std::make_shared<Joined>(condition, Single(), true);
        }
        return condition;
    }

    ConditionRef Single()
    {
        if (TakeWord(L"not"))
        {
            return std::make_shared<Negated>(Single());
        }
        if (Take(L"("))
        {
            ConditionRef condition = Alternatives();
            Demand(L")");
            return condition;
        }
        const Property& property = PropertyName();
        const Operator& operation = Operation();
        return std::make_shared<Comparison>(property.id, operation, Operand(property));
    }

    const Property& PropertyName()
    {
        Demand(L"[");
        const std::wstring_view name = UpTo(L']');
        if (IsUnfiltered(name))
        {
            FailUnfiltered(name);
        }
        for (const auto kind : {ItemKind::Contact, ItemKind::Task, ItemKind::Appointment, ItemKind::Mail})
        {
            const auto id = FindProperty(kind, name);
            if (id && !IsOfPattern(*id))
            {
                return PropertyOf(*id);
            }
        }
        FailInvalid(L"filter", L"The property \"" + std::wstring(name) + L"\" is unknown.");
    }

    const Operator& Operation()
    {
        for (const Operator& operation : kOperators)
        {
            if (Take(operation.text))
            {
                return operation;
            }
        }
        FailCondition(mRest);
    }

    Value Operand(const Property& property)
    {
        SkipBlanks();
        const std::wstring_view before = mRest;
        const std::wstring text = Literal();
        try
        {
            // A condition may name numbers that the property could not hold.
            const Property unbounded{property.id, property.name, property.type, property.kinds};
            return Converted(unbounded, text);
        }
        catch (const automation::Error&)
        {
            FailCondition(before);
        }
    }

    std::wstring Literal()
    {
        for (const wchar_t quote : {L'"', L'\''})
        {
            if (mRest.starts_with(quote))
            {
                mRest.remove_prefix(1);
                return Quoted(quote);
            }
        }
        const std::wstring_view bare = mRest.substr(0, mRest.find_first_of(L" )\"'[]"));
        if (bare.empty())
        {
            FailCondition(mRest);
        }
        mRest.remove_prefix(bare.size());
        return std::wstring(bare);
    }

    // "If the string contains a double quote, then add a double quote as an escape character before the
    // double quote"; the same for single quotes (Items.Find method).
    std::wstring Quoted(wchar_t quote)
    {
        std::wstring text(UpTo(quote));
        while (mRest.starts_with(quote))
        {
            mRest.remove_prefix(1);
            text += quote;
            text += UpTo(quote);
        }
        return text;
    }

    // What stands before the closing character, which is taken as well.
    std::wstring_view UpTo(wchar_t closing)
    {
        const size_t end = mRest.find(closing);
        if (end == std::wstring_view::npos)
        {
            FailCondition(mRest);
        }
        const std::wstring_view taken = mRest.substr(0, end);
        mRest.remove_prefix(end + 1);
        return taken;
    }

    void SkipBlanks() { mRest.remove_prefix(std::min(mRest.find_first_not_of(L' '), mRest.size())); }

    bool Take(std::wstring_view text)
    {
        SkipBlanks();
        const bool isThere = mRest.starts_with(text);
        mRest.remove_prefix(isThere ? text.size() : 0);
        return isThere;
    }

    bool TakeWord(std::wstring_view word)
    {
        SkipBlanks();
        const bool isThere = mRest.size() > word.size() &&
                             _wcsnicmp(mRest.data(), word.data(), word.size()) == 0 &&
                             std::wstring_view(L" [(").find(mRest[word.size()]) != std::wstring_view::npos;
        mRest.remove_prefix(isThere ? word.size() : 0);
        return isThere;
    }

    void Demand(std::wstring_view text)
    {
        if (!Take(text))
        {
            FailCondition(mRest);
        }
    }

    std::wstring_view mRest;
};

} // namespace

ConditionRef ParsedFilter(const std::wstring& filter)
{
    return Parser(filter).Whole();
}

} // namespace sandbox::outlook
