#include "tests/support/window/input_watch.h"

#include <gtk/gtk.h>

namespace window_test {

namespace {

struct Watch {
    InputCounts counts;
    GdkEventType lastType = GDK_NOTHING;
    guint32 lastTime = 0;
};

void Count(const GdkEvent& event, InputCounts& counts) {
    switch (event.type) {
    case GDK_BUTTON_PRESS:
        ++counts.mousePresses;
        break;
    case GDK_BUTTON_RELEASE:
        ++counts.mouseReleases;
        break;
    case GDK_KEY_PRESS:
        counts.keyPresses += event.key.is_modifier != 0 ? 0 : 1;
        break;
    case GDK_KEY_RELEASE:
        counts.keyReleases += event.key.is_modifier != 0 ? 0 : 1;
        break;
    default:
        break;
    }
}

// Each widget on the way of an event announces it; the first announcement counts. Presses and
// releases take turns, so one and the same type and time is one and the same event.
gboolean OnWidgetEvent(GSignalInvocationHint*, guint, const GValue* values, gpointer data) {
    auto& watch = *static_cast<Watch*>(data);
    const auto* const event = static_cast<const GdkEvent*>(g_value_get_boxed(values + 1));
    const guint32 time = gdk_event_get_time(event);
    if (event->type == watch.lastType && time == watch.lastTime) {
        return TRUE;
    }
    const InputCounts before = watch.counts;
    Count(*event, watch.counts);
    if (!(before == watch.counts)) {
        watch.lastType = event->type;
        watch.lastTime = time;
    }
    return TRUE;
}

} // namespace

const InputCounts& WatchInput() {
    static Watch watch;
    static const gulong hook = [] {
        // The signal exists once its class does.
        g_type_class_unref(g_type_class_ref(GTK_TYPE_WINDOW));
        return g_signal_add_emission_hook(g_signal_lookup("event", GTK_TYPE_WIDGET), 0,
                                          OnWidgetEvent, &watch, nullptr);
    }();
    static_cast<void>(hook);
    return watch.counts;
}

} // namespace window_test
