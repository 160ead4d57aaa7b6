// The theme functions of this system, typed and with their fallbacks in place.
//
// Filled once while the library loads. A caller asks isThemeActive or openThemeData first; the drawing
// entries are null on a system without themes and are reached only with a theme handle, which openThemeData
// never gives there. Private to the library.
#pragma once

#include <windows.h>
#include <uxtheme.h>

#include <ktui/host/theme_resolver.h>

/// Late-bound entries of the theme library. Each member has the signature and the meaning of the platform
/// function of its name.
struct ThemeApi {
    decltype(&::CloseThemeData) closeThemeData = nullptr;
    decltype(&::DrawThemeBackground) drawThemeBackground = nullptr;
    decltype(&::DrawThemeEdge) drawThemeEdge = nullptr;
    decltype(&::DrawThemeIcon) drawThemeIcon = nullptr;
    decltype(&::DrawThemeParentBackground) drawThemeParentBackground = nullptr;
    decltype(&::DrawThemeText) drawThemeText = nullptr;
    decltype(&::GetThemeBackgroundContentRect) getThemeBackgroundContentRect = nullptr;
    decltype(&::GetThemeColor) getThemeColor = nullptr;
    decltype(&::GetThemeTextExtent) getThemeTextExtent = nullptr;
    decltype(&::IsCompositionActive) isCompositionActive = nullptr;
    decltype(&::IsThemeActive) isThemeActive = nullptr;
    decltype(&::IsThemeBackgroundPartiallyTransparent) isThemeBackgroundPartiallyTransparent = nullptr;
    decltype(&::OpenThemeData) openThemeData = nullptr;
    decltype(&::SetWindowTheme) setWindowTheme = nullptr;
    decltype(&::BeginBufferedAnimation) beginBufferedAnimation = nullptr;
    decltype(&::BufferedPaintInit) bufferedPaintInit = nullptr;
    decltype(&::BufferedPaintUnInit) bufferedPaintUnInit = nullptr;
    decltype(&::BufferedPaintRenderAnimation) bufferedPaintRenderAnimation = nullptr;
    decltype(&::BufferedPaintStopAllAnimations) bufferedPaintStopAllAnimations = nullptr;
    decltype(&::EndBufferedAnimation) endBufferedAnimation = nullptr;
    decltype(&::GetThemeTransitionDuration) getThemeTransitionDuration = nullptr;
};

/// Types what was resolved and puts the fallbacks in place of what was not.
ThemeApi MakeThemeApi(const ThemeResolution& found);

/// The theme library of this system, for ResolveThemeEntries.
ThemeLibrary& SystemThemeLibrary();

/// The entries in force.
const ThemeApi& ActiveThemeApi();

/// Puts `api` in force and answers the entries before it, so that both faces of a control can be shown on one
/// system. Not for use while a control paints.
ThemeApi ExchangeThemeApi(const ThemeApi& api);
