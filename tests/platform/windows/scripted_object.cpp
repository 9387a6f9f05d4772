#include "tests/platform/windows/scripted_object.h"

#include "platform/windows/wide.h"

#include <algorithm>

// COM's interfaces have no virtual destructor: whoever ends an object knows its class.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace test {

using platform::Variant;

namespace {

BSTR TextOf(const std::wstring& text) {
    return SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

HRESULT WINAPI Tell(EXCEPINFO* exception) {
    const auto* failure = static_cast<const Failure*>(exception->pvReserved);
    exception->wCode = failure->code;
    exception->scode = failure->scode;
    exception->bstrSource = TextOf(L"stand-in");
    if (!failure->description.empty()) {
        exception->bstrDescription = TextOf(failure->description);
    }
    return S_OK;
}

HRESULT Fail(const Failure& failure, EXCEPINFO* exception) {
    if (failure.result == DISP_E_EXCEPTION) {
        *exception = {};
        exception->pvReserved = const_cast<Failure*>(&failure);
        if (failure.deferred) {
            exception->pfnDeferredFillIn = Tell;
        } else {
            Tell(exception);
        }
    }
    return failure.result;
}

class ScriptedEnumeration final : public IEnumVARIANT {
public:
    ScriptedEnumeration(std::vector<platform::ComPointer<IDispatch>> objects, HRESULT end)
        : objects_(std::move(objects)), end_(end) {}
    ~ScriptedEnumeration() = default;
    ScriptedEnumeration(const ScriptedEnumeration&) = delete;
    ScriptedEnumeration& operator=(const ScriptedEnumeration&) = delete;

    HRESULT WINAPI QueryInterface(REFIID id, void** object) override {
        const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IEnumVARIANT);
        *object = known ? this : nullptr;
        return known ? (AddRef(), S_OK) : E_NOINTERFACE;
    }
    ULONG WINAPI AddRef() override { return ++references_; }
    ULONG WINAPI Release() override {
        const ULONG left = --references_;
        if (left == 0) {
            delete this;
        }
        return left;
    }
    HRESULT WINAPI Next(ULONG count, VARIANT* values, ULONG* fetched) override {
        if (count != 1 || next_ == objects_.size()) {
            return count == 1 ? end_ : E_NOTIMPL;
        }
        *values = VARIANT{};
        values->vt = VT_DISPATCH;
        values->pdispVal = objects_[next_++].get();
        values->pdispVal->AddRef();
        if (fetched != nullptr) {
            *fetched = 1;
        }
        return S_OK;
    }
    HRESULT WINAPI Skip(ULONG /*count*/) override { return E_NOTIMPL; }
    HRESULT WINAPI Reset() override { return E_NOTIMPL; }
    HRESULT WINAPI Clone(IEnumVARIANT** /*copy*/) override { return E_NOTIMPL; }

private:
    std::vector<platform::ComPointer<IDispatch>> objects_;
    HRESULT end_;
    std::size_t next_ = 0;
    ULONG references_ = 1;
};

const char* KindWord(WORD kind) {
    switch (kind) {
    case DISPATCH_PROPERTYPUT:
        return "put ";
    case DISPATCH_PROPERTYPUTREF:
        return "putref ";
    case DISPATCH_METHOD:
        return "call ";
    default:
        return "get ";
    }
}

std::string WrittenArguments(const Tape& tape, WORD kind, const std::vector<VARIANT>& arguments) {
    if ((kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
        return arguments.size() == 1 ? " = " + tape.Written(arguments[0]) : " = ?";
    }
    std::string list;
    for (const VARIANT& argument : arguments) {
        list += (list.empty() ? "(" : ", ") + tape.Written(argument);
    }
    return list.empty() ? list : list + ")";
}

} // namespace

const Failure* Tape::FailureOf(const std::string& member) const {
    const auto found = failures_.find(member);
    return found == failures_.end() ? nullptr : &found->second;
}

std::vector<std::string> Tape::Alive() const {
    std::vector<std::string> names;
    for (const auto& [object, name] : alive_) {
        names.push_back(name);
    }
    return names;
}

std::string Tape::Written(const VARIANT& value) const {
    if (value.vt == VT_BSTR) {
        return '"' + platform::Utf8FromWide({value.bstrVal, SysStringLen(value.bstrVal)}) + '"';
    }
    if (value.vt == VT_I4) {
        return std::to_string(value.lVal);
    }
    if (value.vt == VT_DISPATCH) {
        const auto found = alive_.find(value.pdispVal);
        return found == alive_.end() ? "an object" : found->second;
    }
    return "a value of type " + std::to_string(value.vt);
}

ScriptedObject::ScriptedObject(Tape& tape, std::string name) : tape_(tape), name_(std::move(name)) {
    tape_.Enter(this, name_);
}

ScriptedObject::~ScriptedObject() {
    tape_.Leave(this);
}

void ScriptedObject::Add(const std::string& member, WORD kinds, Member act) {
    const auto id = static_cast<DISPID>(members_.size() + 1);
    members_.push_back({id, member, kinds, std::move(act)});
}

void ScriptedObject::AddSettable(const std::string& member) {
    Add(member, DISPATCH_PROPERTYPUT, [](const auto&) { return Variant(); });
}

void ScriptedObject::AddMethod(const std::string& member) {
    Add(member, DISPATCH_METHOD, [](const auto&) { return Variant(); });
}

void ScriptedObject::AddChildren(Member act) {
    constexpr WORD kEither = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    members_.push_back({DISPID_NEWENUM, "children", kEither, std::move(act)});
}

HRESULT ScriptedObject::QueryInterface(REFIID id, void** object) {
    const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch);
    *object = known ? this : nullptr;
    return known ? (AddRef(), S_OK) : E_NOINTERFACE;
}

