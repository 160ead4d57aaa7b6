// CToolBar: buttons from resources, their layout in rows, states and tips by way of the frame.
#include <kmfc/tool_bar.h>

#include <algorithm>
#include <vector>

#include <kmfc/frame.h>

#include "bar_item_request.h"
#include "tool_bar_resource.h"

IMPLEMENT_DYNAMIC(CToolBar, CControlBar)

BEGIN_MESSAGE_MAP(CToolBar, CControlBar)
    ON_WM_NCCREATE()
END_MESSAGE_MAP()

namespace {

constexpr int kGap = 8;                           // pixels of a separator
constexpr int kExtraWidth = 7, kExtraHeight = 7;  // pixels of a button around its picture
constexpr DWORD kControlStyles = CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE;

}  // namespace

CToolBar::~CToolBar() {
    m_bAutoDelete = FALSE;
    DestroyWindow();
    if (m_hbmLoaded != nullptr) ::DeleteObject(m_hbmLoaded);
}

BOOL CToolBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateEx(pParentWnd, 0, dwStyle, CRect(0, 0, 0, 0), nID);
}

BOOL CToolBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, CRect rcBorders, UINT nID) {
    SetBorders(rcBorders);
    m_dwStyle = dwStyle & CBRS_ALL;
    const DWORD style = (dwStyle & ~CBRS_ALL) | kControlStyles | dwCtrlStyle;
    if (!CWnd::Create(TOOLBARCLASSNAMEW, nullptr, style, CRect(0, 0, 0, 0), pParentWnd, nID)) return FALSE;
    SetBarStyle(m_dwStyle);
    SetSizes(m_sizeButton, m_sizeImage);
    return TRUE;
}

BOOL CToolBar::OnNcCreate(LPCREATESTRUCT lpCreateStruct) {
    if (!CControlBar::OnNcCreate(lpCreateStruct)) return FALSE;
    DefWindowProc(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    return TRUE;
}

void CToolBar::CalcInsideRect(CRect& rect, BOOL bHorz) const {
    CControlBar::CalcInsideRect(rect, bHorz);
    rect.DeflateRect(GetBorders());
}

CToolBarCtrl& CToolBar::GetToolBarCtrl() const {
    // The control's class has no members of its own: it only names the messages of the window.
    return *reinterpret_cast<CToolBarCtrl*>(const_cast<CToolBar*>(this));
}

BOOL CToolBar::LoadToolBar(LPCTSTR lpszResourceName) {
    kmfc::ToolBarResource bar;
    if (!kmfc::read_tool_bar(lpszResourceName, bar)) return FALSE;
    const CSize formerButton = m_sizeButton, formerImage = m_sizeImage;
    SetSizes(CSize(bar.image.cx + kExtraWidth, bar.image.cy + kExtraHeight), bar.image);
    if (LoadBitmap(lpszResourceName) &&
        SetButtons(bar.commands.data(), static_cast<int>(bar.commands.size())))
        return TRUE;
    SetSizes(formerButton, formerImage);
    return FALSE;
}

BOOL CToolBar::LoadBitmap(LPCTSTR lpszResourceName) {
    HINSTANCE module = AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    const auto bitmap = static_cast<HBITMAP>(
        ::LoadImageW(module, lpszResourceName, IMAGE_BITMAP, 0, 0, LR_LOADMAP3DCOLORS | LR_CREATEDIBSECTION));
    if (bitmap == nullptr) return FALSE;
    if (!take_bitmap(bitmap)) {
        ::DeleteObject(bitmap);
        return FALSE;
    }
    if (m_hbmLoaded != nullptr) ::DeleteObject(m_hbmLoaded);
    m_hbmLoaded = bitmap;
    return TRUE;
}

BOOL CToolBar::SetBitmap(HBITMAP hbmImageWell) { return take_bitmap(hbmImageWell); }

/// Gives the control the pictures, in place of those it had.
BOOL CToolBar::take_bitmap(HBITMAP bitmap) {
    BITMAP size = {};
    if (m_hWnd == nullptr || m_sizeImage.cx <= 0 || !::GetObjectW(bitmap, sizeof size, &size)) return FALSE;
    const int count = size.bmWidth / m_sizeImage.cx;
    CToolBarCtrl& control = GetToolBarCtrl();
    if (m_hbmShown == nullptr) {
        TBADDBITMAP added = {nullptr, reinterpret_cast<UINT_PTR>(bitmap)};
        if (control.SendMessage(TB_ADDBITMAP, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(&added)) !=
            0)
            return FALSE;
    } else {
        TBREPLACEBITMAP exchange = {nullptr, reinterpret_cast<UINT_PTR>(m_hbmShown), nullptr,
                                    reinterpret_cast<UINT_PTR>(bitmap), count};
        if (!control.ReplaceBitmap(&exchange)) return FALSE;
    }
    m_hbmShown = bitmap;
    m_shownCount = count;
    return TRUE;
}

BOOL CToolBar::SetButtons(const UINT* lpIDArray, int nIDCount) {
    if (m_hWnd == nullptr || nIDCount < 0) return FALSE;
    CToolBarCtrl& control = GetToolBarCtrl();
    for (int left = control.GetButtonCount(); left > 0; --left)
        if (!control.DeleteButton(left - 1)) return FALSE;
    m_nCount = 0;
    int picture = 0;
    for (int i = 0; i < nIDCount; ++i) {
        TBBUTTON made = {};
        made.iString = -1;
        made.fsState = TBSTATE_ENABLED;
        if (lpIDArray == nullptr) {
            made.fsState = TBSTATE_HIDDEN;
        } else if (lpIDArray[i] == ID_SEPARATOR) {
            made.fsStyle = TBSTYLE_SEP;
            made.iBitmap = kGap;
        } else {
            made.idCommand = static_cast<int>(lpIDArray[i]);
            made.iBitmap = picture++;
        }
        if (!control.InsertButton(i, &made)) return FALSE;
        ++m_nCount;
    }
    m_wrapWidth = 0;
    wrap(32767);
    return TRUE;
}

void CToolBar::SetSizes(SIZE sizeButton, SIZE sizeImage) {
    m_sizeButton = sizeButton;
    m_sizeImage = sizeImage;
    if (m_hWnd == nullptr) return;
    GetToolBarCtrl().SetBitmapSize(sizeImage);
    GetToolBarCtrl().SetButtonSize(sizeButton);
    Invalidate();
}

void CToolBar::SetHeight(int cyHeight) {
    m_height = std::max(cyHeight, 0);
    if (m_hWnd != nullptr) Invalidate();
}

bool CToolBar::button(int index, TBBUTTON& info) const {
    info = {};
    return m_hWnd != nullptr && index >= 0 && GetToolBarCtrl().GetButton(index, &info);
}

void CToolBar::put_button(int index, const TBBUTTON& info) {
    TBBUTTON former = {}, changed = info;
    if (!button(index, former) || memcmp(&former, &changed, sizeof former) == 0) return;
    CToolBarCtrl& control = GetToolBarCtrl();
    SetRedraw(FALSE);
    control.DeleteButton(index);
    control.InsertButton(index, &changed);
    SetRedraw(TRUE);
    CRect place;
    GetItemRect(index, &place);
    // Buttons behind one that changed its width move.
    if (former.fsStyle != changed.fsStyle || (changed.fsStyle & TBSTYLE_SEP))
        Invalidate();
    else
        InvalidateRect(&place);
}

int CToolBar::CommandToIndex(UINT nIDFind) const {
    return m_hWnd != nullptr ? GetToolBarCtrl().CommandToIndex(nIDFind) : -1;
}

UINT CToolBar::GetItemID(int nIndex) const {
    TBBUTTON info;
    return button(nIndex, info) ? static_cast<UINT>(info.idCommand) : ID_SEPARATOR;
}

void CToolBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    ::SetRectEmpty(lpRect);
    if (m_hWnd != nullptr && !GetToolBarCtrl().GetItemRect(nIndex, lpRect)) ::SetRectEmpty(lpRect);
}

