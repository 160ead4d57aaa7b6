// CTaskDialog by itself: what it asks the system for, and what its handlers hear of a running dialog.
#include <afxtaskdialog.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "message_listener.h"
#include "replaced_import.h"
#include "ui_test.h"

using namespace ui_test;

namespace {

/// The request of the last DoModal; texts are copied, since they end with it.
struct Request {
    TASKDIALOGCONFIG config = {};
    std::wstring heading, content, footer, verification, expanded, collapsedLabel, expandedLabel;
    std::vector<std::pair<int, std::wstring>> commands, radios;
};
Request request;
bool answersAtOnce = false;
/// Runs in place of the system's dialog, where there is one.
std::function<void(const TASKDIALOGCONFIG&)> standIn;

std::wstring Text(const wchar_t* text) { return text != nullptr ? text : L""; }

decltype(&::TaskDialogIndirect) systemDialog;

HRESULT WINAPI SeenDialog(const TASKDIALOGCONFIG* config, int* button, int* radio, WINBOOL* verified) {
    request = Request();
    request.config = *config;
    request.heading = Text(config->pszMainInstruction);
    request.content = Text(config->pszContent);
    request.footer = Text(config->pszFooter);
    request.verification = Text(config->pszVerificationText);
    request.expanded = Text(config->pszExpandedInformation);
    request.collapsedLabel = Text(config->pszCollapsedControlText);
    request.expandedLabel = Text(config->pszExpandedControlText);
    for (UINT i = 0; i < config->cButtons; ++i)
        request.commands.emplace_back(+config->pButtons[i].nButtonID,
                                      Text(config->pButtons[i].pszButtonText));
    for (UINT i = 0; i < config->cRadioButtons; ++i)
        request.radios.emplace_back(+config->pRadioButtons[i].nButtonID,
                                    Text(config->pRadioButtons[i].pszButtonText));
    if (standIn) return standIn(*config), S_OK;
    if (!answersAtOnce) return systemDialog(config, button, radio, verified);
    *button = 77;
    *radio = 88;
    *verified = TRUE;
    return S_OK;
}

FARPROC WINAPI FindProcedure(HMODULE module, const char* name) {
    const FARPROC found = ::GetProcAddress(module, name);
    if (reinterpret_cast<ULONG_PTR>(name) < 0x10000 || std::strcmp(name, "TaskDialogIndirect") != 0)
        return found;
    systemDialog = reinterpret_cast<decltype(systemDialog)>(reinterpret_cast<void*>(found));
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&SeenDialog));
}

// For the whole program: the class layer looks once.
const ReplacedImport lookup(::GetModuleHandleW(L"kmfc.dll"), "GetProcAddress", &FindProcedure);

class HeardTaskDialog : public CTaskDialog {
public:
    using CTaskDialog::CTaskDialog;
    std::vector<std::string> heard;
    int keptOpen = 0;  ///< id whose first click is refused
    bool throws = false;

protected:
    HRESULT OnInit() override { return Hear("init"); }
    HRESULT OnCreate() override { return Hear("create"); }
    HRESULT OnDestroy() override { return Hear("destroy"); }
    HRESULT OnHelp() override { return Hear("help"); }
    HRESULT OnNavigatePage() override { return Hear("page"); }
    HRESULT OnTimer(long time) override { return Hear("timer " + std::to_string(time)); }
    HRESULT OnExpandButtonClick(BOOL out) override { return Hear("expand " + std::to_string(out)); }
    HRESULT OnHyperlinkClick(const CString& link) override {
        return Hear("link " + std::string(CStringA(link)));
    }
    HRESULT OnRadioButtonClick(int id) override { return Hear("radio " + std::to_string(id)); }
    HRESULT OnVerificationCheckboxClick(BOOL checked) override {
        return Hear("box " + std::to_string(checked));
    }
    HRESULT OnCommandControlClick(int id) override {
        Hear("click " + std::to_string(id));
        if (throws) throw std::runtime_error("from a handler");
        return std::exchange(keptOpen, 0) == id ? S_FALSE : S_OK;
    }

private:
    HRESULT Hear(std::string what) {
        heard.push_back(std::move(what));
        return S_OK;
    }
};

