// A main window with bars and a palette set, whose layout by and by becomes another.
#pragma once

#include <ktui/docking/ktui_palette_layouts.h>
#include <ktut.h>

#include <memory>
#include <random>

#include "bar_fixture.h"
#include "palette_fixture.h"

namespace docking_test {

constexpr unsigned kFirstBar = 4001;
constexpr unsigned kSeed = 20261123;

/// What is seen of a layout: every pane's place, whether it hides, which tab is in front.
using Seen = std::vector<std::string>;

struct LayoutsTest : DockingTest {
    std::vector<std::unique_ptr<OpenBar>> bars;
    OpenSet set;
    CKtUiPaletteLayouts layouts;
    std::mt19937 random{kSeed};
    BOOL animation = CDockablePane::m_bDisableAnimation;

    LayoutsTest() {
        CDockablePane::m_bDisableAnimation = TRUE;
        removeStored();
    }
    ~LayoutsTest() override {
        CDockablePane::m_bDisableAnimation = animation;
        layouts.Detach();
        // A tab that goes before the pane around it has to leave that first.
        for (CKbUiDockControlBar* pane : panes())
            if (pane->IsTabbed()) pane->UndockPane(TRUE);
        frame->ShowWindow(SW_HIDE);
        ui_test::pump();
        removeStored();
    }
    static std::wstring storeKey() {
        return std::wstring(ktutProfileFileName().c_str()) + L"\\" + ktutProfileRootName().c_str() +
               L"\\9.1\\Dialogs\\PaletteLayouts";
    }
    static void removeStored() { ::RegDeleteTreeW(HKEY_CURRENT_USER, storeKey().c_str()); }
    static std::wstring stored(const wchar_t* name) {
        std::vector<wchar_t> text(60000);
        auto size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        return ::RegGetValueW(HKEY_CURRENT_USER, storeKey().c_str(), name, RRF_RT_REG_SZ, nullptr,
                              text.data(), &size) == ERROR_SUCCESS
                   ? text.data()
                   : L"(none)";
    }
    static void store(const wchar_t* name, const std::wstring& text) {
        ASSERT_EQ(::RegSetKeyValueW(HKEY_CURRENT_USER, storeKey().c_str(), name, REG_SZ, text.c_str(),
                                    static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
                  ERROR_SUCCESS);
    }

    OpenBar& addBar(unsigned id) {
        bars.push_back(std::make_unique<OpenBar>());
        const CString name = CString(L"Bar ") + static_cast<wchar_t>(L'A' + (id - kFirstBar));
        EXPECT_TRUE(bars.back()->CKbUiDockControlBar::Create(
            frame, name, id, WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI, CRect(0, 0, 150, 120)));
        bars.back()->EnableDocking(CBRS_ALIGN_ANY);
        return *bars.back();
    }
    /// Bars from kFirstBar on, docked at the left, and a set with three palettes at the right.
    void fillFrame(unsigned count) {
        for (unsigned i = 0; i < count; ++i) frame->DockPane(&addBar(kFirstBar + i));
        ASSERT_TRUE(set.CKbUiPaletteSet::Create(L"Set", WS_CHILD | WS_VISIBLE | CBRS_RIGHT | CBRS_FLOAT_MULTI,
                                                CRect(0, 0, 180, 300), frame, 0));
        set.SetDlgCtrlID(4900);
        for (const wchar_t* name : {L"One", L"Two", L"Three"})
            ASSERT_EQ(set.AddPalette(new TestPalette(name)), 0);
        set.SetActivePalette(0);
        set.EnableDocking(CBRS_ALIGN_ANY);
        frame->DockPane(&set);
        ASSERT_TRUE(layouts.Attach(*frame));
        ui_test::pump();
    }
    std::vector<CKbUiDockControlBar*> panes() {
        std::vector<CKbUiDockControlBar*> all;
        for (const auto& bar : bars) all.push_back(bar.get());
        if (set.m_hWnd != nullptr) all.push_back(&set);
        return all;
    }

    static std::string textOf(const CRect& rect) {
        return std::to_string(rect.left) + "," + std::to_string(rect.top) + " " +
               std::to_string(rect.Width()) + "x" + std::to_string(rect.Height());
    }
    static CRect placeOf(const CWnd& window) {
        CRect rect;
        window.GetWindowRect(&rect);
        return rect;
    }
    static std::string seenOf(CKbUiDockControlBar& pane) {
        std::string text = std::to_string(pane.GetDlgCtrlID()) + ": ";
        CBaseTabbedPane* tabbed = pane.GetParentTabbedPane();
        CDockablePane& part = tabbed != nullptr ? static_cast<CDockablePane&>(*tabbed) : pane;
        if (tabbed != nullptr) {
            CMFCBaseTabCtrl* tabs = tabbed->GetUnderlyingWindow();
            const int index = tabs->GetTabFromHwnd(pane.m_hWnd);
            text += "tab " + std::to_string(index) + (tabs->IsTabVisible(index) ? "" : " hidden") +
                    (tabs->GetActiveTab() == index ? " active " : " ");
        }
        if (part.IsAutoHideMode())
            text += "at the edge " + std::to_string(part.GetCurrentAlignment());
        else if (part.IsPaneVisible())
            text += (part.IsDocked() ? "docked " : "floating ") + textOf(placeOf(pane));
        else
            text += "not seen";
        if (CPaneFrameWnd* frame = part.GetParentMiniFrame())
            text += (frame->IsWindowVisible() ? " in " : " in hidden ") + textOf(placeOf(*frame));
        return text;
    }
    Seen seen() {
        ui_test::pump();
        Seen all;
        for (CKbUiDockControlBar* pane : panes()) all.push_back(seenOf(*pane));
        all.push_back("palette " +
                      std::to_string(set.m_hWnd != nullptr ? set.GetActivePaletteTabIndex() : -1));
        all.push_back("middle " + textOf(frame->GetDockingManager()->GetClientAreaBounds()));
        return all;
    }
    /// What is seen when each pane that hides slides out, and then all that is hidden is shown.
    Seen seenOnReturn() {
        Seen all;
        for (CKbUiDockControlBar* pane : panes()) {
            CBaseTabbedPane* tabbed = pane->GetParentTabbedPane();
            CDockablePane& part = tabbed != nullptr ? static_cast<CDockablePane&>(*tabbed) : *pane;
            if (!part.IsAutoHideMode()) continue;
            part.Slide(TRUE, FALSE);
            all.push_back("slid out " + textOf(placeOf(part)));
            part.Slide(FALSE, FALSE);
        }
        for (CKbUiDockControlBar* pane : panes()) {
            CBaseTabbedPane* tabbed = pane->GetParentTabbedPane();
            CDockablePane& part = tabbed != nullptr ? static_cast<CDockablePane&>(*tabbed) : *pane;
            if (part.IsAutoHideMode()) part.ToggleAutoHide();
            if (pane->IsDocked() || pane->GetParentMiniFrame() != nullptr) pane->ShowPane(TRUE, FALSE, FALSE);
        }
        const Seen now = seen();
        all.insert(all.end(), now.begin(), now.end());
        for (CKbUiDockControlBar* pane : panes()) {
            if (pane->GetParentMiniFrame() == nullptr || pane->IsTabbed()) continue;
            if (pane->DockToRecentPos()) all.push_back("back home " + textOf(placeOf(*pane)));
        }
        return all;
    }

    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random); }
    /// Something that a user might do to a pane.
    void doAnything() {
        const std::vector<CKbUiDockControlBar*> all = panes();
        const auto any = [&]() -> CKbUiDockControlBar& {
            return *all[static_cast<std::size_t>(upTo(static_cast<int>(all.size()) - 1))];
        };
        CKbUiDockControlBar &pane = any(), &other = any();
        constexpr DWORD kSides[] = {CBRS_ALIGN_LEFT, CBRS_ALIGN_RIGHT, CBRS_ALIGN_BOTTOM};
        const DWORD side = kSides[upTo(2)];
        const CRect size(CPoint(0, 0), CSize(60 + upTo(140), 60 + upTo(140)));
        switch (upTo(9)) {
            case 0:
            case 1: pane.DockToFrameWindow(side, &size, DT_DOCK_LAST, nullptr, -1, upTo(1)); break;
            case 2:
            case 3: pane.DockToWindow(&other, side, &size); break;
            case 4: pane.AttachToTabWnd(&other, DM_UNKNOWN, upTo(1)); break;
            case 5: pane.FloatPane(CRect(CPoint(30 + upTo(400), 40 + upTo(300)), size.Size())); break;
            case 6: pane.ShowPane(FALSE, FALSE, FALSE); break;
            case 7: pane.ShowPane(TRUE, FALSE, upTo(1)); break;
            case 8: pane.ToggleAutoHide(); break;
            default:
                if (set.m_hWnd != nullptr) set.SetActivePalette(upTo(set.GetPaletteCount() - 1));
                break;
        }
    }
};

}  // namespace docking_test
