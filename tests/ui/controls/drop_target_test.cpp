// The drop target that refuses everything, and one that a client derives from it.
#include <ktui/controls/kbui_drop_target.h>

#include "dragging.h"
#include "recording_holder.h"

namespace {

/// Counts what it hears and leaves the answers to its base.
class Counting : public CKbUiDropTarget {
public:
    int overs = 0, drops = 0, dropsEx = 0;
    DROPEFFECT OnDragOver(CWnd* window, COleDataObject* data, DWORD keys, CPoint point) override {
        ++overs;
        return CKbUiDropTarget::OnDragOver(window, data, keys, point);
    }
    BOOL OnDrop(CWnd* window, COleDataObject* data, DROPEFFECT effect, CPoint point) override {
        ++drops;
        return CKbUiDropTarget::OnDrop(window, data, effect, point);
    }
    DROPEFFECT OnDropEx(CWnd* window, COleDataObject* data, DROPEFFECT usual, DROPEFFECT offered,
                        CPoint point) override {
        ++dropsEx;
        return CKbUiDropTarget::OnDropEx(window, data, usual, offered, point);
    }
};

/// Accepts copies.
class Accepting : public Counting {
public:
    std::wstring text;
    DROPEFFECT OnDragEnter(CWnd*, COleDataObject*, DWORD, CPoint) override { return DROPEFFECT_COPY; }
    DROPEFFECT OnDragOver(CWnd*, COleDataObject*, DWORD, CPoint) override {
        ++overs;
        return DROPEFFECT_COPY;
    }
    DROPEFFECT OnDropEx(CWnd*, COleDataObject* data, DROPEFFECT usual, DROPEFFECT, CPoint) override {
        text = ui_test::takeText(data->GetGlobalData(CF_UNICODETEXT));
        return usual;
    }
};

struct DropTarget : ::testing::Test {
    DropTarget() {
        EXPECT_TRUE(AfxOleInit());
        source.CacheGlobalData(CF_UNICODETEXT, ui_test::textMemory(L"layers"));
    }
    ~DropTarget() override { AfxOleTerm(); }
    DROPEFFECT drag(Counting& target) {
        return ui_test::dragOnto(holder, source, [&target] { return target.overs > 0; });
    }
    ui_test::RecordingHolder holder;
    COleDataSource source;
};

TEST_F(DropTarget, RefusesEverything) {
    CKbUiDropTarget target;
    EXPECT_EQ(target.OnDragEnter(&holder, nullptr, MK_LBUTTON, {}), 0u);
    EXPECT_EQ(target.OnDragOver(&holder, nullptr, MK_LBUTTON, {}), 0u);
    EXPECT_EQ(target.OnDragScroll(&holder, MK_LBUTTON, {}), 0u);
    EXPECT_EQ(target.OnDrop(&holder, nullptr, DROPEFFECT_COPY, {}), 0);
    EXPECT_EQ(target.OnDropEx(&holder, nullptr, DROPEFFECT_COPY, DROPEFFECT_COPY, {}), 0u);
    target.OnDragLeave(&holder);
}

TEST_F(DropTarget, ADropOnItHasNoEffectAndIsNotOfferedTwice) {
    Counting target;
    ASSERT_TRUE(target.Register(&holder));
    EXPECT_EQ(drag(target), 0u);
    EXPECT_EQ(target.drops, 0);
    target.Revoke();
}

TEST_F(DropTarget, AClientsTargetTakesADrop) {
    Accepting target;
    ASSERT_TRUE(target.Register(&holder));
    EXPECT_EQ(drag(target), DWORD{DROPEFFECT_COPY});
    EXPECT_EQ(target.text, L"layers");
    EXPECT_EQ(target.drops, 0);
    target.Revoke();
}

}  // namespace
