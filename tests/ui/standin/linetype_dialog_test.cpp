// The linetype manager: what it lists, choosing, and deleting.
#include "linetype_fixture.h"

namespace {

using ui_test::Texts;

class LinetypeDialog : public ui_test::LinetypeDialogTest {
protected:
    /// What the manager says when the linetype of this name is to be deleted.
    CString refusalOf(const wchar_t* name) {
        CString text;
        inManager([&](HWND manager) {
            select(manager, {name});
            text = messageOf([&] { click(manager, IDC_LINETYPE_DELETE); });
            EXPECT_EQ(selectedIn(manager), Texts{name});
        });
        EXPECT_TRUE(table->has(name));
        return text;
    }
};

bool has(const CString& text, const wchar_t* part) { return text.Find(part) >= 0; }

}  // namespace

TEST_F(LinetypeDialog, ListsByLayerAndByBlockAndTheOthersByName) {
    inManager([&](HWND manager) {
        EXPECT_EQ(namesIn(manager),
                  (Texts{L"ByLayer", L"ByBlock", L"Continuous", L"Dot2", L"DOT10", L"ZIGZAG"}));
        EXPECT_EQ(cell(manager, 3, 1), L"");
        EXPECT_EQ(cell(manager, 3, 2), L"words of Dot2");
        EXPECT_EQ(selectedIn(manager), Texts{L"Dot2"});
        EXPECT_EQ(::GetFocus(), listOf(manager));
    });
}

TEST_F(LinetypeDialog, ItsColumnsShareTheWidthWithoutAScrollBar) {
    inManager([&](HWND manager) {
        const HWND list = listOf(manager);
        CRect client;
        ::GetClientRect(list, &client);
        const int width =
            client.Width() -
            (::GetWindowLongW(list, GWL_STYLE) & WS_VSCROLL ? 0 : ::GetSystemMetrics(SM_CXVSCROLL));
        const int shares[] = {30, 28, 42};
        const wchar_t* const titles[] = {L"Linetype", L"Appearance", L"Description"};
        for (int column = 0; column < 3; ++column) {
            wchar_t title[32] = {};
            LVCOLUMNW shown = {};
            shown.mask = LVCF_TEXT | LVCF_WIDTH;
            shown.pszText = title;
            shown.cchTextMax = 32;
            ::SendMessageW(list, LVM_GETCOLUMNW, static_cast<WPARAM>(column),
                           reinterpret_cast<LPARAM>(&shown));
            EXPECT_EQ(shown.cx, width * shares[column] / 100) << column;
            EXPECT_STREQ(title, titles[column]);
        }
    });
}

TEST_F(LinetypeDialog, SelectsNothingForALinetypeThatItDoesNotList) {
    for (const OdDbObjectId& id : {OdDbObjectId(), table->getAt(L"SITE|FENCE"), drawing->clayer()}) {
        current = id;
        inManager([&](HWND manager) {
            EXPECT_TRUE(selectedIn(manager).empty());
            EXPECT_EQ(messageOf([&] { click(manager, IDOK); }), L"Select a linetype.");
            click(manager, IDC_LINETYPE_DELETE);
            EXPECT_EQ(countOf(manager), 6);
        });
    }
}

TEST_F(LinetypeDialog, KeysAloneChoose) {
    EXPECT_TRUE(show([&](HWND) {
        pressKey(VK_DOWN);
        pressKey(VK_RETURN);
    }));
    EXPECT_EQ(chosen, table->getAt(L"DOT10"));
}

TEST_F(LinetypeDialog, TheFirstLettersOfANameFindIt) {
    EXPECT_TRUE(show([&](HWND manager) {
        ::SendMessageW(listOf(manager), WM_CHAR, L'z', 1);
        EXPECT_EQ(selectedIn(manager), Texts{L"ZIGZAG"});
        pressKey(VK_RETURN);
    }));
    EXPECT_EQ(chosen, table->getAt(L"ZIGZAG"));
}

TEST_F(LinetypeDialog, EscapeLeavesTheChoiceAlone) {
    EXPECT_FALSE(show([&](HWND manager) {
        select(manager, {L"ZIGZAG"});
        pressKey(VK_ESCAPE);
    }));
    EXPECT_TRUE(chosen.isNull());
}

TEST_F(LinetypeDialog, ADoubleClickChooses) {
    EXPECT_TRUE(show([&](HWND manager) {
        select(manager, {L"ZIGZAG"});
        NMITEMACTIVATE click = {};
        click.hdr = {listOf(manager), IDC_LINETYPE_LIST, static_cast<UINT>(NM_DBLCLK)};
        ::SendMessageW(manager, WM_NOTIFY, IDC_LINETYPE_LIST, reinterpret_cast<LPARAM>(&click));
    }));
    EXPECT_EQ(chosen, table->getAt(L"ZIGZAG"));
}

