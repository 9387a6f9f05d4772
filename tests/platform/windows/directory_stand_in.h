// Stand-ins for the objects that a directory query goes through, which this process, and no other,
// meets in the place of the system's own.
#pragma once

#include "tests/platform/windows/scripted_object.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

// COM's interfaces have no virtual destructor: whoever ends an object knows its class.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace test {

/// Gives the class object of the class behind a name of the registry for as long as it lives. Where
/// the name is not registered, it is for that time, and gone with the session after a crash.
class RegisteredClass {
public:
    RegisteredClass(const wchar_t* programId, IUnknown& classObject);
    ~RegisteredClass();
    RegisteredClass(const RegisteredClass&) = delete;
    RegisteredClass& operator=(const RegisteredClass&) = delete;

private:
    std::wstring ownKey_;
    DWORD cookie_ = 0;
};

/// Makes the objects that are asked for and notes it down as `create NAME`; the failure of
/// "create NAME" is met instead.
class StandInClass final : public IClassFactory {
public:
    using Make = std::function<platform::ComPointer<IDispatch>()>;
    StandInClass(Tape& tape, const wchar_t* programId, Make make);
    ~StandInClass() = default;
    StandInClass(const StandInClass&) = delete;
    StandInClass& operator=(const StandInClass&) = delete;

    HRESULT WINAPI QueryInterface(REFIID id, void** object) override;
    ULONG WINAPI AddRef() override { return 2; } // It is a part of who made it.
    ULONG WINAPI Release() override { return 1; }
    HRESULT WINAPI CreateInstance(IUnknown* outer, REFIID id, void** object) override;
    HRESULT WINAPI LockServer(BOOL /*lock*/) override { return S_OK; }

private:
    Tape& tape_;
    std::string call_;
    Make make_;
    RegisteredClass registered_;
};

/// A namespace of directory objects: every name in it leads to an object made by `make`. Notes the
/// name down as `bind "NAME"`; the failure of "bind" is met instead.
class StandInNamespace final : public IParseDisplayName {
public:
    using Make = std::function<platform::ComPointer<IDispatch>()>;
    StandInNamespace(Tape& tape, const wchar_t* programId, Make make);
    ~StandInNamespace() = default;
    StandInNamespace(const StandInNamespace&) = delete;
    StandInNamespace& operator=(const StandInNamespace&) = delete;

    HRESULT WINAPI QueryInterface(REFIID id, void** object) override;
    ULONG WINAPI AddRef() override { return 2; }
    ULONG WINAPI Release() override { return 1; }
    HRESULT WINAPI ParseDisplayName(IBindCtx* context, LPOLESTR name, ULONG* eaten,
                                    IMoniker** moniker) override;

private:
    Tape& tape_;
    Make make_;
    RegisteredClass registered_;
};

/// The directory, the connection and the command of one query, and its records.
class DirectoryStandIn {
public:
    DirectoryStandIn();

    using Value = std::function<platform::Variant()>;
    /// A record's fields by their names.
    using Record = std::map<std::string, Value>;
    std::vector<Record> records;
    /// The path of the directory that was bound.
    std::wstring path = L"LDAP://corp.example";
    Tape tape;

private:
    platform::ComPointer<IDispatch> MakeDirectory();
    platform::ComPointer<IDispatch> MakeConnection();
    platform::ComPointer<IDispatch> MakeCommand();
    platform::ComPointer<IDispatch> MakeProperties();
    platform::ComPointer<IDispatch> MakeRecords();
    platform::ComPointer<IDispatch> MakeFields();
    platform::ComPointer<IDispatch> MakeField(const std::string& name);

    std::size_t current_ = 0;
    platform::ComApartment apartment_;
    StandInNamespace directory_;
    StandInClass connection_;
    StandInClass command_;
};

/// Values as a directory gives them.
platform::Variant Text(const std::wstring& text);
platform::Variant Null();
platform::Variant Texts(const std::vector<std::wstring>& texts);

} // namespace test

#pragma GCC diagnostic pop
