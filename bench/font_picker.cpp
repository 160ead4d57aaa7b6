#include "window_bench.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <kh_font_list.h>
#include <standin_host.h>

#include <ktui/pickers/font_combo_box.h>

#include "../tests/support/font_bytes.h"

namespace {

namespace fs = std::filesystem;

constexpr int kFonts = 500;
constexpr int kRounds = 15;

/// A folder of font files, which goes with the object.
struct FontFolder {
    const fs::path path = fs::temp_directory_path() / L"ktui_font_bench";
    const fs::path cache = path / L"fonts.cache";

    FontFolder() {
        fs::create_directories(path);
        for (int i = 0; i < kFonts; ++i) {
            const std::string family = "Family " + std::to_string(i * 7919 % kFonts);
            std::ofstream(path / (L"font" + std::to_wstring(i) + L".ttf"), std::ios::binary)
                << font_bytes::outlineFont(family, std::string("Regular"));
        }
    }
    ~FontFolder() {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
};

/// A host that knows the fonts of the folder only; it remembers them in the folder's cache.
struct FontHost {
    CStandinHost host;

    explicit FontHost(const FontFolder& folder) : host(*AfxGetApp()) {
        host.SetFontCacheFile(folder.cache.c_str());
        host.SetFontFolders({folder.path.c_str()});
    }
};

std::vector<std::wstring> names_of(CKhFontList& fonts) {
    std::vector<std::wstring> names;
    for (int i = 0; i < fonts.count(); ++i) names.emplace_back(fonts.at(i)->name());
    return names;
}

}  // namespace

void bench::measure_fonts() {
    const FontFolder folder;
    FontHost known(folder);
    const std::vector<std::wstring> names = names_of(*known.host.runtimeHost()->shxFontList());
    PickerHolder holder;
    CKtUiFontComboBox ours;
    ours.Create(kPickerStyle, kPickerPlace, &holder, kPickerId);
    const BareCombo bare;
    HWND peer = bare.get();
    const auto fillOurs = [&] {
        ours.ResetContent();
        drain_queue();
        return seconds_of([&] { ours.AddItems(); });
    };
    const auto fillWithNewHost = [&] {
        const FontHost fresh(folder);
        return fillOurs();
    };
    const auto fillWithoutCache = [&] {
        fs::remove(folder.cache);
        return fillWithNewHost();
    };
    const auto fillPeer = [&] {
        ::SendMessageW(peer, CB_RESETCONTENT, 0, 0);
        drain_queue();
        return seconds_of([&] {
            for (const std::wstring& name : names) {
                const LRESULT at =
                    ::SendMessageW(peer, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
                ::SendMessageW(peer, CB_SETITEMDATA, static_cast<WPARAM>(at), at);
            }
        });
    };
    report("500 fonts, never seen before", compare(kRounds, 1, fillWithoutCache, fillPeer), 0);
    report("500 fonts, in a program just started", compare(kRounds, 1, fillWithNewHost, fillPeer), 0);
    report("500 fonts, again", compare(kRounds, 1, fillOurs, fillPeer), 1.10);
}
