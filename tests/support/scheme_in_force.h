// Colours of the system that differ from each other and from every agreed one, in force while a test runs.
#pragma once

#include <ktui/host/appearance.h>

#include "system_colors.h"

namespace ui_test {

namespace scheme {

constexpr COLORREF kWindow = RGB(30, 32, 34);
constexpr COLORREF kWindowText = RGB(230, 231, 200);
constexpr COLORREF kHighlight = RGB(100, 160, 220);
constexpr COLORREF kHighlightText = RGB(60, 10, 90);
constexpr COLORREF kFace = RGB(50, 54, 58);
constexpr COLORREF kGrayText = RGB(140, 150, 130);

}  // namespace scheme

/// Puts the colours above in force for as long as it lives; a host of that time follows them or keeps the
/// agreed look.
class SchemeInForce {
public:
    explicit SchemeInForce(BOOL follows)
        : m_colors({{COLOR_WINDOW, scheme::kWindow},
                    {COLOR_WINDOWTEXT, scheme::kWindowText},
                    {COLOR_HIGHLIGHT, scheme::kHighlight},
                    {COLOR_HIGHLIGHTTEXT, scheme::kHighlightText},
                    {COLOR_BTNFACE, scheme::kFace},
                    {COLOR_GRAYTEXT, scheme::kGrayText}}) {
        KtUiFollowSystemAppearance(follows);
    }
    ~SchemeInForce() { KtUiFollowSystemAppearance(FALSE); }
    SchemeInForce(const SchemeInForce&) = delete;
    SchemeInForce& operator=(const SchemeInForce&) = delete;

private:
    const SystemColors m_colors;
};

}  // namespace ui_test
