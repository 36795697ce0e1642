#include "config/outlook/SysReg.h"

#include "config/outlook/RegistryValue.h"
#include "state/Failures.h"

namespace config
{

namespace
{

constexpr long kDone = 0;
constexpr long kCallFailed = -1;
constexpr long kNoKey = -2;
// Names of keys and values have at most 255 characters.
constexpr DWORD kNameSize = 256;

} // namespace

long TSysReg::ResultOf(long code) noexcept
{
    mAPIErrorCode = code;
    return code == ERROR_SUCCESS ? kDone : kCallFailed;
}

long TSysReg::OpenKey(HKEY root, const std::wstring& path)
{
    return state::Trapped(kNoKey, [&] {
        mIsOpened = false;
        mKey.reset();
        HKEY opened = nullptr;
        if (ResultOf(RegOpenKeyExA(root, NarrowText(path).c_str(), 0, KEY_ALL_ACCESS, &opened)) != kDone)
        {
            return kNoKey;
        }
        mKey.reset(opened);
        mRoot = root;
        mPath = path;
        mIsOpened = true;
        return kDone;
    });
}

template<typename Work>
long TSysReg::WithKey(Work&& work)
{
    return mIsOpened ? state::Trapped(kNoKey, work) : kNoKey;
}

long TSysReg::MoveTo(long code, HKEY opened, const std::wstring& name)
{
    const long result = ResultOf(code);
    if (result == kDone)
    {
        mKey.reset(opened);
        mPath = mPath.empty() ? name : mPath + L"\\" + name;
    }
    return result;
}

long TSysReg::OpenSubKey(const std::wstring& name)
{
    return WithKey([&] {
        HKEY opened = nullptr;
        const long code = RegOpenKeyExA(mKey.get(), NarrowText(name).c_str(), 0, KEY_ALL_ACCESS, &opened);
        return MoveTo(code, opened, name) == kDone ? kDone : kNoKey;
    });
}

long TSysReg::CreateSubKey(const std::wstring& name)
{
    return WithKey([&] {
        HKEY opened = nullptr;
        const long code = RegCreateKeyExA(mKey.get(), NarrowText(name).c_str(), 0, nullptr,
                                          REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &opened, nullptr);
        return MoveTo(code, opened, name);
    });
}

long TSysReg::DeleteSubKey(const std::wstring& name)
{
    return WithKey([&] { return ResultOf(RegDeleteKeyA(mKey.get(), NarrowText(name).c_str())); });
}

long TSysReg::GoUpPath()
{
    if (!mIsOpened)
    {
        return kNoKey;
    }
    const size_t separator = mPath.rfind(L'\\');
    return OpenKey(mRoot, separator == std::wstring::npos ? L"" : mPath.substr(0, separator));
}

template<typename Enumerate>
long TSysReg::NamesFrom(std::vector<std::wstring>& names, Enumerate&& enumerate)
{
    return WithKey([&] {
        names.clear();
        for (DWORD index = 0;; ++index)
        {
            char name[kNameSize];
            DWORD length = kNameSize;
            const long result = ResultOf(enumerate(index, name, length));
            if (mAPIErrorCode == ERROR_NO_MORE_ITEMS)
            {
                return static_cast<long>(index);
            }
            if (result != kDone)
            {
                return result;
            }
            names.push_back(WideText({name, length}));
        }
    });
}

long TSysReg::GetSubKeyNames(std::vector<std::wstring>& names)
{
    return NamesFrom(names, [this](DWORD index, char* name, DWORD& length) {
        char className[kNameSize];
        DWORD classLength = kNameSize;
        FILETIME written;
        return RegEnumKeyExA(mKey.get(), index, name, &length, nullptr, className, &classLength, &written);
    });
}

long TSysReg::GetValueNames(std::vector<std::wstring>& names)
{
    return NamesFrom(names, [this](DWORD index, char* name, DWORD& length) {
        return RegEnumValueA(mKey.get(), index, name, &length, nullptr, nullptr, nullptr, nullptr);
    });
}

long TSysReg::SetValue(const std::wstring& name, DWORD type, const automation::Value& value)
{
    if (mIsOpened && !IsKnownValueType(type))
    {
        RaiseUnknownValueType();
    }
    return WithKey([&] {
        const std::vector<BYTE> bytes = RegistryBytes(type, value);
        return ResultOf(RegSetValueExA(mKey.get(), NarrowText(name).c_str(), 0, type, bytes.data(),
                                       static_cast<DWORD>(bytes.size())));
    });
}

long TSysReg::Query(const std::wstring& name, DWORD& type, BYTE* bytes, DWORD& size)
{
    return ResultOf(RegQueryValueExA(mKey.get(), NarrowText(name).c_str(), nullptr, &type, bytes, &size));
}

long TSysReg::GetValue(const std::wstring& name, DWORD& type, automation::Value& value)
{
    DWORD size = 0;
    const long found = WithKey([&] { return Query(name, type, nullptr, size); });
    if (found != kDone)
    {
        return found;
    }
    if (!IsKnownValueType(type))
    {
        RaiseUnknownValueType();
    }
    return WithKey([&] {
        // One byte more than asked for, so that an empty value has an address to be read to as well.
        std::vector<BYTE> bytes(size + 1);
        const long result = Query(name, type, bytes.data(), size);
        if (result == kDone)
        {
            bytes.resize(size);
            value = ValueOfRegistryBytes(type, std::move(bytes));
        }
        return result;
    });
}

long TSysReg::DeleteValue(const std::wstring& name)
{
    return WithKey([&] { return ResultOf(RegDeleteValueA(mKey.get(), NarrowText(name).c_str())); });
}

} // namespace config
