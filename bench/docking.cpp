// Docked panes: a divider that is dragged and a frame that is sized against the same windows moved bare in
// one batch; and how long it takes to load a state, to paint a strip of tabs and to change palettes.
#include "window_bench.h"

#include <afxcontrolbars.h>

#include <array>
#include <map>
#include <memory>
#include <vector>

#include <ktui/docking/kbui_palette.h>
#include <ktui/docking/kbui_palette_set.h>
#include <ktui/docking/xt_tool_tab_ctrl.h>

namespace {

constexpr int kPanes = 12;
constexpr int kTabs = 4;  // panes that share one place
constexpr int kManyPanes = 40;
constexpr int kStripTabs = 20;
constexpr int kPalettes = 50;
constexpr int kSteps = 10;
constexpr int kRounds = 21;
constexpr int kStep = 6;  // pixels
constexpr UINT kFirstPane = 5001;
const CRect kFrame(40, 40, 1140, 940);

/// Where a window stands.
struct Place {
    CRect rect;  ///< in the parent's client coordinates
    int parent;  ///< index among all, before its own; -1 for the frame
};

/// A main window full of panes.
class PanedFrame {
public:
    explicit PanedFrame(int panes) {
        m_frame->Create(nullptr, L"panes", WS_OVERLAPPEDWINDOW | WS_VISIBLE, kFrame);
        m_frame->EnableDocking(CBRS_ALIGN_ANY);
        CDockablePane* last = nullptr;
        for (int i = 0; i < panes; ++i) {
            auto pane = std::make_unique<CDockablePane>();
            CString name;
            name.Format(L"Pane %d", i);
            const DWORD side = i % 3 == 0 ? CBRS_LEFT : i % 3 == 1 ? CBRS_RIGHT : CBRS_BOTTOM;
            pane->Create(name, m_frame, CRect(0, 0, 120, 90), TRUE, kFirstPane + static_cast<UINT>(i),
                         WS_CHILD | WS_VISIBLE | side | CBRS_FLOAT_MULTI);
            pane->EnableDocking(CBRS_ALIGN_ANY);
            if (i >= 3 && i % 2 == 1)
                pane->DockToWindow(last, CBRS_ALIGN_BOTTOM);
            else
                m_frame->DockPane(pane.get());
            last = pane.get();
            m_panes.push_back(std::move(pane));
        }
        bench::drain_queue();
    }
    ~PanedFrame() {
        for (const auto& pane : m_panes)
            if (pane->IsTabbed()) pane->UndockPane(TRUE);
        m_panes.clear();
        m_frame->DestroyWindow();
        bench::drain_queue();
    }
    PanedFrame(const PanedFrame&) = delete;
    PanedFrame& operator=(const PanedFrame&) = delete;

    CFrameWndEx& frame() const { return *m_frame; }
    CDockablePane& pane(int i) const { return *m_panes[static_cast<std::size_t>(i)]; }
    HWND window() const { return m_frame->m_hWnd; }
    CDockingManager& manager() const { return *m_frame->GetDockingManager(); }

    /// The divider at the inner edge of the panes at the left.
    CPaneDivider* divider() const {
        for (HWND child = ::GetWindow(window(), GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT))
            if (auto* found = DYNAMIC_DOWNCAST(CPaneDivider, CWnd::FromHandlePermanent(child)))
                if (!found->IsHorizontal() && ::IsWindowVisible(child)) return found;
        return nullptr;
    }
    /// All visible windows in the frame.
    std::vector<Place> places() const {
        std::vector<Place> all;
        add(window(), -1, all);
        return all;
    }

private:
    static void add(HWND parent, int index, std::vector<Place>& all) {
        for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            if (!::IsWindowVisible(child)) continue;
            CRect rect;
            ::GetWindowRect(child, &rect);
            ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&rect), 2);
            all.push_back({rect, index});
            add(child, static_cast<int>(all.size()) - 1, all);
        }
    }

    CFrameWndEx* m_frame = new CFrameWndEx;  // deletes itself with its window
    std::vector<std::unique_ptr<CDockablePane>> m_panes;
};

/// The same windows without anything that thinks about them: two arrangements, taken in turn, with one batch
/// for the windows of each parent.
class BareFrame {
public:
    BareFrame(const std::vector<Place>& first, std::vector<Place> second)
        : m_places{first, std::move(second)},
          m_window(bench::make_bare_window(L"bare panes", ::DefWindowProcW)) {
        ::SetWindowPos(m_window, nullptr, kFrame.left, kFrame.top, kFrame.Width(), kFrame.Height(),
                       SWP_NOZORDER);
        for (const Place& place : first) {
            const CRect& rect = place.rect;
            m_windows.push_back(::CreateWindowExW(
                0, L"bare panes", L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, rect.left, rect.top,
                rect.Width(), rect.Height(), at(place.parent), nullptr, nullptr, nullptr));
            m_children[place.parent].push_back(m_windows.size() - 1);
        }
    }
    ~BareFrame() { ::DestroyWindow(m_window); }
    BareFrame(const BareFrame&) = delete;
    BareFrame& operator=(const BareFrame&) = delete;

