#include "tools/sample_data/Words.h"

namespace tools
{

namespace
{

constexpr PersonName kEnglishSurnames[] = {
    {L"O'Brien", L"obrien"},    {L"Müller", L"mueller"},    {L"Smith", L"smith"},
    {L"Johnson", L"johnson"},   {L"García", L"garcia"},     {L"Dubois", L"dubois"},
    {L"Rossi", L"rossi"},       {L"Kowalski", L"kowalski"}, {L"Andersen", L"andersen"},
    {L"van Dijk", L"vandijk"},  {L"D'Angelo", L"dangelo"},  {L"Novák", L"novak"},
    {L"Fischer", L"fischer"},   {L"MacLeod", L"macleod"},   {L"Åkesson", L"akesson"},
    {L"Peña", L"pena"},         {L"Thompson", L"thompson"}, {L"Keller", L"keller"},
    {L"Lefèvre", L"lefevre"},   {L"Bianchi", L"bianchi"},   {L"Walker", L"walker"},
    {L"Schröder", L"schroeder"}};

constexpr GivenName kEnglishGivenNames[] = {{{L"Anna", L"anna"}, L"Ms."},
                                            {{L"Patrick", L"patrick"}, L"Mr."},
                                            {{L"Jürgen", L"juergen"}, L"Mr."},
                                            {{L"Sofía", L"sofia"}, L"Ms."},
                                            {{L"Emily", L"emily"}, L"Ms."},
                                            {{L"Thomas", L"thomas"}, L"Mr."},
                                            {{L"Chloé", L"chloe"}, L"Ms."},
                                            {{L"Marco", L"marco"}, L"Mr."},
                                            {{L"Ewa", L"ewa"}, L"Ms."},
                                            {{L"Lars", L"lars"}, L"Mr."},
                                            {{L"Charlotte", L"charlotte"}, L"Ms."},
                                            {{L"David", L"david"}, L"Mr."},
                                            {{L"Siobhán", L"siobhan"}, L"Ms."},
                                            {{L"Hans-Peter", L"hans-peter"}, L"Mr."},
                                            {{L"Laura", L"laura"}, L"Ms."},
                                            {{L"Michael", L"michael"}, L"Mr."},
                                            {{L"Zoë", L"zoe"}, L"Ms."}};

constexpr Company kEnglishCompanies[] = {{L"O'Brien & Söhne GmbH", L"obrien-soehne.example"},
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

constexpr Place kEnglishPlaces[] = {
    {L"Germany", L"Thüringen", L"Jena", L"Goethestraße %", L"07743", L"+49 3641"},
    {L"United Kingdom", L"Yorkshire", L"Leeds", L"% Harbour Street", L"LS1 4DY", L"+44 113"},
    {L"Ireland", L"Munster", L"Cork", L"% St. Patrick's Quay", L"T23 AX00", L"+353 21"},
    {L"France", L"Rhône", L"Lyon", L"% rue de l'Abbaye", L"69003", L"+33 4"},
    {L"Italy", L"Toscana", L"Firenze", L"Via dell'Oriuolo %", L"50122", L"+39 055"},
    {L"USA", L"WA", L"Seattle", L"% Pine Street", L"98101", L"+1 206"},
    {L"Sweden", L"", L"Malmö", L"Östergatan %", L"211 25", L"+46 40"},
    {L"Netherlands", L"Zuid-Holland", L"Leiden", L"Breestraat %", L"2311 CS", L"+31 71"}};

constexpr const wchar_t* kEnglishJobTitles[] = {
    L"Managing Director", L"Buyer", L"Sales Engineer", L"Head of Purchasing", L"Assistant",
    L"Accountant",        L"",      L"Foreman"};

constexpr const wchar_t* kEnglishDepartments[] = {L"Purchasing", L"Sales", L"R&D",
                                                  L"Finance",    L"",      L"Logistics"};

constexpr const wchar_t* kEnglishTaskSubjects[] = {
    L"Send the quotation",        L"Call back about the delivery date", L"Prepare the annual contract",
    L"Ask for the signed order",  L"Check the customer's credit",       L"Send samples",
    L"Update the price list",     L"Arrange the factory visit",         L"Answer the complaint",
    L"Remind of the open invoice"};

constexpr const wchar_t* kEnglishEntrySubjects[] = {
    L"Visit at the customer's", L"Product presentation", L"Negotiate the contract",
    L"Lunch with the buyer",    L"Trade fair",           L"Training on site",
    L"Acceptance test",         L"Telephone conference"};

constexpr const wchar_t* kEnglishRepeatedSubjects[] = {L"Morning round",  L"Sales meeting",
                                                       L"Monthly report", L"Quarterly talks",
                                                       L"Stocktaking",    L"Birthday call"};

constexpr const wchar_t* kEnglishCategories[] = {L"Business", L"Phone calls", L"Key Customer", L"Ideas"};

} // namespace

const Words& EnglishWords()
{
    static constexpr Words words{kEnglishSurnames,     kEnglishGivenNames,    kEnglishCompanies,
                                 kEnglishPlaces,       kEnglishJobTitles,     kEnglishDepartments,
                                 kEnglishTaskSubjects, kEnglishEntrySubjects, kEnglishRepeatedSubjects,
                                 kEnglishCategories};
    return words;
}

} // namespace tools
