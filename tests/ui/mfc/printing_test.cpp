// A view prints its document: what is called in which order, what the user is asked and told, and how a job
// ends early. The functions of the system are the test's own, as no printer is needed to tell their order.
#include <afxdlgs.h>

#include "printer_names.h"
#include "replaced_import.h"
#include "view_frame.h"

namespace documents_test {

namespace {

/// What the replaced functions do.
struct System {
    bool hasPrinter = true;
    bool exchanges = false;  ///< another printer is chosen
    bool accepts = true;     ///< the print dialog
    DWORD chosenFlags = 0;   ///< PD_PAGENUMS, PD_PRINTTOFILE
    WORD from = 0, to = 0;
    int startDoc = 7, startPage = 1, endPage = 1, endDoc = 1;
    BOOL(CALLBACK* abortProc)(HDC, int) = nullptr;
    std::wstring output;
} printer;

HGLOBAL modeOf(short copies) {
    const HGLOBAL block = ::GlobalAlloc(GHND, sizeof(DEVMODEW));
    static_cast<DEVMODEW*>(::GlobalLock(block))->dmCopies = copies;
    ::GlobalUnlock(block);
    return block;
}

BOOL WINAPI printDialog(PRINTDLGW* data) {
    const bool isQuestion = (data->Flags & PD_RETURNDEFAULT) == 0;
    std::string what = (data->Flags & PD_PRINTSETUP) != 0 ? "setup" : "dialog";
    if (!isQuestion) what = "default printer";
    if (isQuestion && (data->Flags & PD_PRINTSETUP) == 0)
        what += " " + std::to_string(data->nMinPage) + "-" + std::to_string(data->nMaxPage) + " (" +
                std::to_string(data->nFromPage) + "-" + std::to_string(data->nToPage) + ")";
    note(what);
    if (!printer.hasPrinter || (isQuestion && !printer.accepts)) return FALSE;
    if (printer.exchanges) {
        // Made before the former one goes, so that it lies elsewhere.
        const HGLOBAL another = ui_test::printer_names(L"winspool", L"Another", L"LPT1:");
        ::GlobalFree(data->hDevNames);
        data->hDevNames = another;
    }
    if (data->hDevNames == nullptr)
        data->hDevNames = ui_test::printer_names(L"winspool", L"Plotter", L"LPT9:");
    if (data->hDevMode == nullptr) data->hDevMode = modeOf(3);
    data->Flags |= printer.chosenFlags;
    if (printer.chosenFlags & PD_PAGENUMS) {
        data->nFromPage = printer.from;
        data->nToPage = printer.to;
    }
    if (data->Flags & PD_RETURNDC) data->hDC = ::CreateCompatibleDC(nullptr);
    return TRUE;
}
HDC WINAPI createDC(const wchar_t* driver, const wchar_t* device, const wchar_t* port, const DEVMODEW* mode) {
    note("context " + std::string(CStringA(driver)) + " " + std::string(CStringA(device)) + " " +
         std::string(CStringA(port)) +
         (mode != nullptr ? " " + std::to_string(mode->dmCopies) : std::string()));
    return printer.hasPrinter ? ::CreateCompatibleDC(nullptr) : nullptr;
}
int WINAPI startDoc(HDC, const DOCINFOW* job) {
    note("start " + std::string(CStringA(job->lpszDocName)));
    printer.output = job->lpszOutput != nullptr ? job->lpszOutput : L"";
    return printer.startDoc;
}
int WINAPI startPage(HDC) {
    note("page {");
    return printer.startPage;
}
int WINAPI endPage(HDC) {
    note("}");
    return printer.endPage;
}
int WINAPI endDoc(HDC) {
    note("end");
    return printer.endDoc;
}
int WINAPI abortDoc(HDC) {
    note("abort");
    return 1;
}
int WINAPI setAbortProc(HDC, BOOL(CALLBACK* procedure)(HDC, int)) {
    printer.abortProc = procedure;
    return 1;
}

HWND printingDialog() {
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            if (ui_test::text_of(window) != L"Printing" || !::IsWindowVisible(window)) return TRUE;
            *reinterpret_cast<HWND*>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

/// Prints three pages, and tells of its calls.
class PrintedView : public CView {
    DECLARE_DYNCREATE(PrintedView)
public:
    UINT first = 1, last = 3;
    UINT endsBefore = 0;
    bool prepares = true;
    std::function<void(UINT)> whilePrinting;
    CRect usable;
    int job = 0;
    std::vector<std::wstring> shown;  ///< texts of the window that tells of the job, at the last page
    bool mainWindowWorks = true;
    BOOL printing = FALSE;

protected:
    void OnDraw(CDC* dc) override {
        if (dc->IsPrinting()) note("draw");
    }
    BOOL OnPreparePrinting(CPrintInfo* info) override {
        note("prepare");
        info->SetMinPage(first);
        if (last != 0) info->SetMaxPage(last);
        return prepares ? DoPreparePrinting(info) : FALSE;
    }
    void OnBeginPrinting(CDC* dc, CPrintInfo* info) override {
        printing = dc->IsPrinting();
        note("begin " + std::to_string(info->GetFromPage()) + "-" + std::to_string(info->GetToPage()));
    }
    void OnPrepareDC(CDC* dc, CPrintInfo* info) override {
        if (info == nullptr) return CView::OnPrepareDC(dc);
        note("dc " + std::to_string(info->m_nCurPage));
        if (info->m_nCurPage == endsBefore) info->m_bContinuePrinting = FALSE;
        dc->SetMapMode(MM_ANISOTROPIC);
        dc->SetWindowExt(1, 1);
        dc->SetViewportExt(2, 2);
    }
    void OnPrint(CDC* dc, CPrintInfo* info) override {
        note("print " + std::to_string(info->m_nCurPage));
        usable = info->m_rectDraw;
        job = info->m_nJobNumber;
        mainWindowWorks = AfxGetMainWnd() == nullptr || AfxGetMainWnd()->IsWindowEnabled();
        shown.clear();
        for (HWND each = ::GetWindow(printingDialog(), GW_CHILD); each != nullptr;
             each = ::GetWindow(each, GW_HWNDNEXT))
            shown.push_back(std::wstring(ui_test::text_of(each)));
        if (whilePrinting) whilePrinting(info->m_nCurPage);
        if (info->m_nCurPage == 1) CView::OnPrint(dc, info);
    }
    void OnEndPrinting(CDC*, CPrintInfo*) override { note("finish"); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(PrintedView, CView)

BEGIN_MESSAGE_MAP(PrintedView, CView)
    ON_COMMAND(ID_FILE_PRINT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_DIRECT, &CView::OnFilePrint)
END_MESSAGE_MAP()

using Heard = std::vector<std::string>;

struct Printing : DocumentsTest {
    HMODULE layer = ::GetModuleHandleW(L"kmfc.dll");
    ui_test::ReplacedImport dialog{layer, "PrintDlgW", &printDialog};
    ui_test::ReplacedImport context{layer, "CreateDCW", &createDC};
    ui_test::ReplacedImport doc{layer, "StartDocW", &startDoc};
    ui_test::ReplacedImport page{layer, "StartPage", &startPage};
    ui_test::ReplacedImport pageEnd{layer, "EndPage", &endPage};
    ui_test::ReplacedImport docEnd{layer, "EndDoc", &endDoc};
    ui_test::ReplacedImport stop{layer, "AbortDoc", &abortDoc};
    ui_test::ReplacedImport procedure{layer, "SetAbortProc", &setAbortProc};
    ViewFrame<PrintedView> sheet;

    Printing() {
        for (const ui_test::ReplacedImport* each :
             {&dialog, &context, &doc, &page, &pageEnd, &docEnd, &stop, &procedure})
            EXPECT_TRUE(each->isThere());
        printer = {};
        sheet.document.SetTitle(L"Plan 1");
        AfxGetApp()->m_pMainWnd = sheet.frame;
        take();
    }
    ~Printing() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        AfxGetApp()->SelectPrinter(nullptr, nullptr);
    }
    PrintedView& view() { return *sheet.view; }
    Heard print(UINT command = ID_FILE_PRINT) {
        take();
        view().SendMessage(WM_COMMAND, command);
        return take();
    }
};

/// What is heard of a job that is asked for: the pages of the document, then the job with those printed.
Heard job(const std::string& pages, int printed, bool isEnded = true) {
    Heard all = {"prepare", "default printer", "dialog " + pages + " (" + pages + ")", "begin " + pages,
                 "start Plan 1"};
    for (int page = 1; page <= printed; ++page) {
        const std::string number = std::to_string(page);
        for (const std::string& each : {"dc " + number, std::string("page {"), "print " + number})
            all.push_back(each);
        if (page == 1) all.push_back("draw");
        all.push_back("}");
    }
    // The page at which the document ends itself is prepared too.
    if (!isEnded) all.push_back("dc " + std::to_string(printed + 1));
    all.push_back("end");
    all.push_back("finish");
    return all;
}

const Heard kAll = job("1-3", 3);

}  // namespace

TEST_F(Printing, GoesThroughThePagesInOrder) {
    EXPECT_EQ(print(), kAll);
    EXPECT_TRUE(view().printing);
    EXPECT_EQ(view().job, 7);
    const HDC same = ::CreateCompatibleDC(nullptr);
    EXPECT_EQ(view().usable,
              CRect(0, 0, ::GetDeviceCaps(same, HORZRES) / 2, ::GetDeviceCaps(same, VERTRES) / 2))
        << "the page in the units of the view";
    ::DeleteDC(same);
    EXPECT_TRUE(app.told.empty());
    EXPECT_EQ(printer.output, L"");
}

TEST_F(Printing, AWindowTellsOfItAndTheMainOneIsDisabled) {
    print();
    const std::vector<std::wstring> texts = {L"Document:", L"Plan 1", L"Printer:", L"Plotter",
                                             L"To:",       L"LPT9:",  L"Page 3",   L"Cancel"};
    EXPECT_EQ(view().shown, texts);
    EXPECT_FALSE(view().mainWindowWorks);
    EXPECT_TRUE(sheet.frame->IsWindowEnabled());
    EXPECT_EQ(printingDialog(), nullptr);
}

TEST_F(Printing, ARangeIsPrintedAsItWasGivenWithinTheDocument) {
    printer.chosenFlags = PD_PAGENUMS;
    view().last = 5;
    printer.from = 4;
    printer.to = 2;
    Heard heard = print();
    const Heard backwards = {"begin 4-2", "start Plan 1", "dc 4", "page {", "print 4", "}",       "dc 3",
                             "page {",    "print 3",      "}",    "dc 2",   "page {",  "print 2", "}",
                             "end",       "finish"};
    EXPECT_EQ(Heard(heard.begin() + 3, heard.end()), backwards);
    printer.from = 5;
    printer.to = 900;
    heard = print();
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "page {"), 1) << "there are five";
    view().first = 2;
    printer.from = 0;
    printer.to = 2;
    heard = print();
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "print 2"), 1);
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "page {"), 1);
}

