#include <kmfc/global_data.h>

#include <cstring>

#include <kmfc/exceptions.h>
#include <kmfc/wnd.h>

#include "screen_dc.h"

namespace {

void remake(CFont& font, const LOGFONT& wanted) {
    font.DeleteObject();
    font.CreateFontIndirect(&wanted);
}

void remake(CBrush& brush, COLORREF color) {
    brush.DeleteObject();
    brush.CreateSolidBrush(color);
}

void remake(CPen& pen, COLORREF color) {
    pen.DeleteObject();
    pen.CreatePen(PS_SOLID, 1, color);
}

using kmfc::ScreenDC;

bool is_light(COLORREF color) {
    return GetRValue(color) + 2 * GetGValue(color) + GetBValue(color) >= 4 * 128;
}

bool high_contrast_is_on() {
    HIGHCONTRASTW contrast = {};
    contrast.cbSize = sizeof(contrast);
    return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

}  // namespace

AFX_GLOBAL_DATA::AFX_GLOBAL_DATA() {
    m_hcurStretch = ::LoadCursorW(nullptr, IDC_SIZEWE);
    m_hcurStretchVert = ::LoadCursorW(nullptr, IDC_SIZENS);
    m_hcurSizeAll = m_hcurMoveTab = ::LoadCursorW(nullptr, IDC_SIZEALL);
    m_hcurNoMoveTab = ::LoadCursorW(nullptr, IDC_NO);
    UpdateSysColors();
    UpdateFonts();
    OnSettingChange();
}

AFX_GLOBAL_DATA::~AFX_GLOBAL_DATA() = default;

void AFX_GLOBAL_DATA::UpdateFonts() {
    NONCLIENTMETRICSW metrics = {};
    if (!GetNonClientMetrics(metrics)) return;
    SetMenuFont(&metrics.lfMenuFont, FALSE);
    remake(fontTooltip, metrics.lfStatusFont);
    LOGFONTW plain = {};
    if (::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof(plain), &plain) == 0) return;
    plain.lfWeight = FW_BOLD;
    remake(fontDefaultGUIBold, plain);
}

BOOL AFX_GLOBAL_DATA::SetMenuFont(LPLOGFONT lpLogFont, BOOL bHorz) {
    LOGFONTW font = *lpLogFont;
    remake(fontRegular, font);
    font.lfWeight = FW_BOLD;
    remake(fontBold, font);
    font = *lpLogFont;
    font.lfUnderline = TRUE;
    remake(fontUnderline, font);
    if (!bHorz) {
        font = *lpLogFont;
        font.lfOrientation = font.lfEscapement = 2700;  // tenths of a degree
        remake(fontVert, font);
        font.lfOrientation = font.lfEscapement = 900;
        remake(fontVertCaption, font);
    }
    return fontRegular.GetSafeHandle() != nullptr;
}

void AFX_GLOBAL_DATA::UpdateSysColors() {
    clrBtnFace = clrBarFace = GetColor(COLOR_BTNFACE);
    clrBtnShadow = clrBarShadow = GetColor(COLOR_BTNSHADOW);
    clrBtnHilite = clrBarHilite = GetColor(COLOR_BTNHIGHLIGHT);
    clrBtnText = clrBarText = GetColor(COLOR_BTNTEXT);
    clrBtnDkShadow = clrBarDkShadow = GetColor(COLOR_3DDKSHADOW);
    clrBtnLight = clrBarLight = GetColor(COLOR_3DLIGHT);
    clrWindow = clrBarWindow = GetColor(COLOR_WINDOW);
    clrWindowText = GetColor(COLOR_WINDOWTEXT);
    clrWindowFrame = GetColor(COLOR_WINDOWFRAME);
    clrGrayedText = GetColor(COLOR_GRAYTEXT);
    clrMenuText = GetColor(COLOR_MENUTEXT);
    clrHilite = GetColor(COLOR_HIGHLIGHT);
    clrTextHilite = GetColor(COLOR_HIGHLIGHTTEXT);
    clrHotText = GetColor(COLOR_HOTLIGHT);
    clrActiveCaption = GetColor(COLOR_ACTIVECAPTION);
    clrInactiveCaption = GetColor(COLOR_INACTIVECAPTION);
    clrCaptionText = GetColor(COLOR_CAPTIONTEXT);
    clrInactiveCaptionText = GetColor(COLOR_INACTIVECAPTIONTEXT);
    clrActiveCaptionGradient = GetColor(COLOR_GRADIENTACTIVECAPTION);
    clrInactiveCaptionGradient = GetColor(COLOR_GRADIENTINACTIVECAPTION);
    const bool contrast = high_contrast_is_on();
    m_bIsBlackHighContrast = contrast && !is_light(clrWindow);
    m_bIsWhiteHighContrast = contrast && is_light(clrWindow);
    const ScreenDC screen;
    m_nBitsPerPixel = ::GetDeviceCaps(screen, BITSPIXEL) * ::GetDeviceCaps(screen, PLANES);
    m_nDpi = ::GetDeviceCaps(screen, LOGPIXELSY);
    make_brushes();
}

