#include "text_face.h"

#include <kh_font_list.h>
#include <kh_system.h>

namespace {

constexpr const wchar_t* kStandIn = L"Tahoma";

/// The family of a font file, when the host knows it; empty for a shape font.
OdString familyOfFile(const OdString& file) {
    CKhFontList* fonts = CKhSystem::instance()->runtimeHost()->shxFontList();
    const CKhFontStyle* style = fonts != nullptr && !file.isEmpty() ? fonts->find(file) : nullptr;
    return style != nullptr && style->font()->isTrueType() ? OdString(style->font()->name()) : OdString();
}

}  // namespace

LOGFONT TextFace(const SceneFont& font) {
    LOGFONT look = {};
    look.lfCharSet = DEFAULT_CHARSET;
    look.lfQuality = ANTIALIASED_QUALITY;
    look.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
    look.lfItalic = font.italic ? 1 : 0;
    OdString family = font.family.isEmpty() ? familyOfFile(font.file) : font.family;
    if (family.isEmpty() || family.length() >= LF_FACESIZE) family = kStandIn;
    wcscpy(look.lfFaceName, family);
    return look;
}
