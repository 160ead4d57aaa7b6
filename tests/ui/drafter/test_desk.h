// A main window that shows nothing of its drawings but what the status line would say, and builds their
// scenes as a test wants.
#pragma once

#include <functional>

#include <standin_host.h>

#include "../../../samples/drafter/drawing_window.h"
#include "../../../samples/drafter/options.h"

namespace ui_test {

class TestDesk : public CDrawingDesk {
public:
    TestDesk(CStandinHost& host, CWnd& owner) : m_host(host), m_owner(owner) {}

    int activated = 0, left = 0, changed = 0;
    CString notice;  ///< of the drawing that had one last
    std::function<SceneOptions(bool inBackground)> sceneOptions = [](bool) { return SceneOptions(); };

private:
    CStandinHost& Host() override { return m_host; }
    const DrafterOptions& Options() const override { return m_options; }
    CWnd& DialogOwner() override { return m_owner; }
    SceneOptions ViewSceneOptions(OdDbDatabase&, bool inBackground) override {
        return sceneOptions(inBackground);
    }
    void DrawingActivated(CDrawingWindow* window) override {
        ++(window != nullptr ? activated : left);
        m_host.SetCurrentDocument(window != nullptr ? &window->document() : nullptr);
        if (window != nullptr) window->RefreshIfOutdated();
    }
    void DrawingChanged(const CDrawingWindow& window) override {
        ++changed;
        notice = window.Notice();
    }
    void SelectionChanged(const CDrawingWindow&) override {}
    void PointerMoved(const CDrawingWindow&) override {}
    void NameChanged(const CDrawingWindow&) override {}
    void NoticeChanged(const CDrawingWindow& window) override { notice = window.Notice(); }
    void Say(const CString&) override {}
    void SayIdle() override {}
    void TakeTyped() override {}
    bool GiveUpCommand() override { return false; }
    CDrawingWindow* WindowOf(const CString&) override { return nullptr; }

    CStandinHost& m_host;
    CWnd& m_owner;
    DrafterOptions m_options;
};

}  // namespace ui_test
