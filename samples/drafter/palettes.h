// CPalettes: the drafter's palettes in their set, which docks in the main window, and the set of the
// extension: what the menu shows and hides, what follows the drawing, and what is kept for the user beside
// the layout of the panes.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <ktui/ktui.h>

#include "blocks_panel.h"
#include "draft_document.h"
#include "extensions.h"
#include "layers_panel.h"
#include "panel_palette.h"
#include "properties_panel.h"

class CPalettes {
public:
    /// `changed` is called when a palette has changed the drawing, with the name of what was changed: a
    /// string; `redrawn` when it has made the step of Undo itself. Blocks go to `target`.
    CPalettes(std::function<void(UINT name)> changed, std::function<void()> redrawn, CBlockTarget& target);
    ~CPalettes();
    CPalettes(const CPalettes&) = delete;
    CPalettes& operator=(const CPalettes&) = delete;

    /// Makes the palettes and docks them as they stand at first. False without the set; a palette that can't
    /// be made is left out, and IsThere says so.
    bool Create(CMDIFrameWndEx& frame);
    /// Makes the set with the extension's palettes, hidden; without any there is no such set.
    void AddExtension(CExtensions& extensions, CDrafterServices& services);
    /// Shows a drawing as it is now.
    void ShowDrawing(CDraftDocument& document);
    /// Shows the values of `objects` of a drawing, or its current settings.
    void ShowObjects(OdDbDatabase& drawing, const std::vector<OdDbObjectId>& objects);
    /// No drawing is open: the palettes are empty, and nothing in them can be used.
    void ShowNothing();
    /// Writes what is being typed.
    void TakeTyped();

    // By the commands of the menu.
    bool IsThere(UINT command) const;
    bool IsShown(UINT command) const;
    void Toggle(UINT command);
    /// Name of the extension's palettes.
    CString ExtensionName() const { return m_extensionSet.GetName(); }
    /// Shows the palette, and gives it the focus.
    void Open(UINT command);

    /// Whether palettes that are docked, or float, stay where they are.
    bool IsLocked(UINT command) const;
    void ToggleLock(UINT command);

    /// The user's palettes and locks, which the application keeps; the layout of the panes is its own affair.
    void Load(CWinAppEx& keeper);
    void Save(CWinAppEx& keeper) const;

    /// Lets the user at the palettes, docked and floating, or keeps him from them.
    void Enable(bool enable);
    /// Brings what floats above the main window.
    void RaiseFloating();

private:
    struct Entry {
        UINT command;
        CPanelPalette* palette;                 ///< null if it can't be made
        std::unique_ptr<CPanelPalette> hidden;  ///< the palette while it isn't in the set, which owns it then
    };
    void add(UINT command, std::unique_ptr<CPanelPalette> palette);
    Entry* entryOf(UINT command);
    const Entry* entryOf(UINT command) const;
    void putIn(Entry& entry);
    void takeOut(Entry& entry);
    void lock() const;
    void enableExtension(bool enable);
    bool isExtensionThere() const { return m_extensionSet.m_hWnd != nullptr; }

    CMDIFrameWndEx* m_frame = nullptr;
    CPropertiesPanel m_properties;
    CLayersPanel m_layers;
    CBlocksPanel m_blocks;
    std::vector<Entry> m_entries;  ///< from the top of the strip on
    CKbUiPaletteSet m_set;
    CKbUiPaletteSet m_extensionSet;  ///< without a window while there are no palettes for it
    bool m_isDockedLocked = false;
    bool m_isFloatingLocked = false;
};
