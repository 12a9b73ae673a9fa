# What the tests by the display's own mouse and keys share. Sourced by bash, after `programs` is set to the folder of the
# programs; needs xdotool.
# shellcheck shell=bash

failed() { echo "${0##*/}: $1"; exit 1; }
command -v xdotool >/dev/null || failed "xdotool is missing (Debian package xdotool)"

# shows X Y RRGGBB: waits until the screen has the colour there.
shows() { wine "${programs:?}/wait_for_pixel.exe" "$1" "$2" "$3"; }

# screen_part LEFT TOP RIGHT BOTTOM: a number for what the screen shows there.
screen_part() { wine "$programs/screen_part.exe" "$@" | tr -d '\r'; }

# Waits for a window whose title matches, and prints its number. A window that goes while xdotool looks at all of them ends
# xdotool, so it is asked again.
window_named() {
    local found
    for _ in {1..300}; do
        found=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1) || true
        if [ -n "$found" ]; then
            echo "$found"
            return 0
        fi
        sleep 0.2
    done
    return 1
}

# The window of all icons, in the corner; under Wine 10 it has no name. Larger is the desktop, elsewhere what an icon says.
icons_window() {
    local found X=0 Y=0 HEIGHT
    for _ in {1..300}; do
        for found in $(xdotool search --onlyvisible --class '^explorer.exe$' 2>/dev/null); do
            HEIGHT=0 # and stays so for a window that has gone meanwhile
            eval "$(xdotool getwindowgeometry --shell "$found" 2>/dev/null)"
            if [ "$X,$Y" = 0,0 ] && [ "$HEIGHT" -gt 0 ] && [ "$HEIGHT" -lt 100 ]; then
                echo "$found"
                return 0
            fi
        done
        sleep 0.2
    done
    return 1
}

no_window_named() {
    for _ in {1..300}; do
        if [ -z "$(xdotool search --onlyvisible --name "$1" 2>/dev/null)" ]; then return 0; fi
        sleep 0.2
    done
    return 1
}

end_programs() {
    local left
    left=$(jobs -p)
    # shellcheck disable=SC2086 # several processes
    if [ -n "$left" ]; then kill $left 2>/dev/null || true; fi
    wait
}
trap end_programs EXIT
