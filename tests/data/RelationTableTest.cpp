#include "exchange/RelationTable.h"

#include "automation/Error.h"
#include "sandbox/ado/AwkwardAdo.h"
#include "tests/data/CatalogueOffice.h"

#include <gtest/gtest.h>

namespace
{

class Relations : public testing::Test
{
  protected:
    Relations()
    {
        Database.Relate(test_support::kContactRecords, {{L"F_SURNAME", L"LastName"}, {L"F_SEX", L"Gender"}});
        Table.Use(L"Select * from SynRelation where QuenlarTblName='TBLCONTACT'", {});
    }

    std::wstring Rows()
    {
        std::wstring text;
        for (const exchange::RelationRow& row : Table.Rows())
        {
            text += row.EnglishName + L"=" + row.OutlookName + L";";
        }
        return text;
    }

    test_support::CatalogueOffice Database;
    exchange::RelationTable Table;
};

TEST_F(Relations, TheRowsOfTheStatementComeInTheOrderOfTheDatabase)
{
    EXPECT_EQ(Rows(), L"F_SURNAME=LastName;F_SEX=Gender;");
}

TEST_F(Relations, TheyAreReadOnceUntilThePassAfter)
{
    Rows();
    Database.Execute(L"DELETE FROM SynRelation WHERE EnglishName='F_SEX'");
    EXPECT_EQ(Rows(), L"F_SURNAME=LastName;F_SEX=Gender;");
    Table.Use(L"Select * from SynRelation where QuenlarTblName='TBLCONTACT'", {});
    EXPECT_EQ(Rows(), L"F_SURNAME=LastName;");
}

TEST_F(Relations, AFailedReadIsNotKept)
{
    Database.Execute(L"ALTER TABLE SynRelation RENAME TO Elsewhere");
    EXPECT_THROW(Table.Rows(), automation::Error);
    Database.Execute(L"ALTER TABLE Elsewhere RENAME TO SynRelation");
    EXPECT_EQ(Rows(), L"F_SURNAME=LastName;F_SEX=Gender;");
}

TEST_F(Relations, ARowWithANullOrEmptyCellIsLeftOutAndTheOthersStay)
{
    Database.Execute(L"INSERT INTO SynRelation (QuenlarTblName,EnglishName,OutlookName) VALUES "
                     L"('TBLCONTACT', NULL, 'NickName'), "
                     L"('TBLCONTACT', 'F_SPOUSE', NULL), ('TBLCONTACT', '', 'Title'), "
                     L"('TBLCONTACT', 'F_SUFFIX', ''), ('TBLCONTACT', 'F_EMAIL', 'Email1Address')");
    EXPECT_EQ(Rows(), L"F_SURNAME=LastName;F_SEX=Gender;F_EMAIL=Email1Address;");
}

TEST_F(Relations, BlanksOfAColumnOfAFixedWidthAreNoPartOfAName)
{
    sandbox::RecordsetsOfProcess().charWidth = 20;
    EXPECT_EQ(Rows(), L"F_SURNAME=LastName;F_SEX=Gender;");
    Database.AddField(L"F_PADDED", 8, 5);
    EXPECT_NE(nullptr, Database.Catalogue.Find(L"F_PADDED"));
    sandbox::RecordsetsOfProcess() = {};
}

TEST_F(Relations, NoRowsAreNoFailure)
{
    Database.Execute(L"DELETE FROM SynRelation");
    EXPECT_EQ(Rows(), L"");
}

} // namespace
