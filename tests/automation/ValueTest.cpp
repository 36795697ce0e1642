#include "automation/Value.h"

#include "automation/Dates.h"
#include "automation/Error.h"
#include "automation/Object.h"
#include "tests/automation/ScriptedObject.h"
#include "tests/automation/WithThreadLocale.h"

#include <gtest/gtest.h>

namespace
{

using namespace automation;
using test_support::CodeOf;
using test_support::ScriptedObject;

const Date kMoment = DateOf(Moment{2003, 5, 6, 7, 8, 9});

// Every test of coercions runs under regional settings that write numbers and dates differently.
class Coercions : public testing::TestWithParam<LCID>
{
  private:
    test_support::WithThreadLocale mLocale{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(UnderRegionalSettings, Coercions,
                         testing::Values(LOCALE_INVARIANT, test_support::kGerman, test_support::kTurkish));

TEST_P(Coercions, NumbersBecomeTextWithAPoint)
{
    EXPECT_EQ(L"2.5", TextOf(2.5));
    EXPECT_EQ(L"-12", TextOf(-12L));
    EXPECT_EQ(L"1000000", TextOf(1e6));
}

TEST_P(Coercions, TruthValuesBecomeEnglishWords)
{
    EXPECT_EQ(L"True", TextOf(true));
    EXPECT_EQ(L"False", TextOf(false));
}

TEST_P(Coercions, DatesBecomeTextInTheFixedLocalesOrder)
{
    EXPECT_EQ(L"5/6/2003 7:08:09 AM", TextOf(kMoment));
}

TEST_P(Coercions, TextBecomesANumberByItsPoint)
{
    EXPECT_EQ(2.5, DoubleOf(L"2.5"));
    EXPECT_EQ(2, LongOf(L"2"));
    EXPECT_EQ(-7, ShortOf(L" -7 "));
}

TEST_P(Coercions, TextBecomesADateMonthFirstOrInTheNeutralForm)
{
    EXPECT_EQ(DateOf(Moment{2003, 5, 6}), DateOf(L"05/06/2003"));
    EXPECT_EQ(DateOf(Moment{2003, 5, 6}), DateOf(L"2003-05-06"));
    EXPECT_EQ(kMoment, DateOf(L"2003/05/06 07:08:09"));
}

TEST_P(Coercions, TextBecomesATruthValue)
{
    EXPECT_TRUE(TruthOf(L"True"));
    EXPECT_FALSE(TruthOf(L"false"));
    EXPECT_TRUE(TruthOf(L"-1"));
    EXPECT_FALSE(TruthOf(L"0"));
}

TEST_P(Coercions, ADateAndItsNumberAreTheSame)
{
    EXPECT_EQ(Date{37747.5}, DateOf(37747.5));
    EXPECT_EQ(37747.5, DoubleOf(Date{37747.5}));
}

TEST(Value, NumbersAreRoundedToTheEvenNeighbourAsAutomationDoes)
{
    EXPECT_EQ(2, LongOf(2.5));
    EXPECT_EQ(4, LongOf(3.5));
    EXPECT_EQ(-2, LongOf(-2.5));
}

TEST(Value, EveryNumberButZeroIsTrueAndTrueIsMinusOne)
{
    EXPECT_TRUE(TruthOf(2L));
    EXPECT_TRUE(TruthOf(-1L));
    EXPECT_FALSE(TruthOf(0.0));
    EXPECT_EQ(-1, LongOf(true));
}

TEST(Value, EmptyIsTheEmptyTextZeroFalseAndTheZeroDate)
{
    EXPECT_EQ(L"", TextOf(Value()));
    EXPECT_EQ(0, LongOf(Value()));
    EXPECT_EQ(0, ShortOf(Value()));
    EXPECT_EQ(0, DoubleOf(Value()));
    EXPECT_FALSE(TruthOf(Value()));
    EXPECT_EQ(kZeroDate, DateOf(Value()));
    EXPECT_FALSE(ObjectOf(Value()));
}

TEST(Value, NullIsRefusedByEveryCoercionButTextOrEmptyAndTheObject)
{
    const Value null = Value::Null();
    EXPECT_EQ(DISP_E_TYPEMISMATCH, CodeOf([&] { TextOf(null); }));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, CodeOf([&] { LongOf(null); }));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, CodeOf([&] { ShortOf(null); }));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, CodeOf([&] { DoubleOf(null); }));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, CodeOf([&] { TruthOf(null); }));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, CodeOf([&] { DateOf(null); }));
    EXPECT_EQ(L"", TextOrEmpty(null));
    EXPECT_FALSE(ObjectOf(null));
}

