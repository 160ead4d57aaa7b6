// Messages that a control sends to its parent and handles itself: who hears them, with what, and what the
// sender is answered.
#include <afxcmn.h>

#include <sstream>

#include "ui_test.h"

namespace {

std::ostringstream said;

std::string take() {
    std::string all = said.str();
    said.str("");
    return all;
}

/// Handles everything of its own; answers by numbers that tell the handlers apart.
class Mirror : public CWnd {
protected:
    afx_msg void HScroll(UINT code, UINT place) { said << "hscroll " << code << ' ' << place << ';'; }
    afx_msg void VScroll(UINT code, UINT place) { said << "vscroll " << code << ' ' << place << ';'; }
    afx_msg int CharToItem(UINT key, UINT index) { return said << "char " << key << ' ' << index << ';', 21; }
    afx_msg int VKeyToItem(UINT key, UINT index) { return said << "key " << key << ' ' << index << ';', 22; }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT item) { said << "draw " << item->itemID << ';'; }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT item) { said << "measure " << item->itemID << ';'; }
    afx_msg void DeleteItem(LPDELETEITEMSTRUCT item) { said << "delete " << item->itemID << ';'; }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT item) {
        return said << "compare " << item->itemID1 << ';', -1;
    }
    afx_msg void ParentNotify(UINT message, LPARAM) { said << "parent notify " << LOWORD(message) << ';'; }
    afx_msg void OnClicked() { said << "clicked;"; }
    afx_msg void OnNote(NMHDR* header, LRESULT* result) {
        said << "note " << static_cast<int>(header->code) << ';';
        *result = 23;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Mirror, CWnd)
    ON_WM_HSCROLL_REFLECT()
    ON_WM_VSCROLL_REFLECT()
    ON_WM_CHARTOITEM_REFLECT()
    ON_WM_VKEYTOITEM_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_DELETEITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_PARENTNOTIFY_REFLECT()
    ON_CONTROL_REFLECT(BN_CLICKED, &Mirror::OnClicked)
    ON_NOTIFY_REFLECT(NM_CLICK, &Mirror::OnNote)
END_MESSAGE_MAP()

/// Its parent, which handles nothing itself.
class Base : public CWnd {
public:
    using CWnd::OnCommand;
    bool defaulted = false;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        defaulted = true;
        return CWnd::DefWindowProc(message, wParam, lParam);
    }
};

struct ReflectedMessages : ::testing::Test {
    ReflectedMessages() {
        parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPED, CRect(0, 0, 200, 200), nullptr, 0);
        mirror.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 20, 20), &parent, 7);
        plain.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 20, 20), &parent, 8);
        take();
    }
    LRESULT tell(UINT message, WPARAM wParam, const void* data) {
        parent.defaulted = false;
        return parent.SendMessage(message, wParam, reinterpret_cast<LPARAM>(data));
    }
    /// The control that `data` names says what is expected, and one without handlers leaves it to the parent.
    template <typename Data>
    LRESULT goes_to_its_control(UINT message, Data data, const char* expected) {
        data.hwndItem = mirror;
        const LRESULT answer = tell(message, 7, &data);
        EXPECT_EQ(take(), expected);
        EXPECT_FALSE(parent.defaulted);
        data.hwndItem = plain;
        tell(message, 8, &data);
        EXPECT_TRUE(parent.defaulted);
        return answer;
    }

    Base parent;
    Mirror mirror;
    CWnd plain;
};

}  // namespace

TEST_F(ReflectedMessages, OfScrollBars) {
    tell(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 33), mirror.m_hWnd);
    EXPECT_EQ(take(), "hscroll 4 33;");
    EXPECT_FALSE(parent.defaulted);
    tell(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), mirror.m_hWnd);
    EXPECT_EQ(take(), "vscroll 1 0;");
    EXPECT_FALSE(parent.defaulted);
    tell(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), plain.m_hWnd);
    EXPECT_TRUE(parent.defaulted) << "a bar without handlers";
    tell(WM_HSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), nullptr);
    EXPECT_TRUE(parent.defaulted) << "the window's own bar";
    EXPECT_EQ(take(), "");
}

