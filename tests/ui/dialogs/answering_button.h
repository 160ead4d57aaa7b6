// A button that answers the notification protocol as a test says, and keeps what it was asked.
#pragma once

#include <functional>
#include <map>
#include <vector>

#include <afxwin.h>

#include <ktui/host/notification.h>

class AnsweringButton : public CButton {
public:
    std::map<int, LRESULT> replies;  ///< by notification; 0 for the others
    CString tipText = L"the whole text";
    CRect tipRect{2, 3, 40, 12};
    /// Runs with each notification before it is answered.
    std::function<void(int notification)> onHeard;

    std::vector<int> heard;         ///< notifications in order
    std::vector<WPARAM> words;      ///< the wParam of each
    std::vector<LPARAM> data;       ///< the lParam of each
    std::vector<CPoint> points;     ///< of the questions that come with one
    CRect offeredRect{9, 9, 9, 9};  ///< as it came with the last question for one
    int rightClicks = 0;
    HDC drawnOn = nullptr;
    LPARAM drawDatum = -1;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_RBUTTONDOWN) ++rightClicks;
        return message == KbUiMessage() ? answer(wParam, lParam)
                                        : CButton::WindowProc(message, wParam, lParam);
    }

private:
    LRESULT answer(WPARAM wParam, LPARAM lParam) {
        const int notification = static_cast<int>(wParam >> 16 & 0xFFFF);
        if (onHeard) onHeard(notification);
        heard.push_back(notification);
        words.push_back(wParam);
        data.push_back(lParam);
        switch (notification) {
            case kKbUiNotifyGetTipSupport:
            case kKbUiNotifyHitTipRect:
                if (lParam > 1) points.push_back(*reinterpret_cast<CPoint*>(lParam));
                break;
            case kKbUiNotifyGetTipText: *reinterpret_cast<CString*>(lParam) = tipText; break;
            case kKbUiNotifyGetTipRect:
                offeredRect = *reinterpret_cast<CRect*>(lParam);
                *reinterpret_cast<CRect*>(lParam) = tipRect;
                break;
            case kKbUiNotifyDrawTip:
                drawDatum = lParam;
                drawnOn = lParam ? reinterpret_cast<CDC*>(lParam)->GetSafeHdc() : nullptr;
                break;
            default: break;
        }
        const auto found = replies.find(notification);
        return found != replies.end() ? found->second : 0;
    }
};
