// CKtUiLineWeightComboBox: picks a lineweight and shows a bar of about that thickness. The cargo of an item
// is the weight as OdDb::LineWeight has it: -1 ByLayer, -2 ByBlock, -3 default, else hundredths of a
// millimetre.
//
// The names are in the unit that the user has set when the list is filled; a later change of the setting
// shows in the next list.
#pragma once

#include <ktui/pickers/mru_combo_box.h>

class KTUI_API CKtUiLineWeightComboBox : public CKtUiMRUComboBox {
    DECLARE_DYNAMIC(CKtUiLineWeightComboBox)

public:
    CKtUiLineWeightComboBox();

    /// Weight of the working drawing's current layer, which the ByLayer sample shows; 0 without one.
    virtual int GetCurrentLayerLineWeight();
    /// Non-zero if the current layer's lineweight is overridden in the viewport, which the ByLayer item then
    /// says. This class answers 0.
    virtual int GetCurrentLayerVpOverride();

    /// Scale of the samples; 10 at first. A sample uses a twentieth of it.
    double GetLineWeightScale() const { return m_lineWeightScale; }
    void SetLineWeightScale(double scale) { m_lineWeightScale = scale; }
    /// Non-zero offers the default weight in the next list that is filled; 1 at first.
    void SetUseDefault(int use) { m_useDefault = use; }

    /// List index of `weight`, or -1.
    int FindItemByLineWeight(int weight) { return FindItemByCargo(weight); }
    /// Weight of the selected item, -1 without a selection.
    int GetCurrentItemLineWeight() { return static_cast<int>(GetCurrentItemCargo()); }
    /// Weight of item `index`, -1 for an index outside the list.
    int GetItemLineWeight(int index) { return static_cast<int>(GetItemCargo(index)); }

    void GetLBString(int index, CString& text) override;
    void DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) override;
    void OnAddItems() override;
    int ImageWidth() override;

protected:
    double m_lineWeightScale = 10.0;
    int m_useDefault = 1;

private:
    bool sampleWeight(__int64 cargo, int& weight);
};
