// Automation objects that play what a test tells them to and note down what is asked of them.
#pragma once

#include "platform/windows/automation.h"

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

// COM's interfaces have no virtual destructor: whoever ends an object knows its class.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace test {

/// How a call fails. With the result DISP_E_EXCEPTION the rest is what the object tells about it.
struct Failure {
    HRESULT result = DISP_E_EXCEPTION;
    WORD code = 0;
    HRESULT scode = 0;
    std::wstring description;
    /// The rest is told only to who asks for it afterwards.
    bool deferred = false;
};

/// The calls made on a set of objects, in order, and the failures they are to meet.
class Tape {
public:
    void Note(std::string call) { calls_.push_back(std::move(call)); }
    [[nodiscard]] const std::vector<std::string>& Calls() const { return calls_; }

    /// From now on `member` fails, for example "Connection.Open".
    void Fail(const std::string& member, Failure failure) {
        failures_[member] = std::move(failure);
    }
    [[nodiscard]] const Failure* FailureOf(const std::string& member) const;

    void Enter(const IDispatch* object, std::string name) { alive_[object] = std::move(name); }
    void Leave(const IDispatch* object) { alive_.erase(object); }
    /// The names of the objects that somebody still holds.
    [[nodiscard]] std::vector<std::string> Alive() const;

    /// A value as the notes write it: a text in quotes, an object by its name.
    [[nodiscard]] std::string Written(const VARIANT& value) const;

private:
    std::vector<std::string> calls_;
    std::map<std::string, Failure> failures_;
    std::map<const IDispatch*, std::string> alive_;
};

/// What a member does: takes the arguments, the first one first, and gives its value.
using Member = std::function<platform::Variant(const std::vector<VARIANT>&)>;

class ScriptedObject final : public IDispatch {
public:
    /// Who makes one holds the first reference. The tape lives longer.
    ScriptedObject(Tape& tape, std::string name);
    ~ScriptedObject();
    ScriptedObject(const ScriptedObject&) = delete;
    ScriptedObject& operator=(const ScriptedObject&) = delete;

    /// A member that can be used in these ways (DISPATCH_METHOD and so on) and in no other.
    void Add(const std::string& member, WORD kinds, Member act);
    void AddProperty(const std::string& member, Member act) {
        Add(member, DISPATCH_PROPERTYGET, std::move(act));
    }
    /// Properties and methods that do nothing but succeed.
    void AddSettable(const std::string& member);
    void AddMethod(const std::string& member);
    /// What makes the object a container.
    void AddChildren(Member act);

    HRESULT WINAPI QueryInterface(REFIID id, void** object) override;
    ULONG WINAPI AddRef() override { return ++references_; }
    ULONG WINAPI Release() override;
    HRESULT WINAPI GetTypeInfoCount(UINT* count) override;
    HRESULT WINAPI GetTypeInfo(UINT index, LCID language, ITypeInfo** info) override;
    HRESULT WINAPI GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID language,
                                 DISPID* ids) override;
    HRESULT WINAPI Invoke(DISPID id, REFIID reserved, LCID language, WORD kind,
                          DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                          UINT* wrongArgument) override;

private:
    struct Entry {
        DISPID id;
        std::string name;
        WORD kinds;
        Member act;
    };

    Tape& tape_;
    std::string name_;
    std::vector<Entry> members_;
    ULONG references_ = 1;
};

/// The object as a value, with a reference of its own.
platform::Variant ObjectValue(IDispatch* object);

/// An enumeration of these objects that ends with S_FALSE or, if told so, with an error.
platform::Variant Enumeration(std::vector<platform::ComPointer<IDispatch>> objects,
                              HRESULT end = S_FALSE);

} // namespace test

#pragma GCC diagnostic pop