UINT CToolBar::GetButtonStyle(int nIndex) const {
    TBBUTTON info;
    if (!button(nIndex, info)) return TBBS_SEPARATOR;
    return static_cast<UINT>(MAKELONG(info.fsStyle, info.fsState ^ TBSTATE_ENABLED));
}

void CToolBar::SetButtonStyle(int nIndex, UINT nStyle) {
    TBBUTTON info;
    if (!button(nIndex, info)) return;
    // Rows are the bar's, not the caller's.
    const int wrapped = info.fsState & TBSTATE_WRAP;
    info.fsStyle = static_cast<BYTE>(LOWORD(nStyle));
    info.fsState = static_cast<BYTE>((HIWORD(nStyle) ^ TBSTATE_ENABLED) | wrapped);
    put_button(nIndex, info);
}

void CToolBar::GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const {
    TBBUTTON info;
    button(nIndex, info);
    nID = GetItemID(nIndex);
    nStyle = GetButtonStyle(nIndex);
    iImage = info.iBitmap;
}

void CToolBar::SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage) {
    TBBUTTON info;
    if (!button(nIndex, info)) return;
    const int wrapped = info.fsState & TBSTATE_WRAP;
    info.idCommand = static_cast<int>(nID);
    info.iBitmap = iImage;
    info.fsStyle = static_cast<BYTE>(LOWORD(nStyle));
    info.fsState = static_cast<BYTE>((HIWORD(nStyle) ^ TBSTATE_ENABLED) | wrapped);
    put_button(nIndex, info);
}

CString CToolBar::GetButtonText(int nIndex) const {
    TBBUTTON info;
    if (!button(nIndex, info) || info.iString < 0 || info.iString >= m_texts.GetSize()) return CString();
    return m_texts[info.iString];
}

