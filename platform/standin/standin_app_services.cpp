// The settings of the drawing runtime's services, and the product's names.
#include "standin_facets.h"

namespace {

constexpr const wchar_t* kSection = L"General";
constexpr const wchar_t* kToolTips = L"ToolTips";
constexpr const wchar_t* kMeasurement = L"Measurement";
constexpr const wchar_t* kMillimetres = L"LineweightMillimeters";
constexpr const wchar_t* kLineweight = L"LineweightDefault";

int setting(const wchar_t* key, int standard) {
    int value = standard;
    CKhSystem::instance()->profileStore()->getProfileInt(kSection, key, value, 0);
    return value;
}

void keep(const wchar_t* key, int value) {
    CKhSystem::instance()->profileStore()->setProfileInt(kSection, key, value, 0);
}

}  // namespace

short StandinAppServices::toolTips() const { return static_cast<short>(setting(kToolTips, 1)); }

short StandinAppServices::measurementInit() const { return setting(kMeasurement, 1) != 0 ? 1 : 0; }
void StandinAppServices::setMeasurementInit(short value) { keep(kMeasurement, value != 0 ? 1 : 0); }

bool StandinAppServices::lineWeightsInMillimetres() const { return setting(kMillimetres, 1) != 0; }
void StandinAppServices::setLineWeightsInMillimetres(bool millimetres) { keep(kMillimetres, millimetres); }

OdDb::LineWeight StandinAppServices::defaultLineWeight() const {
    const int weight = setting(kLineweight, OdDb::kLnWt025);
    return OdDb::isLegalLineWeight(weight) ? static_cast<OdDb::LineWeight>(weight) : OdDb::kLnWt025;
}

void StandinAppServices::setDefaultLineWeight(OdDb::LineWeight weight) { keep(kLineweight, weight); }

/// Without a caption of its own the name of the application, as the system's own message boxes have it.
const wchar_t* StandinProductInfo::messageCaption() {
    return m_product.messageCaption.IsEmpty() ? AfxGetAppName() : kept(m_product.messageCaption);
}
