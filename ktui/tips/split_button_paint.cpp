// How an emulated split button looks.
#include <ktui/tips/split_button.h>

#include <afxcmn.h>
#include <afxwin.h>

#include <ktui/host/loaded_module.h>
#include <ktui/host/theme_api.h>

namespace {

constexpr int kPushButton = 1;  // BP_PUSHBUTTON
constexpr int kNormal = 1, kHot = 2, kPressed = 3, kDisabled = 4, kDefaulted = 5;
constexpr UINT kDropDownState = 0x400, kHotState = 0x200;
constexpr int kGlyphSize = 9;      // pixels
constexpr int kFocusMargin = 3;    // pixels between the frame and the focus rectangle
constexpr int kLongestText = 256;  // characters

/// Keeps drawing inside a rectangle for as long as the object lives.
class Clip {
public:
    Clip(HDC dc, const RECT& rect) : m_dc(dc), m_former(::CreateRectRgn(0, 0, 0, 0)) {
        m_hadRegion = ::GetClipRgn(dc, m_former) == 1;
        ::IntersectClipRect(dc, rect.left, rect.top, rect.right, rect.bottom);
    }
    ~Clip() {
        ::SelectClipRgn(m_dc, m_hadRegion ? m_former : nullptr);
        ::DeleteObject(m_former);
    }
    Clip(const Clip&) = delete;
    Clip& operator=(const Clip&) = delete;

private:
    HDC m_dc;
    HRGN m_former;
    bool m_hadRegion;
};

class Painter {
public:
    Painter(const SplitButtonRecord* record, HWND window, HDC dc)
        : m_window(window),
          m_dc(dc),
          m_theme(record != nullptr ? record->m_theme : nullptr),
          m_word(record != nullptr
                     ? record->m_word
                     : static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE)) & kSplitStyleBits),
          m_state(static_cast<UINT>(::SendMessageW(window, BM_GETSTATE, 0, 0))),
          m_isDisabled(!::IsWindowEnabled(window)) {
        ::GetClientRect(window, &m_all);
    }

    void paint() {
        divide();
        if (m_theme != nullptr)
            paintThemed();
        else
            paintClassic();
        paintFocus();
        paintGlyph();
        if (m_word & BS_ICON)
            paintIcon();
        else
            paintText();
    }

