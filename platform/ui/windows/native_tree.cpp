#include "platform/ui/native_tree.h"

#include "platform/ui/control_name.h"
#include "platform/ui/text.h"

#include <wx/treectrl.h>

#include <map>

namespace platform::ui {

wxDEFINE_EVENT(EVT_TREE_NODE_CLICK, wxCommandEvent);

struct NativeTree::State {
    wxTreeCtrl* control = nullptr;
    std::vector<TreeNode> nodes;
    std::map<std::string, wxTreeItemId> items;
    bool selecting = false; // a selection made by the program
    std::string chosen;     // the node that the program or the user chose last
    std::string pressed;    // the selected node that the button went down on
    bool changedSincePress = false;

    [[nodiscard]] wxTreeItemId Item(const std::string& key) const {
        const auto found = items.find(key);
        return found == items.end() ? wxTreeItemId() : found->second;
    }

    [[nodiscard]] std::string Key(const wxTreeItemId& item) const {
        for (const auto& [key, candidate] : items) {
            if (candidate == item) {
                return key;
            }
        }
        return {};
    }

    [[nodiscard]] std::string KeyAt(const wxPoint& position) const {
        int flags = 0;
        const wxTreeItemId item = control->HitTest(position, flags);
        const int onNode = wxTREE_HITTEST_ONITEMICON | wxTREE_HITTEST_ONITEMLABEL;
        return item.IsOk() && (flags & onNode) != 0 ? Key(item) : std::string();
    }

    void SendClick(const std::string& key) {
        chosen = key;
        wxCommandEvent event(EVT_TREE_NODE_CLICK, control->GetId());
        event.SetEventObject(control);
        event.SetString(ToWx(key));
        control->ProcessWindowEvent(event);
    }

    void OnPress(wxMouseEvent& event) {
        changedSincePress = false;
        const std::string key = KeyAt(event.GetPosition());
        const bool selected = !key.empty() && control->GetSelection() == Item(key);
        pressed = selected ? key : std::string();
        event.Skip();
        // The native tree takes the button's release for itself, so a press that changes nothing is
        // looked at once it has been handled.
        if (selected) {
            control->CallAfter([this] { SendClickOnSelected(); });
        }
    }

    void SendClickOnSelected() {
        if (!pressed.empty() && !changedSincePress) {
            SendClick(pressed);
        }
        pressed.clear();
    }
};

NativeTree::NativeTree(wxWindow* parent, const wxString& name, const wxString& label,
                       const std::vector<wxBitmapBundle>& images)
    : state_(std::make_unique<State>()) {
    state_->control =
        new wxTreeCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                       wxTR_HAS_BUTTONS | wxTR_LINES_AT_ROOT | wxTR_HIDE_ROOT | wxTR_SINGLE);
    state_->control->SetImages(wxVector<wxBitmapBundle>(images.begin(), images.end()));
    NameControl(*state_->control, name, label);
    state_->control->Bind(wxEVT_TREE_SEL_CHANGED, [this](wxTreeEvent& event) {
        state_->changedSincePress = true;
        const std::string key = state_->Key(event.GetItem());
        // Once the press has been handled: whatever the click leads to, a message box among it,
        // must not happen while the native tree still moves the focus.
        if (!state_->selecting && !key.empty()) {
            state_->control->CallAfter([this, key] { state_->SendClick(key); });
        }
    });
    // A branch that closes over the selected node takes the selection without a word.
    state_->control->Bind(wxEVT_TREE_ITEM_COLLAPSED, [this](wxTreeEvent& event) {
        event.Skip();
        state_->control->CallAfter([this] {
            const std::string key = SelectedKey();
            if (!key.empty() && key != state_->chosen) {
                state_->SendClick(key);
            }
        });
    });
    // The second click of a double click is a press as well.
    state_->control->Bind(wxEVT_LEFT_DOWN, &State::OnPress, state_.get());
    state_->control->Bind(wxEVT_LEFT_DCLICK, &State::OnPress, state_.get());
}

NativeTree::~NativeTree() = default;

wxWindow* NativeTree::Control() const {
    return state_->control;
}

void NativeTree::SetNodes(const std::vector<TreeNode>& nodes) {
    state_->selecting = true;
    state_->control->DeleteAllItems();
    state_->items.clear();
    state_->nodes = nodes;
    const wxTreeItemId root = state_->control->AddRoot(wxString());
    for (const TreeNode& node : nodes) {
        const wxTreeItemId parent = node.parentKey.empty() ? root : state_->Item(node.parentKey);
        state_->items[node.key] =
            state_->control->AppendItem(parent, ToWx(node.text), node.image - 1, node.image - 1);
    }
    for (const TreeNode& node : nodes) {
        if (node.expanded) {
            state_->control->Expand(state_->Item(node.key));
        }
    }
    state_->control->UnselectAll();
    state_->selecting = false;
}

const std::vector<TreeNode>& NativeTree::Nodes() const {
    return state_->nodes;
}

void NativeTree::Select(const std::string& key) {
    const wxTreeItemId item = state_->Item(key);
    if (!item.IsOk()) {
        return;
    }
    state_->selecting = true;
    state_->chosen = key;
    state_->control->SelectItem(item);
    state_->control->EnsureVisible(item);
    state_->selecting = false;
}

std::string NativeTree::SelectedKey() const {
    const wxTreeItemId item = state_->control->GetSelection();
    return item.IsOk() ? state_->Key(item) : std::string();
}

bool NativeTree::IsExpanded(const std::string& key) const {
    const wxTreeItemId item = state_->Item(key);
    return item.IsOk() && state_->control->IsExpanded(item);
}

void NativeTree::Click(const std::string& key) {
    if (state_->Item(key).IsOk()) {
        Select(key);
        state_->SendClick(key);
    }
}

wxRect NativeTree::ScreenRect(const std::string& key) const {
    const wxTreeItemId item = state_->Item(key);
    wxRect rect;
    if (!item.IsOk() || !state_->control->GetBoundingRect(item, rect, true)) {
        return {};
    }
    return {state_->control->ClientToScreen(rect.GetPosition()), rect.GetSize()};
}

} // namespace platform::ui
