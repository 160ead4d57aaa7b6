// The gallery, driven from outside.
#pragma once

#include "../../samples/gallery/resource.h"
#include "program_driver.h"

namespace journey {

class GalleryProgram : public Program {
public:
    GalleryProgram()
        : Program(L"\"" + programFolder() + L"gallery.exe\"", [](HWND window) {
              return textOf(window) == L"Gallery" && item(window, IDC_PAGES) != nullptr;
          }) {}

    /// Goes to the entry `name` of the tree, or so many entries below it, whose page has a button `command`;
    /// false if there is none.
    bool openPage(const wchar_t* name, const std::wstring& command, int below = 0) {
        activate(frame());
        for (int i = 0; i < 60 && focusOf(frame()) != item(frame(), IDC_PAGES); ++i) key(VK_TAB);
        key(VK_HOME);
        type(name);
        for (int i = 0; i < below; ++i) key(VK_DOWN);
        return waitUntil([&] { return button(command) != nullptr; });
    }
    /// The visible button with this text; null without one.
    HWND button(const std::wstring& text) const {
        struct Search {
            const std::wstring& text;
            HWND found;
        } search = {text, nullptr};
        ::EnumChildWindows(
            frame(),
            [](HWND window, LPARAM parameter) -> BOOL {
                auto& s = *reinterpret_cast<Search*>(parameter);
                if (!::IsWindowVisible(window) || textOf(window) != s.text) return TRUE;
                s.found = window;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&search));
        return search.found;
    }
};

}  // namespace journey
