// What the panes of a splitter hear of the bars that they share, and what goes on to the frame.
#include <commctrl.h>

#include "splitter_fixture.h"

using namespace documents_test;

namespace {

struct Heard {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool operator==(const Heard&) const = default;
};

/// Notes what a window hears of some messages; answers `answer` to them in its place.
class Listener {
public:
    Listener(HWND window, std::vector<UINT> messages, LRESULT answer)
        : m_window(window), m_messages(std::move(messages)), m_answer(answer) {
        ::SetWindowSubclass(window, hear, 7, reinterpret_cast<DWORD_PTR>(this));
    }
    ~Listener() { ::RemoveWindowSubclass(m_window, hear, 7); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    std::vector<Heard> take() { return std::exchange(m_heard, {}); }

private:
    static LRESULT CALLBACK hear(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                 DWORD_PTR data) {
        auto& self = *reinterpret_cast<Listener*>(data);
        if (std::count(self.m_messages.begin(), self.m_messages.end(), message) == 0)
            return ::DefSubclassProc(window, message, wParam, lParam);
        self.m_heard.push_back({message, wParam, lParam});
        return self.m_answer;
    }
    HWND m_window;
    std::vector<UINT> m_messages;
    LRESULT m_answer;
    std::vector<Heard> m_heard;
};

LPARAM handle(HWND window) { return reinterpret_cast<LPARAM>(window); }

}  // namespace

TEST_F(SplitterTest, PanesHearOfTheBarThatTheyShareWithCodeAndPlace) {
    make(true);
    ASSERT_TRUE(splitter().SplitRow(120));
    ASSERT_TRUE(splitter().SplitColumn(150));
    const auto bar_at = [&](UINT id) { return ::GetDlgItem(splitter().m_hWnd, static_cast<int>(id)); };
    std::vector<std::unique_ptr<Listener>> panes;
    for (int row = 0; row < 2; ++row)
        for (int col = 0; col < 2; ++col)
            panes.push_back(std::make_unique<Listener>(splitter().GetPane(row, col)->m_hWnd,
                                                       std::vector<UINT>{WM_HSCROLL, WM_VSCROLL}, 0));
    const WPARAM code = MAKEWPARAM(SB_THUMBPOSITION, 33);
    const auto told = [&](UINT message, HWND shared) {
        splitter().SendMessage(message, code, handle(shared));
        std::string who;
        for (size_t i = 0; i < panes.size(); ++i)
            for (const Heard& heard : panes[i]->take()) {
                EXPECT_EQ(heard, (Heard{message, code, handle(shared)}));
                who += std::to_string(i) + " ";
            }
        return who;
    };
    EXPECT_EQ(told(WM_HSCROLL, bar_at(AFX_IDW_HSCROLL_FIRST)), "0 2 ") << "the left column";
    EXPECT_EQ(told(WM_HSCROLL, bar_at(AFX_IDW_HSCROLL_FIRST + 1)), "1 3 ");
    EXPECT_EQ(told(WM_VSCROLL, bar_at(AFX_IDW_VSCROLL_FIRST)), "0 1 ") << "the upper row";
    EXPECT_EQ(told(WM_VSCROLL, bar_at(AFX_IDW_VSCROLL_FIRST + 1)), "2 3 ");
}

TEST_F(SplitterTest, CommandsAndNotesGoOnToTheFrame) {
    make(false);
    Listener above(frame->m_hWnd, {WM_COMMAND, WM_NOTIFY}, 9);
    const HWND pane = splitter().GetPane(0, 1)->m_hWnd;
    EXPECT_NE(splitter().SendMessage(WM_COMMAND, MAKEWPARAM(4711, 3), handle(pane)), 0);
    EXPECT_EQ(above.take(), (std::vector<Heard>{{WM_COMMAND, MAKEWPARAM(4711, 3), handle(pane)}}));
    NMHDR note = {pane, 42, static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(splitter().SendMessage(WM_NOTIFY, 42, reinterpret_cast<LPARAM>(&note)), 9);
    EXPECT_EQ(above.take(), (std::vector<Heard>{{WM_NOTIFY, 42, reinterpret_cast<LPARAM>(&note)}}));
}

TEST_F(SplitterTest, TheWheelTurnsThePaneThatIsActive) {
    make(false);
    frame->SetActiveView(static_cast<CView*>(splitter().GetPane(0, 1)));
    Listener left(splitter().GetPane(0, 0)->m_hWnd, {WM_MOUSEWHEEL}, TRUE);
    Listener right(splitter().GetPane(0, 1)->m_hWnd, {WM_MOUSEWHEEL}, TRUE);
    const WPARAM wheel = MAKEWPARAM(MK_SHIFT, static_cast<WORD>(-120));
    const LPARAM where = MAKELPARAM(30, 40);
    splitter().SendMessage(WM_MOUSEWHEEL, wheel, where);
    EXPECT_TRUE(left.take().empty());
    EXPECT_EQ(right.take(), (std::vector<Heard>{{WM_MOUSEWHEEL, wheel, where}}));
}
