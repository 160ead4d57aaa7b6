// A folder of small fonts that a test makes, and a host that lists it.
#pragma once

#include <kh_font_list.h>
#include <kh_system.h>
#include <standin_host.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "font_bytes.h"
#include "ui_test.h"

namespace ui_test {

/// A folder below the temporary one, which goes with the object.
class FontFolder {
public:
    explicit FontFolder(const wchar_t* name)
        : m_path(std::filesystem::temp_directory_path() / L"ktui_fonts" / name) {
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    ~FontFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    FontFolder(const FontFolder&) = delete;
    FontFolder& operator=(const FontFolder&) = delete;

    CString path() const { return m_path.c_str(); }
    CString file(const wchar_t* name) const { return (m_path / name).c_str(); }

    void write(const std::wstring& name, const std::string& bytes) const {
        std::ofstream(m_path / name, std::ios::binary) << bytes;
    }
    void writeOutline(const std::wstring& name, const std::string& family, const std::string& style,
                      unsigned weight = 400) const {
        write(name, font_bytes::outlineFont(family, style, weight));
    }
    void writeShx(const std::wstring& name) const { write(name, font_bytes::unifont(font_bytes::letters())); }
    void writeBig(const std::wstring& name) const { write(name, font_bytes::bigFont({{0xB0A1, "\x10"}})); }
    void remove(const wchar_t* name) const { std::filesystem::remove(m_path / name); }

private:
    std::filesystem::path m_path;
};

/// A host whose fonts are those of some folders, with a cache of its own.
class FontHost {
public:
    explicit FontHost(std::vector<CString> folders, const wchar_t* cache = nullptr) : host(*AfxGetApp()) {
        host.SetFontCacheFile(cache);
        host.SetFontFolders(std::move(folders));
    }

    CKhFontList* list() { return host.runtimeHost()->shxFontList(); }
    std::vector<std::wstring> names() {
        std::vector<std::wstring> all;
        CKhFontList* fonts = list();
        for (int i = 0; i < fonts->count(); ++i) all.emplace_back(fonts->at(i)->name());
        return all;
    }

    CStandinHost host;
};

}  // namespace ui_test
