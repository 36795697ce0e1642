#include "sandbox/host/Schema.h"

#include <string>

namespace sandbox
{

namespace
{

constexpr const wchar_t* kContactTables[] = {
    L"CREATE TABLE TBLUSER (F_UID INTEGER PRIMARY KEY, F_USERNAME VARCHAR(40))",

    LR"(CREATE TABLE TBLACCOUNT (
        F_ACCNO INTEGER PRIMARY KEY AUTOINCREMENT,
        F_ACCID VARCHAR(36) NOT NULL UNIQUE,
        F_CREATORID INTEGER,
        F_ACCSNAME VARCHAR(80),
        F_ACCCURRIDX INTEGER))",
    L"CREATE INDEX IX_ACCOUNT_NAME ON TBLACCOUNT(F_ACCSNAME)",

    L"CREATE TABLE TBLACCINFO (F_AIID VARCHAR(36) NOT NULL UNIQUE, F_AITID VARCHAR(36), F_ACCID VARCHAR(36))",

    LR"(CREATE TABLE TBLADDRESS (
        F_ADDRID VARCHAR(36) NOT NULL UNIQUE,
        F_ACCID VARCHAR(36),
        F_ADDRCOUNTRY VARCHAR(40),
        F_ADDRPROVINCE VARCHAR(40),
        F_ADDRCITY VARCHAR(40),
        F_ADDRDETAIL VARCHAR(120),
        F_POSTALCODE VARCHAR(16),
        F_ISPRIMARY BOOLEAN))",
    L"CREATE INDEX IX_ADDRESS_ACCOUNT ON TBLADDRESS(F_ACCID)",

    LR"(CREATE TABLE TBLCONTACT (
        F_CNTCTNO INTEGER PRIMARY KEY AUTOINCREMENT,
        F_CNTCTID VARCHAR(36) NOT NULL UNIQUE,
        F_CREATORID INTEGER,
        F_ACCID VARCHAR(36),
        F_CNTADDRID VARCHAR(36),
        F_SURNAME VARCHAR(40),
        F_GIVENNAME VARCHAR(40),
        F_NICKNAME VARCHAR(40),
        F_TITLE VARCHAR(20),
        F_SUFFIX VARCHAR(20),
        F_SPOUSE VARCHAR(40),
        F_BIRTHDAY DATETIME,
        F_ANNIVERSARY DATETIME,
        F_JOBTITLE VARCHAR(60),
        F_DEPARTMENT VARCHAR(60),
        F_EMAIL VARCHAR(80),
        F_BUSINESSPHONE VARCHAR(40),
        F_BUSINESSFAX VARCHAR(40),
        F_MOBILEPHONE VARCHAR(40),
        F_HOMEPHONE VARCHAR(40),
        F_ASSISTANT VARCHAR(40),
        F_ASSISTANTPHONE VARCHAR(40),
        F_HOMECOUNTRY VARCHAR(40),
        F_HOMEPROVINCE VARCHAR(40),
        F_HOMECITY VARCHAR(40),
        F_HOMESTREET VARCHAR(120),
        F_HOMEPOSTALCODE VARCHAR(16)))",
};

// Times of day stand on the zero date of automation, 1899-12-30. An entry that ends before it starts has no
// duration.
constexpr const wchar_t* kActivityTables[] = {
    L"CREATE TABLE TBLREPEATRULE (F_ACTREPTIDX INTEGER PRIMARY KEY, FR_NAME VARCHAR(20))",

    LR"(CREATE TABLE TBLACTIVITY (
        F_ACTNO INTEGER PRIMARY KEY AUTOINCREMENT,
        F_ACTID VARCHAR(36) NOT NULL UNIQUE,
        F_ACTORID INTEGER,
        F_CREATORID INTEGER,
        F_CNTCTID VARCHAR(36),
        F_ACCID VARCHAR(36),
        F_ACTNAME VARCHAR(255),
        F_ACTTYPE VARCHAR(80),
        F_ACTREMIND BOOLEAN,
        F_ACTPSTIME DATETIME,
        F_ACTPETIME DATETIME,
        F_ACTCTIME DATETIME,
        F_ACTCREATETIME DATETIME,
        F_ACTSTATUS INTEGER,
        F_ACTPERCENT DOUBLE,
        F_ACTCOMPLETED BOOLEAN,
        F_ACTPRIORITY INTEGER,
        F_ACTTOTALWORK INTEGER,
        F_ACTACTUALWORK INTEGER,
        F_ACTESDATE DATETIME,
        F_ACTESTIME DATETIME,
        F_ACTEEDATE DATETIME,
        F_ACTEETIME DATETIME,
        F_ACTREPTIDX INTEGER,
        F_ACTREPTEDATE DATETIME,
        ACT_REPEATS BOOLEAN GENERATED ALWAYS AS (F_ACTREPTIDX BETWEEN 1 AND 6) VIRTUAL,
        ACT_DURATION DATETIME GENERATED ALWAYS AS (
            CASE WHEN time(F_ACTEETIME) >= time(F_ACTESTIME) THEN
                '1899-12-30 ' || time(strftime('%s', '2000-01-01 ' || time(F_ACTEETIME)) -
                                      strftime('%s', '2000-01-01 ' || time(F_ACTESTIME)), 'unixepoch')
            END) VIRTUAL))",
};

