#include "layer_picker.h"

#include "layer_list.h"
#include "name_dialog.h"
#include "resource.h"

IMPLEMENT_DYNAMIC(CLayerPicker, CKtUiMRUComboBox)

CLayerPicker::CLayerPicker() {
    SetUseByLayer(0);
    SetUseByBlock(0);
    SetUseOther(1);
}

void CLayerPicker::Fill(OdDbDatabase& drawing, const OdString& filter) {
    m_drawing = &drawing;
    m_names.clear();
    for (const LayerRow& layer : ListLayers(drawing, filter)) m_names.push_back(layer.name);
    ResetContent();
    AddItems();
}

void CLayerPicker::OnAddItems() {
    CVaryingPicker::OnAddItems();
    for (std::size_t index = 0; index < m_names.size(); ++index)
        AddItemToList(m_names[index], static_cast<__int64>(index));
}

int CLayerPicker::enter(const OdString& name) {
    m_names.push_back(name);
    return InsertItemInList(0, name, static_cast<__int64>(m_names.size() - 1));
}

void CLayerPicker::Show(const OdString& name) {
    int index = -1;
    for (int item = 0; item < GetCount(); ++item) {
        const __int64 cargo = GetItemCargo(item);
        if (cargo >= 0 && cargo < static_cast<__int64>(m_names.size()) &&
            m_names[static_cast<std::size_t>(cargo)].iCompare(name) == 0)
            index = item;
    }
    SetCurSel(index >= 0 ? index : enter(name));
    SetLastSelection(GetCurSel());
}

std::optional<OdString> CLayerPicker::Picked() {
    const __int64 cargo = GetCurrentItemCargo();
    if (cargo < 0 || cargo >= static_cast<__int64>(m_names.size())) return {};
    return m_names[static_cast<std::size_t>(cargo)];
}

int CLayerPicker::GetOtherName(int, CString& text) {
    text.LoadString(IDS_NEW_LAYER_ENTRY);
    return 1;
}

int CLayerPicker::OnSelectOther(int, int, int& newIndex) {
    if (m_drawing == nullptr) return 0;
    std::vector<OdString> taken;
    for (const LayerRow& layer : ListLayers(*m_drawing)) taken.push_back(layer.name);
    CNameDialog dialog(taken, GetParent(), {IDS_NEW_LAYER_TITLE, IDS_TAKEN_LAYER_NAME});
    if (dialog.DoModal() != IDOK) return 0;
    newIndex = enter(dialog.name());
    return 1;
}