TEST_F(ReflectedMessages, OfLists) {
    EXPECT_EQ(tell(WM_CHARTOITEM, MAKEWPARAM(L'k', 3), mirror.m_hWnd), 21);
    EXPECT_EQ(take(), "char 107 3;");
    EXPECT_EQ(tell(WM_VKEYTOITEM, MAKEWPARAM(VK_DOWN, 4), mirror.m_hWnd), 22);
    EXPECT_EQ(take(), "key 40 4;");
    EXPECT_EQ(tell(WM_VKEYTOITEM, MAKEWPARAM(VK_DOWN, 4), plain.m_hWnd), -1) << "the system's own answer";
    EXPECT_TRUE(parent.defaulted);
    EXPECT_EQ(tell(WM_CHARTOITEM, MAKEWPARAM(L'k', 3), plain.m_hWnd), -1);
}

TEST_F(ReflectedMessages, OfOwnerDrawing) {
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_LISTBOX;
    draw.itemID = 5;
    goes_to_its_control(WM_DRAWITEM, draw, "draw 5;");
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_LISTBOX;
    measure.itemID = 6;
    measure.CtlID = 7;
    tell(WM_MEASUREITEM, 7, &measure);
    EXPECT_EQ(take(), "measure 6;");
    EXPECT_FALSE(parent.defaulted);
    measure.CtlID = 99;
    tell(WM_MEASUREITEM, 99, &measure);
    EXPECT_TRUE(parent.defaulted) << "there is no such control yet";
    DELETEITEMSTRUCT gone = {};
    gone.itemID = 8;
    goes_to_its_control(WM_DELETEITEM, gone, "delete 8;");
    COMPAREITEMSTRUCT pair = {};
    pair.itemID1 = 9;
    EXPECT_EQ(goes_to_its_control(WM_COMPAREITEM, pair, "compare 9;"), -1);
}

TEST_F(ReflectedMessages, OfNotices) {
    EXPECT_EQ(tell(WM_COMMAND, MAKEWPARAM(7, BN_CLICKED), mirror.m_hWnd), 1) << "it was handled";
    EXPECT_EQ(take(), "clicked;");
    EXPECT_FALSE(parent.defaulted);
    EXPECT_EQ(tell(WM_COMMAND, MAKEWPARAM(7, BN_PUSHED), mirror.m_hWnd), 0);
    EXPECT_TRUE(parent.defaulted) << "another code";
    EXPECT_EQ(tell(WM_COMMAND, MAKEWPARAM(0, BN_PUSHED), mirror.m_hWnd), 0) << "nobody's id";
    NMHDR note = {mirror.m_hWnd, 7, static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(tell(WM_NOTIFY, 7, &note), 23);
    EXPECT_EQ(take(), "note -2;");
    note.code = static_cast<UINT>(NM_DBLCLK);
    EXPECT_EQ(tell(WM_NOTIFY, 7, &note), 0);
    EXPECT_TRUE(parent.defaulted);
    note = {nullptr, 7, static_cast<UINT>(NM_CLICK)};
    tell(WM_NOTIFY, 7, &note);
    EXPECT_TRUE(parent.defaulted) << "from no window";
    EXPECT_EQ(take(), "");
}

TEST_F(ReflectedMessages, OfChildrenThatComeAndGo) {
    tell(WM_PARENTNOTIFY, MAKEWPARAM(WM_CREATE, 7), mirror.m_hWnd);
    EXPECT_EQ(take(), "parent notify 1;");
    EXPECT_FALSE(parent.defaulted);
    tell(WM_PARENTNOTIFY, MAKEWPARAM(WM_DESTROY, 7), mirror.m_hWnd);
    EXPECT_EQ(take(), "parent notify 2;");
    tell(WM_PARENTNOTIFY, MAKEWPARAM(WM_DESTROY, 8), plain.m_hWnd);
    EXPECT_TRUE(parent.defaulted);
    tell(WM_PARENTNOTIFY, WM_LBUTTONDOWN, mirror.m_hWnd);
    EXPECT_TRUE(parent.defaulted) << "a click carries a point, no window";
    EXPECT_EQ(take(), "");
}
