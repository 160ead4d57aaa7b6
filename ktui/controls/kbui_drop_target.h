// CKbUiDropTarget: a target of drag and drop that refuses everything.
//
// A client derives from it and overrides what it accepts:
//
//     class CLayerTarget : public CKbUiDropTarget {
//         DROPEFFECT OnDragOver(CWnd* window, COleDataObject* data, DWORD keys, CPoint point) override;
//         BOOL OnDrop(CWnd* window, COleDataObject* data, DROPEFFECT effect, CPoint point) override;
//         DROPEFFECT OnDropEx(CWnd*, COleDataObject*, DROPEFFECT, DROPEFFECT, CPoint) override {
//             return static_cast<DROPEFFECT>(-1);  // so that OnDrop is asked
//         }
//     };
#pragma once

#include <afxole.h>

#include <ktui/ktui_api.h>

class KTUI_API CKbUiDropTarget : public COleDropTarget {
    DECLARE_DYNAMIC(CKbUiDropTarget)

public:
    // Kept: each answers 0, OnDropEx too, which leaves OnDrop unasked.
    DROPEFFECT OnDragEnter(CWnd* window, COleDataObject* data, DWORD keys, CPoint point) override;
    DROPEFFECT OnDragOver(CWnd* window, COleDataObject* data, DWORD keys, CPoint point) override;
    void OnDragLeave(CWnd* window) override;
    DROPEFFECT OnDragScroll(CWnd* window, DWORD keys, CPoint point) override;
    BOOL OnDrop(CWnd* window, COleDataObject* data, DROPEFFECT effect, CPoint point) override;
    DROPEFFECT OnDropEx(CWnd* window, COleDataObject* data, DROPEFFECT usual, DROPEFFECT offered,
                        CPoint point) override;
};
