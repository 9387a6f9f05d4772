// The help book: every number has its topic, every field its explanation.
#include "tests/wizard/help_fixture.h"
#include "tests/wizard/help_topics.h"

#include "wizard/pages.h"

#include <wx/html/helpdata.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>
#include <wx/treectrl.h>

#include <set>

namespace window_test {
namespace {

using HelpBook = HelpTest;

// In one line, with single blanks.
std::string Flowing(const wxString& text) {
    std::string flowing;
    for (const char letter : text.utf8_string()) {
        const bool blank = letter == '\n' || letter == '\r' || letter == '\t' || letter == ' ';
        if (!blank) {
            flowing += letter;
        } else if (!flowing.empty() && flowing.back() != ' ') {
            flowing += ' ';
        }
    }
    return flowing;
}

std::set<std::string> NamesOf(const wxHtmlHelpDataItems& items) {
    std::set<std::string> names;
    for (std::size_t i = 0; i < items.size(); ++i) {
        names.insert(items[i].name.utf8_string());
    }
    return names;
}

TEST_F(HelpBook, EveryNumberOpensItsTopic) {
    for (const HelpTopic& topic : HelpTopics()) {
        modWizard::ShowHelpContext(topic.number);
        EXPECT_EQ(ShownTitle(), topic.title) << topic.number;
    }
    EXPECT_EQ(HelpTopics().size(), 23U);
}

TEST_F(HelpBook, EveryLabelOfAPageIsInItsTopic) {
    for (const HelpTopic& topic : HelpTopics()) {
        modWizard::ShowHelpContext(topic.number);
        const std::string text = Flowing(Viewer()->pane->TopicText());
        for (const std::string& label : topic.labels) {
            EXPECT_NE(text.find(label), std::string::npos) << topic.title << ": " << label;
        }
    }
}

// What a page asks of the user; its heading and its plain texts are no fields.
std::set<std::string> FieldsOf(const editors::Page& page) {
    std::set<std::string> fields;
    for (const wxWindow* child : page.GetChildren()) {
        const std::string label = wxControl::RemoveMnemonics(child->GetLabel()).utf8_string();
        const bool names = dynamic_cast<const wxStaticText*>(child) != nullptr &&
                           dynamic_cast<const editors::Paragraph*>(child) == nullptr &&
                           (label.ends_with(':') || label.ends_with("(Read Only)"));
        const bool asks = dynamic_cast<const wxCheckBox*>(child) != nullptr ||
                          dynamic_cast<const wxRadioButton*>(child) != nullptr;
        if (!label.empty() && (names || asks)) {
            fields.insert(Flowing(child->GetLabel().Strip(wxString::both)));
        }
    }
    return fields;
}

TEST_F(HelpBook, NoFieldOfThePagesIsMissingFromTheList) {
    Start(kActiveDirectory);
    std::set<std::string> listed;
    for (const HelpTopic& topic : HelpTopics()) {
        listed.insert(topic.labels.begin(), topic.labels.end());
    }
    std::size_t found = 0;
    for (const editors::Page* page : window->pages) {
        for (std::string field : FieldsOf(*page)) {
            std::erase(field, '&');
            EXPECT_TRUE(listed.contains(field)) << field;
            ++found;
        }
    }
    EXPECT_GT(found, 40U);
}

TEST_F(HelpBook, TheHelpButtonOfEveryPageOpensItsTopic) {
    Start(kActiveDirectory);
    for (const DocumentType type : {kActiveDirectory, kManual}) {
        Become(type);
        for (const PageTopics& topics : TopicsOfPages()) {
            const char* const title =
                type == kActiveDirectory ? topics.activeDirectory : topics.manual;
            if (title == nullptr) {
                continue;
            }
            GoTo(topics.page);
            Push(window, "cmdHelp(" + std::to_string(topics.page) + ")");
            EXPECT_EQ(ShownTitle(), title) << topics.page;
        }
    }
    EXPECT_FALSE(Changed());
}

TEST_F(HelpBook, DeploymentGeneralGoesByTheTypeAtTheMomentOfTheClick) {
    Start(kActiveDirectory);
    GoTo(modWizard::kDeploymentGeneralPage);
    Push(window, "cmdHelp(14)");
    EXPECT_EQ(ShownTitle(), "Deployment - General");
    Record().UseActiveDirectory = modINIDocument::kFalse;
    Push(window, "cmdHelp(14)");
    EXPECT_EQ(ShownTitle(), "Deployment - Manual Document");
}

TEST_F(HelpBook, F1OpensTheTopicOfThePageThatShows) {
    Start(kManual);
    Show();
    GoTo(modWizard::kServersPage);
    FocusOn(Find(window, "txtToServer"));
    Press(WXK_F1);
    WaitFor([] { return ShownTitle() == "Manual Configuration - Servers"; }, "the topic to open");
}

TEST_F(HelpBook, ContentsOpensTheBookAtItsBeginning) {
    Start(kActiveDirectory);
    window->ssaQueueshift_ToolClick("ID_BTN_CONTENTS");
    EXPECT_EQ(ShownTitle(), "Queueshift Help");
    const wxTreeCtrl* const tree = Viewer()->pane->GetTreeCtrl();
    EXPECT_EQ(tree->GetItemText(tree->GetSelection()), "Queueshift Help");
    const std::string text = Flowing(Viewer()->pane->TopicText());
    for (const char* page : {"Active Directory", "Servers", "Drivers", "Support"}) {
        EXPECT_NE(text.find(page), std::string::npos) << page;
    }
}

TEST_F(HelpBook, TheContentsListEveryTopic) {
    modWizard::ShowHelpContents();
    const std::set<std::string> listed = NamesOf(Viewer()->pane->GetData()->GetContentsArray());
    for (const HelpTopic& topic : HelpTopics()) {
        // Chapters leave their name to themselves.
        const std::size_t chapter = topic.title.find(" - ");
        const std::string entry =
            chapter == std::string::npos ? topic.title : topic.title.substr(chapter + 3);
        EXPECT_TRUE(listed.contains(entry)) << topic.title;
    }
    const wxTreeCtrl* const tree = Viewer()->pane->GetTreeCtrl();
    // Those of the numbers, the first page, First Steps, Saving a Document and The INI File.
    EXPECT_EQ(tree->GetChildrenCount(tree->GetRootItem()), HelpTopics().size() + 4);
}

TEST_F(HelpBook, IndexAndSearchLeadToATopic) {
    modWizard::ShowHelpContents();
    const std::set<std::string> words = NamesOf(Viewer()->pane->GetData()->GetIndexArray());
    EXPECT_TRUE(words.contains("comma"));
    EXPECT_TRUE(words.contains("reserved names"));
    EXPECT_TRUE(Viewer()->pane->KeywordSearch("LPT1"));
    EXPECT_EQ(ShownTitle(), "Drivers");
}

} // namespace
} // namespace window_test
