// What list views and trees are told by each function of their classes, and what comes back.
#include "message_listener.h"
#include "ui_test.h"

namespace {

using ui_test::HeardMessage;

struct ToldList : ui_test::ToldControl<CListCtrl> {
    /// The item that the last message carried.
    void keep_item() {
        listener.look = [this](const HeardMessage& heard) {
            item = *reinterpret_cast<LVITEMW*>(heard.lParam);
        };
    }
    LVITEMW item = {};
};

struct ToldTree : ui_test::ToldControl<CTreeCtrl> {
    void keep_item() {
        listener.look = [this](const HeardMessage& heard) {
            item = *reinterpret_cast<TVITEMW*>(heard.lParam);
        };
    }
    TVITEMW item = {};
    const HTREEITEM some = reinterpret_cast<HTREEITEM>(UINT_PTR{0x77});
    const LPARAM l_some = 0x77;
};

/// Tips, the edit of a label and image lists come back as the objects that stand for them. `edit` is what
/// editing `item` sends, `set` what a list for states does, but for its handle.
template <class Told, class Item>
void gives_the_objects_of_handles(Told& told, Item item, const HeardMessage& edit, UINT getEdit, int normal,
                                  const HeardMessage& set) {
    const auto last = [&told] { return told.listener.take().back(); };
    ui_test::ParentWindow parent;
    CToolTipCtrl tip;
    tip.Create(&parent);
    told.listener.answer = reinterpret_cast<LRESULT>(tip.m_hWnd);
    EXPECT_EQ(told.control.GetToolTips(), &tip);
    EXPECT_EQ(told.control.SetToolTips(&tip), &tip);
    EXPECT_EQ(last().wParam, reinterpret_cast<WPARAM>(tip.m_hWnd));
    EXPECT_EQ(static_cast<CWnd*>(told.control.EditLabel(item)), &tip);
    HeardMessage heard = last();
    EXPECT_EQ(heard.message, edit.message);
    EXPECT_EQ(heard.wParam, edit.wParam);
    EXPECT_EQ(heard.lParam, edit.lParam);
    EXPECT_EQ(static_cast<CWnd*>(told.control.GetEditControl()), &tip);
    EXPECT_EQ(last().message, getEdit);
    CImageList images;
    images.Create(4, 4, ILC_COLOR, 1, 1);
    told.listener.answer = reinterpret_cast<LRESULT>(images.m_hImageList);
    EXPECT_EQ(told.control.GetImageList(static_cast<UINT>(normal)), &images);
    EXPECT_EQ(last().wParam, static_cast<WPARAM>(normal));
    EXPECT_EQ(told.control.SetImageList(&images, static_cast<int>(set.wParam)), &images);
    heard = last();
    EXPECT_EQ(heard.message, set.message);
    EXPECT_EQ(heard.wParam, set.wParam);
    EXPECT_EQ(heard.lParam, told.listener.answer);
}

int CALLBACK compare(LPARAM, LPARAM, LPARAM) { return 0; }
const LPARAM kCompare = reinterpret_cast<LPARAM>(&compare);

}  // namespace

TEST_F(ToldList, OfLooks) {
    TELLS(control.GetBkColor(), LVM_GETBKCOLOR);
    TELLS(control.SetBkColor(RGB(1, 2, 3)), LVM_SETBKCOLOR, 0, RGB(1, 2, 3));
    TELLS(control.GetTextColor(), LVM_GETTEXTCOLOR);
    TELLS(control.SetTextColor(RGB(1, 2, 3)), LVM_SETTEXTCOLOR, 0, RGB(1, 2, 3));
    TELLS(control.GetTextBkColor(), LVM_GETTEXTBKCOLOR);
    TELLS(control.SetTextBkColor(RGB(1, 2, 3)), LVM_SETTEXTBKCOLOR, 0, RGB(1, 2, 3));
    TELLS(control.GetExtendedStyle(), LVM_GETEXTENDEDLISTVIEWSTYLE);
    TELLS(control.SetExtendedStyle(0x25), LVM_SETEXTENDEDLISTVIEWSTYLE, 0, 0x25);
    TELLS(control.GetView(), LVM_GETVIEW);
    TELLS(control.SetView(LV_VIEW_TILE), LVM_SETVIEW, LV_VIEW_TILE);
    TELLS(control.GetCallbackMask(), LVM_GETCALLBACKMASK);
    TELLS(control.SetCallbackMask(LVIS_CUT), LVM_SETCALLBACKMASK, LVIS_CUT);
    TELLS(control.SetIconSpacing(70, 80), LVM_SETICONSPACING, 0, MAKELPARAM(70, 80));
    TELLS(control.SetIconSpacing(CSize(71, 81)), LVM_SETICONSPACING, 0, MAKELPARAM(71, 81));
    TELLS(control.ApproximateViewRect(CSize(40, 50), 6), LVM_APPROXIMATEVIEWRECT, 6, MAKELPARAM(40, 50));
    TELLS(control.ApproximateViewRect(), LVM_APPROXIMATEVIEWRECT, number(-1), MAKELPARAM(-1, -1));
    LVBKIMAGEW image = {};
    TELLS(control.GetBkImage(&image), LVM_GETBKIMAGEW, 0, at(image));
    TELLS(control.SetBkImage(&image), LVM_SETBKIMAGEW, 0, at(image));
}

