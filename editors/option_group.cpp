#include "editors/option_group.h"

#include "platform/ui/control_name.h"
#include "platform/ui/no_option.h"
#include "platform/ui/option_keys.h"

#include <utility>

namespace editors {

OptionGroup::OptionGroup(wxWindow* parent, const wxString& name,
                         const std::vector<wxString>& captions)
    : none_(platform::ui::MakeNoOption(parent, name + "(none)")) {
    for (std::size_t i = 0; i < captions.size(); ++i) {
        const bool heads = none_ == nullptr && i == 0;
        auto* const button = new WrappingOption(parent, captions[i], heads ? wxRB_GROUP : 0);
        platform::ui::NameControl(*button, wxString::Format("%s(%zu)", name, i));
        button->Bind(wxEVT_RADIOBUTTON, [this, i](wxCommandEvent&) {
            if (handler_) {
                handler_(static_cast<int>(i));
            }
        });
        buttons_.push_back(button);
    }
    platform::ui::SelectByArrowKeys({buttons_.begin(), buttons_.end()});
    SelectNone();
}

void OptionGroup::SelectNone() {
    if (none_ != nullptr) {
        none_->SetValue(true);
        return;
    }
    for (WrappingOption* button : buttons_) {
        button->SetValue(false);
    }
}

WrappingOption* OptionGroup::operator[](int index) const {
    return buttons_.at(static_cast<std::size_t>(index));
}

int OptionGroup::Count() const {
    return static_cast<int>(buttons_.size());
}

int OptionGroup::Selected() const {
    for (int i = 0; i < Count(); ++i) {
        if ((*this)[i]->GetValue()) {
            return i;
        }
    }
    return -1;
}

void OptionGroup::Choose(int index) {
    if (index < 0 || index >= Count()) {
        SelectNone();
        return;
    }
    if (!(*this)[index]->GetValue()) {
        (*this)[index]->SetValue(true);
        if (handler_) {
            handler_(index);
        }
    }
}

void OptionGroup::Enable(bool enable) {
    for (WrappingOption* button : buttons_) {
        button->Enable(enable);
    }
}

void OptionGroup::MoveLastInTabOrder() {
    wxWindow* last = buttons_.front()->GetParent()->GetChildren().GetLast()->GetData();
    if (last != buttons_.back()) {
        if (none_ != nullptr) {
            none_->MoveAfterInTabOrder(last);
            last = none_;
        }
        for (WrappingOption* button : buttons_) {
            button->MoveAfterInTabOrder(last);
            last = button;
        }
    }
}

void OptionGroup::OnClick(std::function<void(int)> handler) {
    handler_ = std::move(handler);
}

} // namespace editors
