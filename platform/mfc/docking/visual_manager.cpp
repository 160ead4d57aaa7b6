#include <kmfc/visual_manager.h>

#include <kmfc/app.h>
#include <kmfc/caption_button.h>
#include <kmfc/frame.h>
#include <kmfc/registered_messages.h>

#include "look.h"

using kmfc::present_look;

IMPLEMENT_DYNCREATE(CMFCVisualManager, CObject)

CMFCVisualManager* CMFCVisualManager::m_pVisManager = nullptr;
CRuntimeClass* CMFCVisualManager::m_pRTIDefault = nullptr;

CMFCVisualManager::CMFCVisualManager(BOOL bIsTemporary) : m_bIsTemporary(bIsTemporary) {}

CMFCVisualManager::~CMFCVisualManager() {
    if (m_pVisManager == this) m_pVisManager = nullptr;
}

CMFCVisualManager* CMFCVisualManager::GetInstance() {
    if (m_pVisManager == nullptr) {
        CObject* const made = m_pRTIDefault != nullptr ? m_pRTIDefault->CreateObject() : nullptr;
        m_pVisManager = made != nullptr ? static_cast<CMFCVisualManager*>(made) : new CMFCVisualManager;
        m_pVisManager->m_bAutoDestroy = TRUE;
        m_pVisManager->OnUpdateSystemColors();
    }
    return m_pVisManager;
}

void CMFCVisualManager::SetDefaultManager(CRuntimeClass* pRTI) {
    if (pRTI != nullptr && !pRTI->IsDerivedFrom(RUNTIME_CLASS(CMFCVisualManager))) return;
    m_pRTIDefault = pRTI;
    DestroyInstance();
    afxGlobalData.UpdateSysColors();
    if (CWnd* const main = AfxGetMainWnd(); main->GetSafeHwnd() != nullptr)
        main->SendMessage(AFX_WM_ON_CHANGE_VISUAL_MANAGER);
    AdjustFrames();
    RedrawAll();
}

void CMFCVisualManager::DestroyInstance(BOOL bAutoDestroyOnly) {
    if (m_pVisManager == nullptr || (bAutoDestroyOnly && !m_pVisManager->m_bAutoDestroy)) return;
    delete m_pVisManager;
    m_pVisManager = nullptr;
}