void AFX_GLOBAL_DATA::make_brushes() {
    remake(brBtnFace, clrBtnFace);
    remake(brBarFace, clrBarFace);
    remake(brHilite, clrHilite);
    remake(brLight, clrBtnLight);
    remake(brBlack, RGB(0, 0, 0));
    remake(brActiveCaption, clrActiveCaption);
    remake(brInactiveCaption, clrInactiveCaption);
    remake(brWindow, clrWindow);
    remake(penHilite, clrHilite);
    remake(penBarFace, clrBarFace);
    remake(penBarShadow, clrBarShadow);
}

void AFX_GLOBAL_DATA::OnSettingChange() {
    BOOL animation = FALSE;
    m_bMenuAnimation = ::SystemParametersInfoW(SPI_GETMENUANIMATION, 0, &animation, 0) && animation;
    m_sizeSmallIcon = CSize(::GetSystemMetrics(SM_CXSMICON), ::GetSystemMetrics(SM_CYSMICON));
    m_rectVirtual =
        CRect(CPoint(::GetSystemMetrics(SM_XVIRTUALSCREEN), ::GetSystemMetrics(SM_YVIRTUALSCREEN)),
              CSize(::GetSystemMetrics(SM_CXVIRTUALSCREEN), ::GetSystemMetrics(SM_CYVIRTUALSCREEN)));
}

void AFX_GLOBAL_DATA::CleanUp() {
    for (CGdiObject* const object : std::initializer_list<CGdiObject*>{
             &fontRegular, &fontTooltip, &fontBold, &fontUnderline, &fontDefaultGUIBold, &fontVert,
             &fontVertCaption, &brBtnFace, &brHilite, &brLight, &brBlack, &brActiveCaption,
             &brInactiveCaption, &brWindow, &brBarFace, &penHilite, &penBarFace, &penBarShadow})
        object->DeleteObject();
}

int AFX_GLOBAL_DATA::GetTextHeight(BOOL bHorz) {
    // Each layout of a frame asks for it dozens of times, and measuring takes a context of the screen.
    struct Measured {
        LOGFONTW font = {};
        int dpi = 0;
        int height = 0;
    };
    thread_local Measured latest[2];
    Measured& measured = latest[bHorz ? 0 : 1];
    const HFONT font = bHorz ? fontRegular : fontVert;
    LOGFONTW now = {};
    ::GetObjectW(font, sizeof now, &now);
    if (measured.dpi == m_nDpi && std::memcmp(&now, &measured.font, sizeof now) == 0) return measured.height;
    const ScreenDC screen;
    const HGDIOBJ former = ::SelectObject(screen, font);
    TEXTMETRICW metrics = {};
    ::GetTextMetricsW(screen, &metrics);
    ::SelectObject(screen, former);
    measured = {now, m_nDpi, static_cast<int>(metrics.tmHeight)};
    return measured.height;
}

HCURSOR AFX_GLOBAL_DATA::GetHandCursor() {
    if (m_hcurHand == nullptr) m_hcurHand = ::LoadCursorW(nullptr, IDC_HAND);
    return m_hcurHand;
}

BOOL AFX_GLOBAL_DATA::GetNonClientMetrics(NONCLIENTMETRICS& info) {
    info.cbSize = sizeof(info);
    return ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(info), &info, 0);
}

CString AFX_GLOBAL_DATA::RegisterWindowClass(LPCTSTR lpszClassNamePrefix) {
    WNDCLASSW description = {};
    description.style = CS_DBLCLKS;
    description.lpfnWndProc = ::DefWindowProcW;
    description.hInstance = AfxGetInstanceHandle();
    description.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
    CString name;
    name.Format(L"%s:%p:%p:%p", lpszClassNamePrefix, description.hInstance, description.hCursor,
                description.hbrBackground);
    description.lpszClassName = name;
    if (!AfxRegisterClass(&description)) AfxThrowResourceException();
    return name;
}

BOOL AFX_GLOBAL_DATA::DrawParentBackground(CWnd* pWnd, CDC* pDC, LPRECT lpRect) {
    const HWND parent = ::GetParent(pWnd->GetSafeHwnd());
    if (parent == nullptr) return FALSE;
    CRect area;
    if (lpRect != nullptr)
        area = *lpRect;
    else
        pWnd->GetClientRect(&area);
    POINT shift = {0, 0}, former = {};
    ::MapWindowPoints(pWnd->m_hWnd, parent, &shift, 1);
    const int saved = pDC->SaveDC();
    pDC->IntersectClipRect(&area);
    ::OffsetWindowOrgEx(*pDC, shift.x, shift.y, &former);
    const LRESULT erased = ::SendMessageW(parent, WM_ERASEBKGND, reinterpret_cast<WPARAM>(pDC->m_hDC), 0);
    pDC->RestoreDC(saved);
    return erased != 0;
}

AFX_GLOBAL_DATA* GetGlobalData() {
    // Never freed: windows still ask for fonts while modules are unloaded.
    static AFX_GLOBAL_DATA* const data = new AFX_GLOBAL_DATA;
    return data;
}
