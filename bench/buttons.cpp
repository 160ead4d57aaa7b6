// Painting two hundred bitmap buttons against as many bare ones with the same picture.
#include "window_bench.h"

#include <vector>

#include <ktui/controls/ktui_buttons.h>

#include "bench_ids.h"

namespace {

constexpr int kButtons = 200;
constexpr int kColumns = 20;
constexpr int kSide = 26;  // pixels of a button
constexpr int kStep = kSide + 2;
constexpr RECT kWindow = {50, 50, 50 + kColumns* kStep, 50 + kButtons / kColumns* kStep};
constexpr int kRounds = 31;
constexpr int kPaints = 5;
constexpr const wchar_t* kPicture = L"PICK";

CRect place_of(int i) {
    return CRect(CPoint(i % kColumns * kStep, i / kColumns * kStep), CSize(kSide, kSide));
}

UINT id_of(int i) { return static_cast<UINT>(IDC_FIRST_CHILD + i); }

/// Seconds until every child of `window` has painted itself anew, with `other` out of the way.
double repaint(HWND window, HWND other) {
    ::ShowWindow(other, SW_HIDE);
    ::ShowWindow(window, SW_SHOWNA);
    ::SetWindowPos(window, HWND_TOP, kWindow.left, kWindow.top, kWindow.right - kWindow.left,
                   kWindow.bottom - kWindow.top, SWP_NOACTIVATE);
    bench::drain_queue();
    double seconds = 0;
    for (int i = 0; i < kPaints; ++i)
        seconds += bench::seconds_of([&] {
            ::RedrawWindow(window, nullptr, nullptr,
                           RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
            ::GdiFlush();
        });
    return seconds;
}

/// A window full of the toolkit's buttons.
class OurButtons {
public:
    OurButtons() : m_buttons(kButtons) {
        for (int i = 0; i < kButtons; ++i) {
            CKtUiBitmapButton& button = m_buttons[static_cast<std::size_t>(i)];
            button.Create(L"", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, place_of(i), &m_holder, id_of(i));
            button.LoadBitmapW(kPicture);
        }
    }
    ~OurButtons() {
        for (CKtUiBitmapButton& each : m_buttons) each.DestroyWindow();
    }
    OurButtons(const OurButtons&) = delete;
    OurButtons& operator=(const OurButtons&) = delete;
    HWND window() const { return m_holder.m_hWnd; }

private:
    bench::PickerHolder m_holder;
    std::vector<CKtUiBitmapButton> m_buttons;
};

/// A window full of bare buttons with the same picture.
class BareButtons {
public:
    BareButtons()
        : m_picture(static_cast<HBITMAP>(
              ::LoadImageW(::GetModuleHandleW(L"ktui.dll"), kPicture, IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR))),
          m_window(bench::make_bare_window(L"bare buttons", ::DefWindowProcW)) {
        for (int i = 0; i < kButtons; ++i) {
            const CRect place = place_of(i);
            const HWND button =
                ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE | BS_BITMAP, place.left, place.top,
                                  place.Width(), place.Height(), m_window,
                                  reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id_of(i))), nullptr, nullptr);
            ::SendMessageW(button, BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(m_picture));
        }
    }
    ~BareButtons() {
        ::DestroyWindow(m_window);
        ::DeleteObject(m_picture);
    }
    BareButtons(const BareButtons&) = delete;
    BareButtons& operator=(const BareButtons&) = delete;
    HWND window() const { return m_window; }

private:
    HBITMAP m_picture;
    HWND m_window;
};

}  // namespace

void bench::measure_buttons() {
    const OurButtons ours;
    const BareButtons bare;
    const Comparison result = compare(
        kRounds, kPaints, [&] { return repaint(ours.window(), bare.window()); },
        [&] { return repaint(bare.window(), ours.window()); });
    report("painting 200 bitmap buttons", result, 1.2);
}
