// Values of every origin at once (Outlook, the host's rows and keys, the user's id, the stored parameters):
// no statement that the component sends says anything else because of them.
#include "automation/Text.h"
#include "config/outlook/OutlookFolders.h"
#include "config/store/ChosenFolders.h"
#include "config/store/ParameterStore.h"
#include "config/store/Translation.h"
#include "config/store/UserRows.h"
#include "tests/hostile/HostileItem.h"
#include "tests/hostile/HostileValues.h"
#include "tests/hostile/NoMessageBoxes.h"
#include "tests/hostile/StatementShape.h"
#include "tests/support/FakeHost.h"
#include "tests/support/OfficeFixture.h"
#include "tests/support/TestedKind.h"
#include "tests/support/Thoroughness.h"

namespace
{

using namespace test_support;
using automation::Recordset;

class EveryOrigin : public OfficeFixture
{
  protected:
    EveryOrigin() { state::Shared().gDTC = RecordStatements(automation::Object(mHost.Get()), mStatements); }

    // One row with this text in every column, which each recordset of the host holds.
    void AnswerWith(const std::wstring& text, const std::vector<std::wstring>& columns)
    {
        mHost->Rows = {};
        for (const std::wstring& column : columns)
        {
            mHost->Rows.columns.push_back({column});
        }
        mHost->Rows.rows.emplace_back(columns.size(), Value(text));
    }

    // Writes an item over a row whose columns all hold the text, and as a new row.
    void Import(const TestedKind& kind, const std::wstring& text, const ItemValues& item)
    {
        for (const bool isNew : {true, false})
        {
            exchange::Run run{.Display = Display};
            run.HostRows = Recordset(sandbox::MakeRecordset(
                {{{L"F_CNTCTID"}, {L"F_ACTID"}, {L"ACC_SNAME"}}, {{text, text, text}}}));
            run.Items = MakeItemsOf(MakeHostileItem(item));
            run.Pending.ChangedHostRecords.Add(1, isNew ? 1 : 0);
            run.Pending.ChangedOutlookItems.Add(L"1", isNew ? 1 : 0);
            if (isNew)
            {
                run.Pending.NewOutlookItems.Add(L"1", 0);
            }
            EXPECT_FALSE(kind.tested.FromOutlook(run));
        }
    }

    // Everything that a run sends, with the text as every value that is a text.
    std::vector<std::wstring> ShapesOfRuns(const std::wstring& text)
    {
        StartWith(text);
        for (const bool isKnown : {true, false}) // whether the host finds what it is asked for
        {
            AnswerWith(text, {L"F_ACCID", L"F_CNTCTID", L"F_AITID", L"M_ADDR_ID"});
            mHost->RowsOf[L"TBLSYSINFO"] = mHost->Rows;
            if (!isKnown)
            {
                mHost->Rows.rows.clear();
            }
            Import(kContactKind, text,
                   {{L"LastName", text},
                    {L"FirstName", text},
                    {L"CompanyName", text},
                    {L"NickName", text},
                    {L"BusinessAddressCity", text}});
            Import(kContactKind, text,
                   {{L"LastName", text}, {L"FirstName", text}, {L"CompanyName", text + L" & Sons"}});
            Import(kTaskKind, text, {{L"Subject", text}, {L"Companies", text}, {L"ContactNames", text}});
            Import(kCalendarKind, text, {{L"Subject", text}, {L"Companies", text}});
        }
        OpenRows(calendar::kCalendar);
        return ShapesOf(mStatements);
    }

    // Everything that the parameter store sends.
    std::vector<std::wstring> ShapesOfParameters(const std::wstring& text)
    {
        StartWith(text);
        AnswerWith(text, {L"TransObjectID", L"TransObject", L"TransObjectPic", L"TransType", L"TransTypePic",
                          L"TransConflictOption", L"TransSourceConfig", L"TransSource", L"CalendarTransItem",
                          L"CalendarPrior", L"CalendarAfter", L"TaskTransItem", L"TransNameEnglish",
                          L"TransNameChinese", L"IsTrans", L"OutlookFolder", L"IsDefault"});
        mHost->Rows.rows[0][14] = mHost->Rows.rows[0][16] = true;
        config::CreateDefaultParameters();
        state::SynParameter record;
        config::SetSynParamenter(record, text);
        config::LoadDefaultFolder(record, L"Contact");
        config::PurgeMissingFolders();
        config::StoreChosenFolders(*exchange::FindKindName(L"Task"), {{text, true}, {L"A" + text, false}});
        config::LoadChosenFolders(*exchange::FindKindName(L"Task"));
        config::Translation row;
        row.TransObject = row.TransTypePic = text;
        config::UpdateUserRows(config::TranslationSetClause(row), config::kParameterTable, L"");
        config::LoadTranslations();
        return ShapesOf(mStatements);
    }

    void StartWith(const std::wstring& text)
    {
        mStatements.clear();
        mHost->UserId = text;
        mHost->KeyStem = text;
    }

    // Holds the shapes of hostile texts against those of a plain one.
    template<typename Shapes>
    void Compare(const char* name, long count, size_t least, Shapes&& shapes)
    {
        HostileValues values(name);
        const auto expected = shapes(L"Miller");
        EXPECT_GE(expected.size(), least);
        for (long i = 0; i < count && !HasFailure(); ++i)
        {
            // Not empty, whatever it is trimmed to, and not the mark for "no column".
            const std::wstring text = L"a" + values.Text() + L"b";
            SCOPED_TRACE(automation::ToUtf8(text));
            EXPECT_EQ(expected, shapes(text));
        }
        values.Report(std::to_string(expected.size()) + " statements each");
    }

    Microsoft::WRL::ComPtr<FakeHost> mHost{new FakeHost};
    Statements mStatements;
    NoMessageBoxes mBoxes;
};

TEST_F(EveryOrigin, NoValueChangesTheStatementsOfARun)
{
    Compare("every origin, runs", Times(100), 40,
            [&](const std::wstring& text) { return ShapesOfRuns(text); });
}

TEST_F(EveryOrigin, NoValueChangesTheStatementsOfTheParameterStore)
{
    Compare("every origin, parameters", Times(200), 12,
            [&](const std::wstring& text) { return ShapesOfParameters(text); });
}

TEST(StatementShape, LeavesOutTheValuesAndNothingElse)
{
    EXPECT_EQ(L"F_A=?,F_B=?,F_C=?", ShapeOf(L"F_A='it''s, = x',F_B=NULL,F_C=-1.5"));
    EXPECT_EQ(L"?, ?,?", ShapeOf(L"'a', 7,''"));
    EXPECT_EQ(L"SELECT F_A\r\nFROM T\r\nWHERE F_X+F_Y= ?",
              ShapeOf(L"SELECT F_A\r\nFROM T\r\nWHERE F_X+F_Y= 'x'"));
    EXPECT_EQ(L"F_UID=? And F_B=?", ShapeOf(L"F_UID=7 And F_B='x'"));
    EXPECT_NE(ShapeOf(L"F_UID=7"), ShapeOf(L"F_UID=F_UID"));
    EXPECT_NE(ShapeOf(L"F_A='x'"), ShapeOf(L"F_A='x' OR '1'='1'"));
    EXPECT_EQ(L"F_A=?Brien(open)", ShapeOf(L"F_A='O'Brien'"));
}

} // namespace
