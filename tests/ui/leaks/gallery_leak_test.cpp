// All pages of the gallery, a thousand pages in all.
#include <vector>

#include "../../../samples/gallery/gallery_dialog.h"
#include "../../../samples/gallery/gallery_drawing.h"
#include "../../../samples/gallery/resource.h"
#include "leak_fixture.h"

namespace {

class Gallery : public CGalleryDialog {
public:
    Gallery() { SetAppRootKey((CString(leaks::kDialogsKey) + L"\\").GetString()); }
};

/// A window of the system's as a page has it.
struct BareWindow {
    std::wstring name;
    DWORD style;
};
using BarePage = std::vector<BareWindow>;

class GalleryLeaks : public leaks::Leaks {
protected:
    GalleryLeaks() {
        host.SetCurrentDocument(&document);
        gallery.Create(IDD_GALLERY, nullptr);
        gallery.ShowWindow(SW_SHOW);
    }
    ~GalleryLeaks() override {
        gallery.DestroyWindow();
        host.SetCurrentDocument(nullptr);
    }
    BarePage bareOf(int index) {
        gallery.OpenPage(index);
        BarePage page;
        for (CWnd* child = gallery.Page()->GetWindow(GW_CHILD); child;
             child = child->GetWindow(GW_HWNDNEXT)) {
            wchar_t name[32] = {};
            ::GetClassNameW(*child, name, 32);
            // A class of the toolkit's own is a button, or a plain window, to the system.
            const bool isPlain = name[0] == L'#' || wcsncmp(name, L"Afx", 3) == 0;
            page.push_back({isPlain ? L"Static" : name, child->GetStyle()});
        }
        return page;
    }
    void openBare(const BarePage& page) {
        leaks::open_bare_dialog(parent.m_hWnd, IDD_GALLERY_PAGE);
        for (const BareWindow& each : page) {
            const HWND window = ::CreateWindowExW(0, each.name.c_str(), L"", each.style, 0, 0, 60, 20,
                                                  parent.m_hWnd, nullptr, AfxGetInstanceHandle(), nullptr);
            // This Wine's static control keeps a block for each font that it is given.
            ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)),
                           FALSE);
            ::DestroyWindow(window);
        }
    }

    CGalleryDocument document;
    Gallery gallery;
};

}  // namespace

TEST_F(GalleryLeaks, AThousandPagesLeaveNothing) {
    std::vector<BarePage> pages;
    for (int i = 0; i < gallery.PageCount(); ++i) pages.push_back(bareOf(i));
    int opened = 0;
    const std::size_t systemGrowth = leaks::heap_growth([&] {
        openBare(pages[static_cast<std::size_t>(++opened) % pages.size()]);
        openBare(pages[0]);
    });
    opened = 0;
    // Each time a page and then the first one, so that every count is taken with the same page open.
    leaks::expect_no_growth(
        [&] {
            gallery.OpenPage(1 + ++opened % (gallery.PageCount() - 1));
            ui_test::pump();
            gallery.OpenPage(0);
            ui_test::pump();
        },
        systemGrowth, leaks::kShownGdiSlack);
    EXPECT_EQ(opened, leaks::kTimes + leaks::kWarmUp);
}
