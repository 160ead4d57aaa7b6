// Drag and drop: what a source offers, what a target hears, and when a drag ends.
#include "dragging.h"

namespace {

using ui_test::dragOnto;
using ui_test::takeText;
using ui_test::textMemory;

struct Ole : ::testing::Test {
    static void SetUpTestSuite() { ASSERT_TRUE(AfxOleInit()); }
    static void TearDownTestSuite() { AfxOleTerm(); }
};

/// Records what it hears, and takes texts.
class Target : public COleDropTarget {
public:
    std::vector<std::string> heard;
    DROPEFFECT over = DROPEFFECT_COPY, scroll = DROPEFFECT_NONE, dropEx = static_cast<DROPEFFECT>(-1);
    DROPEFFECT dropDefault = 99, dropList = 99, dropEffect = 99;
    CPoint place;
    std::wstring text;
    CWnd* window = nullptr;
    BOOL takes = TRUE;

    DROPEFFECT OnDragEnter(CWnd* wnd, COleDataObject* data, DWORD, CPoint point) override {
        heard.push_back("enter");
        window = wnd;
        place = point;
        EXPECT_TRUE(data->IsDataAvailable(CF_UNICODETEXT));
        return over;
    }
    DROPEFFECT OnDragOver(CWnd*, COleDataObject* data, DWORD, CPoint) override {
        if (heard.back() != "over") heard.push_back("over");
        EXPECT_NE(data->m_lpDataObject, nullptr);
        return over;
    }
    void OnDragLeave(CWnd*) override { heard.push_back("leave"); }
    DROPEFFECT OnDragScroll(CWnd*, DWORD, CPoint) override {
        if (scroll && (heard.empty() || heard.back() != "scroll")) heard.push_back("scroll");
        return scroll;
    }
    BOOL OnDrop(CWnd*, COleDataObject* data, DROPEFFECT effect, CPoint) override {
        heard.push_back("drop");
        dropEffect = effect;
        text = takeText(data->GetGlobalData(CF_UNICODETEXT));
        return takes;
    }
    DROPEFFECT OnDropEx(CWnd* wnd, COleDataObject* data, DROPEFFECT usual, DROPEFFECT offered,
                        CPoint point) override {
        heard.push_back("drop ex");
        dropDefault = usual;
        dropList = offered;
        EXPECT_EQ(COleDropTarget::OnDropEx(wnd, data, usual, offered, point), static_cast<DROPEFFECT>(-1));
        return dropEx;
    }
    bool hasBeenOver() const { return !heard.empty() && heard.back() == "over"; }
};

struct Dragging : Ole {
    Dragging() { source.CacheGlobalData(CF_UNICODETEXT, textMemory(L"dragged")); }
    ~Dragging() override { target.Revoke(); }
    DROPEFFECT drag(SCODE end = DRAGDROP_S_DROP) {
        return dragOnto(
            holder, source, [this] { return target.hasBeenOver(); }, end);
    }
    ui_test::ParentWindow holder;
    Target target;
    COleDataSource source;
};

TEST_F(Dragging, ATargetHearsTheDragAndTakesTheData) {
    ASSERT_TRUE(target.Register(&holder));
    EXPECT_EQ(drag(), DWORD{DROPEFFECT_COPY});
    EXPECT_EQ(target.heard, (std::vector<std::string>{"enter", "over", "drop ex", "drop"}));
    EXPECT_EQ(target.text, L"dragged");
    EXPECT_EQ(target.window, &holder);
    EXPECT_EQ(target.dropDefault, DWORD{DROPEFFECT_COPY});
    EXPECT_EQ(target.dropList, DWORD{DROPEFFECT_COPY | DROPEFFECT_MOVE});
    EXPECT_EQ(target.dropEffect, DWORD{DROPEFFECT_COPY});
    CRect client;
    holder.GetClientRect(&client);
    EXPECT_TRUE(client.PtInRect(target.place));
}

TEST_F(Dragging, AnAnswerOfOnDropExIsTheEffectWithoutOnDrop) {
    target.Register(&holder);
    target.dropEx = DROPEFFECT_MOVE;
    EXPECT_EQ(drag(), DWORD{DROPEFFECT_MOVE});
    EXPECT_EQ(target.heard.back(), "drop ex");
}

TEST_F(Dragging, ARefusedDropHasNoEffect) {
    target.Register(&holder);
    target.takes = FALSE;
    EXPECT_EQ(drag(), DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(target.heard.back(), "drop");
}

TEST_F(Dragging, AnEffectThatIsNotOfferedIsNone) {
    target.Register(&holder);
    target.over = DROPEFFECT_LINK;
    EXPECT_EQ(drag(), DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(target.heard.back(), "leave");
    EXPECT_TRUE(target.text.empty());
}

TEST_F(Dragging, ACancelledDragLeaves) {
    target.Register(&holder);
    EXPECT_EQ(drag(DRAGDROP_S_CANCEL), DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(target.heard.back(), "leave");
}

TEST_F(Dragging, ScrollingGoesBeforeTheRest) {
    target.Register(&holder);
    target.scroll = DROPEFFECT_SCROLL | DROPEFFECT_COPY;
    const DROPEFFECT effect = dragOnto(
        holder, source, [this] { return !target.heard.empty(); }, DRAGDROP_S_CANCEL);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(target.heard, (std::vector<std::string>{"scroll", "leave"}));
}

TEST_F(Dragging, AWindowHasOneTargetAndATargetOneWindow) {
    EXPECT_FALSE(target.Register(nullptr));
    ASSERT_TRUE(target.Register(&holder));
    EXPECT_EQ(target.m_hWnd, holder.m_hWnd);
    EXPECT_FALSE(target.Register(&holder));
    Target other;
    EXPECT_FALSE(other.Register(&holder));
    EXPECT_EQ(other.m_hWnd, nullptr);
    target.Revoke();
    EXPECT_EQ(target.m_hWnd, nullptr);
    EXPECT_TRUE(other.Register(&holder));
    other.Revoke();
    other.Revoke();
}

TEST_F(Dragging, ATargetRefusesUnlessItIsOverridden) {
    COleDropTarget plain;
    EXPECT_EQ(plain.OnDragEnter(&holder, nullptr, 0, {}), DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(plain.OnDragOver(&holder, nullptr, 0, {}), DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(plain.OnDragScroll(&holder, 0, {}), DWORD{DROPEFFECT_NONE});
    EXPECT_FALSE(plain.OnDrop(&holder, nullptr, DROPEFFECT_COPY, {}));
}

/// Makes its text when it is asked for, and counts how often.
class LazySource : public COleDataSource {
public:
    int rendered = 0;
    /// The source as a receiver gets it.
    void passTo(const std::function<void(COleDataObject&)>& use) {
        struct Reader : COleDropTarget {
            std::function<void(COleDataObject&)> use;
            bool wasOver = false;
            DROPEFFECT OnDragEnter(CWnd*, COleDataObject* data, DWORD, CPoint) override {
                if (!wasOver) use(*data);
                wasOver = true;
                return DROPEFFECT_COPY;
            }
        } reader;
        ui_test::ParentWindow window;
        reader.use = use;
        ASSERT_TRUE(reader.Register(&window));
        dragOnto(
            window, *this, [&] { return reader.wasOver; }, DRAGDROP_S_CANCEL);
        reader.Revoke();
    }

protected:
    BOOL OnRenderGlobalData(LPFORMATETC format, HGLOBAL* memory) override {
        EXPECT_EQ(format->cfFormat, CF_UNICODETEXT);
        ++rendered;
        *memory = textMemory(L"lazy");
        return TRUE;
    }
};

TEST_F(Ole, DataOnDemandIsMadeWhenItIsAskedFor) {
    LazySource source;
    source.DelayRenderData(CF_UNICODETEXT);
    source.passTo([&](COleDataObject& data) {
        EXPECT_TRUE(data.IsDataAvailable(CF_UNICODETEXT));
        EXPECT_FALSE(data.IsDataAvailable(CF_HDROP));
        EXPECT_EQ(source.rendered, 0);
        EXPECT_EQ(takeText(data.GetGlobalData(CF_UNICODETEXT)), L"lazy");
        STGMEDIUM medium = {};
        EXPECT_TRUE(data.GetData(CF_UNICODETEXT, &medium));
        EXPECT_EQ(medium.tymed, DWORD{TYMED_HGLOBAL});
        ::ReleaseStgMedium(&medium);
        EXPECT_EQ(source.rendered, 2);
        EXPECT_EQ(data.GetGlobalData(CF_HDROP), nullptr);
        EXPECT_FALSE(data.GetData(CF_HDROP, &medium));
    });
    EXPECT_EQ(source.rendered, 2);
}

TEST_F(Ole, FormatsComeInTheOrderInWhichTheyWereOffered) {
    LazySource source;
    source.CacheGlobalData(CF_UNICODETEXT, textMemory(L"first"));
    FORMATETC icon = {CF_HDROP, nullptr, DVASPECT_ICON, -1, TYMED_HGLOBAL};
    source.CacheGlobalData(0, textMemory(L"second"), &icon);
    source.passTo([&](COleDataObject& data) {
        FORMATETC format = {};
        EXPECT_FALSE(data.GetNextFormat(&format)) << "not begun";
        for (int round = 0; round < 2; ++round) {
            data.BeginEnumFormats();
            ASSERT_TRUE(data.GetNextFormat(&format));
            EXPECT_EQ(format.cfFormat, CF_UNICODETEXT);
            ASSERT_TRUE(data.GetNextFormat(&format));
            EXPECT_EQ(format.cfFormat, CF_HDROP);
            EXPECT_EQ(format.dwAspect, DWORD{DVASPECT_ICON});
            EXPECT_FALSE(data.GetNextFormat(&format));
        }
        EXPECT_FALSE(data.IsDataAvailable(CF_HDROP)) << "of another aspect";
        EXPECT_TRUE(data.IsDataAvailable(CF_HDROP, &icon));
        EXPECT_EQ(takeText(data.GetGlobalData(CF_HDROP, &icon)), L"second");
        EXPECT_EQ(takeText(data.GetGlobalData(CF_UNICODETEXT)), L"first");
        EXPECT_EQ(takeText(data.GetGlobalData(CF_UNICODETEXT)), L"first") << "a copy each time";
    });
}

TEST_F(Ole, AReceiverThatKeepsTheObjectFindsItEmptyAfterTheSource) {
    COleDataObject kept;
    {
        LazySource source;
        source.CacheGlobalData(CF_UNICODETEXT, textMemory(L"gone"));
        source.passTo([&](COleDataObject& data) {
            data.m_lpDataObject->AddRef();
            kept.Attach(data.m_lpDataObject);
        });
        EXPECT_TRUE(kept.IsDataAvailable(CF_UNICODETEXT));
        source.Empty();
        EXPECT_FALSE(kept.IsDataAvailable(CF_UNICODETEXT));
    }
    EXPECT_EQ(kept.GetGlobalData(CF_UNICODETEXT), nullptr);
    LPDATAOBJECT object = kept.Detach();
    EXPECT_EQ(kept.m_lpDataObject, nullptr);
    EXPECT_EQ(object->Release(), 0u);
}

TEST_F(Ole, ADropSourceEndsTheDragWithItsButton) {
    COleDropSource source;
    EXPECT_EQ(source.QueryContinueDrag(FALSE, MK_LBUTTON), S_OK);
    EXPECT_EQ(source.QueryContinueDrag(FALSE, MK_CONTROL), DRAGDROP_S_DROP);
    EXPECT_EQ(source.QueryContinueDrag(TRUE, MK_LBUTTON), DRAGDROP_S_CANCEL);
    EXPECT_EQ(source.QueryContinueDrag(FALSE, MK_LBUTTON | MK_RBUTTON), DRAGDROP_S_CANCEL);
    EXPECT_EQ(source.GiveFeedback(DROPEFFECT_COPY), DRAGDROP_S_USEDEFAULTCURSORS);
}

struct OpenDropSource : COleDropSource {
    using COleDropSource::m_rectStartDrag;
};

TEST_F(Ole, ADragBeginsOutsideTheRectangleOrAfterAWhile) {
    ui_test::ParentWindow window;
    OpenDropSource source;
    source.m_rectStartDrag = CRect(0, 0, 1000, 1000);
    EXPECT_TRUE(source.OnBeginDrag(&window)) << "after a while";
    EXPECT_EQ(::GetCapture(), nullptr);
    window.PostMessage(WM_LBUTTONUP);
    EXPECT_FALSE(source.OnBeginDrag(&window));
    window.PostMessage(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_FALSE(source.OnBeginDrag(&window));
    window.PostMessage(WM_KEYDOWN, VK_SHIFT);
    window.PostMessage(WM_RBUTTONDOWN);
    EXPECT_FALSE(source.OnBeginDrag(nullptr));
}

TEST_F(Ole, AnObjectWithoutDataHasNone) {
    COleDataObject empty;
    EXPECT_FALSE(empty.IsDataAvailable(CF_UNICODETEXT));
    EXPECT_EQ(empty.GetGlobalData(CF_UNICODETEXT), nullptr);
}

TEST_F(Ole, IsReadyOnce) {
    EXPECT_TRUE(AfxOleInit());
    AfxOleTerm(TRUE);
    EXPECT_TRUE(AfxOleInit());
}

}  // namespace
