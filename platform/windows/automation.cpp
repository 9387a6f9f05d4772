#include "platform/windows/automation.h"

#include "platform/windows/wide.h"

#include <objbase.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace platform {

namespace {

// What the objects tell about a failure, with the texts that are ours to free.
class Exception {
public:
    Exception() = default;
    ~Exception() {
        SysFreeString(info_.bstrSource);
        SysFreeString(info_.bstrDescription);
        SysFreeString(info_.bstrHelpFile);
    }
    Exception(const Exception&) = delete;
    Exception& operator=(const Exception&) = delete;

    EXCEPINFO* Place() { return &info_; }

    // An object may put off the work of wording its error until somebody asks.
    const EXCEPINFO& Filled() {
        if (info_.pfnDeferredFillIn != nullptr) {
            info_.pfnDeferredFillIn(&info_);
            info_.pfnDeferredFillIn = nullptr;
        }
        return info_;
    }

private:
    EXCEPINFO info_{};
};

SystemError MissingObject() {
    return {kMissingObject, "Object variable not set"};
}

// Script engines number their own errors in the low half of results of the control facility.
int ScriptNumber(HRESULT result) {
    constexpr auto kControl = 0x800A0000U;
    const auto bits = static_cast<unsigned long>(result);
    return static_cast<int>((bits & 0xFFFF0000U) == kControl ? bits & 0xFFFFU : bits);
}

AutomationAnswer ObjectOrError(HRESULT result, void* object) {
    if (FAILED(result)) {
        return {{}, AutomationError(result)};
    }
    return {Variant(ComPointer<IDispatch>(static_cast<IDispatch*>(object))), {}};
}

std::string WithoutLineEnd(std::string text) {
    const auto last = text.find_last_not_of("\r\n ");
    text.resize(last == std::string::npos ? 0 : last + 1);
    return text;
}

} // namespace

ComApartment::ComApartment()
    : entered_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}

ComApartment::~ComApartment() {
    if (entered_) {
        CoUninitialize();
    }
}

