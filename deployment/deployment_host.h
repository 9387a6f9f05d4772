// The questions that deployment has for its host, answered also when there is none.
#pragma once

#include "platform/typed_folder.h"

#include <string>
#include <string_view>

namespace modDeployment {

std::string DeploymentFolder();
std::string SourceFolder();
bool IncludesMDAC();
bool IsMDACVersionSelected(int index);
void Advance(std::string_view label);

/// The deployment folder, whose host is told when it is slow.
platform::TypedFolder OpenDeploymentFolder();

} // namespace modDeployment
