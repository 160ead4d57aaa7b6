#include <ktui/tips/split_button.h>

#include <afxwin.h>

#include <ktui/host/loaded_module.h>
#include <ktui/host/platform_versions.h>
#include <ktui/host/theme_api.h>

namespace {

constexpr DWORD kDisabledBit = WS_DISABLED;
constexpr UINT kDropDownState = 0x400;  // BST_DROPDOWNPUSHED
constexpr DWORD kFirstOwnSplitButtons = MakeOsVersionCode(2, 6, 0);
constexpr DWORD kFirstThemedControls = MakeControlsVersion(6, 0);
static_assert(sizeof(SplitButtonRecord) == 16);
static_assert((kDisabledBit & kSplitStyleBits) == kDisabledBit);

bool isSplitType(DWORD style) {
    const DWORD type = style & BS_TYPEMASK;
    return type == kSplitType || type == kDefSplitType;
}

WPARAM keepSplit(WPARAM style) { return (style & ~WPARAM{2}) | kSplitType; }

/// One message on its way.
class Message {
public:
    Message(SplitButtonRecord* record, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
        : m_record(record), m_window(window), m_message(message), m_wParam(wParam), m_lParam(lParam) {}

    LRESULT handle() {
        switch (m_message) {
            case WM_CREATE: return onCreate();
            case WM_DESTROY: closeTheme(); return forward();
            case WM_THEMECHANGED:
                closeTheme();
                openTheme();
                invalidate();
                return forward();
            case WM_SETREDRAW: setBits(kSplitRedrawSuspended, m_wParam == 0); return forward();
            case WM_STYLECHANGING: return onStyleChanging();
            case WM_STYLECHANGED:
                if (static_cast<int>(m_wParam) == GWL_STYLE) copyStyle(styles().styleNew);
                return forward();
            case WM_UPDATEUISTATE: return onUpdateUiState();
            case WM_GETDLGCODE: return isSplit() ? dialogCode() : forward();
            case WM_LBUTTONDOWN: return isSplit() ? onButtonDown() : forward();
            case WM_LBUTTONDBLCLK: return isSplit() && isInZone() ? 0 : forward();
            case WM_PAINT: return onPaint();
            case WM_PRINTCLIENT: return onPrint();
            case BM_GETSTATE: return isSplit() ? forward() | dropState() : forward();
            case BM_SETSTATE:
                if (!isSplit()) return forward();
                forward();
                invalidate();
                return 0;
            case BM_SETSTYLE: return onSetStyle();
            default: return forward();
        }
    }

private:
    LRESULT forward() { return forward(m_message, m_wParam, m_lParam); }
    LRESULT forward(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::CallWindowProcW(LoadedToolkit().buttonWndProc, m_window, message, wParam, lParam);
    }

    bool isSplit() const {
        if (m_record == nullptr) return LoadedToolkit().commonControlsVersion < kFirstThemedControls;
        return isSplitType(m_record->m_word);
    }
    DWORD style() const {
        return m_record != nullptr ? m_record->m_word
                                   : static_cast<DWORD>(::GetWindowLongPtrW(m_window, GWL_STYLE));
    }
    STYLESTRUCT& styles() const { return *reinterpret_cast<STYLESTRUCT*>(m_lParam); }
    void setBits(DWORD bits, bool set) {
        if (m_record == nullptr) return;
        m_record->m_word = set ? m_record->m_word | bits : m_record->m_word & ~bits;
    }
    void copyStyle(DWORD style) {
        if (m_record == nullptr) return;
        m_record->m_word = (m_record->m_word & ~kSplitStyleBits) | (style & kSplitStyleBits);
    }
    void invalidate(const RECT* rect = nullptr) { ::InvalidateRect(m_window, rect, FALSE); }

    void openTheme() {
        if (m_record != nullptr) m_record->m_theme = ActiveThemeApi().openThemeData(m_window, L"BUTTON");
    }
    void closeTheme() {
        if (m_record == nullptr || m_record->m_theme == nullptr) return;
        ActiveThemeApi().closeThemeData(m_record->m_theme);
        m_record->m_theme = nullptr;
    }

    LRESULT onCreate() {
        const LRESULT result = forward();
        if (result == -1) return -1;
        openTheme();
        replaceUiState(static_cast<UINT>(::SendMessageW(m_window, WM_QUERYUISTATE, 0, 0)));
        return result;
    }

    static DWORD uiBits(UINT state) {
        DWORD bits = 0;
        if (state & UISF_HIDEACCEL) bits |= kSplitAccelHidden;
        if (state & UISF_HIDEFOCUS) bits |= kSplitFocusHidden;
        return bits;
    }
    void replaceUiState(UINT state) {
        setBits(kSplitAccelHidden | kSplitFocusHidden, false);
        setBits(uiBits(state), true);
    }

    LRESULT onUpdateUiState() {
        const UINT state = HIWORD(m_wParam);
        switch (LOWORD(m_wParam)) {
            case UIS_SET: setBits(uiBits(state), true); break;
            case UIS_CLEAR: setBits(uiBits(state), false); break;
            case UIS_INITIALIZE: replaceUiState(state); break;
            default: break;
        }
        invalidate();
        return forward();
    }

    LRESULT onStyleChanging() {
        // Kept: extended styles are taken for styles.
        if (isSplit() && isSplitType(styles().styleOld))
            styles().styleNew = static_cast<DWORD>(keepSplit(styles().styleNew));
        return forward();
    }

    LRESULT onSetStyle() {
        if (!isSplit()) return forward();
        forward(m_message, keepSplit(m_wParam), m_lParam);
        copyStyle(static_cast<DWORD>(::GetWindowLongPtrW(m_window, GWL_STYLE)));
        return 0;
    }

    LRESULT dialogCode() const {
        const bool isDefault = (style() & BS_TYPEMASK) == kDefSplitType;
        return DLGC_BUTTON | (isDefault ? DLGC_DEFPUSHBUTTON : DLGC_UNDEFPUSHBUTTON);
    }

    LRESULT dropState() const {
        return m_record != nullptr && m_record->m_word & kSplitDropPressed ? kDropDownState : 0;
    }

    RECT zone() const {
        RECT rect;
        ::GetClientRect(m_window, &rect);
        rect.left = rect.right - kSplitZoneWidth;
        return rect;
    }
    bool isInZone() const {
        const RECT rect = zone();
        const POINT point = {static_cast<short>(LOWORD(m_lParam)), static_cast<short>(HIWORD(m_lParam))};
        return ::PtInRect(&rect, point) != FALSE;
    }

    LRESULT onButtonDown() {
        ::SetFocus(m_window);
        if (!isInZone()) return forward();
        const RECT rect = zone();
        setBits(kSplitDropPressed, true);
        invalidate(&rect);
        NMBCDROPDOWN notice = {};
        notice.hdr.hwndFrom = m_window;
        notice.hdr.idFrom = static_cast<UINT_PTR>(::GetDlgCtrlID(m_window));
        notice.hdr.code = BCN_DROPDOWN;
        notice.rcButton = rect;
        ::SendMessageW(m_window, WM_NOTIFY, notice.hdr.idFrom, reinterpret_cast<LPARAM>(&notice));
        // The menu may have ended the window, and the record with it.
        if (!::IsWindow(m_window)) return 0;
        setBits(kSplitDropPressed, false);
        invalidate();
        return 0;
    }

    LRESULT onPaint() {
        const bool suspended = m_record != nullptr && m_record->m_word & kSplitRedrawSuspended;
        if (!suspended || m_wParam != 0) return onPrint();
        ::ValidateRect(m_window, nullptr);
        return 0;
    }

    LRESULT onPrint() {
        const bool split = isSplit();
        if (!split && !isThemedIcon()) return forward();
        PAINTSTRUCT paint = {};
        const bool given = m_wParam != 0;
        const HDC dc = given ? reinterpret_cast<HDC>(m_wParam) : ::BeginPaint(m_window, &paint);
        if (split)
            PaintSplitButton(m_record, m_window, dc);
        else
            paintThemedIcon(dc);
        if (!given) ::EndPaint(m_window, &paint);
        return 0;
    }

    /// Systems with themes but without split buttons draw no icon on a themed button.
    bool isThemedIcon() const {
        return LoadedToolkit().osVersionCode < kFirstOwnSplitButtons && m_record != nullptr &&
               m_record->m_theme != nullptr && (m_record->m_word & BS_ICON);
    }

    void paintThemedIcon(HDC dc) {
        RECT rect;
        ::GetClientRect(m_window, &rect);
        const int state = ::IsWindowEnabled(m_window) ? PBS_NORMAL : PBS_DISABLED;
        const ThemeApi& api = ActiveThemeApi();
        api.drawThemeParentBackground(m_window, dc, &rect);
        api.drawThemeBackground(m_record->m_theme, dc, BP_PUSHBUTTON, state, &rect, nullptr);
        const auto icon = static_cast<LPARAM>(::SendMessageW(m_window, BM_GETIMAGE, IMAGE_ICON, 0));
        const int size = ::GetSystemMetrics(SM_CXICON);
        ::DrawStateW(dc, nullptr, nullptr, icon, 0, (static_cast<int>(rect.right) - size) / 2,
                     (static_cast<int>(rect.bottom) - size) / 2, 0, 0,
                     DST_ICON | (state == PBS_DISABLED ? DSS_DISABLED : DSS_NORMAL));
    }

    static constexpr int BP_PUSHBUTTON = 1, PBS_NORMAL = 1, PBS_DISABLED = 4;

    SplitButtonRecord* m_record;
    HWND m_window;
    UINT m_message;
    WPARAM m_wParam;
    LPARAM m_lParam;
};

int extraWord(HWND window) {
    return static_cast<int>(::GetClassLongPtrW(window, GCL_CBWNDEXTRA)) - static_cast<int>(sizeof(LONG_PTR));
}

SplitButtonRecord* recordOf(HWND window) {
    return reinterpret_cast<SplitButtonRecord*>(::GetWindowLongPtrW(window, extraWord(window)));
}

void setRecord(HWND window, SplitButtonRecord* record) {
    ::SetWindowLongPtrW(window, extraWord(window), reinterpret_cast<LONG_PTR>(record));
}

}  // namespace

LRESULT SplitButtonMessage(SplitButtonRecord* record, HWND window, UINT message, WPARAM wParam,
                           LPARAM lParam) {
    return Message(record, window, message, wParam, lParam).handle();
}

LRESULT CALLBACK SplitButtonWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC button = LoadedToolkit().buttonWndProc;
    if (message == WM_NCCREATE) {
        const LRESULT created = ::CallWindowProcW(button, window, message, wParam, lParam);
        if (!created) return FALSE;
        const auto style = static_cast<DWORD>(reinterpret_cast<CREATESTRUCTW*>(lParam)->style);
        setRecord(window, new SplitButtonRecord{nullptr, style & kSplitStyleBits});
        return created;
    }
    SplitButtonRecord* const record = recordOf(window);
    if (message != WM_NCDESTROY) return SplitButtonMessage(record, window, message, wParam, lParam);
    setRecord(window, nullptr);
    delete record;
    return ::CallWindowProcW(button, window, message, wParam, lParam);
}
