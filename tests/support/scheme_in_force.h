// Colours of the system that differ from each other and from every agreed one, in force while a test runs.
#pragma once

#include <ktui/host/appearance.h>

#include <iterator>

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
    explicit SchemeInForce(BOOL follows) {
        for (std::size_t i = 0; i < std::size(kIndexes); ++i) m_former[i] = ::GetSysColor(kIndexes[i]);
        ::SetSysColors(kCount, kIndexes, kColors);
        KtUiFollowSystemAppearance(follows);
    }
    ~SchemeInForce() {
        KtUiFollowSystemAppearance(FALSE);
        ::SetSysColors(kCount, kIndexes, m_former);
    }
    SchemeInForce(const SchemeInForce&) = delete;
    SchemeInForce& operator=(const SchemeInForce&) = delete;

private:
    static constexpr int kIndexes[] = {COLOR_WINDOW,        COLOR_WINDOWTEXT, COLOR_HIGHLIGHT,
                                       COLOR_HIGHLIGHTTEXT, COLOR_BTNFACE,    COLOR_GRAYTEXT};
    static constexpr COLORREF kColors[] = {scheme::kWindow,        scheme::kWindowText, scheme::kHighlight,
                                           scheme::kHighlightText, scheme::kFace,       scheme::kGrayText};
    static constexpr int kCount = static_cast<int>(std::size(kIndexes));
    COLORREF m_former[std::size(kIndexes)] = {};
};

}  // namespace ui_test
