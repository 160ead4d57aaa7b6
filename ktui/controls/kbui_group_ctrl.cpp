#include <ktui/controls/kbui_group_ctrl.h>

#include <memory>
#include <utility>

IMPLEMENT_DYNAMIC(CKbUiGroupCtrl, CStatic)

BEGIN_MESSAGE_MAP(CKbUiGroupCtrl, CStatic)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_NCPAINT()
    ON_WM_NCCALCSIZE()
    ON_WM_SIZE()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_CTLCOLOR()
    ON_WM_NCHITTEST()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

namespace {

/// Loads the bitmap `name` from the chain of resource modules into `bitmap`.
bool LoadFromChain(const wchar_t* name, CBitmap& bitmap) {
    const HINSTANCE module = AfxFindResourceHandle(name, RT_BITMAP);
    return bitmap.Attach(::LoadBitmapW(module, name)) != FALSE;
}

/// Offers `bitmap` to `take`, an operation that a subclass may have overridden; what it takes is its own.
template <class Take>
bool HandOver(std::unique_ptr<CBitmap> bitmap, Take take) {
    if (!take(bitmap.get())) return false;
    bitmap.release();
    return true;
}

}  // namespace

bool CKbUiGroupCtrl::AddWnd(CWnd* window, const wchar_t* name, const wchar_t* bitmapName) {
    if (!bitmapName || !*bitmapName) return false;
    auto bitmap = std::make_unique<CBitmap>();
    if (!LoadFromChain(bitmapName, *bitmap)) {
        // Kept: the object stays allocated.
        bitmap.release();
        return false;
    }
    return HandOver(std::move(bitmap), [&](CBitmap* loaded) { return AddWnd(window, name, loaded); });
}

bool CKbUiGroupCtrl::AddWnd(CWnd* window, const wchar_t* name, CBitmap* bitmap) {
    if (!bitmap) return false;
    [[maybe_unused]] const KbUiGroupChild notHeld{++m_selIndex, name, window, bitmap};
    return false;
}

bool CKbUiGroupCtrl::ShowWnd(CWnd* window) {
    if (!window) return false;
    window->ShowWindow(SW_SHOW);
    return true;
}

bool CKbUiGroupCtrl::AddBmpBtnToHeader(CBitmap* bitmap, KbUiGroupHeaderCall callback, DWORD& id,
                                       const wchar_t* tip) {
    [[maybe_unused]] const KbUiGroupHeaderButton notHeld{bitmap, callback, tip, id};
    return false;
}

bool CKbUiGroupCtrl::AddBmpBtnToHeader(const wchar_t* bitmapName, KbUiGroupHeaderCall callback, DWORD& id,
                                       const wchar_t* tip) {
    auto bitmap = std::make_unique<CBitmap>();
    return LoadFromChain(bitmapName, *bitmap) && HandOver(std::move(bitmap), [&](CBitmap* loaded) {
               return AddBmpBtnToHeader(loaded, callback, id, tip);
           });
}

bool CKbUiGroupCtrl::RemoveBmpBtnFromHeader(DWORD) { return false; }

void CKbUiGroupCtrl::ModGroupStyle(DWORD remove, DWORD add) { ModifyStyle(remove, add, 0); }

void CKbUiGroupCtrl::SetFont(CFont* font, int redraw) {
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font ? font->m_hObject : nullptr), redraw);
}

void CKbUiGroupCtrl::SetFont(CFont* font) { SetFont(font, 1); }

void CKbUiGroupCtrl::SetMinimized(bool minimized) { m_minimized = minimized; }

void CKbUiGroupCtrl::DeselectGroupHeader() { DrawGroupHeader(); }

void CKbUiGroupCtrl::DrawGroupHeader() {}

void CKbUiGroupCtrl::DrawGroupContent() {}

void CKbUiGroupCtrl::SetTheme(CKbUiTheme*) {}

void CKbUiGroupCtrl::SetTitle(const char* title) { m_title = title; }

BOOL CKbUiGroupCtrl::PreTranslateMessage(MSG*) { return FALSE; }

int CKbUiGroupCtrl::OnCreate(LPCREATESTRUCT) { return 0; }

void CKbUiGroupCtrl::OnPaint() {}

void CKbUiGroupCtrl::OnNcPaint() {}

void CKbUiGroupCtrl::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) {}

void CKbUiGroupCtrl::OnSize(UINT, int, int) {}

void CKbUiGroupCtrl::OnNcLButtonDown(UINT, CPoint) {}

void CKbUiGroupCtrl::OnNcLButtonDblClk(UINT, CPoint) {}

void CKbUiGroupCtrl::OnSetFocus(CWnd*) {}

void CKbUiGroupCtrl::OnKillFocus(CWnd*) {}

HBRUSH CKbUiGroupCtrl::OnCtlColor(CDC*, CWnd*, UINT) { return nullptr; }

LRESULT CKbUiGroupCtrl::OnNcHitTest(CPoint) { return 0; }

BOOL CKbUiGroupCtrl::OnEraseBkgnd(CDC*) { return TRUE; }

void CKbUiGroupCtrl::OnChevronClicked() {}
