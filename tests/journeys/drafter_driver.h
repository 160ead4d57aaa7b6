// Drives the drafter sample from outside, and knows its drawings and settings.
#pragma once

#include "../../samples/drafter/resource.h"
#include <vector>

#include "program_driver.h"

namespace journey {

class Drafter : public Program {
public:
    /// Starts drafter.exe on `drawing` (a path, or empty for none): the one in `folder` (with a backslash at
    /// the end), or without a folder the one beside this program. `switches` go before the drawing.
    explicit Drafter(const std::wstring& drawing, const std::wstring& folder = {},
                     const std::wstring& switches = {});

    /// The window of the drawing in front, and the view in it; null without one.
    HWND drawing() const;
    HWND view() const;
    /// The strip of tabs.
    HWND tabs() const;
    /// A point of the strip on the tab of the drawing in front: near its left end, where it stays when
    /// another one comes to the front. Goes through the tabs by clicks until the one with `title` is in
    /// front.
    POINT chooseTab(const std::wstring& title);
    /// The titles of the windows of all drawings, those first that were opened first.
    std::vector<std::wstring> drawings() const;
    /// Opens another drawing by File > Open.
    void openDrawing(const std::wstring& path);
    /// Opens Format > Properties by its key and answers the dialog.
    HWND openProperties();
    /// The panel of a palette, docked or floating, by a control that no other one has, if that can be seen;
    /// null otherwise.
    HWND panelWith(int control) const;
    /// Goes to the palette of layers by its key and answers its panel.
    HWND openLayers();
};

/// Controls that only one panel has.
constexpr int kPropertiesPanel = IDC_PANEL_TITLE, kLayersPanel = IDC_CURRENT_LAYER;

/// The folder of the sample's drawings, and a scratch copy of one of them.
std::wstring drawingsFolder();
std::wstring scratchCopy(const std::wstring& drawing);
std::wstring scratchPath(const std::wstring& name);

/// Settings of the sample in the registry: forgets those of its dialogs and its recent files, and reads one
/// number (`found` tells whether it is there).
void forgetSettings();
int setting(const std::wstring& dialog, const std::wstring& value, bool& found);
void storeSetting(const std::wstring& dialog, const std::wstring& value, int number);

}  // namespace journey