TEST_F(ToldList, OfItems) {
    LVITEMW given = {};
    const LVITEMW fixed = {};
    LVFINDINFOW find = {};
    LVHITTESTINFO hit = {};
    TELLS(control.GetItemCount(), LVM_GETITEMCOUNT);
    TELLS(control.SetItemCount(7), LVM_SETITEMCOUNT, 7);
    TELLS(control.SetItemCountEx(7, LVSICF_NOSCROLL), LVM_SETITEMCOUNT, 7, LVSICF_NOSCROLL);
    TELLS(control.SetItemCountEx(7), LVM_SETITEMCOUNT, 7, LVSICF_NOINVALIDATEALL);
    TELLS(control.GetItem(&given), LVM_GETITEMW, 0, at(given));
    TELLS(control.SetItem(&fixed), LVM_SETITEMW, 0, at(fixed));
    TELLS(control.InsertItem(&fixed), LVM_INSERTITEMW, 0, at(fixed));
    TELLS(control.DeleteItem(4), LVM_DELETEITEM, 4);
    TELLS(control.DeleteAllItems(), LVM_DELETEALLITEMS);
    TELLS(control.GetNextItem(-1, LVNI_FOCUSED), LVM_GETNEXTITEM, number(-1), LVNI_FOCUSED);
    TELLS(control.FindItem(&find, 3), LVM_FINDITEMW, 3, at(find));
    TELLS(control.FindItem(&find), LVM_FINDITEMW, number(-1), at(find));
    TELLS(control.SortItems(&compare, 9), LVM_SORTITEMS, 9, kCompare);
    TELLS(control.SortItemsEx(&compare, 9), LVM_SORTITEMSEX, 9, kCompare);
    TELLS(control.GetItemState(5, LVIS_SELECTED), LVM_GETITEMSTATE, 5, LVIS_SELECTED);
    TELLS(control.SetItemState(5, &given), LVM_SETITEMSTATE, 5, at(given));
    TELLS(control.HitTest(&hit), LVM_HITTEST, 0, at(hit));
    TELLS(control.SubItemHitTest(&hit), LVM_SUBITEMHITTEST, 0, at(hit));
    TELLS(control.EnsureVisible(6, TRUE), LVM_ENSUREVISIBLE, 6, TRUE);
    TELLS(control.Scroll(CSize(-20, 30)), LVM_SCROLL, number(-20), 30);
    TELLS(control.RedrawItems(2, 9), LVM_REDRAWITEMS, 2, 9);
    TELLS(control.Update(8), LVM_UPDATE, 8);
    TELLS(control.Arrange(LVA_SNAPTOGRID), LVM_ARRANGE, LVA_SNAPTOGRID);
    TELLS(control.GetTopIndex(), LVM_GETTOPINDEX);
    TELLS(control.GetCountPerPage(), LVM_GETCOUNTPERPAGE);
    TELLS(control.GetStringWidth(L"wide"), LVM_GETSTRINGWIDTHW, 0, at(L"wide"));
    TELLS(control.GetSelectedCount(), LVM_GETSELECTEDCOUNT);
    TELLS(control.GetSelectionMark(), LVM_GETSELECTIONMARK);
    TELLS(control.SetSelectionMark(3), LVM_SETSELECTIONMARK, 0, 3);
    TELLS(control.GetHotItem(), LVM_GETHOTITEM);
    TELLS(control.SetHotItem(3), LVM_SETHOTITEM, 3);
    TELLS(control.CancelEditLabel(), LVM_CANCELEDITLABEL);
}