    HWND window() const { return m_window; }
    void arrange(int which) {
        const std::vector<Place>& places = m_places[static_cast<std::size_t>(which)];
        for (const auto& [parent, children] : m_children) {
            HDWP batch = ::BeginDeferWindowPos(static_cast<int>(children.size()));
            for (const std::size_t child : children) {
                const CRect& rect = places[child].rect;
                batch = ::DeferWindowPos(batch, m_windows[child], nullptr, rect.left, rect.top, rect.Width(),
                                         rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
            }
            ::EndDeferWindowPos(batch);
        }
    }

private:
    HWND at(int index) const { return index < 0 ? m_window : m_windows[static_cast<std::size_t>(index)]; }

    std::array<std::vector<Place>, 2> m_places;
    HWND m_window;
    std::vector<HWND> m_windows;
    std::map<int, std::vector<std::size_t>> m_children;  ///< by the index of their parent
};

/// Seconds for a number of steps, each to the other of two states; painting in between is not counted.
template <class Step>
double steps(HWND window, HWND other, Step&& step) {
    ::ShowWindow(other, SW_HIDE);
    ::ShowWindow(window, SW_SHOW);
    ::SetActiveWindow(window);
    bench::drain_queue();
    double seconds = 0;
    for (int i = 0; i < kSteps; ++i) {
        seconds += bench::seconds_of([&] { step((i + 1) % 2); });
        bench::drain_queue();
    }
    return seconds;
}

void measure_divider() {
    const PanedFrame ours(kPanes);
    CPaneDivider* divider = ours.divider();
    const std::vector<Place> first = ours.places();
    const auto move = [divider](int which) {
        CPoint offset(which != 0 ? kStep : -kStep, 0);
        divider->Move(offset);
    };
    move(1);
    BareFrame bare(first, ours.places());
    move(0);
    const bench::Comparison result = bench::compare(
        kRounds, kSteps, [&] { return steps(ours.window(), bare.window(), move); },
        [&] { return steps(bare.window(), ours.window(), [&](int which) { bare.arrange(which); }); });
    bench::report("one step of a divider with 12 panes", result, 1.15);
}

void measure_frame_size() {
    const PanedFrame ours(kPanes + kTabs);
    for (int i = 1; i < kTabs; ++i) ours.pane(kPanes + i).AttachToTabWnd(&ours.pane(kPanes), DM_STANDARD);
    bench::drain_queue();
    const auto size = [](HWND window, int which) {
        ::SetWindowPos(window, nullptr, 0, 0, kFrame.Width() + which * kStep, kFrame.Height() + which * kStep,
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    };
    const std::vector<Place> first = ours.places();
    size(ours.window(), 1);
    BareFrame bare(first, ours.places());
    size(ours.window(), 0);
    const bench::Comparison result = bench::compare(
        kRounds, kSteps,
        [&] { return steps(ours.window(), bare.window(), [&](int which) { size(ours.window(), which); }); },
        [&] {
            return steps(bare.window(), ours.window(), [&](int which) {
                size(bare.window(), which);
                bare.arrange(which);
            });
        });
    bench::report("one size step of a frame with 12 panes and 4 tabs", result, 1.15);
}

/// Prints the middle one of some rounds, for what has no peer.
template <class Work>
void tell(const char* what, Work&& work) {
    std::vector<double> times;
    for (int i = 0; i < kRounds; ++i) times.push_back(bench::seconds_of([&] { work(i); }));
    std::printf("note\t%s: %.2f ms\n", what, bench::middle(times) * 1000);
}

void measure_state() {
    const PanedFrame ours(kManyPanes);
    CMemFile states[2];
    for (CMemFile& state : states) {
        CArchive archive(&state, CArchive::store);
        ours.manager().Serialize(archive);
        archive.Close();
        ours.pane(0).FloatPane(CRect(200, 200, 400, 400));
        ours.pane(7).DockToFrameWindow(CBRS_ALIGN_LEFT);
    }
    tell("loading a state of 40 panes that changes two", [&](int round) {
        CMemFile& state = states[round % 2];
        state.SeekToBegin();
        CArchive archive(&state, CArchive::load);
        ours.manager().Serialize(archive);
        bench::drain_queue();
    });
}

/// A docked set of palettes.
void fill(CKbUiPaletteSet& set, const PanedFrame& in, int palettes) {
    set.Create(L"Set", WS_CHILD | WS_VISIBLE | CBRS_RIGHT | CBRS_FLOAT_MULTI, CRect(0, 0, 200, 400),
               &in.frame(), 0);
    for (int i = 0; i < palettes; ++i) {
        auto* palette = new CKbUiPalette;
        CString name;
        name.Format(L"Palette %d", i);
        palette->SetName(name);
        set.AddPalette(palette);
    }
    set.SetActivePalette(0);
    set.EnableDocking(CBRS_ALIGN_ANY);
    in.frame().DockPane(&set);
    bench::drain_queue();
}

void measure_palettes() {
    const PanedFrame in(1);
    CKbUiPaletteSet few(2), many(2);
    fill(few, in, kStripTabs);
    tell("painting a strip of 20 tabs", [&](int) {
        few.GetStrip().Invalidate(FALSE);
        few.GetStrip().UpdateWindow();
        ::GdiFlush();
    });
    fill(many, in, kPalettes);
    tell("changing palettes in a set of 50, painted", [&](int round) {
        many.SetActivePalette(round % 2 * (kPalettes - 1));
        bench::drain_queue();
        ::GdiFlush();
    });
    few.DestroyWindow();
    many.DestroyWindow();
}

}  // namespace

void bench::measure_docking() {
    measure_divider();
    measure_frame_size();
    measure_state();
    measure_palettes();
}
