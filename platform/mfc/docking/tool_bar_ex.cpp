// CMFCToolBar: its buttons, sizes, where they stand, and painting.
#include <kmfc/tool_bar_ex.h>

#include <kmfc/dock_site.h>
#include <kmfc/global_data.h>
#include <kmfc/menu_images.h>
#include <kmfc/mem_dc.h>
#include <kmfc/pane_frame_wnd.h>
#include <kmfc/visual_manager.h>
#include <kmfc/window_dc.h>

#include "../window/tool_bar_resource.h"
#include "core/tool_layout.h"

using namespace kmfc::docking;

IMPLEMENT_DYNCREATE(CMFCToolBar, CPane)

CSize CMFCToolBar::m_sizeButton(23, 22);
CSize CMFCToolBar::m_sizeImage(16, 15);

namespace {

// Pixels at 96 dots an inch.
constexpr int kGripper = 8, kSeparator = 7, kMore = 12;
constexpr int kAroundImage = 7;  // that a button of a resource is larger than its picture

}  // namespace

CMFCToolBar::CMFCToolBar() { m_bHasGripper = TRUE; }

CMFCToolBar::~CMFCToolBar() {
    // The window goes while the bar is still one.
    if (m_hWnd != nullptr) DestroyWindow();
    while (!m_Buttons.IsEmpty()) delete m_Buttons.RemoveHead();
}

BOOL CMFCToolBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateEx(pParentWnd, 0, dwStyle, CRect(1, 1, 1, 1), nID);
}

BOOL CMFCToolBar::CreateEx(CWnd* pParentWnd, DWORD, DWORD dwStyle, CRect rcBorders, UINT nID) {
    m_borders = rcBorders;
    return CPane::CreateEx(0, nullptr, nullptr, dwStyle, CRect(0, 0, 0, 0), pParentWnd, nID,
                           AFX_DEFAULT_PANE_STYLE);
}

// Buttons.

BOOL CMFCToolBar::LoadToolBar(UINT uiResID) {
    kmfc::ToolBarResource bar;
    if (!kmfc::read_tool_bar(MAKEINTRESOURCEW(uiResID), bar)) return FALSE;
    const CSize former = m_images.GetImageSize();
    m_images.SetImageSize(bar.image);
    if (!m_images.Load(uiResID)) {
        m_images.SetImageSize(former);
        return FALSE;
    }
    SetLockedSizes(bar.image + CSize(kAroundImage, kAroundImage), bar.image);
    return SetButtons(bar.commands.data(), static_cast<int>(bar.commands.size()));
}