TEST_F(ToldList, OfPlaces) {
    CPoint point(3, 4);
    CRect rect;
    TELLS(control.GetItemPosition(5, &point), LVM_GETITEMPOSITION, 5, at(point));
    CPoint carried;
    listener.look = [&](const HeardMessage& heard) { carried = *reinterpret_cast<POINT*>(heard.lParam); };
    EXPECT_NE(control.SetItemPosition(6, CPoint(30, 40)), 0);
    EXPECT_EQ(carried, CPoint(30, 40));
    const auto heard = listener.take();
    EXPECT_EQ(heard.back().message, static_cast<UINT>(LVM_SETITEMPOSITION32));
    EXPECT_EQ(heard.back().wParam, 6U);
    listener.look = nullptr;
    TELLS(control.GetOrigin(&point), LVM_GETORIGIN, 0, at(point));
    TELLS(control.GetViewRect(&rect), LVM_GETVIEWRECT, 0, at(rect));
    TELLS(control.GetItemRect(5, &rect, LVIR_LABEL), LVM_GETITEMRECT, 5, at(rect));
    EXPECT_EQ(rect.left, LVIR_LABEL) << "the part that is asked for";
    RECT asked = {};
    listener.look = [&](const HeardMessage& message) {
        auto& place = *reinterpret_cast<RECT*>(message.lParam);
        asked = place;
        place = CRect(1, 2, 3, 4);
    };
    EXPECT_TRUE(control.GetSubItemRect(7, 2, LVIR_ICON, rect));
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    EXPECT_EQ(asked.left, LVIR_ICON);
    EXPECT_EQ(asked.top, 2);
    EXPECT_EQ(listener.take().back().wParam, 7U);
    listener.answer = 0;
    rect = CRect(9, 9, 9, 9);
    EXPECT_FALSE(control.GetSubItemRect(7, 2, LVIR_ICON, rect));
    EXPECT_EQ(rect, CRect(9, 9, 9, 9)) << "as it was";
}

TEST_F(ToldList, OfAPointThatIsHit) {
    CPoint asked;
    listener.look = [&](const HeardMessage& heard) {
        auto& info = *reinterpret_cast<LVHITTESTINFO*>(heard.lParam);
        asked = info.pt;
        info.flags = LVHT_ONITEMLABEL;
    };
    listener.answer = 12;
    UINT flags = 0;
    EXPECT_EQ(control.HitTest(CPoint(33, 44), &flags), 12);
    EXPECT_EQ(asked, CPoint(33, 44));
    EXPECT_EQ(flags, static_cast<UINT>(LVHT_ONITEMLABEL));
    EXPECT_EQ(control.HitTest(CPoint(1, 2)), 12);
}

TEST_F(ToldList, OfWholeItems) {
    keep_item();
    EXPECT_NE(control.SetItem(3, 2, LVIF_IMAGE, L"text", 5, 6, 7, 8, 9), 0);
    EXPECT_EQ(item.iItem, 3);
    EXPECT_EQ(item.iSubItem, 2);
    EXPECT_EQ(item.mask, static_cast<UINT>(LVIF_IMAGE));
    EXPECT_STREQ(item.pszText, L"text");
    EXPECT_EQ(item.iImage, 5);
    EXPECT_EQ(item.state, 6U);
    EXPECT_EQ(item.stateMask, 7U);
    EXPECT_EQ(item.lParam, 8);
    EXPECT_EQ(item.iIndent, 9);
    EXPECT_NE(control.SetItem(4, 1, LVIF_TEXT, L"other", 15, 16, 17, 18), 0);
    EXPECT_EQ(item.iItem, 4);
    EXPECT_EQ(item.stateMask, 17U);
    EXPECT_EQ(item.iIndent, 0);
    EXPECT_EQ(listener.take().back().message, static_cast<UINT>(LVM_SETITEMW));
    EXPECT_NE(control.InsertItem(LVIF_STATE, 2, L"new", 21, 22, 23, 24), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(LVIF_STATE));
    EXPECT_EQ(item.iItem, 2);
    EXPECT_EQ(item.iSubItem, 0);
    EXPECT_EQ(item.state, 21U);
    EXPECT_EQ(item.stateMask, 22U);
    EXPECT_EQ(item.iImage, 23);
    EXPECT_EQ(item.lParam, 24);
    EXPECT_NE(control.InsertItem(6, L"plain"), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(LVIF_TEXT));
    EXPECT_EQ(item.iItem, 6);
    EXPECT_STREQ(item.pszText, L"plain");
    EXPECT_NE(control.InsertItem(7, L"pictured", 4), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(LVIF_TEXT | LVIF_IMAGE));
    EXPECT_EQ(item.iImage, 4);
    EXPECT_EQ(listener.take().back().message, static_cast<UINT>(LVM_INSERTITEMW));
}

