#include "ktut.h"

namespace {

KtutLanguage g_language = KtutLanguage::kEnglish;

struct Words {
    const wchar_t* byBlock;
    const wchar_t* byLayer;
    const wchar_t* numbered;
    const wchar_t* primaries[7];
};

const Words kEnglish = {
    L"ByBlock", L"ByLayer", L"color ", {L"red", L"yellow", L"green", L"cyan", L"blue", L"magenta", L"white"}};
const Words kChinese = {L"ByBlock",
                        L"ByLayer",
                        L"\x989C\x8272 ",
                        {L"\x7EA2", L"\x9EC4", L"\x7EFF", L"\x9752", L"\x84DD", L"\x6D0B\x7EA2", L"\x767D"}};

const Words& words() { return g_language == KtutLanguage::kChinese ? kChinese : kEnglish; }

OdString decimal(int value) { return OdString(std::to_wstring(value)); }

}  // namespace

void ktutSetLanguage(KtutLanguage language) { g_language = language; }

KtutLanguage ktutLanguage() { return g_language; }

OdString ktutColorToStr(short aci) {
    if (aci < OdCmColor::kByBlockIndex || aci > OdCmColor::kByLayerIndex) return {};
    if (aci == OdCmColor::kByBlockIndex) return words().byBlock;
    if (aci == OdCmColor::kByLayerIndex) return words().byLayer;
    if (aci <= 7) return words().primaries[aci - 1];
    return words().numbered + decimal(aci);
}

OdString ktutColorToStr(const OdCmColor& color) {
    if (color.isByACI()) return ktutColorToStr(static_cast<short>(color.colorIndex()));
    if (color.hasName())
        return color.bookName().isEmpty() ? color.colorName() : color.bookName() + L"$" + color.colorName();
    return decimal(color.red()) + L"," + decimal(color.green()) + L"," + decimal(color.blue());
}
