#include "tests/awkward/Ways.h"

#include "automation/Text.h"
#include "sandbox/outlook/Paths.h"

#include <iterator>

namespace test_support
{

namespace
{

using automation::Value;

struct MailboxSwitch
{
    const wchar_t* name;
    Value value;
};

void Set(World& world, const std::vector<MailboxSwitch>& switches)
{
    for (const MailboxSwitch& one : switches)
    {
        world.Mailbox->Switch(one.name, one.value);
        world.Where.isGuarded = world.Where.isGuarded || std::wstring(one.name) == L"Guard";
    }
}

Way OfOutlook(const std::vector<MailboxSwitch>& switches)
{
    Way way;
    for (const MailboxSwitch& one : switches)
    {
        way.name +=
            automation::ToUtf8(one.name) + "=" + automation::ToUtf8(automation::TextOf(one.value)) + " ";
    }
    way.set = [=](World& world) { Set(world, switches); };
    return way;
}

// {} stands for the kind's key column.
std::wstring ForKind(const std::wstring& switches, const NumberedKind& kind)
{
    return automation::Replaced(switches, L"{}", kind.keyColumn);
}

Way OfHost(const std::wstring& switches)
{
    Way way;
    way.name = automation::ToUtf8(switches);
    way.set = [=](World& world) {
        sandbox::SetSwitches(world.TheHost.Recordsets(), ForKind(switches, *world.Where.kind));
    };
    return way;
}

Way OfRecordsets(const std::wstring& switches)
{
    Way way;
    way.name = "own recordsets " + automation::ToUtf8(switches);
    way.set = [=](World&) { sandbox::SetSwitches(sandbox::RecordsetsOfProcess(), switches); };
    return way;
}

Way OfTypedHost(const std::wstring& switches)
{
    Way way = OfHost(switches);
    way.name = "a host of typed members " + way.name;
    way.set = [=, set = way.set](World& world) {
        set(world);
        world.UsesTypedDtc = true;
    };
    return way;
}

void AddOutlook(std::vector<Way>& ways)
{
    ways.push_back({.name = "nothing"});
    const std::vector<MailboxSwitch> sets[] = {
        {{L"Order", 1}},
        {{L"Order", 2}},
        {{L"ForeignItems", 1}},
        {{L"ForeignItems", 1}, {L"Order", 1}},
        {{L"ForeignItems", 1}, {L"Order", 2}},
        {{L"Guard", 1}},
        {{L"LinksRaise", 1}},
        {{L"LinksRaise", 1}, {L"Guard", 1}, {L"ForeignItems", 1}, {L"Order", 2}},
        {{L"AppointmentReminders", 0}},
        {{L"TaskReminders", 1}},
        {{L"SeriesHaveExceptions", 1}},
        {{L"Twins", 1}},
        {{L"NoTable", 1}},
        {{L"TableReversed", 1}},
        {{L"TableStale", 1}},
        {{L"TableTextLength", 3}},
        {{L"TableUtcMinutes", 120}},
        {{L"TableArrayByRow", 1}},
        {{L"TableMissingRow", 2}},
        {{L"TableDuplicateRow", 2}},
        {{L"TableFailsAtRow", 2}},
        {{L"TableRefuses", L"LastName"}},
        {{L"TableRefuses", L"Subject"}},
        {{L"TableStale", 1}, {L"TableReversed", 1}, {L"Order", 2}, {L"ForeignItems", 1}},
    };
    for (const auto& switches : sets)
    {
        ways.push_back(OfOutlook(switches));
    }
}

// The folder's own store cannot be reached, or another one, which holds what records are linked to.
void AddStores(std::vector<Way>& ways)
{
    Way offline = OfOutlook({{L"OfflineStore", L"Personal Folders"}});
    offline.isOffline = true;
    offline.settle = [](World& world) { world.Mailbox->Switch(L"OfflineStore", L""); };
    ways.push_back(offline);
    Way elsewhere = OfOutlook({{L"OfflineStore", L"Personal Folders"}});
    elsewhere.name += "beside the run's store";
    elsewhere.store = L"Archive";
    ways.push_back(elsewhere);
    Way twin = OfOutlook({{L"Twins", 2}});
    twin.set = [](World& world) {
        world.Mailbox->Switch(L"Twins", 2);
        world.Where.folderPath = std::wstring(L"Personal Folders") + sandbox::outlook::kTwinMark + L"2\\" +
                                 world.Where.kind->folderName;
    };
    ways.push_back(twin);
}

void AddHosts(std::vector<Way>& ways)
{
    for (const wchar_t* switches :
         {L"OpaqueBookmarks=1", L"Rows=1", L"OpaqueBookmarks=1;Rows=1", L"Sort={} DESC",
          L"OpaqueBookmarks=1;Rows=1;Sort={} DESC", L"Integers=1", L"Integers=2", L"Integers=3",
          L"Integers=4", L"Guids=1", L"CharWidth=8", L"CharWidth=50", L"Guids=1;CharWidth=40;Rows=1"})
    {
        ways.push_back(OfHost(switches));
    }
    for (const wchar_t* switches : {L"OpaqueBookmarks=1;Rows=1", L"Integers=1", L"Integers=2", L"Integers=3",
                                    L"Integers=4", L"Guids=1", L"CharWidth=8", L"CharWidth=50"})
    {
        ways.push_back(OfRecordsets(switches));
    }
    for (const wchar_t* switches : {L"Rows=0", L"Rows=1;Integers=3;OpaqueBookmarks=1"})
    {
        ways.push_back(OfTypedHost(switches));
    }
}

// The host's owner sorts or filters its recordset at once, or while the component moves in it.
void AddArrangedRows(std::vector<Way>& ways)
{
    constexpr int kHidden = 2;
    const auto hide = [](Way way, long atMove) {
        way.hiddenNumber = kHidden;
        way.set = [atMove](World& world) {
            sandbox::AwkwardAdo& rows = world.TheHost.Recordsets();
            rows.filter = std::wstring(world.Where.kind->keyColumn) + L" <> '" +
                          KeyOf(*world.Where.kind, kHidden) + L"'";
            rows.atMove = atMove;
        };
        return way;
    };
    ways.push_back(hide({.name = "the host filters its rows"}, 0));
    for (const long atMove : {1L, 2L, 3L, 4L, 5L, 6L, 7L, 8L, 10L, 12L})
    {
        const auto settle = [](World& world) { world.TheHost.Recordsets().atMove = 0; };
        Way filtered{.name = "the host filters its rows at move " + std::to_string(atMove)};
        filtered.isDisturbed = true;
        filtered.settle = settle;
        ways.push_back(hide(filtered, atMove));
        Way sorted = OfHost(L"Sort={} DESC;AtMove=" + std::to_wstring(atMove));
        sorted.isDisturbed = true;
        sorted.settle = settle;
        ways.push_back(sorted);
    }
}

using Action = void (*)(World& world);

struct NamedAction
{
    const char* name;
    Action act;
    bool needsKeyset = false; // otherwise the component does not notice
    bool mayPassBy = false;
};

void ChangeOrder(World& world)
{
    world.Mailbox->Switch(
        L"Order", world.Mailbox->Behaviour().order == sandbox::outlook::ItemOrder::NewestFirst ? 0L : 1L);
}

constexpr NamedAction kActionsInOutlook[] = {
    {"an item arrives", [](World& world) { world.ItemArrives(); }},
    {"the first item vanishes", [](World& world) { world.ItemVanishes(0); }},
    {"the third item vanishes", [](World& world) { world.ItemVanishes(2); }},
    {"the last item vanishes", [](World& world) { world.ItemVanishes(4); }},
    {"the order changes", ChangeOrder, false, true},
    {"an item goes and one comes",
     [](World& world) {
         world.ItemVanishes(1);
         world.ItemArrives();
     },
     false, true},
};

constexpr NamedAction kActionsInHost[] = {
    {"a row arrives", [](World& world) { world.RowArrives(); }, true},
    {"a row with a partner vanishes", [](World& world) { world.RowVanishes(1); }, true},
    {"a row without a partner vanishes", [](World& world) { world.RowVanishes(5); }, true},
    {"the last row vanishes", [](World& world) { world.RowVanishes(3); }, true},
};

// Each with the folder as it is and with new items first.
void AddActions(std::span<const NamedAction> actions,
                const std::function<void(Way&, const NamedAction&)>& place, std::vector<Way>& ways)
{
    for (const NamedAction& action : actions)
    {
        for (const long variant : {0L, 1L})
        {
            Way way{.name = action.name};
            way.isDisturbed = true;
            way.mayPassBy = action.mayPassBy;
            way.name += variant == 0 ? "" : action.needsKeyset ? ", of a keyset" : ", new items first";
            way.set = [variant, isKeyset = action.needsKeyset](World& world) {
                world.TheHost.Recordsets().rows =
                    isKeyset && variant == 1 ? sandbox::RowsAs::Keyset : sandbox::RowsAs::Snapshot;
                world.Mailbox->Switch(L"Order", isKeyset ? 0L : variant);
            };
            place(way, action);
            ways.push_back(std::move(way));
        }
    }
}

} // namespace

std::vector<Way> StandingWays()
{
    std::vector<Way> ways;
    AddOutlook(ways);
    AddStores(ways);
    AddHosts(ways);
    AddArrangedRows(ways);
    const auto whileConfirmed = [](Way& way, const NamedAction& action) {
        way.name += " while the confirmation is shown";
        way.whileConfirmed = action.act;
    };
    AddActions(kActionsInOutlook, whileConfirmed, ways);
    AddActions(kActionsInHost, whileConfirmed, ways);
    return ways;
}

std::vector<Way> MomentaryWays()
{
    std::vector<Way> ways;
    AddActions(
        kActionsInOutlook, [](Way& way, const NamedAction& action) { way.atCall = action.act; }, ways);
    AddActions(
        kActionsInHost,
        [](Way& way, const NamedAction& action) {
            way.atCall = action.act;
            way.side = CallsOf::Host;
        },
        ways);
    return ways;
}

} // namespace test_support