BOOL CMFCToolBar::LoadBitmap(UINT uiResID) {
    const LPCTSTR name = MAKEINTRESOURCEW(uiResID);
    const HBITMAP bitmap = static_cast<HBITMAP>(
        ::LoadImageW(AfxFindResourceHandle(name, RT_BITMAP), name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    BITMAP about = {};
    const bool found = bitmap != nullptr && ::GetObjectW(bitmap, sizeof(about), &about) != 0;
    if (bitmap != nullptr) ::DeleteObject(bitmap);
    const int count = m_images.GetCount();
    if (!found || count == 0 || about.bmWidth < count) return FALSE;
    const CSize former = m_images.GetImageSize();
    m_images.SetImageSize(CSize(about.bmWidth / count, std::abs(about.bmHeight)));
    if (!m_images.Load(uiResID)) {
        m_images.SetImageSize(former, TRUE);
        return FALSE;
    }
    if (m_hWnd != nullptr) Invalidate();
    return TRUE;
}

BOOL CMFCToolBar::SetButtons(const UINT* lpIDArray, int nIDCount) {
    if (nIDCount < 0 || (lpIDArray == nullptr && nIDCount > 0)) return FALSE;
    RemoveAllButtons();
    int picture = 0;
    for (int i = 0; i < nIDCount; ++i)
        if (lpIDArray[i] == ID_SEPARATOR)
            InsertSeparator();
        else
            InsertButton(CMFCToolBarButton(lpIDArray[i], picture++));
    return TRUE;
}

int CMFCToolBar::InsertButton(const CMFCToolBarButton& button, INT_PTR iInsertAt) {
    auto* copy = DYNAMIC_DOWNCAST(CMFCToolBarButton, button.GetRuntimeClass()->CreateObject());
    if (copy == nullptr) return -1;
    copy->m_nID = button.m_nID;
    copy->m_nStyle = button.m_nStyle;
    copy->m_strText = button.m_strText;
    copy->SetImage(button.GetImage());
    copy->m_bText = button.m_bText;
    copy->m_bImage = button.m_bImage;
    copy->SetVisible(button.IsVisible());
    const int at = InsertButton(copy, iInsertAt);
    if (at < 0) delete copy;
    return at;
}

int CMFCToolBar::InsertButton(CMFCToolBarButton* pButton, INT_PTR iInsertAt) {
    if (pButton == nullptr || iInsertAt < -1 || iInsertAt > GetCount()) return -1;
    if (iInsertAt == -1) iInsertAt = GetCount();
    if (iInsertAt == GetCount())
        m_Buttons.AddTail(pButton);
    else
        m_Buttons.InsertBefore(m_Buttons.FindIndex(iInsertAt), pButton);
    buttons_changed();
    return static_cast<int>(iInsertAt);
}

int CMFCToolBar::InsertSeparator(INT_PTR iInsertAt) {
    const INT_PTR at = iInsertAt == -1 ? GetCount() : iInsertAt;
    const CMFCToolBarButton* const before = GetButton(static_cast<int>(at) - 1);
    if (before == nullptr || before->IsSeparator()) return -1;
    return InsertButton(new CMFCToolBarButton(0, -1), iInsertAt);
}

BOOL CMFCToolBar::RemoveButton(int iIndex) {
    CMFCToolBarButton* const button = GetButton(iIndex);
    if (button == nullptr) return FALSE;
    let_go();
    m_Buttons.RemoveAt(m_Buttons.FindIndex(iIndex));
    delete button;
    buttons_changed();
    return TRUE;
}

void CMFCToolBar::RemoveAllButtons() {
    let_go();
    while (!m_Buttons.IsEmpty()) delete m_Buttons.RemoveHead();
    buttons_changed();
}

CMFCToolBarButton* CMFCToolBar::GetButton(int iIndex) const {
    if (iIndex < 0 || iIndex >= GetCount()) return nullptr;
    return static_cast<CMFCToolBarButton*>(m_Buttons.GetAt(m_Buttons.FindIndex(iIndex)));
}

UINT CMFCToolBar::GetItemID(int nIndex) const {
    const CMFCToolBarButton* const button = GetButton(nIndex);
    return button != nullptr ? button->m_nID : ID_SEPARATOR;
}

int CMFCToolBar::CommandToIndex(UINT nIDFind, int iIndexFirst) const {
    for (int i = std::max(iIndexFirst, 0); i < GetCount(); ++i)
        if (!GetButton(i)->IsSeparator() && GetButton(i)->m_nID == nIDFind) return i;
    return -1;
}

int CMFCToolBar::ButtonToIndex(const CMFCToolBarButton* pButton) const {
    for (int i = 0; i < GetCount(); ++i)
        if (GetButton(i) == pButton) return i;
    return -1;
}

void CMFCToolBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    const CMFCToolBarButton* const button = GetButton(nIndex);
    ::CopyRect(lpRect, button != nullptr ? button->Rect() : CRect(0, 0, 0, 0));
}

int CMFCToolBar::HitTest(CPoint point) const {
    CRect client;
    GetClientRect(&client);
    if (!client.PtInRect(point)) return -1;
    for (int i = 0; i < GetCount(); ++i)
        if (GetButton(i)->Rect().PtInRect(point)) return i;
    return -1;
}

UINT CMFCToolBar::GetButtonStyle(int nIndex) const {
    const CMFCToolBarButton* const button = GetButton(nIndex);
    return button != nullptr ? button->m_nStyle : TBBS_SEPARATOR;
}

void CMFCToolBar::SetButtonStyle(int nIndex, UINT nStyle) {
    CMFCToolBarButton* const button = GetButton(nIndex);
    if (button == nullptr || button->m_nStyle == nStyle) return;
    const bool wasSeparator = button->IsSeparator() != FALSE;
    button->SetStyle(nStyle);
    if (wasSeparator != (button->IsSeparator() != FALSE))
        buttons_changed();
    else
        redraw_button(nIndex);
}

void CMFCToolBar::GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const {
    const CMFCToolBarButton* const button = GetButton(nIndex);
    nID = GetItemID(nIndex);
    nStyle = GetButtonStyle(nIndex);
    iImage = button != nullptr ? button->GetImage() : -1;
}

void CMFCToolBar::SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage) {
    CMFCToolBarButton* const button = GetButton(nIndex);
    if (button == nullptr) return;
    button->m_nID = nID;
    button->SetStyle(nStyle);
    button->SetImage(iImage);
    buttons_changed();
}