TEST_F(Printing, ADocumentWhoseLengthIsNotKnownEndsItself) {
    view().last = 0;
    view().endsBefore = 3;
    EXPECT_EQ(print(), job("1-65535", 2, false));
}

TEST_F(Printing, NothingBeginsWhenItIsNotWanted) {
    view().prepares = false;
    EXPECT_EQ(print(), Heard{"prepare"});
    view().prepares = true;
    printer.accepts = false;
    EXPECT_EQ(print(), (Heard{"prepare", "default printer", "dialog 1-3 (1-3)"}));
    EXPECT_TRUE(app.told.empty());
}

TEST_F(Printing, TheUserGivesUpInTheMiddle) {
    view().whilePrinting = [](UINT number) {
        if (number == 2) ::PostMessageW(printingDialog(), WM_COMMAND, IDCANCEL, 0);
    };
    const Heard heard = print();
    const Heard expected = {"print 2", "}", "dc 3", "abort", "finish"};
    EXPECT_EQ(Heard(heard.end() - 5, heard.end()), expected);
    EXPECT_TRUE(app.told.empty()) << "the user knows";
    EXPECT_TRUE(sheet.frame->IsWindowEnabled());
}

TEST_F(Printing, TheSystemAsksWhetherToGoOn) {
    BOOL before = FALSE, after = TRUE;
    view().whilePrinting = [&](UINT number) {
        if (number != 1) return;
        before = printer.abortProc(nullptr, 0);
        ::SendMessageW(printingDialog(), WM_COMMAND, IDCANCEL, 0);
        after = printer.abortProc(nullptr, 0);
    };
    print();
    EXPECT_TRUE(before);
    EXPECT_FALSE(after);
    EXPECT_TRUE(printer.abortProc(nullptr, 0)) << "there is no job any more";
}

