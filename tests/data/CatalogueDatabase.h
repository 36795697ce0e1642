// A database file with a field catalogue that has one column of every type, and nothing else; the component's
// connection string leads to it for the life of the object.
#pragma once

#include "data/FieldCatalogue.h"
#include "sandbox/ado/Ado.h"
#include "sandbox/database/Connection.h"
#include "tests/support/DatabaseFile.h"

#include <string>

namespace test_support
{

class CatalogueDatabase
{
  public:
    CatalogueDatabase();
    CatalogueDatabase(const CatalogueDatabase&) = delete;
    CatalogueDatabase& operator=(const CatalogueDatabase&) = delete;
    ~CatalogueDatabase();

    // type and size as SQL literals.
    void AddField(const std::wstring& name, const std::wstring& type, const std::wstring& size);
    void Execute(const std::wstring& sql);

    data::FieldCatalogue Catalogue;

  private:
    sandbox::AdoInProcess mAdo;
    DatabaseFile mFile{L"telvix-catalogue"};
};

} // namespace test_support
