#include "tests/platform/windows/directory_stand_in.h"

#include "platform/windows/wide.h"

#include <stdexcept>
#include <string_view>

namespace test {

using platform::ComPointer;
using platform::Variant;

namespace {

// The class behind a name that the system does not know.
constexpr wchar_t kOwnClass[] = L"{5F0B6A8C-3C5E-4B0B-9E4C-51D2E0C6B7A1}";

void Demand(bool done, const char* what) {
    if (!done) {
        throw std::runtime_error(what);
    }
}

// Volatile, so that it does not outlive the session of the system even when nobody removes it.
void RegisterOwnClass(const std::wstring& key) {
    HKEY opened = nullptr;
    Demand(RegCreateKeyExW(HKEY_CLASSES_ROOT, (key + L"\\CLSID").c_str(), 0, nullptr,
                           REG_OPTION_VOLATILE, KEY_WRITE, nullptr, &opened,
                           nullptr) == ERROR_SUCCESS,
           "the class name cannot be registered");
    const LSTATUS set = RegSetValueExW(opened, nullptr, 0, REG_SZ,
                                       reinterpret_cast<const BYTE*>(kOwnClass), sizeof kOwnClass);
    RegCloseKey(opened);
    Demand(set == ERROR_SUCCESS, "the class name cannot be given its class");
}

} // namespace

RegisteredClass::RegisteredClass(const wchar_t* programId, IUnknown& classObject) {
    CLSID classId{};
    if (FAILED(CLSIDFromProgID(programId, &classId))) {
        ownKey_ = programId;
        RegisterOwnClass(ownKey_);
        Demand(SUCCEEDED(CLSIDFromProgID(programId, &classId)), "the class name is not found");
    }
    Demand(SUCCEEDED(CoRegisterClassObject(classId, &classObject, CLSCTX_INPROC_SERVER,
                                           REGCLS_MULTIPLEUSE, &cookie_)),
           "the class cannot be registered");
}

RegisteredClass::~RegisteredClass() {
    CoRevokeClassObject(cookie_);
    if (!ownKey_.empty()) {
        RegDeleteTreeW(HKEY_CLASSES_ROOT, ownKey_.c_str());
    }
}

StandInClass::StandInClass(Tape& tape, const wchar_t* programId, Make make)
    : tape_(tape), call_("create " + platform::Utf8FromWide(programId)), make_(std::move(make)),
      registered_(programId, *this) {}

HRESULT StandInClass::QueryInterface(REFIID id, void** object) {
    const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IClassFactory);
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
}

HRESULT StandInClass::CreateInstance(IUnknown* /*outer*/, REFIID id, void** object) {
    tape_.Note(call_);
    *object = nullptr;
    if (const Failure* failure = tape_.FailureOf(call_)) {
        return failure->result;
    }
    return make_()->QueryInterface(id, object);
}

StandInNamespace::StandInNamespace(Tape& tape, const wchar_t* programId, Make make)
    : tape_(tape), make_(std::move(make)), registered_(programId, *this) {}

HRESULT StandInNamespace::QueryInterface(REFIID id, void** object) {
    const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IParseDisplayName);
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
}

HRESULT StandInNamespace::ParseDisplayName(IBindCtx* /*context*/, LPOLESTR name, ULONG* eaten,
                                           IMoniker** moniker) {
    const std::wstring_view text(name);
    tape_.Note("bind \"" + platform::Utf8FromWide(text) + '"');
    *moniker = nullptr;
    if (const Failure* failure = tape_.FailureOf("bind")) {
        return failure->result;
    }
    *eaten = static_cast<ULONG>(text.size());
    return CreatePointerMoniker(make_().get(), moniker);
}

DirectoryStandIn::DirectoryStandIn()
    : directory_(tape, L"LDAP", [this] { return MakeDirectory(); }),
      connection_(tape, L"ADODB.Connection", [this] { return MakeConnection(); }),
      command_(tape, L"ADODB.Command", [this] { return MakeCommand(); }) {}