class TaskDialogClass : public ::testing::Test {
protected:
    TaskDialogClass() : dialog(L"content", L"heading", L"title") { answersAtOnce = false; }
    INT_PTR AtOnce() {
        answersAtOnce = true;
        const INT_PTR result = dialog.DoModal(parent.m_hWnd);
        answersAtOnce = false;
        return result;
    }
    INT_PTR Run(std::function<void(HWND)> act) {
        when_dialog(L"title", std::move(act));
        return dialog.DoModal(parent.m_hWnd);
    }
    static void Click(HWND box, int id) { ::PostMessageW(box, TDM_CLICK_BUTTON, static_cast<WPARAM>(id), 0); }
    ParentWindow parent;
    HeardTaskDialog dialog;
};

}  // namespace

TEST_F(TaskDialogClass, IsSupportedHere) { EXPECT_TRUE(CTaskDialog::IsSupported()); }

TEST_F(TaskDialogClass, AsksForWhatItWasBuiltWith) {
    AtOnce();
    EXPECT_EQ(+request.config.cbSize, sizeof(TASKDIALOGCONFIG));
    EXPECT_EQ(+request.config.hwndParent, parent.m_hWnd);
    EXPECT_EQ(request.content, L"content");
    EXPECT_EQ(request.heading, L"heading");
    EXPECT_EQ(+request.config.dwCommonButtons, TDCBF_OK_BUTTON | TDCBF_CANCEL_BUTTON);
    EXPECT_EQ(+request.config.dwFlags, TDF_ENABLE_HYPERLINKS | TDF_ALLOW_DIALOG_CANCELLATION);
    EXPECT_EQ(+request.config.cButtons, 0u);
    EXPECT_EQ(+request.config.cRadioButtons, 0u);
    EXPECT_EQ(+request.config.pszFooter, nullptr);
    EXPECT_EQ(+request.config.pszVerificationText, nullptr);
}

TEST_F(TaskDialogClass, KeepsTheSystemsAnswers) {
    EXPECT_EQ(AtOnce(), 77);
    EXPECT_EQ(dialog.GetSelectedCommandControlID(), 77);
    EXPECT_EQ(dialog.GetSelectedRadioButtonID(), 88);
    EXPECT_TRUE(dialog.GetVerificationCheckboxState());
}

TEST_F(TaskDialogClass, AsksForControlsInTheirOrderWithTheirDefaults) {
    dialog.AddCommandControl(103, L"c");
    dialog.AddCommandControl(101, L"a");
    dialog.AddRadioButton(202, L"r2");
    dialog.AddRadioButton(201, L"r1");
    dialog.SetDefaultCommandControl(101);
    dialog.SetDefaultRadioButton(201);
    AtOnce();
    using Pairs = std::vector<std::pair<int, std::wstring>>;
    EXPECT_EQ(request.commands, (Pairs{{103, L"c"}, {101, L"a"}}));
    EXPECT_EQ(request.radios, (Pairs{{202, L"r2"}, {201, L"r1"}}));
    EXPECT_EQ(+request.config.nDefaultButton, 101);
    EXPECT_EQ(+request.config.nDefaultRadioButton, 201);
    dialog.RemoveAllCommandControls();
    dialog.RemoveAllRadioButtons();
    AtOnce();
    EXPECT_TRUE(request.commands.empty());
    EXPECT_TRUE(request.radios.empty());
}

TEST_F(TaskDialogClass, AsksForFooterExpansionAndVerification) {
    dialog.SetFooterText(L"footer");
    dialog.SetExpansionArea(L"more", L"show", L"hide");
    dialog.SetVerificationCheckboxText(L"again");
    dialog.SetVerificationCheckbox(TRUE);
    AtOnce();
    EXPECT_EQ(request.footer, L"footer");
    EXPECT_EQ(request.expanded, L"more");
    EXPECT_EQ(request.collapsedLabel, L"show");
    EXPECT_EQ(request.expandedLabel, L"hide");
    EXPECT_EQ(request.verification, L"again");
    EXPECT_TRUE(request.config.dwFlags & TDF_VERIFICATION_FLAG_CHECKED);
    dialog.SetVerificationCheckbox(FALSE);
    AtOnce();
    EXPECT_FALSE(request.config.dwFlags & TDF_VERIFICATION_FLAG_CHECKED);
}

