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
    const auto fillPeer = [&] {
        ::SendMessageW(peer, CB_RESETCONTENT, 0, 0);
        drain_queue();
        return seconds_of([&] {
            for (int i = 0; i < kEntries; ++i) {
                const auto text = reinterpret_cast<LPARAM>(names[static_cast<size_t>(i)].c_str());
                const LRESULT at = ::SendMessageW(peer, CB_INSERTSTRING, static_cast<WPARAM>(-1), text);
                ::SendMessageW(peer, CB_SETITEMDATA, static_cast<WPARAM>(at), i);
            }
        });
    };
    report("filling a picker with 1,000 entries", compare(kRounds, 1, fillOurs, fillPeer), 1.05);
}