TEST(Value, AValueOutOfRangeIsRefused)
{
    EXPECT_EQ(DISP_E_OVERFLOW, CodeOf([] { LongOf(1e12); }));
    EXPECT_EQ(DISP_E_OVERFLOW, CodeOf([] { ShortOf(40000L); }));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, CodeOf([] { LongOf(L"days"); }));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, CodeOf([] { DateOf(L"never"); }));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, CodeOf([] { ObjectOf(L"text"); }));
}

TEST(Value, OnlyEmptyAndNullAreNoValueAndOnlyMissingIsMissing)
{
    EXPECT_TRUE(IsEmptyOrNull(Value()));
    EXPECT_TRUE(IsEmptyOrNull(Value::Null()));
    EXPECT_FALSE(IsEmptyOrNull(L""));
    EXPECT_FALSE(IsEmptyOrNull(0L));
    EXPECT_TRUE(IsMissing(Value::Missing()));
    EXPECT_FALSE(IsMissing(Value()));
    EXPECT_FALSE(IsEmptyOrNull(Value::Missing()));
}

TEST(Value, ATextKeepsItsEmbeddedNulAndItsLastCharacter)
{
    const std::wstring text(L"a\0b\U0001F600", 5);
    EXPECT_EQ(text, TextOf(Value(text)));
}

TEST(Value, AByReferenceVariantIsCopiedWithItsTarget)
{
    LONG number = 7;
    VARIANT inner;
    VariantInit(&inner);
    inner.vt = VT_BYREF | VT_I4;
    inner.plVal = &number;
    EXPECT_EQ(VT_I4, Value(inner).Type());
    EXPECT_EQ(7, LongOf(Value(inner)));

    Value text(L"held");
    VARIANT outer;
    VariantInit(&outer);
    outer.vt = VT_BYREF | VT_VARIANT;
    outer.pvarVal = const_cast<VARIANT*>(&text.Raw());
    const Value copy(outer);
    text = Value();
    EXPECT_EQ(L"held", TextOf(copy));
}

TEST(Value, ACopyIsIndependentAndAMovedOneIsEmpty)
{
    Value first(L"text");
    const Value copy = first;
    EXPECT_NE(copy.Raw().bstrVal, first.Raw().bstrVal);
    const Value moved = std::move(first);
    EXPECT_EQ(L"text", TextOf(copy));
    EXPECT_EQ(L"text", TextOf(moved));
    EXPECT_EQ(VT_EMPTY, first.Type()); // NOLINT(bugprone-use-after-move): tests the moved one
    first = copy;
    EXPECT_EQ(L"text", TextOf(first));
}

TEST(Value, GivenAwayItIsEmptyAndTheTakerClears)
{
    Value value(L"text");
    VARIANT taken = value.Detach();
    EXPECT_EQ(VT_EMPTY, value.Type());
    EXPECT_EQ(VT_BSTR, taken.vt);
    VariantClear(&taken);
}

TEST(Value, ReceiveReleasesTheFormerValue)
{
    ScriptedObject object;
    Value value{Object(&object)};
    EXPECT_EQ(1, object.References());
    EXPECT_EQ(VT_EMPTY, value.Receive()->vt);
    EXPECT_EQ(0, object.References());
}

TEST(Value, HoldsAReferenceToAnObject)
{
    ScriptedObject object;
    {
        const Value value{Object(&object)};
        const Value copy = value; // NOLINT(performance-unnecessary-copy-initialization): tests the copy
        EXPECT_EQ(2, object.References());
        EXPECT_EQ(&object, ObjectOf(copy).Dispatch());
    }
    EXPECT_EQ(0, object.References());
    EXPECT_EQ(VT_DISPATCH, Value(Object()).Type());
    EXPECT_FALSE(ObjectOf(Value(Object())));
}

TEST(Value, BytesGoThereAndBackAndNothingElseIsBytes)
{
    const std::vector<BYTE> bytes = {0, 255, 7};
    EXPECT_EQ(bytes, BytesOf(Value(bytes)));
    EXPECT_EQ(std::vector<BYTE>(), BytesOf(Value(std::vector<BYTE>())));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, CodeOf([] { BytesOf(L"text"); }));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, CodeOf([] { BytesOf(Value()); }));
}

} // namespace
