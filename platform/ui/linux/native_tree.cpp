#include "platform/ui/native_tree.h"

#include "platform/ui/control_name.h"
#include "platform/ui/linux/tree_row_ids.h"
#include "platform/ui/text.h"

#include <gtk/gtk.h>
#include <wx/dataview.h>

#include <map>

namespace platform::ui {

wxDEFINE_EVENT(EVT_TREE_NODE_CLICK, wxCommandEvent);

struct NativeTree::State {
    wxDataViewTreeCtrl* control = nullptr;
    std::vector<TreeNode> nodes;
    std::map<std::string, wxDataViewItem> items;
    bool selecting = false; // a selection made by the program
    std::string pressed;    // the selected node that the button went down on
    bool changedSincePress = false;

    [[nodiscard]] wxDataViewItem Item(const std::string& key) const {
        const auto found = items.find(key);
        return found == items.end() ? wxDataViewItem() : found->second;
    }

    [[nodiscard]] std::string Key(const wxDataViewItem& item) const {
        for (const auto& [key, candidate] : items) {
            if (candidate == item) {
                return key;
            }
        }
        return {};
    }

    [[nodiscard]] std::string KeyAt(double x, double y) const {
        GtkTreePath* path = nullptr;
        auto* const view = GTK_TREE_VIEW(control->GtkGetTreeView());
        if (gtk_tree_view_get_path_at_pos(view, static_cast<int>(x), static_cast<int>(y), &path,
                                          nullptr, nullptr, nullptr) == FALSE) {
            return {};
        }
        GtkTreeIter iter;
        std::string key;
        if (gtk_tree_model_get_iter(gtk_tree_view_get_model(view), &iter, path) != FALSE) {
            key = Key(wxDataViewItem(iter.user_data));
        }
        gtk_tree_path_free(path);
        return key;
    }

    // Two nodes may have one text: the bus tells them apart by their keys.
    void SetIds() const {
        SetRowIds(GTK_TREE_VIEW(control->GtkGetTreeView()),
                  [this](const GtkTreeIter& iter) { return Key(wxDataViewItem(iter.user_data)); });
    }

