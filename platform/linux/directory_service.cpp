#include "platform/directory_service.h"

#include "platform/linux/directory_server.h"
#include "platform/linux/kerberos_ticket.h"
#include "platform/utf8.h"

#include <array>
#include <csignal>
#include <cstddef>
#include <utility>

#include <ldap.h>
#include <openldap.h>
#include <poll.h>
#include <unistd.h>

namespace platform {

namespace {

using namespace std::chrono_literals;

// One for finding, connecting and Kerberos together, one for each further answer.
constexpr auto kConnectLimit = 10s;
constexpr auto kAnswerLimit = 30s;
// What Windows servers allow unless told otherwise; some servers refuse to be asked for more.
constexpr ber_int_t kPageSize = 1000;
constexpr char kFilter[] = "(objectCategory=printQueue)";

struct Record {
    std::optional<std::string> name;
    std::optional<std::string> printShareName;
};

using Message = std::unique_ptr<LDAPMessage, decltype(&ldap_msgfree)>;

std::string EscapedForUrl(std::string_view text) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string escaped;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if ((byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
            (byte >= 'a' && byte <= 'z') || byte == '-' || byte == '.' || byte == '_') {
            escaped += character;
        } else {
            escaped += {'%', kDigits[byte >> 4U], kDigits[byte & 0xFU]};
        }
    }
    return escaped;
}

// The mechanism needs no answers: who the user is stands in the credential cache.
int NothingToAsk(LDAP* /*session*/, unsigned /*flags*/, void* /*defaults*/, void* /*questions*/) {
    return LDAP_SUCCESS;
}

// The library writes to its connection in such a way that the system ends a process whose server
// has gone. For good, since its farewell is a write as well; whoever handles the signal keeps doing
// so.
void IgnoreBrokenPipes() {
    struct sigaction action {};
    if (sigaction(SIGPIPE, nullptr, &action) == 0 && action.sa_handler == SIG_DFL) {
        action.sa_handler = SIG_IGN;
        sigaction(SIGPIPE, &action, nullptr);
    }
}

class LdapDirectory : public DirectoryService {
public:
    explicit LdapDirectory(KeepWaiting keepWaiting) : keepWaiting_(std::move(keepWaiting)) {
        IgnoreBrokenPipes();
    }

    ~LdapDirectory() override {
        if (session_ != nullptr) {
            ldap_unbind_ext(session_, nullptr, nullptr);
        }
    }

    void Bind(const std::string& domain) override {
        if (OpenSession(domain) && BindAsCurrentUser()) {
            ReadSearchBase();
        }
    }

    // Bind has opened the only connection there is, and the query is one constant text.
    void Connect() override {}
    void Prepare() override {}

    // A server without a limit answers much faster in one piece than in pages, so it is asked for
    // that first; one that cuts the answer is asked again, for pages.
    void Execute() override {
        if (base_.empty()) {
            FailWith(LDAP_SERVER_DOWN, "no directory is bound");
            return;
        }
        if (!Search(nullptr)) {
            return;
        }
        if (result_ == LDAP_SIZELIMIT_EXCEEDED || result_ == LDAP_ADMINLIMIT_EXCEEDED) {
            SearchInPages();
        }
        if (result_ != LDAP_SUCCESS && !Error()) {
            FailWith(result_, diagnostic_);
        }
    }

    long RecordCount() override { return static_cast<long>(records_.size()); }
    bool AtEnd() override { return current_ >= records_.size(); }

    std::optional<std::string> Value(const std::string& attribute) override {
        if (AtEnd()) {
            return std::nullopt;
        }
        const Record& record = records_[current_];
        return attribute == "name" ? record.name : record.printShareName;
    }

    void MoveNext() override { ++current_; }

private:
    void FailWith(int code, const std::string& detail = {}) {
        const std::string text = ldap_err2string(code);
        Fail({code, ValidUtf8(detail.empty() ? text : text + ": " + detail)});
    }

    [[nodiscard]] std::string Diagnostic() const {
        char* text = nullptr;
        ldap_get_option(session_, LDAP_OPT_DIAGNOSTIC_MESSAGE, &text);
        std::string copy = text == nullptr ? "" : text;
        ldap_memfree(text);
        return copy;
    }

