#include "plotting/style_sheets.h"

#include <kh_system.h>
#include <ktut.h>

#include "file_bytes.h"

namespace {

constexpr std::size_t kMostSheets = 64;         // kept in memory
constexpr std::size_t kLongestFile = 8u << 20;  // bytes
constexpr const wchar_t* kFoldersVariable = L"PrinterStyleSheetDir";

/// The folders of style sheets. One that isn't there is looked for below the application's own.
std::vector<OdString> styleSheetFolders() {
    wchar_t value[kKhPathLength] = {};
    CKhUiHost* host = CKhSystem::instance()->uiHost();
    if (host == nullptr || host->getPathVariable(kFoldersVariable, value) != kKhStatusOk) return {};
    std::vector<OdString> folders = ktutSplitString(value, L";");
    for (OdString& folder : folders)
        if (!ktutDirectoryExists(folder)) folder = ktutCombinePath(ktutProgramFolder(), folder);
    return folders;
}

bool isFile(const OdString& path, WIN32_FILE_ATTRIBUTE_DATA& file) {
    return ::GetFileAttributesExW(path, GetFileExInfoStandard, &file) &&
           !(file.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool isFullPath(const OdString& name) {
    OdString drive;
    return ktutSplitPath(name, &drive, nullptr, nullptr, nullptr) && !drive.isEmpty();
}

/// Finds the file of a sheet; an empty path if there is none.
OdString find(const OdString& sheet, WIN32_FILE_ATTRIBUTE_DATA& file) {
    if (isFullPath(sheet)) return isFile(sheet, file) ? sheet : OdString();
    for (const OdString& folder : styleSheetFolders()) {
        const OdString path = ktutCombinePath(folder, sheet);
        if (isFile(path, file)) return path;
    }
    return {};
}

}  // namespace

bool StandinStyleSheets::getStyleNames(const OdString& sheet, OdArray<OdString>& names) {
    const PlotStyleTable* table = nullptr;
    if (read(sheet, table) != StyleSheetState::kRead) return false;
    names.removeAll();
    for (const PlotStyle& style : table->styles) names.append(style.name);
    return true;
}

StyleSheetState StandinStyleSheets::read(const OdString& sheet, const PlotStyleTable*& table) {
    if (sheet.isEmpty()) return StyleSheetState::kUnnamed;
    WIN32_FILE_ATTRIBUTE_DATA file = {};
    const OdString path = find(sheet, file);
    if (path.isEmpty()) return StyleSheetState::kNotFound;
    const Sheet& found = sheetAt(std::wstring(path.view()), file);
    if (!found.isTable) return StyleSheetState::kUnreadable;
    table = &found.table;
    return StyleSheetState::kRead;
}

const StandinStyleSheets::Sheet& StandinStyleSheets::sheetAt(const std::wstring& path,
                                                             const WIN32_FILE_ATTRIBUTE_DATA& file) {
    const ULONGLONG size = static_cast<ULONGLONG>(file.nFileSizeHigh) << 32 | file.nFileSizeLow;
    const auto known = m_sheets.find(path);
    if (known != m_sheets.end() && known->second.size == size &&
        ::CompareFileTime(&known->second.written, &file.ftLastWriteTime) == 0)
        return known->second;
    if (m_sheets.size() >= kMostSheets) m_sheets.clear();
    Sheet& sheet = m_sheets[path] = Sheet{size, file.ftLastWriteTime, false, {}};
    std::string bytes;
    sheet.isTable =
        ReadFileBytes(path.c_str(), kLongestFile, bytes) &&
        ReadPlotStyleTable(bytes, static_cast<int>(::GetACP()), sheet.table) == PlotStyleFault::kNone;
    return sheet;
}
