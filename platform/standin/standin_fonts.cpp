// The host's fonts: where they are looked for, and a single file that the user names.
#include "fonts/font_file.h"
#include "resource.h"
#include "standin_facets.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace {

std::vector<std::wstring> plainTexts(const std::vector<CString>& texts) {
    std::vector<std::wstring> plain;
    for (const CString& text : texts) plain.emplace_back(text.GetString());
    return plain;
}

UINT messageOf(FontProblem problem) {
    switch (problem) {
        case FontProblem::kMissing: return IDS_FONT_MISSING;
        case FontProblem::kUnreadable: return IDS_FONT_UNREADABLE;
        case FontProblem::kDamaged: return IDS_FONT_DAMAGED;
        case FontProblem::kNoLetters: return IDS_FONT_NO_LETTERS;
        default: return IDS_FONT_NOT_A_FONT;
    }
}

CString describe(FontProblem problem, const wchar_t* file) {
    CString text;
    text.LoadString(reinterpret_cast<HINSTANCE>(&__ImageBase), messageOf(problem));
    text.Replace(L"%1", file);
    return text;
}

}  // namespace

void StandinRuntimeHost::setSupportFolders(std::vector<CString> folders) {
    m_folders = std::move(folders);
    m_fonts.setSupportFolders(plainTexts(m_folders));
}

void StandinRuntimeHost::setFontFolders(const std::vector<CString>& folders) {
    m_fonts.setFolders(plainTexts(folders));
}

CKhFontStyle* StandinRuntimeHost::loadFontFile(const wchar_t* name, CString& message) {
    OdString path;
    if (name && *name) findFile(path, name, nullptr, 0);
    if (path.isEmpty()) {
        CKhFontStyle* listed = fileNameOf(name ? name : L"").empty() ? nullptr : shxFontList()->find(name);
        if (!listed) message = describe(FontProblem::kMissing, name ? name : L"");
        return listed;
    }
    const FontProblem problem = readFontFile(std::wstring(path.view())).problem;
    if (problem != FontProblem::kNone) {
        message = describe(problem, path);
        return nullptr;
    }
    m_fonts.addFile(std::wstring(path.view()));
    CKhFontStyle* style = shxFontList()->find(path);
    if (!style) message = describe(FontProblem::kUnreadable, path);
    return style;
}

void CStandinHost::SetFontFolders(std::vector<CString> folders) { m_facets->runtime.setFontFolders(folders); }

void CStandinHost::SetFontCacheFile(const wchar_t* path) {
    m_facets->runtime.m_fonts.setCacheFile(path ? path : L"");
}

CKhFontStyle* CStandinHost::LoadFontFile(const wchar_t* name, CString& message) {
    return m_facets->runtime.loadFontFile(name, message);
}
