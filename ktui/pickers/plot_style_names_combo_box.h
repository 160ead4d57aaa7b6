// CKtUiPlotStyleNamesComboBox: picks a plot style of the working drawing by name, without images.
//
// In a drawing with named plot styles the list reads ByLayer, ByBlock, then the names of the drawing's plot
// style dictionary that the current layout's style table allows; these have no cargo, so the owner reads the
// text. In a colour-dependent drawing the picker is disabled and says ByColor:
//
//     if (isColorDependent) picker.SetColorDependentMode(); else picker.SetNamedMode();
//
// Both calls are meant for a control that is filled, and neither clears its list.
#pragma once

#include <ktui/pickers/mru_combo_box.h>

class KTUI_API CKtUiPlotStyleNamesComboBox : public CKtUiMRUComboBox {
    DECLARE_DYNAMIC(CKtUiPlotStyleNamesComboBox)

public:
    CKtUiPlotStyleNamesComboBox();

    /// Drops the option and Other items from lists to come, selects ByColor and disables the control.
    void SetColorDependentMode();
    /// Brings the option and Other items back, appends the drawing's names and enables the control.
    void SetNamedMode();

    // What Other is about, kept for the owner: the dialog is the same.
    void OtherRunsSelectPlotStyle() { m_otherMode = 0; }
    void OtherRunsCurrentPlotStyle() { m_otherMode = 1; }
    void OtherRunsDefault() { m_otherMode = -1; }

    /// Non-zero, as at first, lets the dialog of Other offer ByLayer and ByBlock.
    void SetAllowByLayerByBlock(int allow) { m_allowByLayerByBlock = allow; }

    void OnAddItems() override;
    int OnSelectOther(int which, int lastSel, int& newIndex) override;
    int ImageWidth() override;

protected:
    int m_otherMode = -1;      ///< 0 select, 1 current, -1 default; read by nobody here
    int m_colorDependent = 0;  ///< 1 in a colour-dependent drawing
    int m_allowByLayerByBlock = 1;

private:
    void showByColor();
    void addNames();
};
