# shellcheck shell=bash
# Sourced by what runs the program for the tour.

# own_settings FOLDER: nothing of the user's reaches the windows, no caret blinks in them, and
# nothing that the dialogs remember is left behind once FOLDER is gone.
own_settings() {
    export HOME="$1" XDG_CONFIG_HOME="$1/config" XDG_DATA_HOME="$1/data"
    export XDG_CACHE_HOME="$1/cache" LC_ALL=C.UTF-8 GTK_THEME=Adwaita
    unset LANGUAGE NO_AT_BRIDGE
    mkdir -p "$XDG_CONFIG_HOME/gtk-3.0" "$XDG_DATA_HOME" "$XDG_CACHE_HOME"
    printf '[Settings]\ngtk-cursor-blink=0\ngtk-enable-animations=0\n' \
        >"$XDG_CONFIG_HOME/gtk-3.0/settings.ini"
}