TEST_F(Printing, EnterInTheWindowDoesNotGiveUp) {
    view().whilePrinting = [](UINT) { ::SendMessageW(printingDialog(), WM_COMMAND, IDOK, 0); };
    EXPECT_EQ(print(), kAll);
}

TEST_F(Printing, AFailureIsTold) {
    printer.startDoc = SP_ERROR;
    Heard heard = print();
    EXPECT_EQ(Heard(heard.end() - 2, heard.end()), (Heard{"start Plan 1", "finish"}));
    ASSERT_EQ(app.told.size(), 1u);
    EXPECT_EQ(app.told[0], L"The document could not be printed. Check that the printer is there and ready.");
    printer = {};
    printer.startPage = 0;
    heard = print();
    EXPECT_EQ(Heard(heard.end() - 4, heard.end()), (Heard{"dc 1", "page {", "abort", "finish"}));
    EXPECT_EQ(app.told.size(), 2u);
    printer = {};
    printer.endPage = SP_OUTOFDISK;
    heard = print();
    EXPECT_EQ(Heard(heard.end() - 3, heard.end()), (Heard{"}", "abort", "finish"}));
    EXPECT_EQ(app.told.size(), 3u);
    printer = {};
    printer.endDoc = 0;
    heard = print();
    EXPECT_EQ(Heard(heard.end() - 2, heard.end()), (Heard{"end", "finish"}));
    EXPECT_EQ(app.told.size(), 4u);
    EXPECT_TRUE(sheet.frame->IsWindowEnabled());
}