TEST_F(LinetypeDialog, TheDeleteKeyDeletesWhatNothingUses) {
    inManager([&](HWND manager) {
        ::SendMessageW(listOf(manager), WM_KEYDOWN, VK_DELETE, 1);
        EXPECT_EQ(namesIn(manager), (Texts{L"ByLayer", L"ByBlock", L"Continuous", L"DOT10", L"ZIGZAG"}));
        EXPECT_EQ(selectedIn(manager), Texts{L"DOT10"});
        select(manager, {L"ZIGZAG"});
        click(manager, IDC_LINETYPE_DELETE);
        EXPECT_EQ(selectedIn(manager), Texts{L"DOT10"}) << "the one before, for there is none behind";
    });
    EXPECT_FALSE(table->has(L"Dot2") || table->has(L"ZIGZAG")) << "a cancel brings nothing back";
    EXPECT_TRUE(table->has(L"SITE|FENCE"));
}

TEST_F(LinetypeDialog, AltAndDDeletesToo) {
    inManager([&](HWND manager) {
        pressMnemonic(L'd');
        EXPECT_TRUE(ui_test::pump_until([&] { return countOf(manager) == 5; }));
    });
    EXPECT_FALSE(table->has(L"Dot2"));
}

TEST_F(LinetypeDialog, TheStandardOnesCanNotBeDeleted) {
    for (const wchar_t* name : {L"ByLayer", L"ByBlock", L"Continuous"})
        EXPECT_TRUE(has(refusalOf(name), L"belong to every drawing")) << name;
}

TEST_F(LinetypeDialog, WhatIsInUseCanNotBeDeletedAndTheReasonIsTold) {
    addLine(L"DOT10");
    addLine(L"DOT10");
    drawing->clayer()
        .open<OdDbLayerTableRecord>(OdDb::kForWrite)
        ->setLinetypeObjectId(table->getAt(L"DOT10"));
    OdDbDimStyleTablePtr styles;
    drawing->getDimStyleTable(styles);
    styles->getAt(L"Standard").openObject()->editGroups().addHandle(345, table->getAt(L"DOT10").handle());
    drawing->setCeltype(table->getAt(L"ZIGZAG"));
    const CString dots = refusalOf(L"DOT10");
    EXPECT_TRUE(has(dots, L"DOT10") && has(dots, L"by objects: 2") && has(dots, L"by layers: 1"))
        << dots.GetString();
    EXPECT_TRUE(has(dots, L"by styles and settings: 1"));
    EXPECT_FALSE(has(dots, L"current"));
    const CString zigzag = refusalOf(L"ZIGZAG");
    EXPECT_TRUE(has(zigzag, L"it is the current linetype"));
    EXPECT_FALSE(has(zigzag, L"by layers"));
}

TEST_F(LinetypeDialog, WithoutADrawingThereIsNone) {
    oddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_FALSE(host.uiHost()->showLinetypeDialog(OdDbObjectId(), chosen, 1));
}

TEST_F(LinetypeDialog, ShowsThePatternOfEachLinetype) {
    inManager([&](HWND manager) {
        const HWND list = listOf(manager);
        select(manager, {});
        ::UpdateWindow(list);
        CRect area;
        const auto sampleArea = [&](int row) {
            area = CRect(LVIR_BOUNDS, 0, 0, 0);
            area.top = 1;
            area.left = LVIR_BOUNDS;
            ::SendMessageW(list, LVM_GETSUBITEMRECT, static_cast<WPARAM>(row),
                           reinterpret_cast<LPARAM>(&area));
        };
        CWindowDC dc(CWnd::FromHandle(list));
        CRect window, client;
        ::GetWindowRect(list, &window);
        ::GetClientRect(list, &client);
        ::MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&client), 2);
        // Changes of colour along the middle of a sample: none in a continuous line but at its ends.
        const auto changes = [&](int row) {
            sampleArea(row);
            area.OffsetRect(client.left - window.left, client.top - window.top);
            const int middle = (area.top + 1 + area.bottom - 1) / 2;
            int count = 0;
            for (int x = area.left + 6; x < area.right - 6; ++x)
                count += dc.GetPixel(x, middle) != dc.GetPixel(x + 1, middle);
            return count;
        };
        EXPECT_EQ(changes(2), 0) << "Continuous";
        EXPECT_GE(changes(3), 3) << "Dot2";
    });
}

TEST_F(LinetypeDialog, TwoThousandLinetypesOpenAtOnce) {
    for (int i = 0; i < 2000; ++i) add((L"LINETYPE " + std::to_wstring(i)).c_str());
    const ULONGLONG began = ::GetTickCount64();
    ULONGLONG shown = 0;
    inManager([&](HWND manager) {
        shown = ::GetTickCount64() - began;
        EXPECT_EQ(countOf(manager), 2006);
        const ULONGLONG before = ::GetTickCount64();
        select(manager, {L"LINETYPE 1999"});
        pressKey(VK_END);
        ui_test::pump();
        click(manager, IDC_LINETYPE_DELETE);
        EXPECT_LT(::GetTickCount64() - before, 2000u);
        EXPECT_EQ(countOf(manager), 2005);
    });
    EXPECT_LT(shown, 2000u);
    RecordProperty("shown_after_milliseconds", static_cast<int>(shown));
}
