# Sourced by run and tools/run-gallery: the resolution and the colors that pictures are taken in.

# colors_of NAME: the system's colors of a scheme, a name and a value a line.
colors_of() {
    case $1 in
        dark) printf '%s\n' 'Window 32 32 32' 'WindowText 240 240 240' 'ButtonFace 45 45 48' 'ButtonText 240 240 240' 'ButtonShadow 90 90 94' \
            'ButtonDkShadow 110 110 114' 'ButtonHilight 70 70 74' 'ButtonLight 60 60 64' 'Menu 45 45 48' 'MenuBar 45 45 48' 'MenuHilight 120 190 255' \
            'MenuText 240 240 240' 'Hilight 120 190 255' 'HilightText 0 0 0' 'GrayText 160 160 160' 'InfoWindow 60 60 64' 'InfoText 240 240 240' 'AppWorkSpace 24 24 24' 'Scrollbar 38 38 40' ;;
        contrast) printf '%s\n' 'Window 0 0 0' 'WindowText 255 255 0' 'ButtonFace 0 0 0' 'ButtonText 0 255 0' 'ButtonShadow 0 255 0' \
            'ButtonDkShadow 255 255 255' 'ButtonHilight 0 255 255' 'ButtonLight 0 0 0' 'Menu 0 0 0' 'MenuBar 0 0 0' 'MenuHilight 0 255 255' \
            'MenuText 0 255 0' 'Hilight 0 255 255' 'HilightText 0 0 0' 'GrayText 0 192 0' 'InfoWindow 0 0 0' 'InfoText 255 255 0' 'AppWorkSpace 0 0 0' 'Scrollbar 0 0 0' ;;
        *) fail "KTUI_TOUR_COLORS is dark or contrast, not $1" ;;
    esac
}

# look_as_asked: what KTUI_TOUR_DPI (144: 150 %) and KTUI_TOUR_COLORS (dark, contrast) ask for, in a prefix made for it; sets
# `suffix`, which the folders of the pictures end in. In colors of another scheme controls are drawn without a theme, whose colors
# are its own. Expects the prefix of make_prefix.
look_as_asked() {
    suffix=${KTUI_TOUR_DPI:+-$KTUI_TOUR_DPI}${KTUI_TOUR_COLORS:+-$KTUI_TOUR_COLORS}
    [ -n "$suffix" ] || return 0
    export WINEPREFIX=$build/wine-look
    rm -rf "$WINEPREFIX"
    cp -a "$build/wine" "$WINEPREFIX"
    set_value() { wine reg add "HKCU\\$1" /v "$2" /t "$3" /d "$4" /f >/dev/null 2>&1 </dev/null; }
    [ -n "${KTUI_TOUR_DPI:-}" ] && set_value 'Control Panel\Desktop' LogPixels REG_DWORD "$KTUI_TOUR_DPI"
    if [ -n "${KTUI_TOUR_COLORS:-}" ]; then
        local scheme name value
        scheme=$(colors_of "$KTUI_TOUR_COLORS") || exit 1
        while read -r name value; do set_value 'Control Panel\Colors' "$name" REG_SZ "$value"; done <<<"$scheme"
        set_value 'Software\Microsoft\Windows\CurrentVersion\ThemeManager' ThemeActive REG_SZ 0
    fi
    wineserver -w # A program reads them when it starts.
}
