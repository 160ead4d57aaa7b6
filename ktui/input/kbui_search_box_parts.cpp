#include <ktui/input/kbui_search_box_parts.h>

#include <ktui/controls/scaled_picture.h>
#include <ktui/host/loaded_module.h>
#include <ktui/host/resource_scope.h>

IMPLEMENT_DYNAMIC(CKbUiSearchBoxEditor, CKbUiEdit)
IMPLEMENT_DYNAMIC(CKbUiSearchBoxSearchButton, CBitmapButton)
IMPLEMENT_DYNAMIC(CKbUiSearchBoxClearButton, CBitmapButton)

BEGIN_MESSAGE_MAP(CKbUiSearchBoxSearchButton, CBitmapButton)
    ON_WM_CREATE()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CKbUiSearchBoxClearButton, CBitmapButton)
    ON_WM_CREATE()
END_MESSAGE_MAP()

namespace {

/// Loads the library's own picture `name`, or that of the resource library.
void LoadPicture(CBitmapButton& button, const wchar_t* name) {
    const ToolkitModule& toolkit = LoadedToolkit();
    const HINSTANCE module = toolkit.ownModule.hModule ? toolkit.ownModule.hModule : toolkit.resourceLibrary;
    const ResourceScope scope(module);
    button.LoadBitmaps(ScaledPictureName(button.m_hWnd, module, name));
}

/// A picture of one bit takes its two colours from the device context that it is copied to.
void PaintPicture(const DRAWITEMSTRUCT& item, CBitmap& picture) {
    CDC* dc = CDC::FromHandle(item.hDC);
    const COLORREF paper = ::GetSysColor(COLOR_WINDOW);
    const CRect area(item.rcItem);
    dc->FillSolidRect(area, paper);
    BITMAP size = {};
    CDC memory;
    if (!picture.GetSafeHandle() || !picture.GetBitmap(&size) || !memory.CreateCompatibleDC(dc)) return;
    CBitmap* former = memory.SelectObject(&picture);
    const COLORREF formerPaper = dc->SetBkColor(paper);
    const COLORREF formerInk = dc->SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    const int width = static_cast<int>(size.bmWidth), height = static_cast<int>(size.bmHeight);
    dc->BitBlt(area.left + (area.Width() - width) / 2, area.top + (area.Height() - height) / 2, width, height,
               &memory, 0, 0, SRCCOPY);
    dc->SetTextColor(formerInk);
    dc->SetBkColor(formerPaper);
    memory.SelectObject(former);
}

}  // namespace

int CKbUiSearchBoxSearchButton::OnCreate(LPCREATESTRUCT create) {
    LoadPicture(*this, L"IDB_SEARCHBOX_SEARCH");
    return CBitmapButton::OnCreate(create);
}

void CKbUiSearchBoxSearchButton::DrawItem(LPDRAWITEMSTRUCT item) { PaintPicture(*item, m_bitmap); }

int CKbUiSearchBoxClearButton::OnCreate(LPCREATESTRUCT create) {
    LoadPicture(*this, L"IDB_SEARCHBOX_CLEAR");
    return CBitmapButton::OnCreate(create);
}

void CKbUiSearchBoxClearButton::DrawItem(LPDRAWITEMSTRUCT item) { PaintPicture(*item, m_bitmap); }
