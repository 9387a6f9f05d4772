#include "platform/directory_service.h"

#include "platform/windows/automation.h"
#include "platform/windows/wide.h"

#include <utility>

namespace platform {

namespace {

// As many records as a server of this kind gives in one answer unless it was told otherwise. A
// query that asks for no pages gets the first of them only, and nothing says that there are more.
constexpr long kPageSize = 1000;

class AutomationDirectory : public DirectoryService {
public:
    void Bind(const std::string& domain) override {
        directory_ = Object(BindAutomationObject(L"LDAP://" + WideFromUtf8(domain)));
    }

    void Connect() override {
        connection_ = Object(CreateAutomationObject(L"ADODB.Connection"));
        Note(connection_.Put(L"Provider", Variant(L"ADsDSOObject")));
        // Nobody is named, so it is the current user who asks.
        Note(connection_.Call(L"Open", {Variant(L""), Variant(L""), Variant(L"")}).error);
    }

    void Prepare() override {
        command_ = Object(CreateAutomationObject(L"ADODB.Command"));
        Note(command_.PutReference(L"ActiveConnection", connection_));
        PutQuery();
        RequestPages();
    }

    void Execute() override {
        atEnd_ = false;
        records_ = Object(command_.Call(L"Execute"));
    }

    long RecordCount() override { return Noted(records_.Get(L"RecordCount")).Number().value_or(0); }

    bool AtEnd() override { return atEnd_ || Noted(records_.Get(L"EOF")).Truth().value_or(true); }

    std::optional<std::string> Value(const std::string& attribute) override {
        const AutomationObject fields = Object(records_.Get(L"Fields"));
        const AutomationObject field =
            Object(fields.Get(L"Item", {Variant(WideFromUtf8(attribute))}));
        return Noted(field.Get(L"Value")).First().Text();
    }

    void MoveNext() override {
        const SystemError error = records_.Call(L"MoveNext").error;
        Note(error);
        // The record that stayed current would be read again and again.
        atEnd_ = atEnd_ || error;
    }

private:
    // A step that could not be taken because an earlier one gave no object is the echo of that
    // failure: the administrator needs the cause, so an error that stands is kept.
    void Note(const SystemError& error) {
        if (error && (error.number != kMissingObject || !Error())) {
            Fail(error);
        }
    }

    Variant Noted(AutomationAnswer answer) {
        Note(answer.error);
        return std::move(answer.value);
    }

    AutomationObject Object(AutomationAnswer answer) {
        return AutomationObject(Noted(std::move(answer)));
    }

    void PutQuery() {
        const AutomationAnswer path = directory_.Get(L"ADsPath");
        Note(path.error);
        if (path.error) {
            return;
        }
        const std::string query = "Select name, printShareName FROM '" +
                                  path.value.Text().value_or("") +
                                  "' WHERE objectCategory='printQueue'";
        Note(command_.Put(L"CommandText", Variant(WideFromUtf8(query))));
    }

    // A provider without pages answers all the same, if not always with everything.
    void RequestPages() const {
        const AutomationObject properties(command_.Get(L"Properties").value);
        const AutomationObject size(properties.Get(L"Item", {Variant(L"Page Size")}).value);
        static_cast<void>(size.Put(L"Value", Variant(kPageSize)));
    }

    // Destroyed last: whatever the objects do when they go, they do in it.
    ComApartment apartment_;
    AutomationObject directory_;
    AutomationObject connection_;
    AutomationObject command_;
    AutomationObject records_;
    bool atEnd_ = false;
};

} // namespace

// The calls of the automation objects return when they have their answer and not before; nothing
// can be done while one waits, nor can it be abandoned.
std::unique_ptr<DirectoryService> MakeDirectoryService(KeepWaiting /*keepWaiting*/) {
    return std::make_unique<AutomationDirectory>();
}

std::vector<std::string> DomainNames() {
    const ComApartment apartment;
    std::vector<std::string> names;
    const AutomationObject network(BindAutomationObject(L"WinNT:").value);
    const ComPointer<IEnumVARIANT> children = network.Children();
    if (children == nullptr) {
        return names;
    }
    for (Variant child; children->Next(1, child.Place(), nullptr) == S_OK; child = Variant()) {
        // A child that does not tell its name is passed over.
        const auto name = AutomationObject(child).Get(L"Name").value.Text();
        if (name) {
            names.push_back(*name);
        }
    }
    return names;
}

} // namespace platform