TEST_F(ToldList, OfPartsOfItems) {
    keep_item();
    EXPECT_NE(control.SetItemText(3, 2, L"text"), 0);
    EXPECT_EQ(item.iSubItem, 2);
    EXPECT_STREQ(item.pszText, L"text");
    auto heard = listener.take().back();
    EXPECT_EQ(heard.message, static_cast<UINT>(LVM_SETITEMTEXTW));
    EXPECT_EQ(heard.wParam, 3U);
    EXPECT_NE(control.SetItemData(4, 4711), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(LVIF_PARAM));
    EXPECT_EQ(item.iItem, 4);
    EXPECT_EQ(item.lParam, 4711);
    EXPECT_NE(control.SetItemState(5, LVIS_CUT, LVIS_CUT | LVIS_FOCUSED), 0);
    EXPECT_EQ(item.state, static_cast<UINT>(LVIS_CUT));
    EXPECT_EQ(item.stateMask, static_cast<UINT>(LVIS_CUT | LVIS_FOCUSED));
    heard = listener.take().back();
    EXPECT_EQ(heard.message, static_cast<UINT>(LVM_SETITEMSTATE));
    EXPECT_EQ(heard.wParam, 5U);
    EXPECT_NE(control.SetCheck(6), 0);
    EXPECT_EQ(item.state, 0x2000U);
    EXPECT_EQ(item.stateMask, static_cast<UINT>(LVIS_STATEIMAGEMASK));
    EXPECT_NE(control.SetCheck(6, FALSE), 0);
    EXPECT_EQ(item.state, 0x1000U);
    listener.look = nullptr;
    listener.answer = 0x2000;
    EXPECT_TRUE(control.GetCheck(8));
    heard = listener.take().back();
    EXPECT_EQ(heard.wParam, 8U);
    EXPECT_EQ(heard.lParam, LVIS_STATEIMAGEMASK);
    listener.answer = 0x1000;
    EXPECT_FALSE(control.GetCheck(8));
    listener.look = [](const HeardMessage& message) {
        reinterpret_cast<LVITEMW*>(message.lParam)->lParam = 99;
    };
    EXPECT_EQ(control.GetItemData(9), 99U);
}

TEST_F(ToldList, TextsOfAnyLengthAreRead) {
    CString said(L'x', 300);
    listener.look = [&](const HeardMessage& heard) {
        item = *reinterpret_cast<LVITEMW*>(heard.lParam);
        ::lstrcpynW(item.pszText, said, item.cchTextMax);
        listener.answer = static_cast<LRESULT>(std::wcslen(item.pszText));
    };
    EXPECT_EQ(control.GetItemText(3, 2), said);
    EXPECT_EQ(item.iSubItem, 2);
    EXPECT_EQ(listener.take().size(), 3U) << "room for 128, 256 and 512 characters";
    said = CString(L'y', 127);
    EXPECT_EQ(control.GetItemText(3, 2), said);
    EXPECT_EQ(listener.take().size(), 2U) << "it might have been longer";
    said = CString(L'z', 126);
    EXPECT_EQ(control.GetItemText(3, 2), said);
    EXPECT_EQ(listener.take().size(), 1U);
    wchar_t few[4] = L"abc";
    EXPECT_EQ(control.GetItemText(3, 2, few, 4), 3);
    EXPECT_STREQ(few, L"zzz");
    listener.look = [&](const HeardMessage& heard) {
        reinterpret_cast<LVITEMW*>(heard.lParam)->pszText = const_cast<LPWSTR>(L"its own");
    };
    EXPECT_EQ(control.GetItemText(3, 2, few, 4), 3);
    EXPECT_STREQ(few, L"its") << "the text of the list itself";
    listener.look = nullptr;
    control.GetItemText(3, 2, few, 4);
    EXPECT_STREQ(few, L"") << "nothing was written";
    few[0] = L'q';
    control.GetItemText(3, 2, few, 0);
    EXPECT_EQ(few[0], L'q') << "no room, nothing touched";
}

