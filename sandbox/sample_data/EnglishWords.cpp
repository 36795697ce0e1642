#include "sandbox/sample_data/Words.h"

namespace sandbox
{

namespace
{

constexpr const wchar_t* kSurnames[] = {
    L"O'Brien",  L"Müller",   L"Smith",    L"Johnson", L"García",  L"Dubois",  L"Rossi",   L"Kowalski",
    L"Andersen", L"van Dijk", L"D'Angelo", L"Novák",   L"Fischer", L"MacLeod", L"Åkesson", L"Peña",
    L"Thompson", L"Keller",   L"Lefèvre",  L"Bianchi", L"Walker",  L"Schröder"};

constexpr const wchar_t* kGivenNames[] = {
    L"Anna", L"Patrick",   L"Jürgen", L"Sofía",   L"Emily",      L"Thomas", L"Chloé",   L"Marco", L"Ewa",
    L"Lars", L"Charlotte", L"David",  L"Siobhán", L"Hans-Peter", L"Laura",  L"Michael", L"Zoë"};

constexpr Company kCompanies[] = {{L"O'Brien & Söhne GmbH", L"obrien-soehne.example"},
                                  {L"Northwind Traders Ltd.", L"northwind.example"},
                                  {L"Harbour Street Bakery", L"harbourbakery.example"},
                                  {L"Lefèvre et Fils S.A.", L"lefevre.example"},
                                  {L"Keller Maschinenbau AG", L"keller-mb.example"},
                                  {L"Blue Ridge Paper Co.", L"blueridgepaper.example"},
                                  {L"D'Angelo Costruzioni", L"dangelo.example"},
                                  {L"Kowalski Transport", L"kowalski.example"},
                                  {L"Fjord Seafood A/S", L"fjordseafood.example"},
                                  {L"Green & Partners, Solicitors", L"greenpartners.example"},
                                  {L"Castle Optics", L"castleoptics.example"},
                                  {L"Peña Hermanos", L"pena.example"},
                                  {L"Van Dijk Bloemen B.V.", L"vandijk.example"},
                                  {L"St. Mary's Hospital", L"stmarys.example"},
                                  {L"Silverlake Software", L"silverlake.example"},
                                  {L"Walker's Garage", L"walkersgarage.example"},
                                  {L"Alpine Tools KG", L"alpinetools.example"},
                                  {L"Atlantic Freight Services", L"atlanticfreight.example"},
                                  {L"Novák Sklo s.r.o.", L"novaksklo.example"},
                                  {L"Quayside Hotels", L"quayside.example"},
                                  {L"Rossi Tessuti S.p.A.", L"rossitessuti.example"},
                                  {L"Schröder Elektro", L"schroeder.example"},
                                  {L"Summit Insurance", L"summit.example"},
                                  {L"The Copper Kettle", L"copperkettle.example"},
                                  {L"Thompson & Daughters", L"thompson.example"},
                                  {L"Ullman Druck", L"ullman.example"},
                                  {L"Vista Printing 100%", L"vista.example"},
                                  {L"Western Dairy Co-op", L"westerndairy.example"},
                                  {L"York Instruments", L"york.example"},
                                  {L"Åkesson Möbler AB", L"akesson.example"}};

constexpr Place kPlaces[] = {
    {L"Germany", L"Thüringen", L"Jena", L"Goethestraße %", L"07743", L"+49 3641"},
    {L"United Kingdom", L"Yorkshire", L"Leeds", L"% Harbour Street", L"LS1 4DY", L"+44 113"},
    {L"Ireland", L"Munster", L"Cork", L"% St. Patrick's Quay", L"T23 AX00", L"+353 21"},
    {L"France", L"Rhône", L"Lyon", L"% rue de l'Abbaye", L"69003", L"+33 4"},
    {L"Italy", L"Toscana", L"Firenze", L"Via dell'Oriuolo %", L"50122", L"+39 055"},
    {L"USA", L"WA", L"Seattle", L"% Pine Street", L"98101", L"+1 206"},
    {L"Sweden", L"", L"Malmö", L"Östergatan %", L"211 25", L"+46 40"},
    {L"Netherlands", L"Zuid-Holland", L"Leiden", L"Breestraat %", L"2311 CS", L"+31 71"}};

constexpr const wchar_t* kJobTitles[] = {
    L"Managing Director", L"Buyer", L"Sales Engineer", L"Head of Purchasing", L"Assistant",
    L"Accountant",        L"",      L"Foreman"};

constexpr const wchar_t* kDepartments[] = {L"Purchasing", L"Sales", L"R&D", L"Finance", L"", L"Logistics"};

constexpr const wchar_t* kTaskSubjects[] = {
    L"Send the quotation",        L"Call back about the delivery date", L"Prepare the annual contract",
    L"Ask for the signed order",  L"Check the customer's credit",       L"Send samples",
    L"Update the price list",     L"Arrange the factory visit",         L"Answer the complaint",
    L"Remind of the open invoice"};

constexpr const wchar_t* kEntrySubjects[] = {
    L"Visit at the customer's", L"Product presentation", L"Negotiate the contract",
    L"Lunch with the buyer",    L"Trade fair",           L"Training on site",
    L"Acceptance test",         L"Telephone conference"};

constexpr const wchar_t* kRepeatedSubjects[] = {L"Morning round",   L"Sales meeting",  L"Monthly report",
                                                L"Quarterly talks", L"Stocktaking",    L"Birthday call",
                                                L"Budget review",   L"Customer survey"};

constexpr const wchar_t* kCategories[] = {L"Business", L"Phone calls", L"Key Customer", L"Ideas"};

} // namespace

const Words& EnglishWords()
{
    static constexpr Words words{kSurnames,    kGivenNames,   kCompanies,     kPlaces,           kJobTitles,
                                 kDepartments, kTaskSubjects, kEntrySubjects, kRepeatedSubjects, kCategories};
    return words;
}

} // namespace sandbox