TEST_F(TaskDialogClass, AnIconIsAHandleOrAName) {
    const HICON icon = ::LoadIconW(nullptr, IDI_HAND);
    dialog.SetMainIcon(icon);
    dialog.SetFooterIcon(icon);
    AtOnce();
    EXPECT_EQ(+request.config.hMainIcon, icon);
    EXPECT_EQ(+request.config.hFooterIcon, icon);
    EXPECT_TRUE(request.config.dwFlags & TDF_USE_HICON_MAIN);
    EXPECT_TRUE(request.config.dwFlags & TDF_USE_HICON_FOOTER);
    dialog.SetMainIcon(TD_WARNING_ICON);
    dialog.SetFooterIcon(TD_ERROR_ICON);
    AtOnce();
    EXPECT_EQ(+request.config.pszMainIcon, TD_WARNING_ICON);
    EXPECT_EQ(+request.config.pszFooterIcon, TD_ERROR_ICON);
    EXPECT_FALSE(request.config.dwFlags & TDF_USE_HICON_MAIN);
    EXPECT_FALSE(request.config.dwFlags & TDF_USE_HICON_FOOTER);
}

TEST_F(TaskDialogClass, OptionsAreTakenAsTheyAre) {
    dialog.SetOptions(TDF_USE_COMMAND_LINKS);
    EXPECT_EQ(dialog.GetOptions(), TDF_USE_COMMAND_LINKS);
    AtOnce();
    EXPECT_EQ(+request.config.dwFlags, TDF_USE_COMMAND_LINKS);
}

TEST_F(TaskDialogClass, CommonButtonsHaveTheirFlagsAndIds) {
    const std::pair<int, int> buttons[] = {{1, IDOK},     {2, IDYES},    {4, IDNO},
                                           {8, IDCANCEL}, {16, IDRETRY}, {32, IDCLOSE}};
    for (const auto& [flag, id] : buttons) {
        EXPECT_EQ(dialog.GetCommonButtonId(flag), id);
        EXPECT_EQ(dialog.GetCommonButtonFlag(id), flag);
    }
    EXPECT_EQ(dialog.GetCommonButtonId(64), 0);
    EXPECT_EQ(dialog.GetCommonButtonFlag(4711), 0);
    EXPECT_EQ(dialog.GetCommonButtonCount(), 2);
    dialog.SetCommonButtons(63);
    EXPECT_EQ(dialog.GetCommonButtonCount(), 6);
}

TEST_F(TaskDialogClass, ItsHandlersHearInOrder) {
    dialog.SetVerificationCheckboxText(L"again");
    EXPECT_EQ(Run([&](HWND box) {
                  dialog.heard.push_back("up");
                  ::SendMessageW(box, TDM_CLICK_VERIFICATION, TRUE, FALSE);
                  Click(box, IDOK);
              }),
              IDOK);
    const std::vector<std::string> wanted = {"init", "create", "up", "box 1", "click 1", "destroy"};
    EXPECT_EQ(dialog.heard, wanted);
    EXPECT_TRUE(dialog.GetVerificationCheckboxState());
}

TEST_F(TaskDialogClass, TheRadioButtonInForceIsHeardOfAndKept) {
    dialog.AddRadioButton(201, L"r1");
    dialog.AddRadioButton(202, L"r2");
    dialog.SetDefaultRadioButton(202);
    Run([](HWND box) { Click(box, IDOK); });
    EXPECT_EQ(std::count(dialog.heard.begin(), dialog.heard.end(), "radio 202"), 1);
    EXPECT_EQ(std::count(dialog.heard.begin(), dialog.heard.end(), "radio 201"), 0);
    EXPECT_EQ(dialog.GetSelectedRadioButtonID(), 202);
}