TEST_F(Printing, WhatIsThrownEndsTheJob) {
    view().whilePrinting = [](UINT number) {
        if (number == 2) AfxThrowUserException();
    };
    const Heard heard = print();
    EXPECT_EQ(heard.back(), "abort");
    EXPECT_EQ(printingDialog(), nullptr);
    EXPECT_TRUE(sheet.frame->IsWindowEnabled());
    view().whilePrinting = nullptr;
    EXPECT_EQ(print().back(), "finish");
}

TEST_F(Printing, DirectlyNothingIsAsked) {
    const Heard heard = print(ID_FILE_PRINT_DIRECT);
    const Heard begin = {"prepare", "default printer", "context winspool Plotter LPT9: 3", "begin 1-3"};
    EXPECT_EQ(Heard(heard.begin(), heard.begin() + 4), begin);
    EXPECT_EQ(heard.back(), "finish");
    EXPECT_EQ(print(ID_FILE_PRINT_DIRECT)[1], "context winspool Plotter LPT9: 3")
        << "the printer is known by now";
}

TEST_F(Printing, WithoutAPrinterTheUserIsAskedForOne) {
    printer.hasPrinter = false;
    EXPECT_EQ(print(ID_FILE_PRINT_DIRECT),
              (Heard{"prepare", "default printer", "default printer", "dialog 1-3 (0-0)"}));
    EXPECT_TRUE(app.told.empty());
}

TEST_F(Printing, ACommandLineNamesThePrinter) {
    CCommandLineInfo command;
    command.m_nShellCommand = CCommandLineInfo::FilePrintTo;
    command.m_strDriverName = L"drv";
    command.m_strPrinterName = L"Room 4";
    command.m_strPortName = L"LPT2:";
    app.m_pCmdInfo = &command;
    Heard heard = print(ID_FILE_PRINT_DIRECT);
    EXPECT_EQ(Heard(heard.begin(), heard.begin() + 3),
              (Heard{"context drv Room 4 LPT2:", "prepare", "begin 1-3"}));
    printer.hasPrinter = false;
    heard = print(ID_FILE_PRINT_DIRECT);
    EXPECT_EQ(heard, Heard{"context drv Room 4 LPT2:"});
    EXPECT_EQ(app.told.size(), 1u);
    app.m_pCmdInfo = nullptr;
}