TEST_F(ToldList, OfColumns) {
    LVCOLUMNW given = {};
    const LVCOLUMNW fixed = {};
    INT order[] = {1, 0};
    TELLS(control.GetColumn(2, &given), LVM_GETCOLUMNW, 2, at(given));
    TELLS(control.SetColumn(2, &fixed), LVM_SETCOLUMNW, 2, at(fixed));
    TELLS(control.InsertColumn(2, &fixed), LVM_INSERTCOLUMNW, 2, at(fixed));
    TELLS(control.DeleteColumn(2), LVM_DELETECOLUMN, 2);
    TELLS(control.GetColumnWidth(2), LVM_GETCOLUMNWIDTH, 2);
    TELLS(control.SetColumnWidth(2, 77), LVM_SETCOLUMNWIDTH, 2, 77);
    TELLS(control.GetColumnOrderArray(order, 2), LVM_GETCOLUMNORDERARRAY, 2, at(order[0]));
    TELLS(control.SetColumnOrderArray(2, order), LVM_SETCOLUMNORDERARRAY, 2, at(order[0]));
    LVCOLUMNW column = {};
    listener.look = [&](const HeardMessage& heard) { column = *reinterpret_cast<LVCOLUMNW*>(heard.lParam); };
    control.InsertColumn(3, L"heading");
    EXPECT_EQ(column.mask, static_cast<UINT>(LVCF_TEXT | LVCF_FMT));
    EXPECT_STREQ(column.pszText, L"heading");
    EXPECT_EQ(column.fmt, LVCFMT_LEFT);
    EXPECT_NE(control.InsertColumn(3, L"heading", LVCFMT_RIGHT, 0, 0), 0);
    EXPECT_EQ(column.mask, static_cast<UINT>(LVCF_TEXT | LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM));
    EXPECT_EQ(column.fmt, LVCFMT_RIGHT);
    control.InsertColumn(3, L"heading", LVCFMT_RIGHT, 60, 4);
    EXPECT_EQ(column.cx, 60);
    EXPECT_EQ(column.iSubItem, 4);
    EXPECT_EQ(listener.take().back().wParam, 3U);
}

TEST_F(ToldList, TheOrderOfAllColumnsNeedsAHeader) {
    INT order[3] = {};
    listener.answer = 0;
    EXPECT_FALSE(control.GetColumnOrderArray(order));
    ui_test::ParentWindow parent;
    CHeaderCtrl header;
    header.Create(WS_CHILD, CRect(0, 0, 50, 20), &parent, 5);
    HDITEMW entry = {};
    entry.mask = HDI_WIDTH;
    for (int i = 0; i < 3; ++i) header.InsertItem(i, &entry);
    listener.answer = reinterpret_cast<LRESULT>(header.m_hWnd);
    EXPECT_EQ(control.GetHeaderCtrl(), &header);
    EXPECT_TRUE(control.GetColumnOrderArray(order));
    EXPECT_EQ(listener.take().back().wParam, 3U) << "as many as the header has";
}

TEST_F(ToldList, OfWindowsAndImageLists) {
    gives_the_objects_of_handles(*this, 3, {LVM_EDITLABELW, 3, 0}, LVM_GETEDITCONTROL, LVSIL_SMALL,
                                 {LVM_SETIMAGELIST, LVSIL_STATE, 0});
    control.SetToolTips(nullptr);
    EXPECT_EQ(listener.take().back().wParam, 0U);
    control.SetImageList(nullptr, LVSIL_STATE);
    EXPECT_EQ(listener.take().back().lParam, 0);
    CImageList images;
    images.Create(4, 4, ILC_COLOR, 1, 1);
    CPoint corner;
    listener.answer = reinterpret_cast<LRESULT>(::ImageList_Duplicate(images));
    CImageList* const dragged = control.CreateDragImage(6, &corner);
    ASSERT_NE(dragged, nullptr);
    const HeardMessage heard = listener.take().back();
    EXPECT_EQ(heard.message, static_cast<UINT>(LVM_CREATEDRAGIMAGE));
    EXPECT_EQ(heard.wParam, 6U);
    EXPECT_EQ(heard.lParam, at(corner));
    delete dragged;
    listener.answer = 0;
    EXPECT_EQ(control.CreateDragImage(6, &corner), nullptr);
}

TEST_F(ToldList, OfGroups) {
    LVGROUP group = {};
    TELLS(control.EnableGroupView(TRUE), LVM_ENABLEGROUPVIEW, TRUE);
    TELLS(control.IsGroupViewEnabled(), LVM_ISGROUPVIEWENABLED);
    TELLS(control.InsertGroup(2, &group), LVM_INSERTGROUP, 2, at(group));
    TELLS(control.SetGroupInfo(3, &group), LVM_SETGROUPINFO, 3, at(group));
    TELLS(control.GetGroupInfo(3, &group), LVM_GETGROUPINFO, 3, at(group));
    TELLS(control.RemoveGroup(3), LVM_REMOVEGROUP, 3);
    TELLS(control.RemoveAllGroups(), LVM_REMOVEALLGROUPS);
    TELLS(control.HasGroup(3), LVM_HASGROUP, 3);
}

TEST_F(ToldList, AWalkOverTheSelectedItems) {
    std::vector<WPARAM> asked;
    listener.look = [&](const HeardMessage& heard) {
        asked.push_back(heard.wParam);
        EXPECT_EQ(heard.lParam, LVNI_SELECTED);
        listener.answer = heard.wParam == number(-1) ? 0 : heard.wParam == 0 ? 4 : -1;
    };
    POSITION at_item = control.GetFirstSelectedItemPosition();
    ASSERT_NE(at_item, nullptr) << "the first item, too";
    EXPECT_EQ(control.GetNextSelectedItem(at_item), 0);
    EXPECT_EQ(control.GetNextSelectedItem(at_item), 4);
    EXPECT_EQ(at_item, nullptr);
    EXPECT_EQ(asked, (std::vector<WPARAM>{number(-1), 0, 4}));
}