TEST_F(TaskDialogClass, AHandlerKeepsItOpen) {
    dialog.keptOpen = IDOK;
    EXPECT_EQ(Run([&](HWND box) {
                  ::SendMessageW(box, TDM_CLICK_BUTTON, IDOK, 0);
                  EXPECT_TRUE(::IsWindow(box));
                  Click(box, IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(dialog.heard, (std::vector<std::string>{"init", "create", "click 1", "click 2", "destroy"}));
}

TEST_F(TaskDialogClass, WhatAHandlerThrowsComesOutOfDoModal) {
    dialog.throws = true;
    EXPECT_THROW(Run([](HWND box) { Click(box, IDOK); }), std::runtime_error);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST_F(TaskDialogClass, TextsAndButtonsChangeWhileItRuns) {
    dialog.AddCommandControl(101, L"command", FALSE);
    EXPECT_FALSE(dialog.IsCommandControlEnabled(101));
    EXPECT_FALSE(dialog.IsCommandControlEnabled(4711));
    Run([&](HWND box) {
        EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(box, 101)));
        dialog.SetCommandControlOptions(101, TRUE);
        EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(box, 101)));
        dialog.SetCommonButtonOptions(TDCBF_OK_BUTTON);
        EXPECT_FALSE(::IsWindowEnabled(::GetDlgItem(box, IDOK)));
        EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(box, IDCANCEL)));
        dialog.SetContent(L"another content");
        dialog.SetMainInstruction(L"another heading");
        Click(box, IDCANCEL);
    });
    EXPECT_TRUE(dialog.IsCommandControlEnabled(101));
    AtOnce();
    EXPECT_EQ(request.content, L"another content");
    EXPECT_EQ(request.heading, L"another heading");
}

TEST_F(TaskDialogClass, EscapeCancelsItWhereItMayBeCancelled) {
    dialog.SetCommonButtons(TDCBF_OK_BUTTON);
    EXPECT_EQ(Run([](HWND) { ::PostMessageW(::GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1); }), IDCANCEL);
    dialog.SetOptions(0);
    dialog.heard.clear();
    EXPECT_EQ(Run([](HWND box) {
                  ::SendMessageW(box, WM_COMMAND, IDCANCEL, 0);
                  Click(box, IDOK);
              }),
              IDOK);
}

TEST_F(TaskDialogClass, ACommandIsClickedFromTheProgram) {
    dialog.AddCommandControl(101, L"command");
    EXPECT_EQ(Run([&](HWND) { later([&] { dialog.ClickCommandControl(101); }); }), 101);
}

namespace {

/// Tells the class what a dialog would, from a window that notes what the class says to it.
class StagedTaskDialog : public TaskDialogClass {
protected:
    ~StagedTaskDialog() override { standIn = nullptr; }
    void Stage(const std::function<void()>& act) {
        standIn = [this, act](const TASKDIALOGCONFIG& given) {
            config = &given;
            Tell(TDN_DIALOG_CONSTRUCTED);
            act();
            Tell(TDN_DESTROYED);
        };
        dialog.DoModal();
        standIn = nullptr;
    }
    HRESULT Tell(UINT notification, WPARAM wParam = 0, LPARAM lParam = 0) {
        return config->pfCallback(box.window(), notification, wParam, lParam, config->lpCallbackData);
    }
    /// Whether the dialog was sent just these since the last call.
    void ExpectSaid(const std::vector<HeardMessage>& wanted) {
        const auto said = box.take();
        ASSERT_EQ(said.size(), wanted.size());
        for (std::size_t i = 0; i < said.size(); ++i) {
            EXPECT_EQ(said[i].message, wanted[i].message) << i;
            EXPECT_EQ(said[i].wParam, wanted[i].wParam) << i;
            EXPECT_EQ(said[i].lParam, wanted[i].lParam) << i;
        }
    }
    MessageListener box;
    const TASKDIALOGCONFIG* config = nullptr;
};

}  // namespace

