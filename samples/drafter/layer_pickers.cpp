#include "layer_pickers.h"

IMPLEMENT_DYNAMIC(CLayerColorPicker, CKtUiTrueColorComboBox)
IMPLEMENT_DYNAMIC(CLinetypeOfLayerPicker, CKtUiLineTypeComboBox)
IMPLEMENT_DYNAMIC(CWeightOfLayerPicker, CKtUiLineWeightComboBox)

CLayerColorPicker::CLayerColorPicker() {
    SetUseByLayer(0);
    SetUseByBlock(0);
}

void CLayerColorPicker::Show(const std::optional<OdCmColor>& color) {
    if (color)
        SetCurSel(AddColorToMRU(*color));
    else
        ShowVaries();
}

std::optional<OdCmColor> CLayerColorPicker::Picked() {
    if (GetCurrentItemCargo() < 0) return {};
    OdCmColor color;
    GetCurrentItemColor(color);
    return color;
}

void CLinetypeOfLayerPicker::OnAddItems() {
    CVaryingPicker::OnAddItems();
    for (int index = GetCount() - 1; index >= 0; --index) {
        const auto linetype = getOIDSel(index).open<OdDbLinetypeTableRecord>();
        if (!linetype) continue;
        const OdString& name = linetype->getName();
        if (name.iCompare(L"ByLayer") == 0 || name.iCompare(L"ByBlock") == 0) DeleteString(index);
    }
}

void CLinetypeOfLayerPicker::Show(const std::optional<OdDbObjectId>& linetype) {
    if (linetype)
        setCurSelByOID(*linetype);
    else
        ShowVaries();
}

std::optional<OdDbObjectId> CLinetypeOfLayerPicker::Picked() {
    const OdDbObjectId id = getOIDCurSel();
    if (id.isNull()) return {};
    return id;
}

CWeightOfLayerPicker::CWeightOfLayerPicker() {
    SetUseByLayer(0);
    SetUseByBlock(0);
}

void CWeightOfLayerPicker::Show(const std::optional<OdDb::LineWeight>& weight) {
    if (weight)
        SetCurSel(FindItemByLineWeight(*weight));
    else
        ShowVaries();
}

std::optional<OdDb::LineWeight> CWeightOfLayerPicker::Picked() {
    if (GetCurSel() < 0 || IsVaries()) return {};
    return static_cast<OdDb::LineWeight>(GetCurrentItemLineWeight());
}
