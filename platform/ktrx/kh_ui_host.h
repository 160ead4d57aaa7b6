// Windows and dialogs of the application.
//
// The facet may be absent while the application shuts down: callers test for null.
#pragma once

#include <windows.h>

#include <cstdint>

#include "kh_runtime_host.h"

class CWinApp;
class CWnd;
class OdCmColor;
class OdDbObjectId;

class CKhUiHost {
public:
    /// The host's application object; its m_pMainWnd is the parent of dialogs. Never null.
    virtual CWinApp* application() = 0;
    /// The frame window that panes dock to, or null if there is none.
    virtual CWnd* mainFrame() = 0;

    /// Lets the user pick an indexed colour. `index` is the colour to start from and receives the choice;
    /// `allowMeta` offers ByLayer (256) and ByBlock (0); `layerIndex` is the colour to show for ByLayer, -1
    /// if unknown. False means cancelled, and `index` is then not looked at.
    virtual bool showColorIndexDialog(int& index, bool allowMeta, int layerIndex) = 0;

    /// Lets the user pick any colour. `color` is the colour to start from and receives the choice;
    /// `allowMeta` offers ByLayer and ByBlock; `layerColor` is shown for ByLayer; `palette` holds 256 colours
    /// (red in the low byte) to show the indexed ones by, or is null for the host's own. False means
    /// cancelled.
    virtual bool showTrueColorDialog(OdCmColor& color, bool allowMeta, const OdCmColor& layerColor,
                                     const std::uint32_t* palette) = 0;

    /// Lets the user pick a plot style. `currentName` is the style to start from, empty for none;
    /// `allowByLayerByBlock` offers these two. `chosenName` receives the choice, a text that belongs to the
    /// host and stays valid until the next call. False means cancelled.
    virtual bool showPlotStyleDialog(const wchar_t* currentName, bool allowByLayerByBlock,
                                     const wchar_t*& chosenName) = 0;

    /// Shows the linetype manager, which may load and delete linetypes of the drawing. `current` is the one
    /// to start from, null for none; `chosen` receives the choice and is left alone by a cancel. `mode` is 1.
    virtual bool showLinetypeDialog(const OdDbObjectId& current, OdDbObjectId& chosen, int mode) = 0;

    /// Opens help on `topic`, or its start page for null.
    virtual void showHelp(const wchar_t* topic) = 0;

    /// Reads the path variable `name` ("PrinterStyleSheetDir": folders separated by semicolons). Answers
    /// kKhStatusOk, or another value if there is no such variable.
    virtual int getPathVariable(const wchar_t* name, wchar_t (&value)[kKhPathLength]) = 0;

protected:
    ~CKhUiHost() = default;
};
