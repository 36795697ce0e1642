// The host's data-access object (DTC) as the host contract describes it: every write, key and statement that
// must respect the host's rules goes through it. The numbers returned are the host's own status; all members
// throw automation::Error when the host raises one. A Host refers to the DTC of the calling thread's shared
// state at the time it is made.
#pragma once

#include "automation/Error.h"
#include "automation/Recordset.h"

#include <string>

namespace data
{

class Host
{
  public:
    Host();

    // One of the host's named record sources, restricted by a filter where one is given. Fills the recordset;
    // a negative result is a failure.
    long OpenRecordset(automation::Recordset& recordset, const std::wstring& source,
                       const std::wstring& filter = {}) const;
    // An arbitrary SELECT statement; negative is a failure.
    long OpenRecordsetByString(automation::Recordset& recordset, const std::wstring& sql) const;

    // One row: column names and SQL literals, both joined with ",", in the same order. The fourth argument of
    // the contract is passed along and never read again. Negative is a failure.
    long Insert(const std::wstring& table, std::wstring fields, std::wstring values,
                std::wstring text = {}) const;
    // The rows that satisfy a condition; the set list is column=literal pairs joined with ",". The host
    // returns 0 on success.
    long Update(const std::wstring& table, std::wstring setList, const std::wstring& condition) const;
    // Negative is a failure.
    long Delete(const std::wstring& table, const std::wstring& condition) const;

    // A fresh key for a new row.
    std::wstring NewGuid() const;
    // The signed-in user's id; and the same as a literal without quotes.
    std::wstring UserId() const;
    std::wstring UserIdLiteral() const;
    // The host's answer to a rights check: 0 and 3 permit.
    long PermissionOn(long module, long function, long right) const;
    // The host's clock, which the calendar uses instead of the machine's.
    automation::Date SysDateTime() const;

    void BeginTrans() const;
    bool InTransaction() const;
    void CommitTrans() const;
    void RollbackTrans() const;

  private:
    automation::Object mDtc;
};

// The host has answered that it has not made a call. A call that raises another error may have been made.
class Refusal : public automation::Error
{
  public:
    using Error::Error;
};

// Throws Refusal unless the host has accepted a call of this member, so that a refused call and one that
// raises an error are handled in one way. code: the error's number.
void ThrowUnless(bool accepted, const wchar_t* member, long code = E_FAIL);

// Makes an insert outside a transaction. When it raises an error, its answer may be lost and the row be there
// all the same: undo takes the row back, and the error is passed on. After a refusal there is nothing to
// undo.
template<typename Insert, typename Undo>
void InsertOrUndo(const Insert& insert, const Undo& undo)
{
    try
    {
        insert();
    }
    catch (const Refusal&)
    {
        throw;
    }
    catch (...)
    {
        undo();
        throw;
    }
}

// One host transaction, begun with the object: Commit ends it well, any other way out of the scope rolls it
// back. Neither is asked of the host when the host says that no transaction is pending.
class Transaction
{
  public:
    explicit Transaction(const Host& host);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    void Commit();

  private:
    void RollBack() noexcept;

    const Host& mHost;
    bool mPending = true;
};

} // namespace data
