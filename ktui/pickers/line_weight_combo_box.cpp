#include <ktui/pickers/line_weight_combo_box.h>

#include <ktui/host/appearance.h>
#include <ktui/pickers/viewport_override.h>

#include <ktui/pickers/line_weights.h>
#include <ktui/pickers/lweight_util.h>
#include <od_host_services.h>

#include <algorithm>

namespace {

constexpr int kSampleMarginX = 3;       // pixels at the left and at the right
constexpr int kSampleMarginY = 2;       // pixels at the top and at the bottom
constexpr int kMinimumImageWidth = 48;  // pixels, unless half the control is narrower
constexpr double kScaleUnit = 20.0;
constexpr DWORD kSampleInk = 0;
constexpr const wchar_t* kWidestText = L"--------";

}  // namespace

IMPLEMENT_DYNAMIC(CKtUiLineWeightComboBox, CKtUiMRUComboBox)

CKtUiLineWeightComboBox::CKtUiLineWeightComboBox() {
    m_mruFlags |= kUseOption1 | kUseOption2;
    m_cargoOption1 = OdDb::kLnWtByLayer;
    m_cargoOption2 = OdDb::kLnWtByBlock;
}

int CKtUiLineWeightComboBox::GetCurrentLayerLineWeight() {
    return KhUtLWeightUtil::getCurrentLayerLineWeight(nullptr);
}

int CKtUiLineWeightComboBox::GetCurrentLayerVpOverride() { return 0; }

void CKtUiLineWeightComboBox::OnAddItems() {
    // Kept: this text isn't translated, unlike the name of the default weight.
    if (m_useDefault) AddItemToList(L"Default", OdDb::kLnWtByLwDefault);
    const bool inch = KhUtLWeightUtil::getLWeightUnits() == 0;
    for (const LineWeightName& name : LineWeightNames()) {
        const auto weight = static_cast<OdDb::LineWeight>(name.weight);
        AddItemToList(KhUtLWeightUtil::getLintWeightName(inch, weight), weight);
    }
}

int CKtUiLineWeightComboBox::ImageWidth() {
    int textWidth = 0;
    int textHeight = 0;
    GetTextExtent(kWidestText, textWidth, textHeight);
    CRect outer(0, 0, 0, 0);
    GetWindowRect(&outer);
    const int half = outer.Width() / 2;
    return half == 0 ? textWidth
                     : std::min(half, std::max(textWidth, KtUiAppearancePixels(m_hWnd, kMinimumImageWidth)));
}

/// The weight to draw for the item with `cargo`; false if nothing is drawn for it.
bool CKtUiLineWeightComboBox::sampleWeight(__int64 cargo, int& weight) {
    if (cargo != static_cast<int>(cargo)) return false;
    weight = cargo == OdDb::kLnWtByLayer ? GetCurrentLayerLineWeight() : static_cast<int>(cargo);
    if (weight == OdDb::kLnWtByBlock) weight = 1;
    if (weight == OdDb::kLnWtByLwDefault) {
        if (!oddbHostApplicationServices()) return false;
        weight = KhUtLWeightUtil::getDefaultLWeight();
    }
    if (weight < 0) return false;
    weight = std::max(weight, 1);
    return true;
}

void CKtUiLineWeightComboBox::DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) {
    int weight = 0;
    if (!sampleWeight(cargo, weight)) return;
    CRect sample = rect;
    sample.DeflateRect(kSampleMarginX, kSampleMarginY);
    KhUtLWeightUtil::drawLineWeight(dc.GetSafeHdc(), &sample, weight, m_lineWeightScale / kScaleUnit,
                                    KtUiAppearanceColor(kSampleInk, COLOR_WINDOWTEXT));
}

void CKtUiLineWeightComboBox::GetLBString(int index, CString& text) {
    CKtUiMRUComboBox::GetLBString(index, text);
    // Kept: an index outside the list has ByLayer's cargo and says the override too. Only -1 never does.
    const bool isByLayer = index != -1 && GetItemCargo(index) == OdDb::kLnWtByLayer;
    if (isByLayer && GetCurrentLayerVpOverride()) text += kViewportOverrideSuffix;
}
