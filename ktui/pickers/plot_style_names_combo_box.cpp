#include <ktui/pickers/plot_style_names_combo_box.h>

#include <kh_plot_style.h>
#include <kh_system.h>
#include <ktdb.h>
#include <od_array.h>
#include <ktui/pickers/working_drawing.h>

namespace {

constexpr const wchar_t* kByColor = L"ByColor";
constexpr const wchar_t* kAlwaysAllowed[] = {L"ByLayer", L"ByBlock", L"Normal"};

bool isSameName(const wchar_t* a, const wchar_t* b) {
    return ::CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, a, -1, b, -1) == CSTR_EQUAL;
}

/// Puts the names in the style table of the layout in use into `allowed`; false if that can't be told.
bool readAllowedNames(const OdDbDatabase& drawing, OdArray<OdString>& allowed) {
    CKhService* service = CKhSystem::instance()->serviceManager()->getService(kKhPlotStyleService);
    if (!service) return false;
    const auto space = drawing.currentSpaceId().open<OdDbBlockTableRecord>();
    if (!space) return false;
    const auto layout = space->getLayoutId().open<OdDbLayout>();
    if (!layout) return false;
    return static_cast<CKhPlotStyle*>(service)->getStyleNames(layout->getCurrentStyleSheet(), allowed);
}

bool isAllowed(const wchar_t* name, const OdArray<OdString>& allowed) {
    for (const wchar_t* each : kAlwaysAllowed)
        if (isSameName(name, each)) return true;
    for (const OdString& each : allowed)
        if (isSameName(name, each)) return true;
    return false;
}

}  // namespace

IMPLEMENT_DYNAMIC(CKtUiPlotStyleNamesComboBox, CKtUiMRUComboBox)

CKtUiPlotStyleNamesComboBox::CKtUiPlotStyleNamesComboBox() {
    m_mruFlags |= kUseOption1 | kUseOption2 | kUseOther1;
}

void CKtUiPlotStyleNamesComboBox::SetColorDependentMode() {
    m_mruFlags &= ~(kUseOption1 | kUseOption2 | kUseOther1);
    m_colorDependent = 1;
    OnAddItems();
}

void CKtUiPlotStyleNamesComboBox::SetNamedMode() {
    m_mruFlags |= kUseOption1 | kUseOption2 | kUseOther1;
    m_colorDependent = 0;
    // Kept: what the list holds stays, ByColor and earlier names included.
    OnAddItems();
}

void CKtUiPlotStyleNamesComboBox::OnAddItems() {
    if (!m_hWnd) return;
    if (m_colorDependent)
        showByColor();
    else
        addNames();
    EnableWindow(!m_colorDependent);
}

void CKtUiPlotStyleNamesComboBox::showByColor() {
    // Kept: in a filled list the first name of the dictionary has the same cargo and is selected instead.
    const int known = FindItemByCargo(0);
    SetCurSel(known >= 0 ? known : AddItemToList(kByColor, 0));
}

void CKtUiPlotStyleNamesComboBox::addNames() {
    OdDbDatabase* drawing = WorkingDrawing();
    if (!drawing) return;
    OdArray<OdString> allowed;
    const bool isFiltered = readAllowedNames(*drawing, allowed);
    OdDbDictionaryPtr names;
    if (drawing->getPlotStyleNameDictionary(names) != kOdOk) return;
    OdString normalName;
    for (auto each = names->newIterator(); !each->done(); each->next()) {
        OdString text = each->name();
        if (ktdbIsReservedString(text, kKtdbNormal))
            text = normalName = ktdbGetReservedString(kKtdbNormal, true);
        else if (isFiltered && !isAllowed(text, allowed))
            continue;
        AddString(text);
    }
    if (GetCount() > 0) SetCurSel(normalName.isEmpty() ? 0 : FindStringExact(-1, normalName));
}

int CKtUiPlotStyleNamesComboBox::OnSelectOther(int, int lastSel, int& newIndex) {
    CKhUiHost* host = CKhSystem::instance()->uiHost();
    if (!host) return 0;
    CString current;
    GetLBString(lastSel, current);
    const wchar_t* chosen = nullptr;
    if (!host->showPlotStyleDialog(current, m_allowByLayerByBlock != 0, chosen) || !chosen) return 0;
    newIndex = FindStringExact(-1, chosen);
    if (newIndex == CB_ERR) newIndex = AddString(chosen);
    SetCurSel(newIndex);
    return 1;
}

int CKtUiPlotStyleNamesComboBox::ImageWidth() { return 0; }
