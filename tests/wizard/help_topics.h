// What the help book must hold, written out by hand.
#pragma once

#include <string>
#include <vector>

namespace window_test {

struct HelpTopic {
    int number;
    std::string title;
    std::vector<std::string> labels; ///< of the page, as the user reads them
};

const std::vector<HelpTopic>& HelpTopics();

/// The topic of a page, by the page's place, in a document of either type.
struct PageTopics {
    int page;
    const char* activeDirectory;
    const char* manual;
};

const std::vector<PageTopics>& TopicsOfPages();

} // namespace window_test
