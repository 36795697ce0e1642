// The preview shows the values that the passes then write: random records of each kind, in each direction.
#include "exchange/Preview.h"

#include "automation/Dates.h"
#include "automation/Text.h"
#include "exchange/Identity.h"
#include "state/SharedState.h"
#include "tests/preview/RandomSides.h"

#include <algorithm>
#include <iostream>

namespace
{

using namespace test_support;
using automation::Object;
using automation::Recordset;
using automation::TextOrEmpty;
using automation::Value;
using exchange::Change;
using exchange::Difference;
using exchange::Proposal;
using exchange::RecordPreview;
using exchange::Side;

std::string Shown(const Value& value)
{
    return automation::ToUtf8(TextOrEmpty(value));
}

// What is stored after the run, beside what the preview has shown.
class Comparison
{
  public:
    Comparison(RandomSides& sides, long transType)
        : mSides(sides),
          mTransType(transType),
          mRun(sides.Collect(transType)),
          mProposals(exchange::ProposalsOf(mRun.Pending, transType)),
          mItemsBefore(mSides.Mailbox->ItemCount(sides.Kind.folder)),
          mRowsBefore(mRun.HostRows.RecordCount())
    {
        exchange::Preview preview(sides.Kind.tested, mRun);
        for (const Proposal& proposal : mProposals)
        {
            mPreviews.push_back(preview.Of(proposal));
        }
        EXPECT_EQ(mItemsBefore, mSides.Mailbox->ItemCount(sides.Kind.folder));
    }

    void ApplyAndCompare()
    {
        mSides.Apply(mTransType);
        EXPECT_EQ(L"", mSides.TheHost.LastRejection());
        mSides.ReopenRows();
        for (size_t i = 0; i < mProposals.size(); ++i)
        {
            Compare(mProposals[i], mPreviews[i]);
        }
        // Each record that a preview takes for written is there, and no other one.
        EXPECT_EQ(mItemsBefore + mAddedItems, mSides.Mailbox->ItemCount(mSides.Kind.folder));
        EXPECT_EQ(mRowsBefore + mAddedRows, mRun.HostRows.RecordCount());
    }

    long Records() const { return static_cast<long>(mPreviews.size()); }
    long Fields() const { return mFields; }
    long Different() const { return mDifferent; }

  private:
    void Compare(const Proposal& proposal, const RecordPreview& preview)
    {
        const bool isWritten = preview.IsWritten();
        Object item;
        if (proposal.What == Change::AddToOutlook && isWritten)
        {
            item = mRun.Items.GetObject(L"Item", mItemsBefore + ++mAddedItems);
        }
        else if (proposal.What != Change::AddToOutlook && proposal.What != Change::AddToHost)
        {
            item = exchange::ProposedItem(mRun, mRun.Pending.ChangedOutlookItems.Item(proposal.Place));
            exchange::MoveToProposedRow(mRun, mRun.Pending.ChangedHostRecords.Item(proposal.Place));
        }
        if (proposal.What == Change::AddToHost && isWritten)
        {
            mRun.HostRows.MoveTo(mRowsBefore + ++mAddedRows);
            ExpectCompanyShown(preview);
        }
        for (const Difference& field : preview.Fields)
        {
            Compare(field, field.Where == Side::Outlook ? InItem(item, field.Field) : InRow(field.Field));
        }
    }

    // The account that a new row is linked to.
    void ExpectCompanyShown(const RecordPreview& preview)
    {
        const bool isShown = std::ranges::any_of(preview.Fields, [](const Difference& field) {
            return field.Where == Side::Host &&
                   (field.Property == L"Companies" || field.Property == L"CompanyName");
        });
        const std::string company = Shown(mRun.HostRows.ValueOf(L"ACC_SNAME"));
        EXPECT_TRUE(isShown || company.empty()) << company;
    }

    static Value InItem(const Object& item, const std::wstring& field)
    {
        constexpr std::wstring_view kPattern = L"Recurrence.";
        if (field.starts_with(kPattern))
        {
            return item.GetObject(L"GetRecurrencePattern").Get(field.substr(kPattern.size()).c_str());
        }
        return field == L"Links" ? LinksOf(item) : item.Get(field.c_str());
    }

    static Value LinksOf(const Object& item)
    {
        const Object links = item.GetObject(L"Links");
        std::wstring names;
        for (long place = 1; place <= automation::LongOf(links.Get(L"Count")); ++place)
        {
            names +=
                (place > 1 ? L"; " : L"") + automation::TextOf(links.GetObject(L"Item", place).Get(L"Name"));
        }
        return names;
    }

    Value InRow(const std::wstring& field)
    {
        if (field == L"CONTACT_SURNAME")
        {
            return TextOrEmpty(mRun.HostRows.ValueOf(field)) +
                   TextOrEmpty(mRun.HostRows.ValueOf(L"CONTACT_GIVENNAME"));
        }
        return mRun.HostRows.ValueOf(field.empty() ? L"ACC_SNAME" : field);
    }

    void Compare(const Difference& field, const Value& stored)
    {
        ++mFields;
        if (!exchange::AreSame(field.After, stored))
        {
            ++mDifferent;
            ADD_FAILURE() << automation::ToUtf8(field.Field) << ": shown \"" << Shown(field.After)
                          << "\", stored \"" << Shown(stored) << "\", before \"" << Shown(field.Now) << '"';
        }
    }

    RandomSides& mSides;
    long mTransType;
    exchange::Run& mRun;
    std::vector<Proposal> mProposals;
    std::vector<RecordPreview> mPreviews;
    long mItemsBefore;
    long mRowsBefore;
    long mAddedItems = 0;
    long mAddedRows = 0;
    long mFields = 0;
    long mDifferent = 0;
};

TEST(Preview, ShowsTheValuesThatAreThenStoredFieldByField)
{
    long records = 0;
    long fields = 0;
    long different = 0;
    unsigned seed = 1;
    for (const RandomKind* const kind : {&kRandomContacts, &kRandomTasks, &kRandomCalendar})
    {
        for (const long transType : {1L, 2L, 3L})
        {
            SCOPED_TRACE(automation::ToUtf8(kind->tested.Name.TransObject) + " " + std::to_string(transType));
            RandomSides sides(*kind, seed++);
            sides.Add(60, 60, 60);
            Comparison comparison(sides, transType);
            comparison.ApplyAndCompare();
            records += comparison.Records();
            fields += comparison.Fields();
            different += comparison.Different();
        }
    }
    EXPECT_GE(records, 1000);
    EXPECT_GT(fields, 10 * records);
    std::cout << "Figure: the preview and the stored values of " << records << " records, " << fields
              << " fields: " << different << " differences\n";
}

} // namespace