TEST_F(ToldTree, OfLooks) {
    TELLS(control.GetIndent(), TVM_GETINDENT);
    TELLS(control.SetIndent(9), TVM_SETINDENT, 9);
    TELLS(control.GetBkColor(), TVM_GETBKCOLOR);
    TELLS(control.SetBkColor(RGB(1, 2, 3)), TVM_SETBKCOLOR, 0, RGB(1, 2, 3));
    TELLS(control.GetTextColor(), TVM_GETTEXTCOLOR);
    TELLS(control.SetTextColor(RGB(1, 2, 3)), TVM_SETTEXTCOLOR, 0, RGB(1, 2, 3));
    TELLS(control.GetInsertMarkColor(), TVM_GETINSERTMARKCOLOR);
    TELLS(control.SetInsertMarkColor(RGB(1, 2, 3)), TVM_SETINSERTMARKCOLOR, 0, RGB(1, 2, 3));
    TELLS(control.SetInsertMark(some, FALSE), TVM_SETINSERTMARK, FALSE, l_some);
    TELLS(control.SetInsertMark(some), TVM_SETINSERTMARK, TRUE, l_some);
    TELLS(control.GetItemHeight(), TVM_GETITEMHEIGHT);
    TELLS(control.SetItemHeight(30), TVM_SETITEMHEIGHT, 30);
}

TEST_F(ToldTree, OfAWalk) {
    TELLS(control.GetCount(), TVM_GETCOUNT);
    TELLS(control.GetNextItem(some, TVGN_PARENT), TVM_GETNEXTITEM, TVGN_PARENT, l_some);
    TELLS(control.GetChildItem(some), TVM_GETNEXTITEM, TVGN_CHILD, l_some);
    TELLS(control.GetNextSiblingItem(some), TVM_GETNEXTITEM, TVGN_NEXT, l_some);
    TELLS(control.GetPrevSiblingItem(some), TVM_GETNEXTITEM, TVGN_PREVIOUS, l_some);
    TELLS(control.GetParentItem(some), TVM_GETNEXTITEM, TVGN_PARENT, l_some);
    TELLS(control.GetFirstVisibleItem(), TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE);
    TELLS(control.GetNextVisibleItem(some), TVM_GETNEXTITEM, TVGN_NEXTVISIBLE, l_some);
    TELLS(control.GetPrevVisibleItem(some), TVM_GETNEXTITEM, TVGN_PREVIOUSVISIBLE, l_some);
    TELLS(control.GetLastVisibleItem(), TVM_GETNEXTITEM, TVGN_LASTVISIBLE);
    TELLS(control.GetSelectedItem(), TVM_GETNEXTITEM, TVGN_CARET);
    TELLS(control.GetDropHilightItem(), TVM_GETNEXTITEM, TVGN_DROPHILITE);
    TELLS(control.GetRootItem(), TVM_GETNEXTITEM, TVGN_ROOT);
    TELLS(control.GetVisibleCount(), TVM_GETVISIBLECOUNT);
}

