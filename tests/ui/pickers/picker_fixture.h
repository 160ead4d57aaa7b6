// A picker in a holder, and a user who drops it down and chooses.
#pragma once

#include <ktui/pickers/mru_combo_box.h>

#include <string>
#include <vector>

#include "leak_count.h"
#include "recording_holder.h"
#include "test_host.h"

namespace ui_test {

constexpr UINT kPickerId = 61;
constexpr DWORD kPickerStyle = CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL;

/// Lets the application idle, which frees the temporary objects of the class layer.
inline void idle() {
    for (LONG count = 0; AfxGetThread()->OnIdle(count); ++count) {
    }
}

/// Does `openAndClose` some dozen times over and expects no GDI object, window or heap block to stay. The
/// leak tests do the same a thousand times with what every picker has in common; a test uses this for what is
/// its own.
template <class Action>
void expectNothingLeft(Action openAndClose) {
    constexpr int kTimes = 50;
    constexpr size_t kHeapSlack = 20;  // blocks; one left each time would be 50
    const auto heldAfterwards = [&] {
        for (int i = 0; i < kTimes; ++i) openAndClose();
        idle();
        return count_held_objects();
    };
    const HeldObjects before = heldAfterwards();
    const HeldObjects after = heldAfterwards();
    EXPECT_LE(after.gdiObjects, before.gdiObjects);
    EXPECT_LE(after.windows, before.windows);
    EXPECT_LE(after.heapBlocks, before.heapBlocks + kHeapSlack);
}

/// A picker of class `Class`, made by Create unless told otherwise.
template <class Class>
struct InHolder {
    TestHost host;
    RecordingHolder holder;
    Class picker;

    enum Route { kByCreate, kBySubclassing };

    explicit InHolder(Route route = kByCreate, DWORD style = kPickerStyle) {
        const CRect rect(10, 10, 210, 220);
        if (route == kByCreate) {
            picker.Create(WS_CHILD | WS_VISIBLE | style, rect, &holder, kPickerId);
            return;
        }
        picker.SubclassWindow(::CreateWindowExW(0, L"COMBOBOX", L"", WS_CHILD | WS_VISIBLE | style, rect.left,
                                                rect.top, rect.Width(), rect.Height(), holder.m_hWnd,
                                                reinterpret_cast<HMENU>(kPickerId), nullptr, nullptr));
    }

    /// Drops the list down, with the pointer where it enters no row of it.
    void dropDown() {
        ui_test::move_cursor({2, 2});
        picker.ShowDropDown(TRUE);
    }
    void closeUp() { picker.ShowDropDown(FALSE); }

    /// Drops the list down, goes to `index` and presses Enter, as a user does.
    void choose(int index) {
        dropDown();
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        ::GetComboBoxInfo(picker.m_hWnd, &info);
        ::SendMessageW(info.hwndList, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
        picker.SendMessage(WM_KEYDOWN, VK_RETURN);
        pump();
    }

    std::vector<std::wstring> texts() {
        std::vector<std::wstring> all;
        for (int i = 0; i < picker.GetCount(); ++i) {
            CString text;
            picker.GetLBText(i, text);
            all.emplace_back(text.GetString());
        }
        return all;
    }
    std::vector<__int64> cargos() {
        std::vector<__int64> all;
        for (int i = 0; i < picker.GetCount(); ++i) all.push_back(picker.GetItemCargo(i));
        return all;
    }
};

/// A bitmap to draw on, filled with one colour.
class Canvas {
public:
    Canvas(int width, int height, COLORREF fill) {
        CClientDC screen(nullptr);
        dc.CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, width, height);
        m_former = dc.SelectObject(&m_bitmap);
        dc.FillSolidRect(CRect(0, 0, width, height), fill);
    }
    ~Canvas() { dc.SelectObject(m_former); }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    CDC dc;

private:
    CBitmap m_bitmap;
    CBitmap* m_former;
};

}  // namespace ui_test