BOOL CToolBar::SetButtonText(int nIndex, LPCTSTR lpszText) {
    TBBUTTON info;
    if (!button(nIndex, info)) return FALSE;
    const CString text(lpszText);
    INT_PTR place = 0;
    while (place < m_texts.GetSize() && m_texts[place] != text) ++place;
    if (place == m_texts.GetSize()) {
        // The control keeps its texts for good, so the same one is added once only.
        CString listed = text;
        listed.AppendChar(L'\0');
        if (GetToolBarCtrl().AddStrings(listed) != place) return FALSE;
        m_texts.Add(text);
    }
    info.iString = place;
    put_button(nIndex, info);
    return TRUE;
}

/// What rows need, in pixels.
CSize CToolBar::extent() const {
    CSize size(0, 0);
    for (int i = 0; i < m_nCount; ++i) {
        CRect place;
        GetItemRect(i, &place);
        size.cx = std::max(size.cx, place.right);
        size.cy = std::max(size.cy, place.bottom);
    }
    return size;
}

void CToolBar::wrap(int width) {
    if (m_wrapWidth == width) return;
    m_wrapWidth = width;
    int x = 0;
    for (int i = 0; i < m_nCount; ++i) {
        TBBUTTON info, next;
        button(i, info);
        CRect place, following;
        GetItemRect(i, &place);
        GetItemRect(i + 1, &following);
        x += place.Width();
        const bool isLast = !button(i + 1, next);
        const bool ends = !isLast && (width == 0 || x + following.Width() > width);
        if (ends) x = 0;
        info.fsState = static_cast<BYTE>(ends ? info.fsState | TBSTATE_WRAP : info.fsState & ~TBSTATE_WRAP);
        put_button(i, info);
    }
}

CSize CToolBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    return CalcDynamicLayout(-1, (bStretch ? LM_STRETCH : 0) | (bHorz ? LM_HORZ : 0));
}

/// The least width whose rows are no higher than that.
int CToolBar::width_for_height(int height) {
    const int step = std::max<int>(m_sizeButton.cx, 1);
    for (int width = step;; width += step) {
        wrap(width);
        const CSize size = extent();
        if (size.cy <= height || size.cx < width - step) return width;
    }
}

CSize CToolBar::CalcDynamicLayout(int nLength, DWORD dwMode) {
    const bool horizontal = (dwMode & LM_HORZ) != 0;
    const int former = m_wrapWidth;
    CRect whole(0, 0, 1000, 1000), inside(whole);
    CalcInsideRect(inside, horizontal);
    const CSize around = whole.Size() - inside.Size();
    const int room = std::max<int>(nLength - (dwMode & LM_LENGTHY ? around.cy : around.cx), 1);
    const bool asked = nLength > 0 && !(dwMode & (LM_MRUWIDTH | LM_HORZDOCK | LM_VERTDOCK | LM_STRETCH));
    int width = horizontal ? 32767 : 0;
    if (dwMode & LM_MRUWIDTH)
        width = static_cast<int>(m_nMRUWidth);
    else if (asked && (dwMode & LM_LENGTHY))
        width = width_for_height(room);
    else if (asked && horizontal)
        width = room;
    wrap(width);
    CSize size = extent();
    // A bar takes the form of its own edge by itself.
    const bool own = ((m_dwStyle & CBRS_ORIENT_VERT) != 0) != horizontal;
    if (!own && !(dwMode & LM_COMMIT)) wrap(former);
    if ((dwMode & LM_COMMIT) && asked) m_nMRUWidth = static_cast<UINT>(width);
    if (size.cy == 0) size.cy = m_sizeButton.cy;
    if (m_height != 0 && horizontal) size.cy = m_height;
    size += around;
    const CSize least = CControlBar::CalcFixedLayout((dwMode & LM_STRETCH) != 0, horizontal);
    return CSize(std::max(size.cx, least.cx), std::max(size.cy, least.cy));
}

INT_PTR CToolBar::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    const INT_PTR child = CWnd::OnToolHitTest(point, pTI);
    if (child != -1) return child;
    for (int i = 0; i < m_nCount; ++i) {
        TBBUTTON info;
        CRect place;
        GetItemRect(i, &place);
        if (!place.PtInRect(point) || !button(i, info) || (info.fsStyle & TBSTYLE_SEP)) continue;
        if (pTI != nullptr && pTI->cbSize >= TTTOOLINFOW_V1_SIZE) {
            pTI->hwnd = m_hWnd;
            pTI->rect = place;
            pTI->uId = static_cast<UINT_PTR>(info.idCommand);
            pTI->lpszText = LPSTR_TEXTCALLBACKW;
        }
        return info.idCommand;
    }
    return -1;
}

void CToolBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    kmfc::ButtonRequest(*this).ask_all(m_nCount, pTarget, bDisableIfNoHndler);
    // Controls that stand in the bar.
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}