    void SendClick(const std::string& key) const {
        wxCommandEvent event(EVT_TREE_NODE_CLICK, control->GetId());
        event.SetEventObject(control);
        event.SetString(ToWx(key));
        control->ProcessWindowEvent(event);
    }
};

namespace {

// The toolkit's store puts branches before leaves; the nodes stand as they were given.
class InOrderStore : public wxDataViewTreeStore {
public:
    [[nodiscard]] bool HasDefaultCompare() const override { return false; }
};

// The toolkit tells of a selection that changes and of nothing else; a click on the node that is
// selected already is a choice as well, so the button itself is watched.
//
// The toolkit selects the node first and takes the focus then. It must be the other way round: what
// the choice shows would have the focus for a moment, and lose it as if the user had left it.
template <class State> gboolean OnPress(GtkWidget* view, GdkEventButton* event, State* state) {
    gtk_widget_grab_focus(view);
    state->changedSincePress = false;
    const std::string key = event->button == 1 ? state->KeyAt(event->x, event->y) : std::string();
    const bool selected = !key.empty() && state->control->GetSelection() == state->Item(key);
    state->pressed = selected ? key : std::string();
    return FALSE;
}

template <class State>
gboolean OnRelease(GtkWidget* /*view*/, GdkEventButton* event, State* state) {
    if (event->button == 1 && !state->pressed.empty() && !state->changedSincePress &&
        state->KeyAt(event->x, event->y) == state->pressed) {
        state->SendClick(state->pressed);
    }
    state->pressed.clear();
    return FALSE;
}

template <class State>
void OnExpanded(GtkTreeView* /*view*/, GtkTreeIter* /*row*/, GtkTreePath* /*path*/, State* state) {
    state->SetIds();
}

// The toolkit selects a node and leaves the cursor where it was, from where the next key would go.
void MoveCursorToSelection(GtkTreeView* view) {
    GtkTreeModel* model = nullptr;
    GtkTreeIter iter;
    if (gtk_tree_selection_get_selected(gtk_tree_view_get_selection(view), &model, &iter) !=
        FALSE) {
        GtkTreePath* const path = gtk_tree_model_get_path(model, &iter);
        gtk_tree_view_set_cursor(view, path, nullptr, FALSE);
        gtk_tree_path_free(path);
    }
}

} // namespace

NativeTree::NativeTree(wxWindow* parent, const wxString& name, const wxString& label,
                       const std::vector<wxBitmapBundle>& images)
    : state_(std::make_unique<State>()) {
    state_->control = new wxDataViewTreeCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                             wxDV_NO_HEADER | wxDV_SINGLE);
    const wxObjectDataPtr<InOrderStore> store(new InOrderStore);
    state_->control->AssociateModel(store.get());
    state_->control->SetImages(wxVector<wxBitmapBundle>(images.begin(), images.end()));
    NameControl(*state_->control, name, label);
    state_->control->Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [this](wxDataViewEvent& event) {
        state_->changedSincePress = true;
        const std::string key = state_->Key(event.GetItem());
        if (!state_->selecting && !key.empty()) {
            state_->SendClick(key);
        }
    });
    // A screen reader's way to choose a node. What the node brings up may be a dialog, which must
    // not begin inside the screen reader's call: no other would be answered until it ends.
    state_->control->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED, [this](wxDataViewEvent& event) {
        const std::string key = state_->Key(event.GetItem());
        if (key != SelectedKey()) {
            state_->control->CallAfter([this, key] { Click(key); });
        }
    });
    state_->control->Bind(wxEVT_DATAVIEW_ITEM_START_EDITING,
                          [](wxDataViewEvent& event) { event.Veto(); });
    GtkWidget* const view = state_->control->GtkGetTreeView();
    // A node stays selected whatever key is pressed, as on Windows. Typing would search the
    // toolkit's model, which has no texts to find, and leave nothing selected.
    gtk_tree_selection_set_mode(gtk_tree_view_get_selection(GTK_TREE_VIEW(view)),
                                GTK_SELECTION_BROWSE);
    gtk_tree_view_set_enable_search(GTK_TREE_VIEW(view), FALSE);
    g_signal_connect(view, "button-press-event", G_CALLBACK(OnPress<State>), state_.get());
    g_signal_connect(view, "button-release-event", G_CALLBACK(OnRelease<State>), state_.get());
    g_signal_connect(view, "row-expanded", G_CALLBACK(OnExpanded<State>), state_.get());
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
    for (const TreeNode& node : nodes) {
        const wxDataViewItem parent = state_->Item(node.parentKey);
        const wxString text = ToWx(node.text);
        const int image = node.image - 1;
        bool hasChildren = false;
        for (const TreeNode& other : nodes) {
            hasChildren = hasChildren || other.parentKey == node.key;
        }
        state_->items[node.key] = hasChildren
                                      ? state_->control->AppendContainer(parent, text, image, image)
                                      : state_->control->AppendItem(parent, text, image);
    }
    for (const TreeNode& node : nodes) {
        if (node.expanded) {
            state_->control->Expand(state_->Item(node.key));
        }
    }
    state_->control->UnselectAll();
    state_->selecting = false;
    state_->SetIds();
}

const std::vector<TreeNode>& NativeTree::Nodes() const {
    return state_->nodes;
}

void NativeTree::Select(const std::string& key) {
    const wxDataViewItem item = state_->Item(key);
    if (!item.IsOk()) {
        return;
    }
    state_->selecting = true;
    state_->control->Select(item);
    state_->control->EnsureVisible(item);
    MoveCursorToSelection(GTK_TREE_VIEW(state_->control->GtkGetTreeView()));
    state_->selecting = false;
}

std::string NativeTree::SelectedKey() const {
    const wxDataViewItem item = state_->control->GetSelection();
    return item.IsOk() ? state_->Key(item) : std::string();
}

bool NativeTree::IsExpanded(const std::string& key) const {
    const wxDataViewItem item = state_->Item(key);
    return item.IsOk() && state_->control->IsExpanded(item);
}

void NativeTree::Click(const std::string& key) {
    if (state_->Item(key).IsOk()) {
        Select(key);
        state_->SendClick(key);
    }
}

wxRect NativeTree::ScreenRect(const std::string& key) const {
    const wxDataViewItem item = state_->Item(key);
    if (!item.IsOk()) {
        return {};
    }
    const wxRect rect = state_->control->GetItemRect(item, state_->control->GetColumn(0));
    return rect.IsEmpty()
               ? wxRect()
               : wxRect(state_->control->ClientToScreen(rect.GetPosition()), rect.GetSize());
}

} // namespace platform::ui
