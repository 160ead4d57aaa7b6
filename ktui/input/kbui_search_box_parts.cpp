#include <ktui/input/kbui_search_box_parts.h>

#include <ktdsres/resource_ids.h>
#include <ktui/controls/scaled_picture.h>
#include <ktui/host/accessible.h>
#include <ktui/host/loaded_module.h>
#include <ktui/host/registered_messages.h>
#include <ktui/host/resource_scope.h>
#include <ktui/host/string_resources.h>

IMPLEMENT_DYNAMIC(CKbUiSearchBoxEditor, CKbUiEdit)
IMPLEMENT_DYNAMIC(CKbUiSearchBoxSearchButton, CBitmapButton)
IMPLEMENT_DYNAMIC(CKbUiSearchBoxClearButton, CBitmapButton)

BEGIN_MESSAGE_MAP(CKbUiSearchBoxEditor, CKbUiEdit)
    ON_MESSAGE(WM_GETOBJECT, &CKbUiSearchBoxEditor::OnGetObject)
    ON_REGISTERED_MESSAGE(accessibleMessage, &CKbUiSearchBoxEditor::OnAccessible)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CKbUiSearchBoxSearchButton, CBitmapButton)
    ON_WM_CREATE()
    ON_MESSAGE(WM_GETOBJECT, &CKbUiSearchBoxSearchButton::OnGetObject)
    ON_REGISTERED_MESSAGE(accessibleMessage, &CKbUiSearchBoxSearchButton::OnAccessible)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CKbUiSearchBoxClearButton, CBitmapButton)
    ON_WM_CREATE()
    ON_MESSAGE(WM_GETOBJECT, &CKbUiSearchBoxClearButton::OnGetObject)
    ON_REGISTERED_MESSAGE(accessibleMessage, &CKbUiSearchBoxClearButton::OnAccessible)
END_MESSAGE_MAP()

namespace {

/// Answers for a button that shows a picture and has no caption to be named by.
LRESULT TellOfButton(CButton& button, const CString& name, WPARAM wParam, LPARAM lParam) {
    if (static_cast<KbUiAccessibleRequest>(wParam) == KbUiAccessibleRequest::kAct)
        return button.PostMessage(BM_CLICK);
    auto& item = *reinterpret_cast<KbUiAccessibleItem*>(lParam);
    item.name = name;
    item.role = ROLE_SYSTEM_PUSHBUTTON;
    item.defaultAction = LoadToolkitString(IDS_ACTION_PRESS, L"按下");
    if (button.GetState() & BST_PUSHED) item.states |= STATE_SYSTEM_PRESSED;
    return 1;
}

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

LRESULT CKbUiSearchBoxEditor::OnGetObject(WPARAM wParam, LPARAM lParam) {
    const LRESULT answer = AnswerGetObject(*this, wParam, lParam);
    return answer ? answer : Default();
}

LRESULT CKbUiSearchBoxEditor::OnAccessible(WPARAM wParam, LPARAM lParam) {
    CWnd* box = GetParent();
    return box ? box->SendMessage(accessibleMessage, wParam, lParam) : 0;
}

LRESULT CKbUiSearchBoxSearchButton::OnGetObject(WPARAM wParam, LPARAM lParam) {
    const LRESULT answer = AnswerGetObject(*this, wParam, lParam);
    return answer ? answer : Default();
}

LRESULT CKbUiSearchBoxSearchButton::OnAccessible(WPARAM wParam, LPARAM lParam) {
    return TellOfButton(*this, LoadToolkitString(IDS_SEARCH_BUTTON, L"查找"), wParam, lParam);
}

LRESULT CKbUiSearchBoxClearButton::OnGetObject(WPARAM wParam, LPARAM lParam) {
    const LRESULT answer = AnswerGetObject(*this, wParam, lParam);
    return answer ? answer : Default();
}

LRESULT CKbUiSearchBoxClearButton::OnAccessible(WPARAM wParam, LPARAM lParam) {
    return TellOfButton(*this, LoadToolkitString(IDS_CLEAR_BUTTON, L"清除"), wParam, lParam);
}
