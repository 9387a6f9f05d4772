#include "platform/directory_service.h"

#include "platform/linux/child_work.h"
#include "platform/utf8.h"

#include <algorithm>
#include <memory>
#include <sstream>
#include <string_view>

#include <krb5.h>
#include <profile.h>
#include <resolv.h>
#include <strings.h>
extern "C" {
#include <wbclient.h>
}

namespace platform {

namespace {

// A domain is the same in letters of another case, and with the dot of the root behind it. Search
// lists may hold that dot alone.
void AddOnce(std::vector<std::string>& names, std::string_view text) {
    while (text.ends_with('.')) {
        text.remove_suffix(1);
    }
    std::string name = ValidUtf8(text);
    const bool known = std::ranges::any_of(names, [&name](const std::string& other) {
        return strcasecmp(other.c_str(), name.c_str()) == 0;
    });
    if (!name.empty() && !known) {
        names.push_back(std::move(name));
    }
}

void AddRealmSections(std::vector<std::string>& names, profile_t profile) {
    const char* path[] = {"realms", nullptr};
    char** sections = nullptr;
    if (profile_get_subsection_names(profile, path, &sections) != 0 || sections == nullptr) {
        return;
    }
    for (char** section = sections; *section != nullptr; ++section) {
        AddOnce(names, *section);
    }
    profile_free_list(sections);
}

// The user's own realm first, then those the configuration describes.
void AddRealms(std::vector<std::string>& names) {
    krb5_context context = nullptr;
    if (krb5_init_context(&context) != 0) {
        return;
    }
    profile_t profile = nullptr;
    if (krb5_get_profile(context, &profile) == 0) {
        char* ownRealm = nullptr;
        if (profile_get_string(profile, "libdefaults", "default_realm", nullptr, nullptr,
                               &ownRealm) == 0 &&
            ownRealm != nullptr) {
            AddOnce(names, ownRealm);
            profile_release_string(ownRealm);
        }
        AddRealmSections(names, profile);
        profile_release(profile);
    }
    krb5_free_context(context);
}

// Fails at once where winbind does not run.
std::string TrustLines() {
    struct wbcDomainInfo* domains = nullptr; // a function has that name as well
    std::size_t count = 0;
    std::string lines;
    if (!WBC_ERROR_IS_OK(wbcListTrusts(&domains, &count))) {
        return lines;
    }
    for (std::size_t index = 0; index < count; ++index) {
        const struct wbcDomainInfo& domain = domains[index];
        // What stands for the machine itself, or for a domain of old, has no directory.
        if (domain.trust_type != WBC_DOMINFO_TRUSTTYPE_LOCAL && domain.dns_name != nullptr) {
            lines += domain.dns_name;
            lines += '\n';
        }
    }
    wbcFreeMemory(domains);
    return lines;
}

// One that accepts and never answers would keep the window from coming up.
void AddTrustedDomains(std::vector<std::string>& names) {
    constexpr std::chrono::seconds kLimit{3};
    std::istringstream lines(
        ResultOfChild(TrustLines, std::chrono::steady_clock::now() + kLimit, [] {
            return true;
        }).value_or(std::string()));
    for (std::string name; std::getline(lines, name);) {
        AddOnce(names, name);
    }
}

void AddSearchDomains(std::vector<std::string>& names) {
    struct __res_state state {};
    if (res_ninit(&state) != 0) {
        return;
    }
    for (const char* const domain : state.dnsrch) {
        if (domain == nullptr) {
            break;
        }
        AddOnce(names, domain);
    }
    res_nclose(&state);
}

} // namespace

std::vector<std::string> DomainNames() {
    std::vector<std::string> names;
    AddRealms(names);
    AddTrustedDomains(names);
    AddSearchDomains(names);
    return names;
}

} // namespace platform