    [[nodiscard]] int SessionError() const {
        int code = LDAP_OTHER;
        ldap_get_option(session_, LDAP_OPT_RESULT_CODE, &code);
        return code;
    }

    bool OpenSession(const std::string& domain) {
        bindDeadline_ = std::chrono::steady_clock::now() + kConnectLimit;
        ServerConnection server = ConnectToDirectory(domain, bindDeadline_, keepWaiting_);
        if (server.descriptor < 0) {
            Fail({server.error.number, ValidUtf8(server.error.description)});
            return false;
        }
        const std::string url =
            "ldap://" + EscapedForUrl(server.host) + ":" + std::to_string(server.port);
        const int code = ldap_init_fd(server.descriptor, LDAP_PROTO_TCP, url.c_str(), &session_);
        if (code != LDAP_SUCCESS) {
            close(server.descriptor);
            session_ = nullptr;
            FailWith(code);
            return false;
        }
        host_ = server.host;
        const int version = LDAP_VERSION3;
        ldap_set_option(session_, LDAP_OPT_PROTOCOL_VERSION, &version);
        ldap_set_option(session_, LDAP_OPT_REFERRALS, LDAP_OPT_OFF);
        ldap_set_option(session_, LDAP_OPT_X_SASL_NOCANON, LDAP_OPT_ON);
        // Signed and sealed, or not at all.
        ldap_set_option(session_, LDAP_OPT_X_SASL_SECPROPS, "noanonymous,noplain,minssf=56");
        return true;
    }

    bool BindAsCurrentUser() {
        const auto problem = FetchDirectoryTicket(host_, bindDeadline_, keepWaiting_);
        if (!problem) {
            FailWith(LDAP_TIMEOUT);
            return false;
        }
        if (!problem->empty()) {
            FailWith(LDAP_LOCAL_ERROR, *problem);
            return false;
        }
        const char* mechanism = nullptr;
        Message answer(nullptr, &ldap_msgfree);
        int code = LDAP_SASL_BIND_IN_PROGRESS;
        while (code == LDAP_SASL_BIND_IN_PROGRESS) {
            int id = 0;
            code = ldap_sasl_interactive_bind(session_, nullptr, "GSSAPI", nullptr, nullptr,
                                              LDAP_SASL_QUIET, &NothingToAsk, nullptr, answer.get(),
                                              &mechanism, &id);
            if (code == LDAP_SASL_BIND_IN_PROGRESS) {
                answer = NextMessage(id, LDAP_MSG_ALL, bindDeadline_);
                if (!answer) {
                    return false;
                }
            }
        }
        if (code != LDAP_SUCCESS) {
            FailWith(code, Diagnostic());
        }
        return code == LDAP_SUCCESS;
    }

    void ReadSearchBase() {
        std::string attribute = "defaultNamingContext";
        std::array<char*, 2> attributes{attribute.data(), nullptr};
        int id = 0;
        const int code =
            ldap_search_ext(session_, "", LDAP_SCOPE_BASE, "(objectClass=*)", attributes.data(), 0,
                            nullptr, nullptr, nullptr, LDAP_NO_LIMIT, &id);
        if (code != LDAP_SUCCESS) {
            FailWith(code, Diagnostic());
            return;
        }
        const Message answer =
            NextMessage(id, LDAP_MSG_ALL, std::chrono::steady_clock::now() + kConnectLimit);
        if (!answer) {
            return;
        }
        LDAPMessage* const entry = ldap_first_entry(session_, answer.get());
        if (entry != nullptr) {
            base_ = FirstValue(entry, attribute).value_or("");
        }
        if (base_.empty()) {
            FailWith(LDAP_NO_SUCH_OBJECT, "the server holds no domain");
        }
    }

    std::optional<std::string> FirstValue(LDAPMessage* entry, const std::string& attribute) {
        berval** const values = ldap_get_values_len(session_, entry, attribute.c_str());
        std::optional<std::string> value;
        if (values != nullptr && values[0] != nullptr) {
            value = ValidUtf8({values[0]->bv_val, values[0]->bv_len});
        }
        ldap_value_free_len(values);
        return value;
    }

