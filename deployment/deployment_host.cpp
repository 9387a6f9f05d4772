#include "deployment/deployment_host.h"

#include "deployment/deployment.h"

#include "platform/program.h"

namespace modDeployment {

namespace {

Host* g_host = nullptr;

} // namespace

std::string Host::SourceFolder() const {
    return platform::ProgramFolder();
}

void SetHost(Host* host) {
    g_host = host;
}

std::string DeploymentFolder() {
    return g_host == nullptr ? std::string() : g_host->DeploymentFolder();
}

std::string SourceFolder() {
    return g_host == nullptr ? platform::ProgramFolder() : g_host->SourceFolder();
}

bool IncludesMDAC() {
    return g_host != nullptr && g_host->IncludesMDAC();
}

bool IsMDACVersionSelected(int index) {
    return g_host != nullptr && g_host->IsMDACVersionSelected(index);
}

void Advance(std::string_view label) {
    if (g_host != nullptr) {
        g_host->Advance(label);
    }
}

platform::TypedFolder OpenDeploymentFolder() {
    return platform::TypedFolder(DeploymentFolder(), [] {
        if (g_host != nullptr) {
            g_host->Wait();
        }
        return true;
    });
}

} // namespace modDeployment
