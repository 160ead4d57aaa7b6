// A theme of the test's own, which records what is asked of it.
#pragma once

#include <string>
#include <vector>

#include <ktui/host/test_door.h>

#include "ui_test.h"

namespace ui_test {

/// One question to the theme as it came.
struct Asked {
    std::string call;
    int part = 0;
    int state = 0;
    CRect rect{0, 0, 0, 0};
    bool operator==(const Asked& other) const {
        return call == other.call && part == other.part && state == other.state && rect == other.rect;
    }
};
inline void PrintTo(const Asked& asked, std::ostream* out) {
    *out << asked.call << " " << asked.part << " " << asked.state << " (" << asked.rect.left << " "
         << asked.rect.top << " " << asked.rect.right << " " << asked.rect.bottom << ")";
}

/// A theme of the test's own, in force for as long as it lives.
class FakeTheme {
public:
    static inline std::vector<Asked> asked;
    static inline bool hasData = true, transparent = false, active = true;
    static inline HDC dc = nullptr;
    static inline HDC wanted = nullptr;  ///< where all has to be drawn; null leaves that open
    static inline HWND opened = nullptr;

    FakeTheme() : m_former(KtUiTestDoor().exchangeThemeApi(api())) {
        asked.clear();
        hasData = active = true;
        transparent = false;
        wanted = nullptr;
    }
    ~FakeTheme() { KtUiTestDoor().exchangeThemeApi(m_former); }

private:
    static HTHEME handle() { return reinterpret_cast<HTHEME>(0x1234); }
    static HTHEME WINAPI open(HWND window, LPCWSTR classes) {
        opened = window;
        asked.push_back({std::string("open ") + CStringA(CString(classes)).GetString()});
        return hasData ? handle() : nullptr;
    }
    static HRESULT WINAPI close(HTHEME theme) {
        asked.push_back({theme == handle() ? "close" : "close another"});
        return S_OK;
    }
    static BOOL WINAPI isActive() { return active; }
    static BOOL WINAPI isTransparent(HTHEME theme, int part, int state) {
        asked.push_back({theme == handle() ? "transparent?" : "another transparent?", part, state});
        return transparent;
    }
    static void expectWanted(HDC target) { EXPECT_TRUE(wanted == nullptr || target == wanted); }
    static HRESULT WINAPI drawParent(HWND window, HDC target, RECT* rect) {
        expectWanted(target);
        asked.push_back({window == opened ? "parent" : "another's parent", 0, 0, CRect(*rect)});
        return S_OK;
    }
    static HRESULT WINAPI draw(HTHEME theme, HDC target, int part, int state, const RECT* rect,
                               const RECT* clip) {
        expectWanted(target);
        dc = target;
        ::FillRect(target, rect, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
        const char* call = theme != handle()         ? "draw another"
                           : !clip                   ? "draw"
                           : ::EqualRect(rect, clip) ? "draw clipped"
                                                     : "draw clipped elsewhere";
        asked.push_back({call, part, state, CRect(*rect)});
        return S_OK;
    }
    static HRESULT WINAPI content(HTHEME theme, HDC target, int part, int state, const RECT* bounds,
                                  RECT* result) {
        expectWanted(target);
        asked.push_back({theme == handle() ? "content" : "another content", part, state, CRect(*bounds)});
        *result = *bounds;
        ::InflateRect(result, -3, -3);
        return S_OK;
    }
    static ThemeApi api() {
        ThemeApi entries = MakeThemeApi({});
        entries.openThemeData = open;
        entries.closeThemeData = close;
        entries.isThemeActive = isActive;
        entries.isThemeBackgroundPartiallyTransparent = isTransparent;
        entries.drawThemeParentBackground = drawParent;
        entries.drawThemeBackground = draw;
        entries.getThemeBackgroundContentRect = content;
        return entries;
    }
    ThemeApi m_former;
};

}  // namespace ui_test
