#include "text_face.h"

#include <kh_font_list.h>
#include <kh_system.h>

namespace {

constexpr const wchar_t* kStandIn = L"Tahoma";

/// Whether a file name is that of an outline font.
bool isOutlineFont(const OdString& file) {
    const CString name = file.c_str();
    const CString extension = name.Mid(name.ReverseFind(L'.') + 1);
    for (const wchar_t* each : {L"ttf", L"otf", L"ttc"})
        if (extension.CompareNoCase(each) == 0) return true;
    return false;
}

/// The family of an outline font's file, when the host knows it; empty for any other file.
OdString familyOfFile(const OdString& file) {
    // A shape font has no family, so painting doesn't wait for the host to have found its fonts.
    CKhFontList* fonts = isOutlineFont(file) ? CKhSystem::instance()->runtimeHost()->shxFontList() : nullptr;
    const CKhFontStyle* style = fonts != nullptr ? fonts->find(file) : nullptr;
    return style != nullptr && style->font()->isTrueType() ? OdString(style->font()->name()) : OdString();
}

}  // namespace

OdString FamilyOf(const SceneFont& font) {
    return font.family.isEmpty() ? familyOfFile(font.file) : font.family;
}

LOGFONT TextFace(const SceneFont& font) { return TextFaceOf(font, FamilyOf(font)); }

LOGFONT TextFaceOf(const SceneFont& font, const OdString& family) {
    LOGFONT look = {};
    look.lfCharSet = DEFAULT_CHARSET;
    look.lfQuality = ANTIALIASED_QUALITY;
    look.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
    look.lfItalic = font.italic ? 1 : 0;
    const bool isFace = !family.isEmpty() && family.length() < LF_FACESIZE;
    wcscpy(look.lfFaceName, isFace ? family.c_str() : kStandIn);
    return look;
}