TEST_F(StagedTaskDialog, EveryNotificationHasItsHandler) {
    dialog.SetCommonButtons(0);
    dialog.keptOpen = 5;
    Stage([&] {
        Tell(TDN_CREATED);
        Tell(TDN_NAVIGATED);
        Tell(TDN_TIMER, 250);
        Tell(TDN_RADIO_BUTTON_CLICKED, 9);
        EXPECT_EQ(Tell(TDN_BUTTON_CLICKED, 5), S_FALSE);
        EXPECT_EQ(Tell(TDN_BUTTON_CLICKED, 5), S_OK);
        Tell(TDN_VERIFICATION_CLICKED, TRUE);
        EXPECT_TRUE(dialog.GetVerificationCheckboxState());
        Tell(TDN_HYPERLINK_CLICKED, 0, reinterpret_cast<LPARAM>(L"a link"));
        Tell(TDN_HELP);
        Tell(TDN_EXPANDO_BUTTON_CLICKED, TRUE);
        EXPECT_EQ(Tell(4711), S_OK);
    });
    const std::vector<std::string> wanted = {"init",        "create",  "page",     "timer 250",
                                             "radio 9",     "click 5", "click 5",  "box 1",
                                             "link a link", "help",    "expand 1", "destroy"};
    EXPECT_EQ(dialog.heard, wanted);
}

TEST_F(StagedTaskDialog, StatesAreSaidAtTheStart) {
    dialog.SetCommonButtons(TDCBF_OK_BUTTON | TDCBF_RETRY_BUTTON, TDCBF_RETRY_BUTTON, TDCBF_OK_BUTTON);
    dialog.AddCommandControl(101, L"command", FALSE, TRUE);
    dialog.AddRadioButton(201, L"on");
    dialog.AddRadioButton(202, L"off", FALSE);
    Stage([&] {
        ExpectSaid({{TDM_ENABLE_BUTTON, IDOK, 1},
                    {TDM_SET_BUTTON_ELEVATION_REQUIRED_STATE, IDOK, 1},
                    {TDM_ENABLE_BUTTON, IDRETRY, 0},
                    {TDM_SET_BUTTON_ELEVATION_REQUIRED_STATE, IDRETRY, 0},
                    {TDM_ENABLE_BUTTON, 101, 0},
                    {TDM_SET_BUTTON_ELEVATION_REQUIRED_STATE, 101, 1},
                    {TDM_ENABLE_RADIO_BUTTON, 202, 0}});
    });
    EXPECT_TRUE(dialog.IsRadioButtonEnabled(201));
    EXPECT_FALSE(dialog.IsRadioButtonEnabled(202));
    EXPECT_FALSE(dialog.IsRadioButtonEnabled(4711));
}

TEST_F(StagedTaskDialog, AProgressBarIsSetUpAtTheStartWhereThereIsOne) {
    dialog.SetCommonButtons(0);
    dialog.SetProgressBarRange(10, 50);
    dialog.SetProgressBarPosition(20);
    dialog.SetProgressBarState(PBST_PAUSED);
    dialog.SetProgressBarMarquee(TRUE, 30);
    Stage([&] { ExpectSaid({}); });
    box.take();
    const std::vector<HeardMessage> plain = {{TDM_SET_PROGRESS_BAR_RANGE, 0, MAKELPARAM(10, 50)},
                                             {TDM_SET_PROGRESS_BAR_POS, 20, 0},
                                             {TDM_SET_PROGRESS_BAR_STATE, PBST_PAUSED, 0}};
    dialog.SetOptions(TDF_SHOW_PROGRESS_BAR);
    Stage([&] { ExpectSaid(plain); });
    auto running = plain;
    running.push_back({TDM_SET_PROGRESS_BAR_MARQUEE, TRUE, 30});
    dialog.SetOptions(TDF_SHOW_MARQUEE_PROGRESS_BAR);
    Stage([&] { ExpectSaid(running); });
}

