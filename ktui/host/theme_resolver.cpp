#include <ktui/host/theme_resolver.h>

const std::array<const char*, kThemeSlotCount> kThemeEntryNames = {
    "CloseThemeData",
    "DrawThemeBackground",
    "DrawThemeEdge",
    "DrawThemeIcon",
    "DrawThemeParentBackground",
    "DrawThemeText",
    "GetThemeBackgroundContentRect",
    "GetThemeColor",
    "GetThemeTextExtent",
    "IsCompositionActive",
    "IsThemeActive",
    "IsThemeBackgroundPartiallyTransparent",
    "OpenThemeData",
    "SetWindowTheme",
    "BeginBufferedAnimation",
    "BufferedPaintInit",
    "BufferedPaintUnInit",
    "BufferedPaintRenderAnimation",
    "BufferedPaintStopAllAnimations",
    "EndBufferedAnimation",
    "GetThemeTransitionDuration",
};

namespace {

/// Fills the slots from `first` up to `last`; false at the first name that is missing.
bool FindEntries(ThemeLibrary& library, ThemeResolution& found, std::size_t first, std::size_t last) {
    for (std::size_t slot = first; slot < last; ++slot) {
        found.entries[slot] = library.find(found.module, kThemeEntryNames[slot]);
        if (!found.entries[slot]) return false;
    }
    return true;
}

}  // namespace

ThemeResolution ResolveThemeEntries(std::uint32_t osVersion, std::uint32_t controlsVersion,
                                    ThemeLibrary& library) {
    ThemeResolution found;
    if (osVersion < kFirstSystemWithThemes || controlsVersion < kFirstControlsWithThemes) return found;
    found.module = library.load();
    if (!found.module) return found;
    if (!FindEntries(library, found, 0, kFirstAnimationSlot)) {
        library.unload(found.module);
        return {};
    }
    found.windowFallback = false;
    found.animationFallback = !FindEntries(library, found, kFirstAnimationSlot, kThemeSlotCount);
    if (found.animationFallback)
        for (std::size_t slot = kFirstAnimationSlot; slot < kThemeSlotCount; ++slot)
            found.entries[slot] = nullptr;
    return found;
}