TEST_F(ToldTree, OfItems) {
    TVITEMW given = {};
    TVINSERTSTRUCTW insert = {};
    TVHITTESTINFO hit = {};
    TVSORTCB sort = {};
    CRect rect;
    TELLS(control.GetItem(&given), TVM_GETITEMW, 0, at(given));
    TELLS(control.SetItem(&given), TVM_SETITEMW, 0, at(given));
    TELLS(control.InsertItem(&insert), TVM_INSERTITEMW, 0, at(insert));
    TELLS(control.DeleteItem(some), TVM_DELETEITEM, 0, l_some);
    TELLS(control.DeleteAllItems(), TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    TELLS(control.Expand(some, TVE_COLLAPSE), TVM_EXPAND, TVE_COLLAPSE, l_some);
    TELLS(control.Select(some, TVGN_FIRSTVISIBLE), TVM_SELECTITEM, TVGN_FIRSTVISIBLE, l_some);
    TELLS(control.SelectItem(some), TVM_SELECTITEM, TVGN_CARET, l_some);
    TELLS(control.SelectDropTarget(some), TVM_SELECTITEM, TVGN_DROPHILITE, l_some);
    TELLS(control.SelectSetFirstVisible(some), TVM_SELECTITEM, TVGN_FIRSTVISIBLE, l_some);
    TELLS(control.EnsureVisible(some), TVM_ENSUREVISIBLE, 0, l_some);
    TELLS(control.HitTest(&hit), TVM_HITTEST, 0, at(hit));
    TELLS(control.SortChildren(some), TVM_SORTCHILDREN, 0, l_some);
    TELLS(control.SortChildrenCB(&sort), TVM_SORTCHILDRENCB, 0, at(sort));
    TELLS(control.EndEditLabelNow(TRUE), TVM_ENDEDITLABELNOW, TRUE);
    HTREEITEM asked = nullptr;
    listener.look = [&](const HeardMessage& heard) { asked = *reinterpret_cast<HTREEITEM*>(heard.lParam); };
    TELLS(control.GetItemRect(some, &rect, TRUE), TVM_GETITEMRECT, TRUE, at(rect));
    EXPECT_EQ(asked, some);
}

TEST_F(ToldTree, OfWholeItems) {
    keep_item();
    EXPECT_NE(control.SetItem(some, TVIF_IMAGE, L"text", 2, 3, 4, 5, 6), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(TVIF_IMAGE | TVIF_HANDLE));
    EXPECT_EQ(item.hItem, some);
    EXPECT_STREQ(item.pszText, L"text");
    EXPECT_EQ(item.iImage, 2);
    EXPECT_EQ(item.iSelectedImage, 3);
    EXPECT_EQ(item.state, 4U);
    EXPECT_EQ(item.stateMask, 5U);
    EXPECT_EQ(item.lParam, 6);
    EXPECT_NE(control.SetItemText(some, L"other"), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(TVIF_TEXT | TVIF_HANDLE));
    EXPECT_STREQ(item.pszText, L"other");
    EXPECT_NE(control.SetItemImage(some, 7, 8), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_HANDLE));
    EXPECT_EQ(item.iImage, 7);
    EXPECT_EQ(item.iSelectedImage, 8);
    EXPECT_NE(control.SetItemState(some, TVIS_BOLD, TVIS_BOLD | TVIS_CUT), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(TVIF_STATE | TVIF_HANDLE));
    EXPECT_EQ(item.state, static_cast<UINT>(TVIS_BOLD));
    EXPECT_EQ(item.stateMask, static_cast<UINT>(TVIS_BOLD | TVIS_CUT));
    EXPECT_NE(control.SetItemData(some, 99), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(TVIF_PARAM | TVIF_HANDLE));
    EXPECT_EQ(item.lParam, 99);
    EXPECT_NE(control.SetCheck(some), 0);
    EXPECT_EQ(item.state, 0x2000U);
    EXPECT_EQ(item.stateMask, static_cast<UINT>(TVIS_STATEIMAGEMASK));
    EXPECT_NE(control.SetCheck(some, FALSE), 0);
    EXPECT_EQ(item.state, 0x1000U);
    for (const HeardMessage& each : listener.take()) EXPECT_EQ(each.message, static_cast<UINT>(TVM_SETITEMW));
}

TEST_F(ToldTree, OfNewItems) {
    TVINSERTSTRUCTW insert = {};
    listener.look = [&](const HeardMessage& heard) {
        insert = *reinterpret_cast<TVINSERTSTRUCTW*>(heard.lParam);
    };
    EXPECT_NE(control.InsertItem(TVIF_STATE, L"text", 2, 3, 4, 5, 6, some, TVI_SORT), nullptr);
    EXPECT_EQ(insert.hParent, some);
    EXPECT_EQ(insert.hInsertAfter, TVI_SORT);
    EXPECT_EQ(insert.item.mask, static_cast<UINT>(TVIF_STATE));
    EXPECT_EQ(insert.item.iImage, 2);
    EXPECT_EQ(insert.item.iSelectedImage, 3);
    EXPECT_EQ(insert.item.state, 4U);
    EXPECT_EQ(insert.item.stateMask, 5U);
    EXPECT_EQ(insert.item.lParam, 6);
    EXPECT_NE(control.InsertItem(L"plain"), nullptr);
    EXPECT_EQ(insert.hParent, TVI_ROOT);
    EXPECT_EQ(insert.hInsertAfter, TVI_LAST);
    EXPECT_EQ(insert.item.mask, static_cast<UINT>(TVIF_TEXT));
    EXPECT_STREQ(insert.item.pszText, L"plain");
    EXPECT_EQ(insert.item.state + insert.item.stateMask, 0U);
    EXPECT_NE(control.InsertItem(L"pictured", 7, 8, some, TVI_FIRST), nullptr);
    EXPECT_EQ(insert.item.mask, static_cast<UINT>(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE));
    EXPECT_EQ(insert.item.iImage, 7);
    EXPECT_EQ(insert.item.iSelectedImage, 8);
    EXPECT_EQ(insert.hParent, some);
    EXPECT_EQ(insert.hInsertAfter, TVI_FIRST);
}

