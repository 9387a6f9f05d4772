// The system's automation objects, called by the names of their members as a script calls them.
//
// Nothing here throws, logs or shows anything: what fails comes back as the error that a script
// would find in its error object.
#pragma once

#include "platform/system_error.h"

#include <windows.h>

#include <oleauto.h>

#include <initializer_list>
#include <memory>
#include <optional>
#include <string>

namespace platform {

/// COM on this thread for as long as this object lives, whoever else uses it there.
class ComApartment {
public:
    ComApartment();
    ~ComApartment();
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

private:
    bool entered_;
};

struct ReleaseReference {
    void operator()(IUnknown* object) const { object->Release(); }
};

/// One counted reference.
template <typename Interface> using ComPointer = std::unique_ptr<Interface, ReleaseReference>;

/// A VARIANT and what it owns.
class Variant {
public:
    Variant() = default;
    explicit Variant(const std::wstring& text);
    explicit Variant(long number);
    /// Takes the reference over; a null one is the script's Nothing.
    explicit Variant(ComPointer<IDispatch> object);
    Variant(Variant&& other) noexcept;
    Variant& operator=(Variant&& other) noexcept;
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
    ~Variant();

    /// The value as text, UTF-8; nothing when it is none: empty, null, or an array.
    [[nodiscard]] std::optional<std::string> Text() const;

    /// The value as a number; nothing when it is none.
    [[nodiscard]] std::optional<long> Number() const;

    /// The value as a truth; nothing when it is none.
    [[nodiscard]] std::optional<bool> Truth() const;

    /// The first element of an array of variants or of texts, and an empty value when it has none;
    /// of anything else a copy.
    [[nodiscard]] Variant First() const;

    /// For the system's calls. Who fills it sees to it that it was empty.
    [[nodiscard]] const VARIANT& Raw() const { return raw_; }
    [[nodiscard]] VARIANT* Place() { return &raw_; }

private:
    [[nodiscard]] Variant As(VARTYPE type) const;

    VARIANT raw_{};
};

/// What a call gave: a value, or the error with its number and description.
struct AutomationAnswer {
    Variant value;
    SystemError error;
};

/// The error of a failed call. `exception` is what the object told about it, empty when it told
/// nothing; its texts remain the caller's. The number is the object's own or the result as a signed
/// number, and a script's own number where the result is made of one. The description is the
/// object's own or the system's, without a line end, and never empty.
SystemError AutomationError(HRESULT result, const EXCEPINFO& exception = {});

/// The number of the error that a call on a missing object gives.
constexpr int kMissingObject = 91;

/// An object with late-bound members, or none: then every call fails with the number above.
class AutomationObject {
public:
    AutomationObject() = default;
    /// The object in `value`; none when it holds none.
    explicit AutomationObject(const Variant& value);

    using Arguments = std::initializer_list<Variant>;
    [[nodiscard]] AutomationAnswer Get(std::wstring property, Arguments arguments = {}) const;
    [[nodiscard]] AutomationAnswer Call(std::wstring method, Arguments arguments = {}) const;
    [[nodiscard]] SystemError Put(std::wstring property, const Variant& value) const;
    /// Gives the property the object itself, where Put may give it the object's default value. To
    /// give away a missing object fails like a call on one.
    [[nodiscard]] SystemError PutReference(std::wstring property,
                                           const AutomationObject& object) const;
    /// The enumeration of a container's children.
    [[nodiscard]] ComPointer<IEnumVARIANT> Children() const;

private:
    AutomationAnswer Invoke(std::wstring member, WORD kind, Arguments arguments) const;
    SystemError Assign(std::wstring property, WORD kind, const VARIANT& value) const;
    AutomationAnswer InvokeNamed(std::wstring member, WORD kind, DISPPARAMS& parameters) const;
    AutomationAnswer InvokeMember(DISPID member, WORD kind, DISPPARAMS& parameters) const;

    ComPointer<IDispatch> object_;
};

/// A new object of the class with this name.
AutomationAnswer CreateAutomationObject(const wchar_t* programId);

/// The object that a display name leads to, such as "LDAP://corp.example".
AutomationAnswer BindAutomationObject(const std::wstring& displayName);

} // namespace platform
