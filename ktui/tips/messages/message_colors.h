// The colours of task dialogs. Private to the library.
#pragma once

#include <ktui/host/appearance.h>
#include <ktui/host/contrast.h>

inline constexpr COLORREF kMessageHeading = 0x993300;
inline constexpr COLORREF kMessageLink = 0x551C15;
inline constexpr COLORREF kMessageLinkHover = 0xE84A06;

/// The background of headings, texts and links.
inline COLORREF MessagePaper() { return ::GetSysColor(COLOR_WINDOW); }

/// `agreed`; for a host that follows the system, the system's text colour if the agreed one can't be read on
/// the system's background.
inline COLORREF MessageInk(COLORREF agreed) {
    constexpr double kReadable = 4.5;
    if (!KtUiFollowsSystemAppearance()) return agreed;
    return ReadableColor(agreed, MessagePaper(), kReadable, ::GetSysColor(COLOR_WINDOWTEXT));
}