void CMFCVisualManager::RedrawAll() {
    CWnd* const main = AfxGetMainWnd();
    if (main->GetSafeHwnd() == nullptr) return;
    main->RedrawWindow(nullptr, nullptr,
                       RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void CMFCVisualManager::AdjustFrames() {
    CWnd* const main = AfxGetMainWnd();
    if (main->GetSafeHwnd() != nullptr && main->IsFrameWnd()) static_cast<CFrameWnd*>(main)->RecalcLayout();
}

void CMFCVisualManager::OnUpdateSystemColors() {}

void CMFCVisualManager::OnFillBarBackground(CDC* pDC, CBasePane*, CRect rectClient, CRect, BOOL) {
    pDC->FillSolidRect(rectClient, present_look().bar);
}

void CMFCVisualManager::OnDrawPaneBorder(CDC* pDC, CBasePane*, CRect& rect) {
    const COLORREF border = present_look().border;
    pDC->Draw3dRect(rect, border, border);
}

COLORREF CMFCVisualManager::OnDrawPaneCaption(CDC* pDC, CDockablePane*, BOOL bActive, CRect rectCaption,
                                              CRect) {
    const kmfc::LookColors look = present_look();
    pDC->FillSolidRect(rectCaption, bActive ? look.activeFill : look.captionFill);
    return bActive ? look.activeText : look.captionText;
}

void CMFCVisualManager::OnDrawCaptionButton(CDC* pDC, CMFCCaptionButton* pButton, BOOL bActive, BOOL bHorz,
                                            BOOL bMaximized, BOOL bDisabled, int nImageID) {
    const CRect rect = pButton->GetRect();
    if (rect.IsRectEmpty()) return;
    const kmfc::LookColors look = present_look();
    const int sign = nImageID != -1 ? nImageID : static_cast<int>(pButton->GetIconID(bHorz, bMaximized));
    COLORREF color = bActive ? look.activeText : look.captionText;
    if (bDisabled) {
        color = look.disabledText;
    } else if (pButton->m_bPushed && pButton->m_bFocused) {
        pDC->FillSolidRect(rect, look.pressedFill);
        color = look.pressedText;
    } else if (pButton->m_bPushed || pButton->m_bFocused) {
        pDC->FillSolidRect(rect, look.hotFill);
        color = look.hotText;
    }
    CMenuImages::draw_in_color(pDC, static_cast<CMenuImages::IMAGES_IDS>(sign), rect, color);
}

void CMFCVisualManager::OnDrawPaneDivider(CDC* pDC, CPaneDivider*, CRect rect, BOOL bAutoHideMode) {
    const kmfc::LookColors look = present_look();
    pDC->FillSolidRect(rect, look.bar);
    if (bAutoHideMode) pDC->Draw3dRect(rect, look.border, look.border);
}

COLORREF CMFCVisualManager::OnFillMiniFrameCaption(CDC* pDC, CRect rectCaption, CPaneFrameWnd*,
                                                   BOOL bActive) {
    const kmfc::LookColors look = present_look();
    pDC->FillSolidRect(rectCaption, bActive ? look.activeFill : look.captionFill);
    return bActive ? look.activeText : look.captionText;
}

void CMFCVisualManager::OnDrawMiniFrameBorder(CDC* pDC, CPaneFrameWnd*, CRect rectBorder,
                                              CRect rectBorderSize) {
    const kmfc::LookColors look = present_look();
    const CRect& r = rectBorder;
    pDC->FillSolidRect(r.left, r.top, r.Width(), rectBorderSize.top, look.bar);
    pDC->FillSolidRect(r.left, r.bottom - rectBorderSize.bottom, r.Width(), rectBorderSize.bottom, look.bar);
    pDC->FillSolidRect(r.left, r.top, rectBorderSize.left, r.Height(), look.bar);
    pDC->FillSolidRect(r.right - rectBorderSize.right, r.top, rectBorderSize.right, r.Height(), look.bar);
    pDC->Draw3dRect(r, look.border, look.border);
}

void CMFCVisualManager::OnFillAutoHideButtonBackground(CDC* pDC, CRect rect, CMFCAutoHideButton*) {
    pDC->FillSolidRect(rect, present_look().bar);
}

void CMFCVisualManager::OnDrawAutoHideButtonBorder(CDC* pDC, CRect rectBounds, CRect rectBorderSize,
                                                   CMFCAutoHideButton*) {
    const COLORREF border = present_look().border;
    const CRect& r = rectBounds;
    pDC->FillSolidRect(r.left, r.top, rectBorderSize.left, r.Height(), border);
    pDC->FillSolidRect(r.left, r.top, r.Width(), rectBorderSize.top, border);
    pDC->FillSolidRect(r.right - rectBorderSize.right, r.top, rectBorderSize.right, r.Height(), border);
    pDC->FillSolidRect(r.left, r.bottom - rectBorderSize.bottom, r.Width(), rectBorderSize.bottom, border);
}

COLORREF CMFCVisualManager::GetAutoHideButtonTextColor(CMFCAutoHideButton*) { return present_look().tabText; }

void CMFCVisualManager::draw_flat_button(CDC* pDC, const CRect& rect, int image, bool hot, bool pressed,
                                         bool enabled) {
    const kmfc::LookColors look = present_look();
    COLORREF color = look.tabText;
    if (!enabled) {
        color = look.disabledText;
    } else if (pressed) {
        pDC->FillSolidRect(rect, look.pressedFill);
        color = look.pressedText;
    } else if (hot) {
        pDC->FillSolidRect(rect, look.hotFill);
        color = look.hotText;
    }
    CMenuImages::draw_in_color(pDC, static_cast<CMenuImages::IMAGES_IDS>(image), rect, color);
}
