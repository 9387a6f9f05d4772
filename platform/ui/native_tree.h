// A tree of texts, drawn by each system's own tree control.
//
// The toolkit's tree control is native on Windows and drawn by the toolkit on GTK, where screen
// readers see nothing of it; its data view is the other way round. This class is the one or the
// other, with what the option tree needs of both.
#pragma once

#include <wx/bmpbndl.h>
#include <wx/event.h>
#include <wx/window.h>

#include <memory>
#include <string>
#include <vector>

namespace platform::ui {

/// Sent through the tree's control when the user chooses a node, by keyboard or by mouse (also the
/// node that is selected already). GetString() is the node's key.
wxDECLARE_EVENT(EVT_TREE_NODE_CLICK, wxCommandEvent);

struct TreeNode {
    std::string key;
    std::string text;
    std::string parentKey; ///< "" for a top-level node
    int image = 1;         ///< 1 or 2, a place in the images given to the tree
    bool expanded = false;
    bool operator==(const TreeNode&) const = default;
};

class NativeTree {
public:
    /// `name` is the control's stable name, `label` its accessible name. The control belongs to
    /// `parent`. `images` are images 1, 2, ...
    NativeTree(wxWindow* parent, const wxString& name, const wxString& label,
               const std::vector<wxBitmapBundle>& images);
    ~NativeTree();
    NativeTree(const NativeTree&) = delete;
    NativeTree& operator=(const NativeTree&) = delete;

    /// The native control, for layout and events.
    [[nodiscard]] wxWindow* Control() const;

    /// Replaces all nodes. A parent comes before its children; nothing is selected afterwards.
    void SetNodes(const std::vector<TreeNode>& nodes);
    [[nodiscard]] const std::vector<TreeNode>& Nodes() const;

    /// Marks the node as selected, and makes it visible, without EVT_TREE_NODE_CLICK. An unknown
    /// key changes nothing.
    void Select(const std::string& key);
    [[nodiscard]] std::string SelectedKey() const;

    [[nodiscard]] bool IsExpanded(const std::string& key) const;

    /// Does what a user's click on the node does.
    void Click(const std::string& key);

    /// Where a node is drawn, in screen coordinates, for tools that click it; empty when hidden.
    [[nodiscard]] wxRect ScreenRect(const std::string& key) const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace platform::ui