    // Waits in slices, for the next message or, with LDAP_MSG_ALL, for all of an operation.
    Message NextMessage(int id, int amount, Deadline deadline) {
        for (;;) {
            timeval atOnce{};
            LDAPMessage* message = nullptr;
            const int type = ldap_result(session_, id, amount, &atOnce, &message);
            if (type > 0) {
                return {message, &ldap_msgfree};
            }
            if (type < 0) {
                FailWith(SessionError(), Diagnostic());
                break;
            }
            int descriptor = -1;
            ldap_get_option(session_, LDAP_OPT_DESC, &descriptor);
            pollfd wanted{descriptor, POLLIN, 0};
            poll(&wanted, 1, static_cast<int>(kSlice.count()));
            if (!keepWaiting_()) {
                FailWith(LDAP_USER_CANCELLED);
                break;
            }
            if (std::chrono::steady_clock::now() >= deadline) {
                FailWith(LDAP_TIMEOUT);
                break;
            }
        }
        ldap_abandon_ext(session_, id, nullptr, nullptr);
        return {nullptr, &ldap_msgfree};
    }

    // Adds what one search finds to the records. False when no result came; else result_ is it.
    bool Search(LDAPControl* page) {
        std::string name = "name";
        std::string share = "printShareName";
        std::array<char*, 3> attributes{name.data(), share.data(), nullptr};
        std::array<LDAPControl*, 2> controls{page, nullptr};
        int id = 0;
        const int code =
            ldap_search_ext(session_, base_.c_str(), LDAP_SCOPE_SUBTREE, kFilter, attributes.data(),
                            0, controls.data(), nullptr, nullptr, LDAP_NO_LIMIT, &id);
        if (code != LDAP_SUCCESS) {
            FailWith(code, Diagnostic());
            return false;
        }
        for (;;) {
            const Message messages =
                NextMessage(id, LDAP_MSG_RECEIVED, std::chrono::steady_clock::now() + kAnswerLimit);
            if (!messages) {
                return false;
            }
            for (LDAPMessage* message = ldap_first_message(session_, messages.get());
                 message != nullptr; message = ldap_next_message(session_, message)) {
                if (ldap_msgtype(message) == LDAP_RES_SEARCH_ENTRY) {
                    records_.push_back({FirstValue(message, name), FirstValue(message, share)});
                } else if (ldap_msgtype(message) == LDAP_RES_SEARCH_RESULT) {
                    return ReadResult(message);
                }
            }
        }
    }

    // The result and, of a page, the cookie for the next one.
    bool ReadResult(LDAPMessage* message) {
        char* text = nullptr;
        LDAPControl** controls = nullptr;
        const int code =
            ldap_parse_result(session_, message, &result_, nullptr, &text, nullptr, &controls, 0);
        if (code != LDAP_SUCCESS) {
            FailWith(code, Diagnostic());
            return false;
        }
        diagnostic_ = text == nullptr ? "" : text;
        ldap_memfree(text);
        cookie_.clear();
        LDAPControl* const page = ldap_control_find(LDAP_CONTROL_PAGEDRESULTS, controls, nullptr);
        ber_int_t estimate = 0;
        berval cookie{};
        if (page != nullptr &&
            ldap_parse_pageresponse_control(session_, page, &estimate, &cookie) == LDAP_SUCCESS) {
            cookie_.assign(cookie.bv_val, cookie.bv_len);
            ber_memfree(cookie.bv_val);
        }
        ldap_controls_free(controls);
        return true;
    }

    void SearchInPages() {
        records_.clear();
        cookie_.clear();
        do {
            berval cookie{cookie_.size(), cookie_.data()};
            LDAPControl* page = nullptr;
            const int code = ldap_create_page_control(session_, kPageSize, &cookie, 1, &page);
            if (code != LDAP_SUCCESS) {
                FailWith(code);
                return;
            }
            const bool answered = Search(page);
            ldap_control_free(page);
            if (!answered) {
                return;
            }
        } while (result_ == LDAP_SUCCESS && !cookie_.empty());
    }

    KeepWaiting keepWaiting_;
    LDAP* session_ = nullptr;
    Deadline bindDeadline_;
    std::string host_;
    std::string base_;
    int result_ = LDAP_SUCCESS;
    std::string diagnostic_;
    std::string cookie_;
    std::vector<Record> records_;
    std::size_t current_ = 0;
};

} // namespace

std::unique_ptr<DirectoryService> MakeDirectoryService(KeepWaiting keepWaiting) {
    return std::make_unique<LdapDirectory>(std::move(keepWaiting));
}

} // namespace platform
