#include "test_host.h"

#include <kh_status.h>

namespace ui_test {

namespace {

std::wstring SettingName(const wchar_t* section, const wchar_t* key) {
    return std::wstring(section) + L"/" + key;
}

COLORREF DistinctColor(int index) { return RGB(0x11, index & 0xFF, (index >> 8) & 1); }

void CopyPath(wchar_t (&target)[kKhPathLength], const std::wstring& source) {
    wcsncpy(target, source.c_str(), kKhPathLength - 1);
    target[kKhPathLength - 1] = 0;
}

}  // namespace

TestHost::TestHost() : colorOf(DistinctColor), m_former(CKhSystem::install(this)) {}

TestHost::~TestHost() { CKhSystem::install(m_former); }

CKhService* TestHost::getService(const wchar_t* name) {
    const auto found = services.find(name);
    return found == services.end() ? nullptr : found->second;
}

void TestHost::findFile(OdString& path, const wchar_t* name, const OdDbDatabase*, int hint) {
    findHint = hint;
    const auto found = files.find(name);
    path = found == files.end() ? L"" : found->second.c_str();
}

int TestHost::supportDirectories(wchar_t (*buffer)[kKhPathLength], int count) {
    const int available = static_cast<int>(supportFolders.size());
    if (!buffer) return available;
    const int filled = count < available ? count : available;
    for (int i = 0; i < filled; ++i) CopyPath(buffer[i], supportFolders[static_cast<std::size_t>(i)]);
    return filled;
}

bool TestHost::getProfileInt(const wchar_t* section, const wchar_t* key, int& value, int) {
    const auto found = profileInts.find(SettingName(section, key));
    if (found == profileInts.end()) return false;
    value = found->second;
    return true;
}

bool TestHost::getProfileString(const wchar_t* section, const wchar_t* key, OdString& value, int) {
    const auto found = profileStrings.find(SettingName(section, key));
    if (found == profileStrings.end()) return false;
    value = found->second.c_str();
    return true;
}

bool TestHost::setProfileInt(const wchar_t* section, const wchar_t* key, int value, int) {
    profileInts[SettingName(section, key)] = value;
    return true;
}

void TestHost::pushResourceHandle(HINSTANCE handle) {
    ++pushes;
    resourceStack.push_back(handle);
    m_savedHandles.push_back(AfxGetResourceHandle());
    AfxSetResourceHandle(handle);
}

void TestHost::popResourceHandle() {
    ++pops;
    AfxSetResourceHandle(m_savedHandles.back());
    m_savedHandles.pop_back();
    resourceStack.pop_back();
}

bool TestHost::saveFormatAt(int index, int& format, OdString& name) {
    if (index < 0 || index >= saveFormatCount()) return false;
    const auto& [code, text] = saveFormats[static_cast<std::size_t>(index)];
    format = code;
    name = text.c_str();
    return unlistedSaveFormats.count(code) == 0;
}

bool TestHost::saveFormatName(int format, OdString& name) {
    for (const auto& [code, text] : saveFormats) {
        if (code != format) continue;
        name = text.c_str();
        return true;
    }
    return false;
}

COLORREF TestHost::colorOfIndex(int index) {
    askedColors.push_back(index);
    return colorOf(index);
}

bool TestHost::schemeColor(int scheme, int role, COLORREF& color, int flags) {
    // Only the scheme of kind 1 is asked for, and without flags.
    if (scheme != 1 || flags != 0) return false;
    const auto found = roleColors.find(role);
    if (found == roleColors.end()) return false;
    color = found->second;
    return true;
}

bool TestHost::showColorIndexDialog(int& index, bool allowMeta, int layerIndex) {
    return onColorIndexDialog && onColorIndexDialog(index, allowMeta, layerIndex);
}

bool TestHost::showTrueColorDialog(OdCmColor& color, bool allowMeta, const OdCmColor& layerColor,
                                   const std::uint32_t* palette) {
    return onTrueColorDialog && onTrueColorDialog(color, allowMeta, layerColor, palette);
}

bool TestHost::showPlotStyleDialog(const wchar_t* currentName, bool allowByLayerByBlock,
                                   const wchar_t*& chosenName) {
    m_chosenPlotStyle.clear();
    if (!onPlotStyleDialog || !onPlotStyleDialog(currentName, allowByLayerByBlock, m_chosenPlotStyle))
        return false;
    if (!plotStyleDialogNamesNone) chosenName = m_chosenPlotStyle.c_str();
    return true;
}

bool TestHost::showLinetypeDialog(const OdDbObjectId& current, OdDbObjectId& chosen, int mode) {
    linetypeDialogMode = mode;
    return onLinetypeDialog && onLinetypeDialog(current, chosen);
}

int TestHost::getPathVariable(const wchar_t* name, wchar_t (&value)[kKhPathLength]) {
    const auto found = pathVariables.find(name);
    if (found == pathVariables.end()) return kKhStatusOk + 1;
    CopyPath(value, found->second);
    return kKhStatusOk;
}

}  // namespace ui_test
