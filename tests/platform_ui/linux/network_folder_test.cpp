// The dialog that picks a computer, a share or a folder of the network, driven by the keyboard.
#include "platform/ui/linux/network_folder_dialog.h"

#include "files/browse.h"

#include "tests/editors/user_acts.h"
#include "tests/support/window/window_test.h"

#include <cerrno>

#include <gmock/gmock.h>

namespace window_test {
namespace {

using platform::NetworkListing;
using platform::ui::NetworkFolderDialog;
using testing::ElementsAre;

/// A network of one computer, NT1, with two shares, and folders in the first.
class Network {
public:
    platform::ui::NetworkLister Lister() {
        return [this](const platform::NetworkPath& path, const platform::KeepWaiting& keepWaiting) {
            const std::string text = TextOf(path);
            asked.push_back(text);
            while (silent && keepWaiting()) {
            }
            if (text == R"(\\NT1)") {
                return NetworkListing{{}, {"Tools & more", "Zone"}};
            }
            if (text == R"(\\NT1\Tools & more)") {
                return NetworkListing{{}, {"inner"}};
            }
            if (text == R"(\\NT1\Zone)") {
                return NetworkListing{{EACCES, "Permission denied"}, {}};
            }
            if (text == R"(\\MANY)") {
                return NetworkListing{{}, std::vector<std::string>(5000, "folder")};
            }
            return NetworkListing{{}, {}};
        };
    }

    std::vector<std::string> asked;
    bool silent = false;
};

class NetworkFolders : public testing::Test {
protected:
    /// Shows the dialog, acts, and returns what is picked in the end.
    std::string Run(const std::function<void(NetworkFolderDialog&)>& act) {
        NetworkFolderDialog dialog(nullptr, network.Lister());
        ModalScript dialogs;
        dialogs.ExpectLive<NetworkFolderDialog>([&act](NetworkFolderDialog& shown) {
            shown.txtComputer->Clear();
            act(shown);
        });
        return dialog.ShowModal() == wxID_OK ? dialog.Picked() : "cancelled";
    }

    static void ShowComputer(NetworkFolderDialog& dialog, std::string_view name) {
        FocusOn(dialog.txtComputer);
        Type(name);
        Press(WXK_RETURN);
        WaitFor([&dialog] { return dialog.tvwNetwork->IsEnabled(); }, "an answer");
    }

    static wxDataViewItem RootOf(const NetworkFolderDialog& dialog) {
        return dialog.tvwNetwork->GetNthChild({}, 0);
    }

