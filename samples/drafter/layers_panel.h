// The layers palette: every layer of the drawing in a list, which a search box narrows. Layers are made,
// renamed in place, switched on and off, given colours, linetypes and lineweights, made current and deleted;
// each of these is a step of Undo. The panel stands beside the drawing and follows it.
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include <ktui/ktui.h>

#include "layer_list.h"
#include "layer_pickers.h"
#include "undo_history.h"

class CLayersPanel : public CKtUiDialog {
    DECLARE_DYNAMIC(CLayersPanel)

public:
    /// `changed` is called when the panel has changed the drawing.
    explicit CLayersPanel(std::function<void()> changed);

    /// Shows the layers of a drawing as they are now. Both must live until another one is shown.
    void Show(OdDbDatabase& drawing, CUndoHistory& history);
    /// No drawing is open.
    void ShowNothing();

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void OnOK() override;
    void OnCancel() override;

    afx_msg void OnSearch();
    afx_msg void OnNewLayer();
    afx_msg void OnRename();
    afx_msg void OnDelete();
    afx_msg void OnSetCurrent();
    afx_msg void OnPicked();
    afx_msg void OnDestroy();
    afx_msg void OnItemChanged(NMHDR* header, LRESULT* result);
    afx_msg void OnListClick(NMHDR* header, LRESULT* result);
    afx_msg void OnListDoubleClick(NMHDR* header, LRESULT* result);
    afx_msg void OnListKey(NMHDR* header, LRESULT* result);
    afx_msg void OnBeginRename(NMHDR* header, LRESULT* result);
    afx_msg void OnEndRename(NMHDR* header, LRESULT* result);
    afx_msg LRESULT OnRenameLayer(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void addColumns();
    void registerResizing();
    void fillList(const std::vector<OdDbObjectId>& selected);
    void enableLists(bool enable);
    void showRow(int row, const LayerRow& layer);
    void showCurrent();
    void showPickers();
    std::vector<const LayerRow*> selectedRows() const;
    std::vector<OdDbObjectId> selectedLayers() const;
    /// The values that the selected layers share.
    LayerChange shownValues() const;
    OdString filter();
    void say(const CString& text) { SetDlgItemText(IDC_MESSAGE, text); }
    static CString nameProblem(LayerNameProblem problem, const OdString& name);
    static CString refusal(const LayerRefusal& refusal);
    /// Runs `edit` as a step of Undo under the string `name`, and shows what came of it with these layers
    /// selected. Nothing stays of an edit that fails.
    void change(UINT name, const std::vector<OdDbObjectId>& selected, const std::function<void()>& edit);
    void changeSelected(const LayerChange& change);
    void toggle(const std::vector<OdDbObjectId>& layers);

    std::function<void()> m_changed;
    OdDbDatabase* m_drawing = nullptr;
    CUndoHistory* m_history = nullptr;
    std::vector<LayerRow> m_rows;
    bool m_filling = false;  ///< the list is being filled, which is no choice of the user
    std::pair<OdDbObjectId, OdString> m_renamed;  ///< the name that a layer gets next
    CKbUiSearchBox m_search;
    CKbUiListCtrl m_list;
    CLayerColorPicker m_color;
    CLinetypeOfLayerPicker m_linetype;
    CWeightOfLayerPicker m_lineWeight;
};