ULONG ScriptedObject::Release() {
    const ULONG left = --references_;
    if (left == 0) {
        delete this;
    }
    return left;
}

HRESULT ScriptedObject::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

HRESULT ScriptedObject::GetTypeInfo(UINT /*index*/, LCID /*language*/, ITypeInfo** /*info*/) {
    return E_NOTIMPL;
}

HRESULT ScriptedObject::GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT count,
                                      LCID /*language*/, DISPID* ids) {
    if (count != 1) {
        return E_NOTIMPL;
    }
    const std::string name = platform::Utf8FromWide(*names);
    const auto found = std::find_if(members_.begin(), members_.end(),
                                    [&](const Entry& entry) { return entry.name == name; });
    *ids = found == members_.end() ? DISPID_UNKNOWN : found->id;
    return found == members_.end() ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT ScriptedObject::Invoke(DISPID id, REFIID /*reserved*/, LCID /*language*/, WORD kind,
                               DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                               UINT* /*wrongArgument*/) {
    const auto found = std::find_if(members_.begin(), members_.end(), [&](const Entry& entry) {
        return entry.id == id && (entry.kinds & kind) != 0;
    });
    if (found == members_.end()) {
        tape_.Note("wrong use of a member of " + name_);
        return DISP_E_MEMBERNOTFOUND;
    }
    std::vector<VARIANT> arguments(parameters->rgvarg, parameters->rgvarg + parameters->cArgs);
    std::reverse(arguments.begin(), arguments.end());
    const std::string member = name_ + '.' + found->name;
    tape_.Note(KindWord(kind) + member + WrittenArguments(tape_, kind, arguments));
    if (const Failure* failure = tape_.FailureOf(member)) {
        return Fail(*failure, exception);
    }
    Variant value = found->act(arguments);
    if (result != nullptr) {
        std::swap(*result, *value.Place());
    }
    return S_OK;
}

Variant ObjectValue(IDispatch* object) {
    object->AddRef();
    return Variant(platform::ComPointer<IDispatch>(object));
}

Variant Enumeration(std::vector<platform::ComPointer<IDispatch>> objects, HRESULT end) {
    Variant value;
    value.Place()->vt = VT_UNKNOWN;
    value.Place()->punkVal = new ScriptedEnumeration(std::move(objects), end);
    return value;
}

} // namespace test

#pragma GCC diagnostic pop
