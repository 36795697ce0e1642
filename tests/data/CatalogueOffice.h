// An office whose field catalogue has one column of every type, and nothing else.
#pragma once

#include "data/FieldCatalogue.h"
#include "tests/support/TestOffice.h"

#include <string>

namespace test_support
{

class CatalogueOffice : public TestOffice
{
  public:
    CatalogueOffice()
    {
        Execute(L"DELETE FROM SynFields");
        AddField(L"F_NUMBER", 1, 4);
        AddField(L"F_NAME", 2, 10);
        AddField(L"F_FLAG", 3, 1);
        AddField(L"F_DATE", 4, 8);
        AddField(L"F_TIME", 5, 8);
        AddField(L"F_MOMENT", 6, 8);
        AddField(L"F_AMOUNT", 7, 8);
        AddField(L"F_NOTES", 8, 200);
    }

    void AddField(const std::wstring& name, const automation::Value& type, const automation::Value& size)
    {
        Execute(L"INSERT INTO SynFields (FieldName,FieldType,FieldSize) VALUES (?,?,?)", {name, type, size});
    }

    data::FieldCatalogue Catalogue;
};

} // namespace test_support