TEST_F(StagedTaskDialog, ChangesReachTheDialogThatRuns) {
    dialog.SetCommonButtons(TDCBF_OK_BUTTON);
    dialog.AddCommandControl(101, L"command");
    dialog.AddRadioButton(201, L"radio");
    const HICON icon = ::LoadIconW(nullptr, IDI_HAND);
    const auto text = [this](int element, const wchar_t* wanted) {
        const auto said = box.take();
        ASSERT_EQ(said.size(), 1U);
        EXPECT_EQ(said[0].message, static_cast<UINT>(TDM_SET_ELEMENT_TEXT));
        EXPECT_EQ(said[0].wParam, static_cast<WPARAM>(element));
        EXPECT_STREQ(reinterpret_cast<LPCWSTR>(said[0].lParam), wanted);
    };
    Stage([&] {
        box.take();
        dialog.SetContent(L"c");
        text(TDE_CONTENT, L"c");
        dialog.SetMainInstruction(L"m");
        text(TDE_MAIN_INSTRUCTION, L"m");
        dialog.SetFooterText(L"f");
        text(TDE_FOOTER, L"f");
        dialog.SetExpansionArea(L"e");
        text(TDE_EXPANDED_INFORMATION, L"e");
        dialog.SetMainIcon(icon);
        dialog.SetMainIcon(TD_WARNING_ICON);
        dialog.SetFooterIcon(icon);
        dialog.SetFooterIcon(TD_ERROR_ICON);
        ExpectSaid({{TDM_UPDATE_ICON, TDIE_ICON_MAIN, reinterpret_cast<LPARAM>(icon)},
                    {TDM_UPDATE_ICON, TDIE_ICON_MAIN, reinterpret_cast<LPARAM>(TD_WARNING_ICON)},
                    {TDM_UPDATE_ICON, TDIE_ICON_FOOTER, reinterpret_cast<LPARAM>(icon)},
                    {TDM_UPDATE_ICON, TDIE_ICON_FOOTER, reinterpret_cast<LPARAM>(TD_ERROR_ICON)}});
        dialog.SetCommandControlOptions(4711, FALSE);
        dialog.SetRadioButtonOptions(4711, FALSE);
        ExpectSaid({});
        dialog.SetCommandControlOptions(101, FALSE, TRUE);
        dialog.SetRadioButtonOptions(201, FALSE);
        ExpectSaid({{TDM_ENABLE_BUTTON, 101, 0},
                    {TDM_SET_BUTTON_ELEVATION_REQUIRED_STATE, 101, 1},
                    {TDM_ENABLE_RADIO_BUTTON, 201, 0}});
        dialog.SetVerificationCheckbox(TRUE);
        dialog.ClickCommandControl(101);
        dialog.ClickRadioButton(201);
        dialog.SetProgressBarRange(1, 9);
        dialog.SetProgressBarPosition(4);
        dialog.SetProgressBarState(PBST_ERROR);
        dialog.SetProgressBarMarquee(TRUE, 7);
        ExpectSaid({{TDM_CLICK_VERIFICATION, TRUE, FALSE},
                    {TDM_CLICK_BUTTON, 101, 0},
                    {TDM_CLICK_RADIO_BUTTON, 201, 0},
                    {TDM_SET_PROGRESS_BAR_RANGE, 0, MAKELPARAM(1, 9)},
                    {TDM_SET_PROGRESS_BAR_POS, 4, 0},
                    {TDM_SET_PROGRESS_BAR_STATE, PBST_ERROR, 0},
                    {TDM_SET_PROGRESS_BAR_MARQUEE, TRUE, 7}});
    });
    box.take();
    dialog.SetContent(L"after it");
    ExpectSaid({});
}

TEST_F(StagedTaskDialog, AWidthIsInDialogUnits) {
    dialog.SetDialogWidth(300);
    Stage([&] {
        EXPECT_EQ(+config->cxWidth, static_cast<UINT>(::MulDiv(300, 4, LOWORD(::GetDialogBaseUnits()))));
    });
    dialog.SetDialogWidth();
    Stage([&] { EXPECT_EQ(+config->cxWidth, 0U); });
}