    Network network;
};

TEST_F(NetworkFolders, BeginWithNothingToPick) {
    EXPECT_EQ(Run([](NetworkFolderDialog& dialog) {
                  EXPECT_FALSE(dialog.cmdOK->IsEnabled());
                  EXPECT_FALSE(dialog.cmdShow->IsEnabled());
                  FocusOn(dialog.txtComputer);
                  Press(WXK_ESCAPE);
              }),
              "cancelled");
    EXPECT_TRUE(network.asked.empty());
}

TEST_F(NetworkFolders, EndAtOneMargin) {
    EXPECT_EQ(Run([](NetworkFolderDialog& dialog) {
                  const int right = dialog.tvwNetwork->GetRect().GetRight();
                  EXPECT_EQ(dialog.cmdShow->GetRect().GetRight(), right);
                  EXPECT_EQ(dialog.cmdOK->GetRect().GetRight(), right);
                  FocusOn(dialog.txtComputer);
                  Press(WXK_ESCAPE);
              }),
              "cancelled");
}

TEST_F(NetworkFolders, AComputerIsPickedAsAWhole) {
    for (const auto* const typed : {"NT1", R"(\\NT1)", "//NT1/Zone", " NT1 "}) {
        EXPECT_EQ(Run([typed](NetworkFolderDialog& dialog) {
                      ShowComputer(dialog, typed);
                      Push(&dialog, "cmdOK");
                  }),
                  R"(\\NT1)");
    }
}

TEST_F(NetworkFolders, SharesAndFoldersAreAskedForWhenTheyAreOpened) {
    EXPECT_EQ(Run([this](NetworkFolderDialog& dialog) {
                  ShowComputer(dialog, "NT1");
                  EXPECT_THAT(network.asked, ElementsAre(R"(\\NT1)"));
                  FocusOn(dialog.tvwNetwork);
                  Press(WXK_DOWN);
                  Press('+', wxMOD_SHIFT);
                  WaitFor([this] { return network.asked.size() == 2; }, "a question");
                  WaitFor([&dialog] { return dialog.tvwNetwork->IsEnabled(); }, "an answer");
                  EXPECT_TRUE(HasFocus(dialog.tvwNetwork));
                  Press(WXK_DOWN);
                  Push(&dialog, "cmdOK");
              }),
              R"(\\NT1\Tools & more\inner)");
    EXPECT_THAT(network.asked, ElementsAre(R"(\\NT1)", R"(\\NT1\Tools & more)"));
}

TEST_F(NetworkFolders, ThousandsOfFoldersAreThereUpToTheLast) {
    EXPECT_EQ(Run([](NetworkFolderDialog& dialog) {
                  ShowComputer(dialog, "MANY");
                  EXPECT_EQ(dialog.tvwNetwork->GetChildCount(RootOf(dialog)), 5000);
                  FocusOn(dialog.tvwNetwork);
                  Press(WXK_END);
                  Push(&dialog, "cmdOK");
              }),
              R"(\\MANY\folder)");
}

TEST_F(NetworkFolders, WhatCannotBeOpenedSaysWhyAndCanBePickedAllTheSame) {
    EXPECT_EQ(Run([this](NetworkFolderDialog& dialog) {
                  ShowComputer(dialog, "NT1");
                  FocusOn(dialog.tvwNetwork);
                  Press(WXK_END);
                  Press('+', wxMOD_SHIFT);
                  WaitFor([this] { return network.asked.size() == 2; }, "a question");
                  WaitFor([&dialog] { return dialog.tvwNetwork->IsEnabled(); }, "an answer");
                  EXPECT_EQ(dialog.lblStatus->GetLabel(), R"(\\NT1\Zone: Permission denied)");
                  Push(&dialog, "cmdOK");
              }),
              R"(\\NT1\Zone)");
}

TEST_F(NetworkFolders, ADoubleClickOpensAndReturnClosesAgain) {
    EXPECT_EQ(Run([this](NetworkFolderDialog& dialog) {
                  ShowComputer(dialog, "NT1");
                  auto& tree = *dialog.tvwNetwork;
                  const wxDataViewItem share =
                      tree.GetNthChild(wxDataViewItem(tree.GetSelection()), 0);
                  const wxRect row = tree.GetItemRect(share, tree.GetColumn(0));
                  DoubleClickAt(
                      &tree, tree.ClientToScreen(row.GetPosition() + wxPoint(30, row.height / 2)));
                  WaitFor([this] { return network.asked.size() == 2; }, "a question");
                  WaitFor([&] { return tree.IsEnabled(); }, "an answer");
                  EXPECT_TRUE(tree.IsExpanded(share));
                  EXPECT_TRUE(HasFocus(&tree));
                  Press(WXK_RETURN);
                  WaitFor([&] { return !tree.IsExpanded(share); }, "the share to close");
                  Push(&dialog, "cmdOK");
              }),
              R"(\\NT1\Tools & more)");
}

TEST_F(NetworkFolders, AComputerThatDoesNotAnswerCanBeLeft) {
    network.silent = true;
    EXPECT_EQ(Run([](NetworkFolderDialog& dialog) {
                  FocusOn(dialog.txtComputer);
                  Type("NT1");
                  dialog.CallAfter([&dialog] {
                      EXPECT_FALSE(dialog.tvwNetwork->IsEnabled());
                      EXPECT_EQ(dialog.lblStatus->GetLabel(), "Waiting for an answer ...");
                      Push(&dialog, "cmdCancel");
                  });
                  Push(&dialog, "cmdShow");
              }),
              "cancelled");
}

TEST_F(NetworkFolders, TheComputerShownLastIsThereTheNextTime) {
    Run([](NetworkFolderDialog& dialog) {
        ShowComputer(dialog, "NT1");
        Press(WXK_ESCAPE);
    });
    const NetworkFolderDialog next(nullptr, network.Lister());
    EXPECT_EQ(next.txtComputer->GetValue(), "NT1");
    EXPECT_TRUE(next.cmdShow->IsEnabled());
}

} // namespace
} // namespace window_test
