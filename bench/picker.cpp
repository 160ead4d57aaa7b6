#include "window_bench.h"

#include <string>
#include <vector>

#include <ktui/pickers/mru_combo_box.h>

namespace {

constexpr int kEntries = 1000;
constexpr int kRounds = 31;

std::vector<std::wstring> make_names() {
    std::vector<std::wstring> names;
    for (int i = 0; i < kEntries; ++i) names.push_back(L"layer " + std::to_wstring(i * 7919 % kEntries));
    return names;
}

WNDPROC platformProcedure = nullptr;

/// The shortest way in which a window's messages can be looked at.
LRESULT CALLBACK pass_on(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::CallWindowProcW(platformProcedure, window, message, wParam, lParam);
}

/// Seconds for filling `combo`, emptied before, by bare messages.
double fill_by_messages(HWND combo, const std::vector<std::wstring>& names) {
    ::SendMessageW(combo, CB_RESETCONTENT, 0, 0);
    bench::drain_queue();
    return bench::seconds_of([&] {
        for (int i = 0; i < kEntries; ++i) {
            const auto text = reinterpret_cast<LPARAM>(names[static_cast<size_t>(i)].c_str());
            const LRESULT at = ::SendMessageW(combo, CB_INSERTSTRING, static_cast<WPARAM>(-1), text);
            ::SendMessageW(combo, CB_SETITEMDATA, static_cast<WPARAM>(at), i);
        }
    });
}

}  // namespace

void bench::measure_picker() {
    const std::vector<std::wstring> names = make_names();
    PickerHolder holder;
    CKtUiMRUComboBox ours;
    ours.Create(kPickerStyle, kPickerPlace, &holder, kPickerId);
    const BareCombo bare;
    HWND peer = bare.get();
    const auto fillOurs = [&] {
        ours.ResetContent();
        drain_queue();
        return seconds_of([&] {
            for (int i = 0; i < kEntries; ++i) ours.AddItemToList(names[static_cast<size_t>(i)].c_str(), i);
        });
    };
    const BareCombo bareSubclassed;
    HWND subclassed = bareSubclassed.get();
    platformProcedure = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(subclassed, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&pass_on)));
    const auto fillPeer = [&] { return fill_by_messages(peer, names); };
    const auto fillSubclassed = [&] { return fill_by_messages(subclassed, names); };
    report("filling a picker with 1,000 entries", compare(kRounds, 1, fillOurs, fillPeer), 1.05);
    report("  a combo box with an empty subclass instead", compare(kRounds, 1, fillSubclassed, fillPeer), 0);
}