TEST_F(Printing, TheDialogTellsWhatWasChosen) {
    CPrintDialog chosen(FALSE);
    EXPECT_EQ(chosen.m_pd.Flags & (PD_RETURNDC | PD_PRINTSETUP | PD_RETURNIC),
              static_cast<DWORD>(PD_RETURNDC));
    EXPECT_TRUE(chosen.PrintAll());
    EXPECT_EQ(chosen.GetFromPage(), -1);
    EXPECT_EQ(chosen.GetToPage(), -1);
    EXPECT_EQ(chosen.CreatePrinterDC(), nullptr);
    EXPECT_EQ(chosen.GetDevMode(), nullptr);
    EXPECT_TRUE(chosen.GetDeviceName().IsEmpty());
    ASSERT_TRUE(chosen.GetDefaults());
    EXPECT_EQ(chosen.GetDeviceName(), L"Plotter");
    ::DeleteDC(chosen.m_pd.hDC);
    printer.chosenFlags = PD_PAGENUMS | PD_COLLATE;
    printer.from = 2;
    printer.to = 9;
    take();
    ASSERT_EQ(chosen.DoModal(), IDOK);
    EXPECT_EQ(take().at(0).substr(0, 6), "dialog") << "after the defaults were asked for, too";
    EXPECT_EQ(chosen.GetDriverName(), L"winspool");
    EXPECT_EQ(chosen.GetDeviceName(), L"Plotter");
    EXPECT_EQ(chosen.GetPortName(), L"LPT9:");
    EXPECT_EQ(chosen.GetCopies(), 3) << "as the printer's settings have it";
    chosen.m_pd.Flags &= ~static_cast<DWORD>(PD_USEDEVMODECOPIES);
    chosen.m_pd.nCopies = 8;
    EXPECT_EQ(chosen.GetCopies(), 8);
    EXPECT_TRUE(chosen.PrintRange());
    EXPECT_TRUE(chosen.PrintCollate());
    EXPECT_FALSE(chosen.PrintSelection());
    EXPECT_FALSE(chosen.PrintAll());
    EXPECT_EQ(chosen.GetFromPage(), 2);
    EXPECT_EQ(chosen.GetToPage(), 9);
    ASSERT_NE(chosen.GetDevMode(), nullptr);
    ::GlobalUnlock(chosen.m_pd.hDevMode);
    EXPECT_NE(chosen.GetPrinterDC(), nullptr);
    ::DeleteDC(chosen.GetPrinterDC());
    ::GlobalFree(chosen.m_pd.hDevMode);
    ::GlobalFree(chosen.m_pd.hDevNames);
}

TEST_F(Printing, TheApplicationKeepsItsPrinter) {
    take();
    app.OnFilePrintSetup();
    EXPECT_EQ(take(), (Heard{"default printer", "setup"}));
    app.OnFilePrintSetup();
    EXPECT_EQ(take(), Heard{"setup"});
    CDC chosen;
    printer.exchanges = true;
    app.OnFilePrintSetup();
    printer.exchanges = false;
    take();
    ASSERT_TRUE(app.CreatePrinterDC(chosen));
    EXPECT_EQ(take(), Heard{"context winspool Another LPT1: 3"}) << "the one chosen last";
    PRINTDLGW kept = {};
    ASSERT_TRUE(app.GetPrinterDeviceDefaults(&kept));
    app.SelectPrinter(ui_test::printer_names(L"other", L"Printer", L"X:"), modeOf(1));
    EXPECT_EQ(::GlobalFlags(kept.hDevNames), static_cast<UINT>(GMEM_INVALID_HANDLE));
    EXPECT_EQ(::GlobalFlags(kept.hDevMode), static_cast<UINT>(GMEM_INVALID_HANDLE));
    CDC dc;
    ASSERT_TRUE(app.CreatePrinterDC(dc));
    EXPECT_EQ(take(), Heard{"context other Printer X: 1"});
    EXPECT_NE(dc.m_hDC, nullptr);
    app.SelectPrinter(nullptr, nullptr);
    printer.hasPrinter = false;
    CDC none;
    EXPECT_FALSE(app.CreatePrinterDC(none));
}

TEST_F(Printing, APageNamesItself) {
    const CPrintInfo info;
    EXPECT_EQ(info.m_strPageDesc, L"Page %u\nPages %u-%u\n");
    EXPECT_EQ(info.GetMinPage(), 1u);
    EXPECT_EQ(info.GetMaxPage(), 65535u);
    EXPECT_EQ(info.m_nCurPage, 1u);
    EXPECT_TRUE(info.m_bContinuePrinting);
    EXPECT_EQ(info.m_nJobNumber, SP_ERROR);
}

TEST_F(Printing, APageBeginsAtItsCornerHoweverTheWindowWasScrolled) {
    ViewFrame<Sheet> scrolled;
    scrolled.view->SetScrollSizes(MM_TEXT, CSize(2000, 2000));
    scrolled.view->ScrollToPosition(CPoint(300, 400));
    struct PrinterDC : CDC {
        PrinterDC() { m_bPrinting = TRUE; }
    } dc;
    dc.CreateCompatibleDC(nullptr);
    scrolled.view->OnPrepareDC(&dc);
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(0, 0));
    CDC screen;
    screen.CreateCompatibleDC(nullptr);
    scrolled.view->OnPrepareDC(&screen);
    EXPECT_EQ(screen.GetViewportOrg(), CPoint(-300, -400));
}

}  // namespace documents_test
