#include "rules/layer_overrides.h"

namespace {

/// A colour in one number: what it is in the high byte, then red, green and blue, or an index in the low
/// byte.
OdCmColor colorOf(std::int64_t raw) {
    constexpr std::int64_t kByColor = 0xC2, kByIndex = 0xC3;
    OdCmColor color;
    const std::int64_t kind = raw >> 24 & 0xFF;
    if (kind == kByColor)
        color.setRGB(static_cast<std::uint8_t>(raw >> 16), static_cast<std::uint8_t>(raw >> 8),
                     static_cast<std::uint8_t>(raw));
    if (kind == kByIndex) color.setColorIndex(static_cast<int>(raw & 0xFF));
    return color;
}

/// Takes the value with `code` that follows the viewport's number in a record of overrides.
bool valueFor(const OdDbDictionary& beside, const wchar_t* name, const OdDbObjectId& viewport, int code,
              OdGroup& value) {
    constexpr int kViewport = 335;
    const auto record = beside.getAt(name).open<OdDbObject>();
    if (!record) return false;
    bool isHere = false;
    const OdGroupList& groups = record->groups();
    for (std::uint32_t at = 0; groups.read(at, value); at = value.end) {
        if (value.code == kViewport) isHere = value.handle() == viewport.handle();
        if (isHere && value.code == code) return true;
    }
    return false;
}

}  // namespace

void OverrideLayer(LayerLook& look, const OdDbLayerTableRecord& record, const OdDbObjectId& viewport) {
    const auto beside = record.extensionDictionary().open<OdDbDictionary>();
    if (!beside) return;
    OdGroup value;
    if (valueFor(*beside, L"ADSK_XREC_LAYER_COLOR_OVR", viewport, 420, value)) {
        const OdCmColor color = colorOf(value.integer);
        if (!color.isByLayer() && !color.isByBlock()) look.color = color;
    }
    if (valueFor(*beside, L"ADSK_XREC_LAYER_LINETYPE_OVR", viewport, 343, value))
        look.linetype = OdDbObjectId(viewport.database(), value.handle());
    if (valueFor(*beside, L"ADSK_XREC_LAYER_LINEWT_OVR", viewport, 91, value)) {
        const auto weight = static_cast<int>(value.integer);
        if (OdDb::isLegalLineWeight(weight)) look.lineWeight = weight;
    }
}
