// What of the Places list is painted anew, and when: what the list asks of the system.
#include <optional>

#include "place_fixture.h"
#include "slow_preview.h"

namespace {

/// What was asked to be painted anew of a window, as long as it lives; nothing for all of it.
class AskedRedraws {
public:
    explicit AskedRedraws(HWND window) : m_asks(::GetModuleHandleW(nullptr), "InvalidateRect", &ask) {
        EXPECT_TRUE(m_asks.isThere());
        of() = window;
        rects().clear();
    }
    std::vector<CRect> Rows() const {
        std::vector<CRect> rows;
        for (const auto& rect : rects())
            if (rect) rows.push_back(*rect);
        return rows;
    }
    long long Whole() const { return std::count(rects().begin(), rects().end(), std::nullopt); }
    void Forget() { rects().clear(); }

private:
    static HWND& of() {
        static HWND window = nullptr;
        return window;
    }
    static std::vector<std::optional<CRect>>& rects() {
        static std::vector<std::optional<CRect>> all;
        return all;
    }
    static BOOL WINAPI ask(HWND window, const RECT* rect, BOOL erase) {
        if (window == of()) rects().push_back(rect != nullptr ? std::optional<CRect>(*rect) : std::nullopt);
        static const auto invalidates = reinterpret_cast<decltype(&ask)>(
            reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "InvalidateRect")));
        return invalidates(window, rect, erase);
    }
    ui_test::ReplacedImport m_asks;
};

using Rows = std::vector<CRect>;

class PlaceListRedraw : public PlacesTest {};

}  // namespace

TEST_F(PlaceListRedraw, TheRowsThatTheMouseLeavesAndComesTo) {
    openWith({L"one", L"two", L"Three"});
    const AskedRedraws asked(list->m_hWnd);
    pointAt(in(1));
    EXPECT_EQ(asked.Rows(), (Rows{rectOf(1)}));
    pointAt(in(1));
    EXPECT_EQ(asked.Rows(), (Rows{rectOf(1)})) << "it is there already";
    pointAt(in(2));
    EXPECT_EQ(asked.Rows(), (Rows{rectOf(1), rectOf(1), rectOf(2)}));
    list->SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(asked.Rows(), (Rows{rectOf(1), rectOf(1), rectOf(2), rectOf(2)}));
    list->SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(asked.Rows().size(), 4u) << "no row is under it any more";
    EXPECT_EQ(asked.Whole(), 0);
}

TEST_F(PlaceListRedraw, AllOfItWhenAnotherFolderIsSelectedAndNothingForTheSame) {
    openWith({L"one", L"two"});
    platform.folder = folder(L"two");
    AskedRedraws asked(list->m_hWnd);
    list->SyncSelection();
    EXPECT_EQ(asked.Whole(), 1);
    list->SyncSelection();
    EXPECT_EQ(asked.Whole(), 1);
    list->SendMessage(WM_KEYDOWN, VK_UP);
    EXPECT_EQ(list->GetCurSel(), 0);
    EXPECT_EQ(asked.Whole(), 2) << "by a key";
}

TEST_F(PlaceListRedraw, AllOfItOnceMoreWhenAClickGoesToAFolder) {
    openWith({L"one", L"two"});
    platform.folder = folder(L"two");
    click(1);
    AskedRedraws asked(list->m_hWnd);
    click(1);
    const auto forTheFolderShown = asked.Whole();
    EXPECT_TRUE(platform.visited.empty());
    platform.folder = folder(L"one");
    asked.Forget();
    click(1);
    EXPECT_EQ(platform.visited.size(), 1u);
    EXPECT_EQ(asked.Whole(), forTheFolderShown + 1);
}

TEST_F(PlaceListRedraw, TheRowWhoseIconCame) {
    const NeverBlocked limit(60000);
    const AskedRedraws asked(::GetDlgItem(child, 57015));
    openWith({L"one", L"two"});
    ASSERT_TRUE(ui_test::pump_until([&] { return item(1).m_iconRequest == 0; }));
    EXPECT_EQ(asked.Rows(), (Rows{rectOf(0), rectOf(1)}));
}
