// A program that knows nothing but the installed headers of the class layer, for compilers and flags of the
// client's own choice. It passes null where the documentation allows it, and uses what is inline in the
// headers.
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxext.h>
#include <afxtempl.h>
#include <afxwin.h>

#include <cstdio>

namespace {

int failures = 0;

void check(bool holds, const char* what) {
    if (holds) return;
    ++failures;
    std::printf("   failed: %s\n", what);
}
#define CHECK(condition) check(condition, #condition)

class Application : public CWinApp {};
Application application;

/// Null, which the compiler must not know to be.
template <class T>
T* null() {
    static T* volatile pointer = nullptr;
    return pointer;
}

class Window : public CWnd {
public:
    explicit Window(DWORD style, CWnd* parent = nullptr) {
        CreateEx(0, AfxRegisterWndClass(0), L"client", style, CRect(10, 20, 110, 70), parent, 0);
    }
};

void use_windows() {
    Window parent(WS_POPUP), child(WS_CHILD, &parent);
    CHECK(parent.m_hWnd != nullptr && child.m_hWnd != nullptr);
    CHECK(parent.SetWindowPos(null<CWnd>(), 30, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE));
    CRect place;
    parent.GetWindowRect(&place);
    CHECK(place.TopLeft() == CPoint(30, 40));
    CPoint point(1, 2);
    parent.MapWindowPoints(null<CWnd>(), &point, 1);
    CHECK(point == CPoint(31, 42));
    CRect area(1, 2, 3, 4);
    parent.MapWindowPoints(null<CWnd>(), &area);
    CHECK(area.TopLeft() == CPoint(31, 42));
    CHECK(!parent.IsChild(null<CWnd>()));
    CHECK(parent.IsChild(&child));
    child.SetOwner(&parent);
    CHECK(child.GetOwner() == &parent);
    parent.SetOwner(null<CWnd>());
    CHECK(parent.GetOwner() == nullptr);
    CHECK(child.SetParent(null<CWnd>()) == &parent);
    CHECK(!parent.IsChild(&child));
    parent.SetFont(null<CFont>());
    CHECK(parent.GetFont() == nullptr);
    CHECK(parent.SetMenu(null<CMenu>()));
    CHECK(parent.RedrawWindow(nullptr, null<CRgn>()));
    CHECK(parent.GetNextDlgTabItem(null<CWnd>()) == nullptr);
    parent.CenterWindow(null<CWnd>());
}

void use_null_objects() {
    CHECK(null<CWnd>()->GetSafeHwnd() == nullptr);
    CHECK(null<CDC>()->GetSafeHdc() == nullptr);
    CHECK(null<CFont>()->GetSafeHandle() == nullptr);
    CHECK(null<CMenu>()->GetSafeHmenu() == nullptr);
    CHECK(null<CImageList>()->GetSafeHandle() == nullptr);
    CImageList images;
    CHECK(images.Create(16, 16, ILC_COLOR, 1, 1));
    CHECK(!images.Draw(null<CDC>(), 0, CPoint(0, 0), ILD_NORMAL));
    CDC memory;
    CHECK(memory.CreateCompatibleDC(null<CDC>()));
    CClientDC screen(null<CWnd>());
    CHECK(screen.GetSafeHdc() != nullptr);
}

void use_strings() {
    CString text(L"abc"), longer = text + L'd';
    CHECK(!text.IsEmpty() && longer.GetLength() == 4 && longer[3] == L'd');
    CHECK(text < longer && text != longer && wcscmp(longer, L"abcd") == 0);
    CHECK(longer.GetAllocLength() >= 4 && CSimpleString(longer).GetString()[1] == L'b');
    text.Format(L"%s %d", longer.GetString(), 7);
    CHECK(text == L"abcd 7" && text == "abcd 7");
    CStringA narrow("x");
    narrow = "y" + narrow;
    CHECK(narrow.GetLength() == 2 && narrow == "yx");
    CArray<CString, const CString&> array;
    array.Add(text);
    CMap<CString, LPCTSTR, int, int> map;
    map[L"key"] = 5;
    CHECK(array[0] == text && map.GetCount() == 1);
}

}  // namespace

int main() {
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_HIDE)) return 99;
    use_windows();
    use_null_objects();
    use_strings();
    AfxWinTerm();
    return failures;
}
