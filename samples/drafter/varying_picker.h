// A picker that can say that objects differ: "*VARIES*" is an entry of its own at the head of the list then,
// so that it can be picked again after another one was tried.
//
//     class CWeightPicker : public CVaryingPicker<CKtUiLineWeightComboBox> { ... };
#pragma once

#include <ktui/ktui.h>

#include "resource.h"

template <class Picker>
class CVaryingPicker : public Picker {
public:
    /// Selects the entry "*VARIES*", which joins the list at its head.
    void ShowVaries() {
        if (!m_hasVaries) {
            m_hasVaries = true;
            addVaries();
        }
        this->SetCurSel(0);
        this->SetLastSelection(0);
    }
    /// Takes the entry away again, when the objects agree.
    void ForgetVaries() {
        if (!m_hasVaries) return;
        m_hasVaries = false;
        for (int index = this->GetCount() - 1; index >= 0; --index)
            if (this->GetItemCargo(index) == kCargoVaries) this->DeleteString(static_cast<UINT>(index));
    }
    /// Whether that entry is selected.
    bool IsVaries() { return this->GetCurrentItemCargo() == kCargoVaries; }

    void OnAddItems() override {
        Picker::OnAddItems();
        if (m_hasVaries) addVaries();
    }
    void DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) override {
        if (cargo != kCargoVaries) Picker::DrawItemImage(dc, rect, cargo);
    }

private:
    static constexpr __int64 kCargoVaries = -201;  // outside what the toolkit's pickers use

    void addVaries() {
        CString text;
        text.LoadString(IDS_VARIES);
        this->InsertItemInList(0, text, kCargoVaries);
    }

    bool m_hasVaries = false;
};
