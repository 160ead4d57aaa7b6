// The layout of a task dialog, and a tip shown.
#include "window_bench.h"

#include <afxcmn.h>

#include <ktui/tips/kh_tip_ctrl.h>
#include <ktui/tips/messages/dialog_measurer.h>

namespace {

constexpr int kRounds = 41;
constexpr int kCommands = 10;

TaskDialogContents ten_commands() {
    TaskDialogContents contents;
    contents.heading = L"The drawing refers to files that were not found. What is to become of them?";
    contents.options = kTaskDialogLinks;
    contents.commonButtons = 8;
    for (int i = 0; i < kCommands; ++i)
        contents.commands.push_back(
            {100 + i, L"Look for the file in another folder",
             L"The folder is kept with the drawing, so that the file is found again when it is opened.", 0});
    return contents;
}

/// Measures every text of `contents` as often as the layout did, and nothing else.
void measure_texts(CDC& dc, CFont& text, CFont& heading, const TaskDialogContents& contents, int width,
                   int trials) {
    const auto measured = [&](CFont& font, const CString& words) {
        CFont* const former = dc.SelectObject(&font);
        CRect rect(0, 0, width, 0);
        ::DrawTextW(dc.m_hDC, words, -1, &rect, DT_CALCRECT | DT_WORDBREAK);
        dc.SelectObject(former);
    };
    for (int trial = 0; trial < trials; ++trial) {
        measured(heading, contents.heading);
        for (const CTaskDialogButton& command : contents.commands) {
            measured(heading, command.m_text);
            measured(text, command.m_extendedText);
        }
    }
}

void measure_layout(CWnd& owner) {
    CFont text, heading;
    constexpr int kUnit = 11;
    text.CreateFont(-kUnit, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    heading.CreateFont(TaskDialogHeadingHeight(-kUnit), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    const DialogMeasurer measurer(owner, text, heading);
    const TaskDialogContents contents = ten_commands();
    TaskDialogMetrics metrics;
    metrics.fontHeight = kUnit;
    metrics.baseX = 8;
    metrics.baseY = 16;
    metrics.workWidth = 1920;
    metrics.workHeight = 1040;
    TaskDialogLayout layout;
    CClientDC dc(&owner);
    const auto ours = [&] {
        return bench::seconds_of([&] { layout = FitTaskDialog(contents, metrics, measurer); });
    };
    const auto peer = [&] {
        return bench::seconds_of(
            [&] { measure_texts(dc, text, heading, contents, layout.width - 80, layout.trials); });
    };
    const bench::Comparison result = bench::compare(kRounds, 1, ours, peer);
    bench::report("laying out a task dialog of 10 commands", result, 1.2);
    std::printf("note\tThe layout of 10 commands took %.2f ms and %d trials, to %d by %d pixels.\n",
                result.ours * 1e3, layout.trials, layout.width, layout.height);
}

/// A tracking tip of the system with one tool.
class BareTip {
public:
    explicit BareTip(HWND owner)
        : m_window(::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0,
                                     0, 0, owner, nullptr, nullptr, nullptr)) {
        m_tool.cbSize = sizeof m_tool;
        m_tool.uFlags = TTF_TRACK | TTF_ABSOLUTE;
        m_tool.hwnd = owner;
        m_tool.lpszText = const_cast<wchar_t*>(L"Layer: Walls and doors");
        tell(TTM_ADDTOOLW, 0);
        ::SendMessageW(m_window, TTM_TRACKPOSITION, 0, MAKELPARAM(200, 200));
    }
    ~BareTip() { ::DestroyWindow(m_window); }
    BareTip(const BareTip&) = delete;
    BareTip& operator=(const BareTip&) = delete;

    void show() {
        tell(TTM_TRACKACTIVATE, TRUE);
        ::UpdateWindow(m_window);
    }
    void hide() { tell(TTM_TRACKACTIVATE, FALSE); }

private:
    void tell(UINT message, WPARAM wParam) {
        ::SendMessageW(m_window, message, wParam, reinterpret_cast<LPARAM>(&m_tool));
    }
    HWND m_window;
    TOOLINFOW m_tool = {};
};

void measure_tip(CWnd& owner) {
    CKhTipCtrl tip;
    tip.Create(&owner);
    BareTip bare(owner.m_hWnd);
    const auto ours = [&] {
        bench::drain_queue();
        return bench::seconds_of([&] {
            tip.Activate(CPoint(200, 200), L"Layer: Walls and doors", false);
            tip.Deactivate();
        });
    };
    const auto peer = [&] {
        bench::drain_queue();
        return bench::seconds_of([&] {
            bare.show();
            bare.hide();
        });
    };
    bench::report("showing a tip", bench::compare(kRounds, 1, ours, peer), 0);
}

}  // namespace

void bench::measure_messages() {
    PickerHolder owner;
    measure_layout(owner);
    measure_tip(owner);
}
