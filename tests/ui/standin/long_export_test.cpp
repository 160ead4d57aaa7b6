// An export that takes long: its window, how it is stopped, and what is told of a file that lacks something.
#include <afxcmn.h>

#include "../../../platform/standin/resource.h"
#include "heavy_drawing.h"
#include "export_fixture.h"

namespace {

using namespace ui_test;

class LongExports : public Exports {
protected:
    LongExports() { host.SetExportPatience(0); }

    /// Exports, and acts in the window that tells how far it is.
    bool exportWatched(std::function<void(HWND)> act) {
        bool wasSeen = false;
        when_dialog(L"Exporting", [&](HWND window) {
            wasSeen = true;
            act(window);
        });
        message = L"as before";
        const bool isDone = host.ExportDrawing(path(L"a.pdf"), message);
        EXPECT_TRUE(wasSeen);
        return isDone;
    }
    void expectNoFile() {
        EXPECT_FALSE(isThere(L"a.pdf"));
        EXPECT_FALSE(isThere(L"a.pdf.new"));
        EXPECT_TRUE(opened.empty());
    }
    OdDbDatabase& drawing() { return *document.drawing; }
};

/// Blocks within blocks, a hundred thousand lines in all.
void fillForAWhile(OdDbDatabase& drawing) { fillWithReferences(drawing, L"x", 5); }

int dialogsMade = 0;

LRESULT CALLBACK countDialogs(int code, WPARAM window, LPARAM created) {
    if (code == HCBT_CREATEWND) {
        wchar_t name[16] = {};
        ::GetClassNameW(reinterpret_cast<HWND>(window), name, 16);
        dialogsMade += wcscmp(name, L"#32770") == 0;
    }
    return ::CallNextHookEx(nullptr, code, window, created);
}

TEST_F(LongExports, AWindowTellsHowFarItIsAndGoesByItself) {
    fillForAWhile(drawing());
    plot().setPlotArea(1, true);
    plot().setFirstSwitch(true);
    EXPECT_TRUE(exportWatched([this](HWND window) {
        EXPECT_EQ(text_of(::GetDlgItem(window, IDC_EXPORT_FILE)), path(L"a.pdf").GetString());
        HWND const bar = ::GetDlgItem(window, IDC_EXPORT_PROGRESS);
        EXPECT_TRUE(pump_until([bar] { return ::SendMessageW(bar, PBM_GETPOS, 0, 0) > 0; }, 60000));
        ::SendMessageW(window, WM_COMMAND, IDOK, 0);
    }));
    EXPECT_EQ(message, L"");
    EXPECT_EQ(pages(bytesOf(L"a.pdf")), 1);
    EXPECT_EQ(opened, std::vector<CString>{path(L"a.pdf")});
}

TEST_F(LongExports, CancelLeavesNoFileAndNeedsNoMessage) {
    fillWithoutEnd(drawing());
    plot().setPlotArea(1, true);
    plot().setFirstSwitch(true);
    EXPECT_FALSE(exportWatched([](HWND window) {
        ::SendMessageW(window, WM_COMMAND, IDCANCEL, 0);
        EXPECT_TRUE(::IsWindow(window)) << "until it has ended";
        EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(window, IDCANCEL)));
    }));
    EXPECT_EQ(message, L"");
    expectNoFile();
}

TEST_F(LongExports, AChangeOfTheDrawingEndsIt) {
    fillWithoutEnd(drawing());
    plot().setPlotArea(1, true);
    EXPECT_FALSE(exportWatched([this](HWND) { addEntity(drawing(), newLine(0, 0, 1, 1)); }));
    EXPECT_NE(message.Find(L"changed meanwhile"), -1);
    expectNoFile();
}

TEST_F(LongExports, TheFormerFileStaysWhenItIsStopped) {
    host.SetExportPatience(INFINITE);
    const std::string former = exported();
    host.SetExportPatience(0);
    fillWithoutEnd(drawing());
    EXPECT_FALSE(exportWatched([](HWND window) { ::SendMessageW(window, WM_COMMAND, IDCANCEL, 0); }));
    EXPECT_EQ(bytesOf(L"a.pdf"), former);
}

TEST_F(LongExports, WhatAPageLacksIsTold) {
    host.SetExportPatience(INFINITE);
    fillWithReferences(drawing(), nullptr, 10);
    EXPECT_EQ(pages(exported()), 1);
    EXPECT_NE(message.Find(L"lacks a part"), -1);
}

TEST_F(LongExports, AShortOneShowsNoWindow) {
    host.SetExportPatience(INFINITE);
    plot().setPlotArea(1, true);
    message = L"as before";
    dialogsMade = 0;
    HHOOK const hook = ::SetWindowsHookExW(WH_CBT, &countDialogs, nullptr, ::GetCurrentThreadId());
    EXPECT_EQ(pages(exported()), 1);
    EXPECT_EQ(dialogsMade, 0);
    host.SetExportPatience(0);
    fillForAWhile(drawing());
    exported();
    ::UnhookWindowsHookEx(hook);
    EXPECT_EQ(dialogsMade, 1) << "as it is counted";
    EXPECT_EQ(message, L"");
}

}  // namespace
