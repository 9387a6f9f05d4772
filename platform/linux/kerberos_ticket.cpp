#include "platform/linux/kerberos_ticket.h"

#include <gssapi/gssapi.h>
#include <gssapi/gssapi_krb5.h>

namespace platform {

namespace {

std::string StatusText(OM_uint32 status, int type) {
    OM_uint32 minor = 0;
    OM_uint32 more = 0;
    gss_buffer_desc text = GSS_C_EMPTY_BUFFER;
    if (GSS_ERROR(gss_display_status(&minor, status, type, gss_mech_krb5, &more, &text))) {
        return {};
    }
    std::string result(static_cast<const char*>(text.value), text.length);
    gss_release_buffer(&minor, &text);
    return result;
}

std::string Describe(OM_uint32 major, OM_uint32 minor) {
    const std::string cause = minor == 0 ? std::string() : StatusText(minor, GSS_C_MECH_CODE);
    return cause.empty() ? StatusText(major, GSS_C_GSS_CODE) : cause;
}

// Beginning a context fetches the service ticket; the context itself is not needed.
std::string BeginContext(const std::string& host) {
    std::string service = "ldap@" + host;
    gss_buffer_desc text{service.size(), service.data()};
    OM_uint32 minor = 0;
    gss_name_t name = GSS_C_NO_NAME;
    OM_uint32 major = gss_import_name(&minor, &text, GSS_C_NT_HOSTBASED_SERVICE, &name);
    if (GSS_ERROR(major)) {
        return Describe(major, minor);
    }
    gss_ctx_id_t context = GSS_C_NO_CONTEXT;
    gss_buffer_desc token = GSS_C_EMPTY_BUFFER;
    major = gss_init_sec_context(&minor, GSS_C_NO_CREDENTIAL, &context, name, gss_mech_krb5,
                                 GSS_C_MUTUAL_FLAG | GSS_C_INTEG_FLAG | GSS_C_CONF_FLAG, 0,
                                 GSS_C_NO_CHANNEL_BINDINGS, GSS_C_NO_BUFFER, nullptr, &token,
                                 nullptr, nullptr);
    std::string problem = GSS_ERROR(major) ? Describe(major, minor) : std::string();
    gss_release_buffer(&minor, &token);
    gss_delete_sec_context(&minor, &context, GSS_C_NO_BUFFER);
    gss_release_name(&minor, &name);
    return problem;
}

} // namespace

std::optional<std::string> FetchDirectoryTicket(const std::string& host, Deadline deadline,
                                                const KeepWaiting& keepWaiting) {
    return ResultOfChild([&host] { return BeginContext(host); }, deadline, keepWaiting);
}

} // namespace platform