BOOL CMFCToolBar::SetButtonText(int nIndex, LPCTSTR lpszText) {
    CMFCToolBarButton* const button = GetButton(nIndex);
    if (button == nullptr) return FALSE;
    button->m_strText = lpszText;
    button->m_bText = !button->m_strText.IsEmpty();
    buttons_changed();
    return TRUE;
}

CString CMFCToolBar::GetButtonText(int nIndex) const {
    const CMFCToolBarButton* const button = GetButton(nIndex);
    return button != nullptr ? button->m_strText : CString();
}

// Sizes.

void CMFCToolBar::SetSizes(SIZE sizeButton, SIZE sizeImage) {
    m_sizeButton = sizeButton;
    m_sizeImage = sizeImage;
}

void CMFCToolBar::SetLockedSizes(SIZE sizeButton, SIZE sizeImage) {
    m_ownButton = sizeButton;
    m_ownImage = sizeImage;
    buttons_changed();
}

CSize CMFCToolBar::GetButtonSize() const {
    const CSize size = m_ownButton != CSize(0, 0) ? m_ownButton : m_sizeButton;
    return CSize(afxGlobalData.scaled(size.cx), afxGlobalData.scaled(size.cy));
}

CSize CMFCToolBar::GetImageSize() const {
    const CSize size = m_ownImage != CSize(0, 0) ? m_ownImage : m_sizeImage;
    return CSize(afxGlobalData.scaled(size.cx), afxGlobalData.scaled(size.cy));
}

// Layout.

BOOL CMFCToolBar::IsUpright() const { return !IsFloating() && !IsHorizontal(); }

/// `room` is the width of a wrapped bar, and the length of another; 0 for what it needs.
ToolLayout CMFCToolBar::layout_of(ToolShape shape, int room) {
    CClientDC dc(this);
    std::vector<ToolItem> items;
    const CSize size = GetButtonSize();
    for (int i = 0; i < GetCount(); ++i) {
        CMFCToolBarButton* const button = GetButton(i);
        ToolItem item;
        item.separator = button->IsSeparator() != FALSE;
        item.hidden = !button->IsVisible() || (button->m_nStyle & TBBS_HIDDEN) != 0;
        if (!item.separator && !item.hidden)
            item.size = button->OnCalculateSize(&dc, size, shape != ToolShape::column);
        items.push_back(item);
    }
    ToolMetrics metrics;
    metrics.gripper = shape != ToolShape::wrapped && m_bHasGripper ? afxGlobalData.scaled(kGripper) : 0;
    metrics.margin = m_borders.left;
    metrics.separator = afxGlobalData.scaled(kSeparator);
    metrics.more = afxGlobalData.scaled(kMore);
    ToolLayout layout = lay_tools(items, metrics, shape, room);
    if (room > 0) shorten_tools(layout, items, metrics, shape, room);
    return layout;
}

ToolLayout CMFCToolBar::layout_as_it_stands() {
    constexpr int kUnlimited = 32767;
    if (IsFloating()) {
        CRect client;
        GetClientRect(&client);
        return layout_of(ToolShape::wrapped, m_wide > 0 ? client.Width() : kUnlimited);
    }
    // One that docks nowhere yet has no length of its own.
    CRect room(0, 0, 0, 0);
    if (GetParentDockSite() != nullptr) GetClientRect(&room);
    return IsUpright() ? layout_of(ToolShape::column, room.Height())
                       : layout_of(ToolShape::row, room.Width());
}

CSize CMFCToolBar::CalcSize(BOOL bVertDock) {
    return layout_of(bVertDock ? ToolShape::column : ToolShape::row, 0).size;
}

