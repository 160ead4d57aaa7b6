// Which theme functions the toolkit may call on this system.
//
// The theme library is bound late and entry by entry. Here stands which entries are looked for, in which
// order, and what a missing one costs; the functions themselves are typed in theme_api.h.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// First system version with themes, as `platform << 16 | major << 8 | minor`.
constexpr std::uint32_t kFirstSystemWithThemes = 0x020501;
/// First version of the common controls with themes, as `major << 16 | minor`.
constexpr std::uint32_t kFirstControlsWithThemes = 0x00060000;

/// The late-bound entries, in the order in which they are looked for.
enum ThemeSlot : std::size_t {
    kThemeClose,
    kThemeDrawBackground,
    kThemeDrawEdge,
    kThemeDrawIcon,
    kThemeDrawParentBackground,
    kThemeDrawText,
    kThemeGetBackgroundContentRect,
    kThemeGetColor,
    kThemeGetTextExtent,
    kThemeIsCompositionActive,
    kThemeIsActive,
    kThemeIsBackgroundPartiallyTransparent,
    kThemeOpen,
    kThemeSetWindow,
    kThemeBeginBufferedAnimation,
    kThemeBufferedPaintInit,
    kThemeBufferedPaintUnInit,
    kThemeBufferedPaintRenderAnimation,
    kThemeBufferedPaintStopAllAnimations,
    kThemeEndBufferedAnimation,
    kThemeGetTransitionDuration,
    kThemeSlotCount
};

/// First slot of the animation entries: those before it are needed for any theme at all.
constexpr std::size_t kFirstAnimationSlot = kThemeBeginBufferedAnimation;

/// Export names, by ThemeSlot.
extern const std::array<const char*, kThemeSlotCount> kThemeEntryNames;

/// An entry whose signature is not known here.
using ThemeEntry = void (*)();

/// How the theme library is loaded, looked into and let go.
class ThemeLibrary {
public:
    /// Loads the library; null if there is none.
    virtual void* load() = 0;
    /// The export `name` of `module`, or null.
    virtual ThemeEntry find(void* module, const char* name) = 0;
    /// Frees what load() answered.
    virtual void unload(void* module) = 0;

protected:
    ~ThemeLibrary() = default;
};

/// What was found.
struct ThemeResolution {
    void* module = nullptr;  ///< to be freed by the holder; null if nothing is held
    std::array<ThemeEntry, kThemeSlotCount> entries{};  ///< null where the fallback or nothing serves
    bool windowFallback = true;                         ///< the window entries are replaced: no themes
    bool animationFallback = true;                      ///< the animation entries are replaced
};

/// Looks for the entries on a system of version `osVersion` with common controls of version
/// `controlsVersion`. Below either first version with themes the library isn't even loaded. A missing window
/// entry frees it again and leaves no entry at all; a missing animation entry costs only the animation
/// entries.
ThemeResolution ResolveThemeEntries(std::uint32_t osVersion, std::uint32_t controlsVersion,
                                    ThemeLibrary& library);
