// The picker bar: colour, linetype, lineweight, plot style and layer of the selection, or of what is drawn
// next. With different values in the selection a picker shows none. What is typed into the search box narrows
// the list of layers; Enter takes the first of them, the down arrow drops the list, Escape empties the box.
// What a row has no room for goes on in the next one.
#pragma once

#include <functional>

#include <ktui/ktui.h>

#include "bar_rows.h"
#include "layer_picker.h"
#include "property_pickers.h"

class CPickerBar : public CKtUiDialogBar {
    DECLARE_DYNAMIC(CPickerBar)

public:
    /// `changed` is called when the bar has changed the drawing, with the name of what was changed: a string.
    explicit CPickerBar(std::function<void(UINT name)> changed) : m_changed(std::move(changed)) {}

    BOOL CreateBar(CWnd* frame);
    /// Puts the focus into the search box.
    void SearchLayers() { m_search.SetFocus(); }
    BOOL PreTranslateMessage(MSG* message) override;
    /// Shows the values of `objects`, or the current settings without objects. Another drawing's lists are
    /// filled anew.
    void Show(OdDbDatabase& drawing, std::vector<OdDbObjectId> objects);
    /// No drawing is open: nothing is shown, and nothing can be picked.
    void ShowNothing();
    /// As high as the rows that the frame has the width for.
    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;

protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

private:
    void bindPickers();
    void rememberTemplate();
    std::vector<BarPlace> placesIn(int room) const;
    void addTips();
    void allowTips(bool allow);
    static UINT nameOf(UINT id);
    void enablePickers(bool enable);
    void fillLists();
    void fillLayers();
    bool searchByKey(UINT key);
    /// The first layer that is found by what the search box holds; nothing without one.
    std::optional<OdString> firstFound();
    /// Writes what was picked; false if that is nothing.
    bool write(const PropertyValues& values, UINT name);
    void showPlotStyle(const std::optional<OdString>& name);
    std::optional<OdString> pickedPlotStyle();
    /// What was picked in the picker with `id` and differs from what it showed.
    PropertyValues picked(UINT id);

    std::function<void(UINT name)> m_changed;
    OdDbDatabase* m_drawing = nullptr;
    std::vector<OdDbObjectId> m_objects;
    PropertyValues m_shown;
    std::vector<int> m_widths;         ///< of the pickers in the template, in pixels
    int m_edge = 0, m_gap = 0;         ///< pixels before the first picker and between two
    int m_rowTop = 0, m_rowPitch = 0;  ///< pixels above the pickers of a row, and from row to row
    bool m_showing = false;            ///< the pickers are being set, which is no choice of the user
    CKtUiTrueColorComboBox m_color;
    CLayerLineTypePicker m_linetype;
    CLineWeightPicker m_lineWeight;
    CKtUiPlotStyleNamesComboBox m_plotStyle;
    CLayerPicker m_layer;
    CKbUiSearchBox m_search;
};
