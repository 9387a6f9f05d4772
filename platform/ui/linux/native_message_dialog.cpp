#include "platform/ui/native_message_dialog.h"

#include <array>

#include <gtk/gtk.h>

namespace platform::ui {

namespace {

const char* IconName(long style) {
    if ((style & wxICON_ERROR) != 0) {
        return "dialog-error";
    }
    if ((style & wxICON_QUESTION) != 0) {
        return "dialog-question";
    }
    if ((style & wxICON_EXCLAMATION) != 0) {
        return "dialog-warning";
    }
    return (style & wxICON_INFORMATION) != 0 ? "dialog-information" : nullptr;
}

// What the hook below needs, and whether it has done its work.
struct Pending {
    const char* iconName = nullptr;
    bool done = false;
};

// A box is as wide as its text, which may be a single figure: the caption would not be readable.
void FitCaption(GtkWidget* box) {
    constexpr int kBesideCaption = 130; // the frame, the window's icon and the buttons it may have
    const char* const caption = gtk_window_get_title(GTK_WINDOW(box));
    PangoLayout* const layout = gtk_widget_create_pango_layout(box, caption);
    PangoAttrList* const bold = pango_attr_list_new();
    pango_attr_list_insert(bold, pango_attr_weight_new(PANGO_WEIGHT_BOLD));
    pango_layout_set_attributes(layout, bold);
    int width = 0;
    pango_layout_get_pixel_size(layout, &width, nullptr);
    pango_attr_list_unref(bold);
    g_object_unref(layout);
    gtk_widget_set_size_request(box, width + kBesideCaption, -1);
}

void SetId(GtkWidget* widget, const char* id) {
    atk_object_set_accessible_id(gtk_widget_get_accessible(widget), id);
}

void SetTextId(GtkWidget* widget, gpointer /*unused*/) {
    if (gtk_widget_get_visible(widget) != FALSE) {
        SetId(widget, "lblMessage");
    }
}

struct Answer {
    int response;
    const char* id;
};

constexpr std::array<Answer, 4> kAnswers{{
    {GTK_RESPONSE_OK, "cmdOK"},
    {GTK_RESPONSE_CANCEL, "cmdCancel"},
    {GTK_RESPONSE_YES, "cmdYes"},
    {GTK_RESPONSE_NO, "cmdNo"},
}};

// The bus knows a box's parts by the same kind of id as those of the program's own dialogs.
void SetIds(GtkMessageDialog* box) {
    SetId(GTK_WIDGET(box), "msgBox");
    GtkWidget* const texts = gtk_message_dialog_get_message_area(box);
    gtk_container_foreach(GTK_CONTAINER(texts), SetTextId, nullptr);
    for (const Answer& answer : kAnswers) {
        GtkWidget* const button =
            gtk_dialog_get_widget_for_response(GTK_DIALOG(box), answer.response);
        if (button != nullptr) {
            SetId(button, answer.id);
        }
    }
}

void PutIcon(GtkMessageDialog* box, const char* iconName) {
    GtkWidget* const image = gtk_image_new_from_icon_name(iconName, GTK_ICON_SIZE_DIALOG);
    SetId(image, "imgMessage");
    gtk_widget_set_valign(image, GTK_ALIGN_START);
    gtk_widget_show(image);
    G_GNUC_BEGIN_IGNORE_DEPRECATIONS
    gtk_message_dialog_set_image(box, image);
    G_GNUC_END_IGNORE_DEPRECATIONS
}

// GTK names a box by its kind, as Error: the caption would reach no screen reader.
void TellCaption(GtkWidget* box) {
    atk_object_set_description(gtk_widget_get_accessible(box),
                               gtk_window_get_title(GTK_WINDOW(box)));
}

// GTK creates the box inside ShowModal, so it is furnished when it is about to be seen.
gboolean OnShow(GSignalInvocationHint* /*hint*/, guint /*count*/, const GValue* values,
                gpointer data) {
    auto* const widget = static_cast<GtkWidget*>(g_value_get_object(values));
    if (!GTK_IS_MESSAGE_DIALOG(widget)) {
        return TRUE;
    }
    auto* const pending = static_cast<Pending*>(data);
    FitCaption(widget);
    TellCaption(widget);
    SetIds(GTK_MESSAGE_DIALOG(widget));
    if (pending->iconName != nullptr) {
        PutIcon(GTK_MESSAGE_DIALOG(widget), pending->iconName);
    }
    pending->done = true;
    return FALSE; // takes the hook away
}

} // namespace

int NativeMessageDialog::ShowModal() {
    Pending pending{IconName(GetMessageDialogStyle())};
    const guint signal = g_signal_lookup("show", GTK_TYPE_WIDGET);
    const gulong hook = g_signal_add_emission_hook(signal, 0, OnShow, &pending, nullptr);
    const int answer = wxMessageDialog::ShowModal();
    // A box that was answered without being shown leaves the hook in place.
    if (!pending.done) {
        g_signal_remove_emission_hook(signal, hook);
    }
    return answer;
}

} // namespace platform::ui