CSize CMFCToolBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    const CSize size = CalcSize(!bHorz), all = CPane::CalcFixedLayout(bStretch, bHorz);
    return CSize(std::max(size.cx, all.cx), std::max(size.cy, all.cy));
}

CSize CMFCToolBar::CalcWrappedSize(int width) {
    constexpr int kUnlimited = 32767;
    return layout_of(ToolShape::wrapped, width > 0 ? width : kUnlimited).size;
}

int CMFCToolBar::WrapToolBar(int nWidth) {
    m_wide = nWidth;
    const ToolLayout layout = layout_of(ToolShape::wrapped, nWidth);
    return 1 + static_cast<int>(std::count(layout.endsRow.begin(), layout.endsRow.end(), true));
}

void CMFCToolBar::GetGripperRect(CRect& rect) const {
    CRect client;
    GetClientRect(&client);
    const int extent = m_bHasGripper && !IsFloating() ? afxGlobalData.scaled(kGripper) : 0;
    if (IsUpright())
        rect.SetRect(0, 0, extent != 0 ? client.right : 0, extent);
    else
        rect.SetRect(0, 0, extent, extent != 0 ? client.bottom : 0);
}

void CMFCToolBar::GetMinSize(CSize& size) const {
    // The gripper, one button, and the one for more.
    const int gripper = m_bHasGripper ? afxGlobalData.scaled(kGripper) : 0;
    const int around = gripper + afxGlobalData.scaled(kMore) + 2 * m_borders.left;
    size = GetButtonSize() + CSize(around, around);
}

void CMFCToolBar::AdjustLayout() {
    if (m_hWnd == nullptr) return;
    const ToolLayout layout = layout_as_it_stands();
    for (int i = 0; i < GetCount(); ++i) {
        GetButton(i)->SetRect(layout.items[static_cast<size_t>(i)]);
        GetButton(i)->m_bWrap = layout.endsRow[static_cast<size_t>(i)];
    }
    m_more = layout.more;
    if (m_iHighlighted != -1 && part_rect(m_iHighlighted).IsRectEmpty()) highlight(-1);
    Invalidate();
}

void CMFCToolBar::buttons_changed() {
    highlight(-1);
    if (m_hWnd == nullptr) return;
    AdjustLayout();
    if (CPaneFrameWnd* const frame = GetParentMiniFrame())
        frame->AdjustLayout();
    else
        AdjustDockingLayout();
}

// Painting.

void CMFCToolBar::redraw_button(int index) {
    if (m_hWnd != nullptr && index >= 0) InvalidateRect(part_rect(index), FALSE);
}

void CMFCToolBar::DoPaint(CDC* pDC) {
    CRect client;
    GetClientRect(&client);
    CMemDC memory(*pDC, client);
    CDC* const dc = &memory.GetDC();
    CMFCVisualManager* const look = CMFCVisualManager::GetInstance();
    look->OnFillBarBackground(dc, this, client, client);
    CRect gripper;
    GetGripperRect(gripper);
    const BOOL horizontal = !IsUpright();
    if (!gripper.IsRectEmpty()) look->OnDrawBarGripper(dc, gripper, horizontal, this);
    for (int i = 0; i < GetCount(); ++i) {
        CMFCToolBarButton* const button = GetButton(i);
        if (button->IsHidden()) continue;
        if (button->IsSeparator())
            DrawSeparator(dc, button->Rect(), horizontal);
        else
            DrawButton(dc, button, horizontal, i == m_iHighlighted && (m_iPressed == -1 || m_iPressed == i));
    }
    if (has_more())
        look->draw_flat_button(dc, m_more, CMenuImages::IdMoreButtons, m_iHighlighted == GetCount(), false,
                               true);
}

void CMFCToolBar::DrawButton(CDC* pDC, CMFCToolBarButton* pButton, BOOL bHorz, BOOL bHighlight) {
    pButton->OnDraw(pDC, pButton->Rect(), &m_images, bHorz, bHighlight, GetImageSize());
}

void CMFCToolBar::DrawSeparator(CDC* pDC, const CRect& rect, BOOL bHorz) {
    CMFCVisualManager::GetInstance()->OnDrawSeparator(pDC, this, rect, bHorz);
}