constexpr const wchar_t* kServiceTables[] = {
    L"CREATE TABLE TBLSYSINFO (F_AITID VARCHAR(36))",

    LR"(CREATE TABLE UserRight (
        F_UID INTEGER, Module INTEGER, Function INTEGER, Right INTEGER, Answer INTEGER))",

    LR"(CREATE TABLE SynRelation (
        RelationID INTEGER PRIMARY KEY AUTOINCREMENT,
        QuenlarTblName VARCHAR(40),
        EnglishName VARCHAR(40),
        OutlookName VARCHAR(40)))",

    L"CREATE TABLE SynFields (FieldName VARCHAR(40), FieldType INTEGER, FieldSize INTEGER)",

    LR"(CREATE TABLE T_POutlookSyncParam (
        F_UID INTEGER,
        TransObjectID INTEGER,
        TransObject VARCHAR(20),
        TransObjectPic VARCHAR(20),
        TransType INTEGER,
        TransTypePic VARCHAR(20),
        TransConflictOption INTEGER,
        TransSourceConfig VARCHAR(255),
        TransSource VARCHAR(40),
        CalendarTransItem INTEGER,
        CalendarPrior SMALLINT,
        CalendarAfter SMALLINT,
        TaskTransItem INTEGER,
        TransNameEnglish VARCHAR(40),
        TransNameChinese VARCHAR(40),
        IsTrans BOOLEAN))",

    LR"(CREATE TABLE T_POutlookSyncFolder (
        F_UID INTEGER, TransObjectID INTEGER, OutlookFolder VARCHAR(255), IsDefault BOOLEAN))",
};

constexpr const wchar_t* kViews[] = {
    LR"(CREATE VIEW VW_CONTACT AS
        SELECT c.*, a.F_ACCSNAME AS ACC_SNAME,
               d.F_ADDRCOUNTRY AS ADDR_COUNTRY, d.F_ADDRPROVINCE AS ADDR_PROVINCE,
               d.F_ADDRCITY AS ADDR_CITY, d.F_ADDRDETAIL AS ADDR_DETAIL, d.F_POSTALCODE AS ADDR_POSTALCODE
        FROM TBLCONTACT c
        LEFT JOIN TBLACCOUNT a ON a.F_ACCID=c.F_ACCID
        LEFT JOIN TBLADDRESS d ON d.F_ADDRID=c.F_CNTADDRID)",

    LR"(CREATE VIEW VW_ACCOUNT AS
        SELECT a.*, (SELECT d.F_ADDRID FROM TBLADDRESS d
                     WHERE d.F_ACCID=a.F_ACCID AND d.F_ISPRIMARY=1 ORDER BY d.rowid LIMIT 1) AS M_ADDR_ID
        FROM TBLACCOUNT a)",

    LR"(CREATE VIEW VW_ACTIVITY AS
        SELECT t.*, a.F_ACCSNAME AS ACC_SNAME,
               c.F_SURNAME AS CONTACT_SURNAME, c.F_GIVENNAME AS CONTACT_GIVENNAME
        FROM TBLACTIVITY t
        LEFT JOIN TBLACCOUNT a ON a.F_ACCID=t.F_ACCID
        LEFT JOIN TBLCONTACT c ON c.F_CNTCTID=t.F_CNTCTID
        WHERE t.F_ACTESDATE IS NULL AND t.F_ACTESTIME IS NULL)",

    LR"(CREATE VIEW VW_CALENDAR AS
        SELECT t.*, r.FR_NAME AS FR_NAME, a.F_ACCSNAME AS ACC_SNAME,
               c.F_SURNAME AS CONTACT_SURNAME, c.F_GIVENNAME AS CONTACT_GIVENNAME
        FROM TBLACTIVITY t
        LEFT JOIN TBLREPEATRULE r ON r.F_ACTREPTIDX=t.F_ACTREPTIDX
        LEFT JOIN TBLACCOUNT a ON a.F_ACCID=t.F_ACCID
        LEFT JOIN TBLCONTACT c ON c.F_CNTCTID=t.F_CNTCTID
        WHERE t.F_ACTESDATE IS NOT NULL OR t.F_ACTESTIME IS NOT NULL)",
};

} // namespace

void CreateHostSchema(Connection& database)
{
    for (const wchar_t* statement : kContactTables)
    {
        database.Execute(statement);
    }
    for (const wchar_t* statement : kActivityTables)
    {
        database.Execute(statement);
    }
    for (const wchar_t* statement : kServiceTables)
    {
        database.Execute(statement);
    }
    for (const wchar_t* statement : kViews)
    {
        database.Execute(statement);
    }
}

} // namespace sandbox
