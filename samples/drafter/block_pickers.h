// The arrowhead and callout pickers of the dimension style dialog, which speak of names of blocks. A block of
// the user's is chosen from those of the drawing.
#pragma once

#include <ktui/ktui.h>
#include <od_string.h>

class CArrowheadPicker : public CKtUiArrowHeadComboBox {
    DECLARE_DYNAMIC(CArrowheadPicker)

public:
    CArrowheadPicker();
    /// Selects the arrowhead of a block, empty for the filled, closed one.
    void Show(const OdString& block);
    /// The block of the arrowhead selected.
    OdString Picked();

    int OnSelectOther(int which, int lastSel, int& newIndex) override;

private:
    int enter(const OdString& block);
};

class CCalloutPicker : public CKtUiPredefBlockComboBox {
    DECLARE_DYNAMIC(CCalloutPicker)

public:
    /// Selects the callout of a block, nothing for an empty name.
    void Show(const OdString& block);
    /// The block of the callout selected; empty for none.
    OdString Picked();
    /// What the owner calls when the list was closed: the entry for the user's own block asks for it.
    void OnClosed();

private:
    int enter(const OdString& block);

    OdString m_shown;
};
