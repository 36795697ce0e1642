// Secrets in the words of others: connection strings, passwords, and the values of a repeated statement.
#include "exchange/Secrets.h"

#include <gtest/gtest.h>

namespace
{

using exchange::WithoutSecrets;

constexpr wchar_t kConnection[] = L"Provider=MSDASQL;Server=crm;UID=sa;PWD=\"s3;cret\";Database=sales";

TEST(Secrets, AConnectionStringIsMaskedAsAWhole)
{
    EXPECT_EQ(L"Cannot open ***: no such server",
              WithoutSecrets(std::wstring(L"Cannot open ") + kConnection + L": no such server", kConnection));
}

TEST(Secrets, ThePasswordOfTheConnectionIsMaskedWhereverItIs)
{
    EXPECT_EQ(L"Login (sa, ***) failed", WithoutSecrets(L"Login (sa, s3;cret) failed", kConnection));
    EXPECT_EQ(L"Login (***) failed",
              WithoutSecrets(L"Login (top secret) failed", L"Password = top secret ;X=1"));
    EXPECT_EQ(L"Login (***) failed", WithoutSecrets(L"Login (a}b) failed", L"X=1;pwd=a}b"));
    EXPECT_EQ(L"Login (***) failed", WithoutSecrets(L"Login (abc) failed", L"Pwd={abc};X=1"));
}

TEST(Secrets, APasswordBehindItsKeyIsMaskedInAnyLetterCaseWithoutAConnection)
{
    EXPECT_EQ(L"Driver={x};Pwd=***;Database=y", WithoutSecrets(L"Driver={x};Pwd=a b;Database=y", {}));
    EXPECT_EQ(L"PASSWORD = ***\r\nnext", WithoutSecrets(L"PASSWORD = open\r\nnext", {}));
    EXPECT_EQ(L"pwd=***", WithoutSecrets(L"pwd=x", {}));
    EXPECT_EQ(L"The password is wrong", WithoutSecrets(L"The password is wrong", {}));
}

TEST(Secrets, TextLiteralsOfAStatementAreMaskedAndApostrophesStay)
{
    EXPECT_EQ(L"near (1,'***',N'***'): syntax error",
              WithoutSecrets(L"near (1,'O''Brien, Ann',N'Zürich'): syntax error", {}));
    EXPECT_EQ(L"You don't have the users' rights, can't you see",
              WithoutSecrets(L"You don't have the users' rights, can't you see", {}));
    EXPECT_EQ(L"converting '***' to int", WithoutSecrets(L"converting 'it's here' to int", {}));
    EXPECT_EQ(L"near '***'", WithoutSecrets(L"near 'a statement that has been cu", {}));
    EXPECT_EQ(L"'***'", WithoutSecrets(L"'", {}));
    EXPECT_EQ(L"near '***'", WithoutSecrets(L"near 'it's", {}));
    EXPECT_EQ(L"near ('***','***')", WithoutSecrets(L"near ('','Smith')", {}));
}

} // namespace
