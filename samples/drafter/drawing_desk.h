// CDrawingDesk: what the main window is to the windows of the drawings in it: their host, the owner of their
// dialogs, and the bars, palettes and status line that follow the drawing in front.
#pragma once

#include <afxwin.h>

#include "scene_options.h"

class CDrawingWindow;
class CStandinHost;
struct DrafterOptions;

class CDrawingDesk {
public:
    virtual CStandinHost& Host() = 0;
    virtual const DrafterOptions& Options() const = 0;
    /// Owns the dialogs and messages of a drawing.
    virtual CWnd& DialogOwner() = 0;
    /// What the scenes of views are built with; `inBackground` for one that another thread builds.
    virtual SceneOptions ViewSceneOptions(OdDbDatabase& drawing, bool inBackground) = 0;

    /// A drawing's window came to the front, or with null the last one is going.
    virtual void DrawingActivated(CDrawingWindow* window) = 0;
    /// What a window shows has changed: the drawing itself, what is selected, where the pointer is, how the
    /// drawing is called, what the status line tells of it. What isn't in front is not shown.
    virtual void DrawingChanged(const CDrawingWindow& window) = 0;
    virtual void SelectionChanged(const CDrawingWindow& window) = 0;
    virtual void PointerMoved(const CDrawingWindow& window) = 0;
    virtual void NameChanged(const CDrawingWindow& window) = 0;
    virtual void NoticeChanged(const CDrawingWindow& window) = 0;
    /// Says a prompt in the status line, or what it says at rest.
    virtual void Say(const CString& prompt) = 0;
    virtual void SayIdle() = 0;

    /// Writes what is being typed into a palette.
    virtual void TakeTyped() = 0;
    /// If a dialog waits for something to be picked, gives the picking up, so that the dialog comes back.
    /// False if none does.
    virtual bool GiveUpCommand() = 0;
    /// The window of the drawing in the file `path`; null if that is not open.
    virtual CDrawingWindow* WindowOf(const CString& path) = 0;

protected:
    ~CDrawingDesk() = default;
};