ComPointer<IDispatch> DirectoryStandIn::MakeDirectory() {
    ComPointer<ScriptedObject> object(new ScriptedObject(tape, "Directory"));
    object->AddProperty("ADsPath", [this](const auto&) { return Variant(path); });
    return ComPointer<IDispatch>(object.release());
}

ComPointer<IDispatch> DirectoryStandIn::MakeConnection() {
    ComPointer<ScriptedObject> object(new ScriptedObject(tape, "Connection"));
    object->AddSettable("Provider");
    object->AddMethod("Open");
    return ComPointer<IDispatch>(object.release());
}

ComPointer<IDispatch> DirectoryStandIn::MakeCommand() {
    ComPointer<ScriptedObject> object(new ScriptedObject(tape, "Command"));
    // Given as a value, a connection would be replaced by its default property's text.
    object->Add("ActiveConnection", DISPATCH_PROPERTYPUTREF, [](const auto&) { return Variant(); });
    object->AddSettable("CommandText");
    object->AddProperty("Properties", [this](const auto&) { return Variant(MakeProperties()); });
    object->Add("Execute", DISPATCH_METHOD, [this](const auto&) { return Variant(MakeRecords()); });
    return ComPointer<IDispatch>(object.release());
}

ComPointer<IDispatch> DirectoryStandIn::MakeProperties() {
    ComPointer<ScriptedObject> object(new ScriptedObject(tape, "Properties"));
    object->AddProperty("Item", [this](const auto&) {
        ComPointer<ScriptedObject> property(new ScriptedObject(tape, "Property"));
        property->AddSettable("Value");
        return Variant(ComPointer<IDispatch>(property.release()));
    });
    return ComPointer<IDispatch>(object.release());
}

ComPointer<IDispatch> DirectoryStandIn::MakeRecords() {
    current_ = 0;
    ComPointer<ScriptedObject> object(new ScriptedObject(tape, "Records"));
    object->AddProperty("RecordCount",
                        [this](const auto&) { return Variant(static_cast<long>(records.size())); });
    object->AddProperty("EOF", [this](const auto&) {
        Variant end;
        end.Place()->vt = VT_BOOL;
        end.Place()->boolVal = current_ < records.size() ? VARIANT_FALSE : VARIANT_TRUE;
        return end;
    });
    object->AddProperty("Fields", [this](const auto&) { return Variant(MakeFields()); });
    object->Add("MoveNext", DISPATCH_METHOD, [this](const auto&) {
        ++current_;
        return Variant();
    });
    return ComPointer<IDispatch>(object.release());
}

ComPointer<IDispatch> DirectoryStandIn::MakeFields() {
    ComPointer<ScriptedObject> object(new ScriptedObject(tape, "Fields"));
    object->AddProperty("Item", [this](const std::vector<VARIANT>& arguments) {
        const BSTR name = arguments.at(0).bstrVal;
        return Variant(MakeField(platform::Utf8FromWide({name, SysStringLen(name)})));
    });
    return ComPointer<IDispatch>(object.release());
}

ComPointer<IDispatch> DirectoryStandIn::MakeField(const std::string& name) {
    ComPointer<ScriptedObject> object(new ScriptedObject(tape, "Field"));
    object->AddProperty("Value",
                        [value = records.at(current_).at(name)](const auto&) { return value(); });
    return ComPointer<IDispatch>(object.release());
}

Variant Text(const std::wstring& text) {
    return Variant(text);
}

Variant Null() {
    Variant null;
    null.Place()->vt = VT_NULL;
    return null;
}

Variant Texts(const std::vector<std::wstring>& texts) {
    SAFEARRAY* array = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(texts.size()));
    LONG index = 0;
    for (const std::wstring& text : texts) {
        Variant element(text);
        SafeArrayPutElement(array, &index, element.Place()); // which copies it
        ++index;
    }
    Variant value;
    value.Place()->vt = VT_ARRAY | VT_VARIANT;
    value.Place()->parray = array;
    return value;
}

} // namespace test
