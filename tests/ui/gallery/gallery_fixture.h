// What tests of the gallery start from: its window with the stand-in host, in a language and at a resolution.
#pragma once

#include <algorithm>
#include <vector>

#include "../../../samples/gallery/gallery_dialog.h"
#include "../../../samples/gallery/gallery_drawing.h"
#include "../../../samples/gallery/resource.h"
#include "fake_resolution.h"
#include "replaced_import.h"
#include "ui_test.h"

#include <standin_host.h>

namespace gallery_test {

constexpr const wchar_t* kSettings = L"Software\\ktui gallery test";

class Gallery : public CGalleryDialog {
public:
    Gallery() { SetAppRootKey((CString(kSettings) + L"\\").GetString()); }
};

constexpr LANGID kEnglish = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
constexpr LANGID kChinese = MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED);
constexpr int kStandard = 96;  // pixels an inch

/// How the gallery is shown.
struct Shown {
    LANGID language;
    int dpi;
};
inline void PrintTo(const Shown& shown, std::ostream* out) {
    *out << (shown.language == kChinese ? "Chinese" : "English") << " at " << shown.dpi;
}

/// Lays dialogs out as at another resolution: with a font that is larger by as much, as the system does.
class ScaledDialogs {
public:
    explicit ScaledDialogs(int dpi)
        : m_create(::GetModuleHandleW(L"kmfc.dll"), "CreateDialogIndirectParamW", &create) {
        scale() = dpi;
        EXPECT_TRUE(m_create.isThere());
    }

private:
    static int& scale() {
        static int dpi = kStandard;
        return dpi;
    }
    static HWND WINAPI create(HINSTANCE module, const DLGTEMPLATE* bytes, HWND parent, DLGPROC procedure,
                              LPARAM data) {
        constexpr std::size_t kLongest = 8192;  // of the gallery's templates, bytes
        MEMORY_BASIC_INFORMATION region = {};
        ::VirtualQuery(bytes, &region, sizeof region);
        const auto* first = reinterpret_cast<const BYTE*>(bytes);
        const auto* end = static_cast<const BYTE*>(region.BaseAddress) + region.RegionSize;
        std::vector<BYTE> copy(first, std::min(end, first + kLongest));
        // DLGTEMPLATEEX: 26 bytes, then menu, class and title, of which the first two are empty here, then
        // the size in points.
        auto* title = reinterpret_cast<wchar_t*>(copy.data() + 26 + 2 + 2);
        auto* points = reinterpret_cast<WORD*>(title + wcslen(title) + 1);
        EXPECT_EQ(*points, 8);
        *points = static_cast<WORD>(8 * scale() / kStandard);
        return ::CreateDialogIndirectParamW(module, reinterpret_cast<const DLGTEMPLATE*>(copy.data()), parent,
                                            procedure, data);
    }
    const ui_test::ReplacedImport m_create;
};

class OpenGallery : public ::testing::Test {
protected:
    explicit OpenGallery(const Shown& shown)
        : formerLocale(::GetThreadLocale()),
          resolution(static_cast<UINT>(shown.dpi)),
          dialogs(shown.dpi),
          host(*AfxGetApp()) {
        ::SetThreadLocale(MAKELCID(shown.language, SORT_DEFAULT));
        host.SetCurrentDocument(&document);
        gallery = std::make_unique<Gallery>();
        // What the host's messages belong to.
        AfxGetApp()->m_pMainWnd = gallery.get();
        gallery->Create(IDD_GALLERY, nullptr);
        gallery->ShowWindow(SW_SHOW);
        ui_test::pump();
    }
    ~OpenGallery() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        gallery->DestroyWindow();
        gallery.reset();
        host.SetCurrentDocument(nullptr);
        ::SetThreadLocale(formerLocale);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kSettings);
    }
    std::vector<CWnd*> controls() {
        std::vector<CWnd*> all;
        for (CWnd* child = gallery->Page()->GetWindow(GW_CHILD); child != nullptr;
             child = child->GetWindow(GW_HWNDNEXT))
            all.push_back(child);
        return all;
    }
    static CString classOf(CWnd& window) {
        wchar_t name[32] = {};
        ::GetClassNameW(window, name, 32);
        return name;
    }
    /// Lets the page pose for its picture, and ends that; false if it stays in a modal dialog.
    bool poses() {
        bool isOver = false;
        std::function<void()> look = [&] {
            gallery->Page()->EndPose();
            isOver = gallery->IsWindowEnabled();
            if (!isOver) ui_test::later(look, 30);
        };
        gallery->Page()->Pose();
        ui_test::later(look, 30);
        return ui_test::pump_until([&] { return isOver; }, 10000);
    }
    std::string where(int index) { return CStringA(gallery->Entry(index).name).GetString(); }
    int logged() { return static_cast<int>(gallery->SendDlgItemMessage(IDC_LOG, LB_GETCOUNT)); }
    CWnd& button(const wchar_t* english, const wchar_t* chinese) {
        for (CWnd* each : controls())
            if (ui_test::text_of(*each) == Both(english, chinese)) return *each;
        ADD_FAILURE() << "no button " << CStringA(english);
        return *gallery;
    }
    int indexOf(const wchar_t* name) {
        for (int i = 0; i < gallery->PageCount(); ++i)
            if (wcscmp(gallery->Entry(i).name, name) == 0) return i;
        return -1;
    }

    LCID formerLocale;
    ui_test::FakeResolution resolution;
    ScaledDialogs dialogs;
    CStandinHost host;
    CGalleryDocument document;
    std::unique_ptr<Gallery> gallery;
};

class Pages : public OpenGallery, public ::testing::WithParamInterface<Shown> {
protected:
    Pages() : OpenGallery(GetParam()) {}
};

inline bool isChineseText(const CString& text) {
    for (int i = 0; i < text.GetLength(); ++i)
        if (text[i] >= 0x4E00) return true;
    return false;
}

}  // namespace gallery_test
