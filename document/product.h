// Names and addresses of the product that more than one module shows or writes.
#pragma once

#include <string_view>

namespace product {

inline constexpr std::string_view kApplicationTitle = "Queueshift Deployment Toolkit";
inline constexpr std::string_view kWebAddress = "www.queueshift.example"; ///< without scheme
inline constexpr std::string_view kWebUrl = "http://www.queueshift.example";
inline constexpr std::string_view kDownloadPage = "http://www.queueshift.example/downloads";
inline constexpr std::string_view kMDACPage = "http://msdn.microsoft.com/data/mdac";
inline constexpr std::string_view kHelpFileName = "Queueshift.hlp";

} // namespace product