Variant::Variant(const std::wstring& text) {
    raw_.vt = VT_BSTR;
    raw_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

Variant::Variant(long number) {
    raw_.vt = VT_I4;
    raw_.lVal = number;
}

Variant::Variant(ComPointer<IDispatch> object) {
    raw_.vt = VT_DISPATCH;
    raw_.pdispVal = object.release();
}

Variant::Variant(Variant&& other) noexcept : raw_(std::exchange(other.raw_, VARIANT{})) {}

Variant& Variant::operator=(Variant&& other) noexcept {
    std::swap(raw_, other.raw_);
    return *this;
}

Variant::~Variant() {
    VariantClear(&raw_);
}

Variant Variant::As(VARTYPE type) const {
    Variant converted;
    VARIANT source = raw_; // which stays the owner of what it holds
    // The language of the system must not decide how a number is written or a text is read.
    VariantChangeTypeEx(&converted.raw_, &source, LOCALE_INVARIANT, 0, type);
    return converted;
}

std::optional<std::string> Variant::Text() const {
    // An empty value would become an empty text.
    const Variant text = raw_.vt == VT_EMPTY ? Variant() : As(VT_BSTR);
    if (text.raw_.vt != VT_BSTR) {
        return std::nullopt;
    }
    return Utf8FromWide({text.raw_.bstrVal, SysStringLen(text.raw_.bstrVal)});
}

std::optional<long> Variant::Number() const {
    const Variant number = raw_.vt == VT_EMPTY ? Variant() : As(VT_I4);
    return number.raw_.vt == VT_I4 ? std::optional<long>(number.raw_.lVal) : std::nullopt;
}

std::optional<bool> Variant::Truth() const {
    const Variant truth = raw_.vt == VT_EMPTY ? Variant() : As(VT_BOOL);
    return truth.raw_.vt == VT_BOOL ? std::optional<bool>(truth.raw_.boolVal != VARIANT_FALSE)
                                    : std::nullopt;
}

Variant Variant::First() const {
    Variant first;
    if ((raw_.vt & VT_ARRAY) == 0) {
        VARIANT source = raw_;
        VariantCopy(&first.raw_, &source);
        return first;
    }
    SAFEARRAY* array = raw_.parray;
    LONG index = 0;
    if ((raw_.vt & VT_BYREF) != 0 || array == nullptr || SafeArrayGetDim(array) != 1 ||
        FAILED(SafeArrayGetLBound(array, 1, &index))) {
        return first;
    }
    // After the last element nothing is fetched: an array without elements has no first.
    if (raw_.vt == (VT_ARRAY | VT_VARIANT)) {
        SafeArrayGetElement(array, &index, &first.raw_);
    } else if (raw_.vt == (VT_ARRAY | VT_BSTR) &&
               SUCCEEDED(SafeArrayGetElement(array, &index, &first.raw_.bstrVal))) {
        first.raw_.vt = VT_BSTR;
    }
    return first;
}

SystemError AutomationError(HRESULT result, const EXCEPINFO& exception) {
    HRESULT code = result;
    if (result == DISP_E_EXCEPTION && exception.scode != 0) {
        code = exception.scode;
    }
    SystemError error{ScriptNumber(code), {}};
    if (exception.wCode != 0) {
        error.number = exception.wCode;
    }
    const BSTR description = exception.bstrDescription;
    error.description = WithoutLineEnd(Utf8FromWide({description, SysStringLen(description)}));
    if (error.description.empty()) {
        error.description = SystemErrorFromNumber(static_cast<int>(code)).description;
    }
    // The directory's own results are in none of the system's message tables.
    if (error.description.empty()) {
        error.description = "Automation error";
    }
    return error;
}

AutomationObject::AutomationObject(const Variant& value) {
    const VARIANT& raw = value.Raw();
    if ((raw.vt != VT_DISPATCH && raw.vt != VT_UNKNOWN) || raw.punkVal == nullptr) {
        return;
    }
    void* object = nullptr;
    if (SUCCEEDED(raw.punkVal->QueryInterface(IID_IDispatch, &object))) {
        object_.reset(static_cast<IDispatch*>(object));
    }
}

AutomationAnswer AutomationObject::Get(std::wstring property, Arguments arguments) const {
    return Invoke(std::move(property), DISPATCH_PROPERTYGET, arguments);
}

AutomationAnswer AutomationObject::Call(std::wstring method, Arguments arguments) const {
    return Invoke(std::move(method), DISPATCH_METHOD, arguments);
}

SystemError AutomationObject::Put(std::wstring property, const Variant& value) const {
    return Assign(std::move(property), DISPATCH_PROPERTYPUT, value.Raw());
}

SystemError AutomationObject::PutReference(std::wstring property,
                                           const AutomationObject& object) const {
    if (object.object_ == nullptr) {
        return MissingObject();
    }
    VARIANT reference{};
    reference.vt = VT_DISPATCH;
    reference.pdispVal = object.object_.get();
    return Assign(std::move(property), DISPATCH_PROPERTYPUTREF, reference);
}

ComPointer<IEnumVARIANT> AutomationObject::Children() const {
    DISPPARAMS none{};
    constexpr WORD kEither = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    const AutomationAnswer answer = InvokeMember(DISPID_NEWENUM, kEither, none);
    const VARIANT& raw = answer.value.Raw();
    void* children = nullptr;
    if ((raw.vt == VT_UNKNOWN || raw.vt == VT_DISPATCH) && raw.punkVal != nullptr) {
        raw.punkVal->QueryInterface(IID_IEnumVARIANT, &children);
    }
    return ComPointer<IEnumVARIANT>(static_cast<IEnumVARIANT*>(children));
}

AutomationAnswer AutomationObject::Invoke(std::wstring member, WORD kind,
                                          Arguments arguments) const {
    // The last argument comes first. The copies own nothing, the caller's values do.
    std::vector<VARIANT> values(arguments.size());
    std::transform(arguments.begin(), arguments.end(), values.rbegin(),
                   [](const Variant& argument) { return argument.Raw(); });
    DISPPARAMS parameters{};
    parameters.rgvarg = values.data();
    parameters.cArgs = static_cast<UINT>(values.size());
    return InvokeNamed(std::move(member), kind, parameters);
}

SystemError AutomationObject::Assign(std::wstring property, WORD kind, const VARIANT& value) const {
    VARIANT given = value;
    DISPID name = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&given, &name, 1, 1};
    return InvokeNamed(std::move(property), kind, parameters).error;
}

AutomationAnswer AutomationObject::InvokeNamed(std::wstring member, WORD kind,
                                               DISPPARAMS& parameters) const {
    if (object_ == nullptr) {
        return {{}, MissingObject()};
    }
    DISPID id = 0;
    LPOLESTR name = member.data();
    const HRESULT result = object_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(result)) {
        return {{}, AutomationError(result)};
    }
    return InvokeMember(id, kind, parameters);
}

AutomationAnswer AutomationObject::InvokeMember(DISPID member, WORD kind,
                                                DISPPARAMS& parameters) const {
    if (object_ == nullptr) {
        return {{}, MissingObject()};
    }
    AutomationAnswer answer;
    Exception exception;
    const HRESULT result = object_->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                                           answer.value.Place(), exception.Place(), nullptr);
    if (FAILED(result)) {
        // Whatever a failed call left in the value is not an answer.
        return {{}, AutomationError(result, exception.Filled())};
    }
    return answer;
}

AutomationAnswer CreateAutomationObject(const wchar_t* programId) {
    CLSID classId{};
    HRESULT result = CLSIDFromProgID(programId, &classId);
    void* object = nullptr;
    if (SUCCEEDED(result)) {
        result = CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                  IID_IDispatch, &object);
    }
    return ObjectOrError(result, object);
}

AutomationAnswer BindAutomationObject(const std::wstring& displayName) {
    void* object = nullptr;
    const HRESULT result = CoGetObject(displayName.c_str(), nullptr, IID_IDispatch, &object);
    return ObjectOrError(result, object);
}

} // namespace platform
