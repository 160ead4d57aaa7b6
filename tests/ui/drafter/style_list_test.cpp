// The list of styles and the fields below it show one and the same style, whatever becomes of an open list.
#include "../../../samples/drafter/dimension_style_dialog.h"
#include "drafter_fixture.h"

using namespace ui_test;

namespace {

class StyleList : public DrafterTest {
protected:
    StyleList() {
        addStyle(L"Large", 50);
        addStyle(L"Small", 1);
        dialog = std::make_unique<WithOwnSettings<CDimensionStyleDialog>>(*drawing, &parent);
    }
    void addStyle(const wchar_t* name, double arrowSize) {
        OdDbDimStyleTablePtr table;
        drawing->getDimStyleTable(table, OdDb::kForWrite);
        const OdDbSymbolTableRecordPtr record = table->newRecord();
        record->setName(name);
        table->add(record);
        static_cast<OdDbDimStyleTableRecord&>(*record).setDimasz(arrowSize);
    }
    CWnd& list() { return item(*dialog, IDC_STYLE); }
    /// The size that the field shows, and that of the style that the list shows.
    std::pair<double, double> sizes() {
        wchar_t name[100] = {};
        list().SendMessage(CB_GETLBTEXT, static_cast<WPARAM>(selected(list())),
                           reinterpret_cast<LPARAM>(name));
        double listed = 0;
        for (const DimensionValues& style : ReadDimensionStyles(*drawing))
            if (style.name == name) listed = style.arrowSize;
        return {_wtof(text_of(item(*dialog, IDC_ARROW_SIZE).m_hWnd)), listed};
    }
    void expectSame(const char* when) {
        const auto [shown, listed] = sizes();
        EXPECT_EQ(shown, listed) << when;
    }

    std::unique_ptr<WithOwnSettings<CDimensionStyleDialog>> dialog;
};

TEST_F(StyleList, EscapeAfterAnArrowKeyShowsTheFormerStyleInListAndFields) {
    show(*dialog, [&] {
        const int former = selected(list());
        const double size = sizes().first;
        drop(list());
        key(list(), former == 0 ? VK_DOWN : VK_UP);
        ASSERT_NE(selected(list()), former);
        expectSame("while the list is open");
        key(list(), VK_ESCAPE);
        EXPECT_EQ(selected(list()), former);
        EXPECT_EQ(sizes().first, size);
        expectSame("after Escape");
    });
}

TEST_F(StyleList, EnterKeepsTheNewOne) {
    show(*dialog, [&] {
        drop(list());
        key(list(), VK_END);
        key(list(), VK_RETURN);
        EXPECT_EQ(selected(list()), 2);
        expectSame("after Enter");
        item(*dialog, IDC_ARROW_SIZE).SetFocus();
        pump();
        EXPECT_EQ(selected(list()), 2) << "losing the focus cancels no closed list";
        expectSame("after leaving the list");
    });
}

TEST_F(StyleList, LeavingTheOpenListShowsTheFormerStyle) {
    show(*dialog, [&] {
        const int former = selected(list());
        drop(list());
        key(list(), former == 0 ? VK_DOWN : VK_UP);
        item(*dialog, IDC_ARROW_SIZE).SetFocus();
        pump();
        EXPECT_EQ(selected(list()), former);
        expectSame("after the focus went");
    });
}

}  // namespace