private:
    bool isDefault() const { return (m_word & BS_TYPEMASK) == kDefSplitType; }
    bool isDropped() const { return (m_state & kDropDownState) != 0; }
    bool isPushed() const { return (m_state & BST_PUSHED) != 0; }

    void divide() {
        int width = kSplitZoneWidth;
        if (m_theme == nullptr && isDefault()) {
            ::FrameRect(m_dc, &m_all, ::GetSysColorBrush(COLOR_WINDOWFRAME));
            ::InflateRect(&m_all, -1, -1);
            width -= 1;
        }
        m_left = m_zone = m_all;
        m_left.right = m_zone.left = m_all.right - width;
    }

    void findThemeStates() {
        if (m_isDisabled)
            m_leftState = m_zoneState = kDisabled;
        else if (isDropped()) {
            m_leftState = kNormal;
            m_zoneState = kPressed;
        } else if (isPushed())
            m_leftState = m_zoneState = kPressed;
        else if (m_state & kHotState)
            m_leftState = m_zoneState = kHot;
        else
            m_leftState = m_zoneState = isDefault() ? kDefaulted : kNormal;
    }

    void paintThemed() {
        findThemeStates();
        paintThemedPart(m_left, m_leftState);
        paintThemedPart(m_zone, m_zoneState);
        RECT line = m_zone;
        ::InflateRect(&line, 0, -kFocusMargin);
        ActiveThemeApi().drawThemeEdge(m_theme, m_dc, kPushButton, m_zoneState, &line, EDGE_SUNKEN, BF_LEFT,
                                       nullptr);
    }

    void paintThemedPart(RECT part, int state) {
        const ThemeApi& api = ActiveThemeApi();
        if (api.isThemeBackgroundPartiallyTransparent(m_theme, kPushButton, state))
            api.drawThemeParentBackground(m_window, m_dc, &part);
        api.drawThemeBackground(m_theme, m_dc, kPushButton, state, &m_all, &part);
    }

    void paintClassic() {
        ::SendMessageW(::GetParent(m_window), WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(m_dc),
                       reinterpret_cast<LPARAM>(m_window));
        const bool leftPushed = isPushed() && !isDropped();
        paintClassicPart(m_left, leftPushed);
        paintClassicPart(m_zone, isPushed() || isDropped());
        RECT line = m_zone;
        ::InflateRect(&line, 0, -kFocusMargin);
        ::DrawEdge(m_dc, &line, EDGE_ETCHED, BF_LEFT);
        m_offset = leftPushed ? 1 : 0;
        m_zoneOffset = isPushed() || isDropped() ? 1 : 0;
    }

    void paintClassicPart(const RECT& part, bool pushed) {
        const Clip clip(m_dc, part);
        RECT whole = m_all;
        const UINT state = DFCS_BUTTONPUSH | (pushed ? DFCS_PUSHED : 0) | (m_isDisabled ? DFCS_INACTIVE : 0);
        ::DrawFrameControl(m_dc, &whole, DFC_BUTTON, state);
    }

    void paintFocus() {
        if (::GetFocus() != m_window || m_word & kSplitFocusHidden) return;
        RECT rect = m_left;
        ::InflateRect(&rect, -kFocusMargin, -kFocusMargin);
        ::DrawFocusRect(m_dc, &rect);
    }

    void paintGlyph() {
        const HICON icon =
            ::ImageList_GetIcon(LoadedToolkit().arrowImageList, m_isDisabled ? 1 : 0, ILD_NORMAL);
        if (icon == nullptr) return;
        const int x = static_cast<int>(m_zone.left + m_zone.right - kGlyphSize) / 2 + m_zoneOffset;
        const int y = static_cast<int>(m_zone.top + m_zone.bottom - kGlyphSize) / 2 + m_zoneOffset;
        ::DrawIconEx(m_dc, x, y, icon, kGlyphSize, kGlyphSize, 0, nullptr, DI_NORMAL);
        ::DestroyIcon(icon);
    }

    void paintIcon() {
        const auto icon = reinterpret_cast<HICON>(::SendMessageW(m_window, BM_GETIMAGE, IMAGE_ICON, 0));
        ICONINFO info = {};
        if (icon == nullptr || !::GetIconInfo(icon, &info)) return;
        BITMAP size = {};
        ::GetObjectW(info.hbmColor != nullptr ? info.hbmColor : info.hbmMask, sizeof size, &size);
        if (info.hbmColor != nullptr) ::DeleteObject(info.hbmColor);
        ::DeleteObject(info.hbmMask);
        const int x = static_cast<int>(m_left.left + m_left.right - size.bmWidth) / 2 + m_offset;
        const int y = static_cast<int>(m_left.top + m_left.bottom - size.bmHeight) / 2 + m_offset;
        ::DrawStateW(m_dc, nullptr, nullptr, reinterpret_cast<LPARAM>(icon), 0, x, y, 0, 0,
                     DST_ICON | (m_isDisabled ? DSS_DISABLED : DSS_NORMAL));
    }

    void paintText() {
        wchar_t text[kLongestText + 1] = {};
        ::GetWindowTextW(m_window, text, kLongestText + 1);
        const UINT flags =
            SplitButtonTextFlags(m_word, static_cast<DWORD>(::GetWindowLongPtrW(m_window, GWL_EXSTYLE)),
                                 (m_word & kSplitAccelHidden) != 0);
        const auto font = reinterpret_cast<HFONT>(::SendMessageW(m_window, WM_GETFONT, 0, 0));
        const HGDIOBJ former = font != nullptr ? ::SelectObject(m_dc, font) : nullptr;
        RECT rect = m_left;
        ::InflateRect(&rect, -kFocusMargin, -kFocusMargin);
        ::OffsetRect(&rect, m_offset, m_offset);
        if (m_theme != nullptr) {
            ActiveThemeApi().drawThemeText(m_theme, m_dc, kPushButton, m_leftState, text, -1, flags, 0,
                                           &rect);
        } else {
            ::SetBkMode(m_dc, TRANSPARENT);
            ::SetTextColor(m_dc, ::GetSysColor(COLOR_BTNTEXT));
            ::DrawTextW(m_dc, text, -1, &rect, flags);
        }
        if (former != nullptr) ::SelectObject(m_dc, former);
    }

    HWND m_window;
    HDC m_dc;
    HTHEME m_theme;
    DWORD m_word;
    UINT m_state;
    bool m_isDisabled;
    RECT m_all = {}, m_left = {}, m_zone = {};
    int m_leftState = kNormal, m_zoneState = kNormal;
    int m_offset = 0, m_zoneOffset = 0;  // pixels that pushed contents move by
};

}  // namespace

UINT SplitButtonTextFlags(DWORD style, DWORD exStyle, bool accelHidden) {
    UINT flags = exStyle & WS_EX_RIGHT ? DT_RIGHT : DT_CENTER;
    if ((style & BS_CENTER) == BS_LEFT) flags = DT_LEFT;
    if ((style & BS_CENTER) == BS_RIGHT) flags = DT_RIGHT;
    switch (style & BS_VCENTER) {
        case BS_TOP: flags |= DT_TOP; break;
        case BS_BOTTOM: flags |= DT_BOTTOM; break;
        default: flags |= DT_VCENTER; break;
    }
    flags |= style & BS_MULTILINE ? DT_WORDBREAK : DT_SINGLELINE;
    if (accelHidden) flags |= DT_HIDEPREFIX;
    return flags;
}

void PaintSplitButton(const SplitButtonRecord* record, HWND window, HDC dc) {
    Painter(record, window, dc).paint();
}