TEST_F(ToldTree, WhatItemsSay) {
    UINT asked = 0;
    listener.look = [&](const HeardMessage& heard) {
        auto& answered = *reinterpret_cast<TVITEMW*>(heard.lParam);
        EXPECT_EQ(answered.hItem, some);
        asked = answered.mask;
        answered.iImage = 3;
        answered.iSelectedImage = 4;
        answered.state = TVIS_BOLD | TVIS_SELECTED | 0x2000;
        answered.lParam = 77;
        answered.cChildren = 1;
    };
    int image = 0, selected = 0;
    EXPECT_TRUE(control.GetItemImage(some, image, selected));
    EXPECT_EQ(asked, static_cast<UINT>(TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_HANDLE));
    EXPECT_EQ(image, 3);
    EXPECT_EQ(selected, 4);
    EXPECT_EQ(control.GetItemState(some, TVIS_BOLD | TVIS_CUT), static_cast<UINT>(TVIS_BOLD));
    EXPECT_EQ(asked, static_cast<UINT>(TVIF_STATE | TVIF_HANDLE));
    EXPECT_EQ(control.GetItemData(some), 77U);
    EXPECT_EQ(asked, static_cast<UINT>(TVIF_PARAM | TVIF_HANDLE));
    EXPECT_TRUE(control.ItemHasChildren(some));
    EXPECT_EQ(asked, static_cast<UINT>(TVIF_CHILDREN | TVIF_HANDLE));
    EXPECT_TRUE(control.GetCheck(some));
    listener.answer = 0;
    image = 9;
    EXPECT_FALSE(control.GetItemImage(some, image, selected));
    EXPECT_EQ(image, 9);
    EXPECT_EQ(control.GetItemState(some, TVIS_BOLD), 0U);
    EXPECT_FALSE(control.GetCheck(some));
}

TEST_F(ToldTree, TextsOfAnyLengthAreRead) {
    CString said(L'x', 300);
    listener.look = [&](const HeardMessage& heard) {
        item = *reinterpret_cast<TVITEMW*>(heard.lParam);
        ::lstrcpynW(item.pszText, said, item.cchTextMax);
    };
    EXPECT_EQ(control.GetItemText(some), said);
    EXPECT_EQ(item.mask, static_cast<UINT>(TVIF_TEXT | TVIF_HANDLE));
    EXPECT_EQ(listener.take().size(), 3U) << "room for 128, 256 and 512 characters";
    said = CString(L'y', 127);
    EXPECT_EQ(control.GetItemText(some), said);
    EXPECT_EQ(listener.take().size(), 2U);
    said = CString(L'z', 126);
    EXPECT_EQ(control.GetItemText(some), said);
    EXPECT_EQ(listener.take().size(), 1U);
    listener.look = [](const HeardMessage& heard) {
        reinterpret_cast<TVITEMW*>(heard.lParam)->pszText = const_cast<LPWSTR>(L"its own");
    };
    EXPECT_EQ(control.GetItemText(some), L"its own");
    listener.look = nullptr;
    EXPECT_EQ(control.GetItemText(some), L"") << "nothing was written";
}

TEST_F(ToldTree, OfAPointThatIsHit) {
    CPoint asked;
    listener.look = [&](const HeardMessage& heard) {
        auto& info = *reinterpret_cast<TVHITTESTINFO*>(heard.lParam);
        asked = info.pt;
        info.flags = TVHT_ONITEMICON;
    };
    UINT flags = 0;
    EXPECT_NE(control.HitTest(CPoint(33, 44), &flags), nullptr);
    EXPECT_EQ(asked, CPoint(33, 44));
    EXPECT_EQ(flags, static_cast<UINT>(TVHT_ONITEMICON));
    EXPECT_NE(control.HitTest(CPoint(1, 2)), nullptr);
}

TEST_F(ToldTree, OfWindowsAndImageLists) {
    gives_the_objects_of_handles(*this, some, {TVM_EDITLABELW, 0, l_some}, TVM_GETEDITCONTROL, TVSIL_NORMAL,
                                 {TVM_SETIMAGELIST, TVSIL_STATE, 0});
    CImageList images;
    images.Create(4, 4, ILC_COLOR, 1, 1);
    listener.answer = reinterpret_cast<LRESULT>(images.m_hImageList);
    EXPECT_EQ(control.CreateDragImage(some), &images);
    const HeardMessage heard = listener.take().back();
    EXPECT_EQ(heard.message, static_cast<UINT>(TVM_CREATEDRAGIMAGE));
    EXPECT_EQ(heard.lParam, l_some);
}
