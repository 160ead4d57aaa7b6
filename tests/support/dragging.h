// A drag that a test makes from beginning to end, without a button of the mouse.
#pragma once

#include <afxole.h>

#include <functional>
#include <string>
#include <vector>

#include "ui_test.h"

namespace ui_test {

/// Goes on dragging until `finish` answers something else than S_OK.
class TestDropSource : public COleDropSource {
public:
    std::function<SCODE()> finish;
    int feedbacks = 0;

    SCODE QueryContinueDrag(BOOL, DWORD) override { return finish(); }
    SCODE GiveFeedback(DROPEFFECT effect) override {
        ++feedbacks;
        return COleDropSource::GiveFeedback(effect);
    }
    BOOL OnBeginDrag(CWnd*) override { return TRUE; }
};

/// Moves the mouse by one pixel to and fro around `place` (screen) until `done`, one step each few
/// milliseconds.
inline void jiggle(CPoint place, const std::function<bool()>& done, int step = 0) {
    if (done()) return;
    ::SetCursorPos(place.x + step % 2, place.y);
    later([=] { jiggle(place, done, step + 1); }, 5);
}

/// Memory with `text`, for the clipboard format CF_UNICODETEXT.
inline HGLOBAL textMemory(const std::wstring& text) {
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t));
    std::copy_n(text.c_str(), text.size() + 1, static_cast<wchar_t*>(::GlobalLock(memory)));
    ::GlobalUnlock(memory);
    return memory;
}

/// The text in such memory, which is freed.
inline std::wstring takeText(HGLOBAL memory) {
    if (!memory) return L"(none)";
    const std::wstring text = static_cast<const wchar_t*>(::GlobalLock(memory));
    ::GlobalUnlock(memory);
    ::GlobalFree(memory);
    return text;
}

/// Drags `source` over the middle of `window` and drops it there once `isReady`; answers the effect. Gives up
/// after some seconds.
inline DROPEFFECT dragOnto(const CWnd& window, COleDataSource& source, const std::function<bool()>& isReady,
                           SCODE end = DRAGDROP_S_DROP) {
    CRect place;
    window.GetWindowRect(&place);
    bool isOver = false;
    const ULONGLONG deadline = ::GetTickCount64() + 5000;
    TestDropSource drop;
    drop.finish = [&]() -> SCODE {
        if (::GetTickCount64() > deadline) {
            ADD_FAILURE() << "the drag never got ready";
            return DRAGDROP_S_CANCEL;
        }
        return isReady() ? end : S_OK;
    };
    ::SetCursorPos(place.CenterPoint().x, place.CenterPoint().y);
    jiggle(place.CenterPoint(), [&isOver] { return isOver; });
    const DROPEFFECT effect = source.DoDragDrop(DROPEFFECT_COPY | DROPEFFECT_MOVE, nullptr, &drop);
    isOver = true;
    // The last step of the mouse is still to come, and looks at isOver.
    bool passed = false;
    later([&passed] { passed = true; }, 20);
    pump_until([&passed] { return passed; });
    return effect;
}

}  // namespace ui_test
