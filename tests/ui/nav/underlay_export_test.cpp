// The underlay export dialog: what it shows and what its controls ask of the plot service.
#include "export_fixture.h"
#include "in_language.h"
#include "slot_of.h"
#include "without_strings.h"

namespace {

using Entries = std::vector<std::pair<std::wstring, int>>;

/// The keyboard hooks that the toolkit has set and not taken back.
int hooks = 0;
HHOOK WINAPI setHook(int kind, HOOKPROC procedure, HINSTANCE module, DWORD thread) {
    hooks += kind == WH_KEYBOARD;
    return ::SetWindowsHookExW(kind, procedure, module, thread);
}
BOOL WINAPI removeHook(HHOOK hook) {
    --hooks;
    return ::UnhookWindowsHookEx(hook);
}

}  // namespace

TEST(PlotService, ItsOperationsStandInTheirOrder) {
    long long slot = 0;
    const auto expect = [&](long long found) { EXPECT_EQ(found, slot++); };
    using ui_test::slotOf;
    expect(slotOf(&CKhPlotSvr::plotStampDialog));
    expect(slotOf(&CKhPlotSvr::exportOptionsDialog));
    expect(slotOf(&CKhPlotSvr::getExportSummary));
    expect(slotOf(&CKhPlotSvr::setExportFormat));
    expect(slotOf(&CKhPlotSvr::setSecondSwitch));
    expect(slotOf(&CKhPlotSvr::getSecondSwitch));
    expect(slotOf(&CKhPlotSvr::setFirstSwitch));
    expect(slotOf(&CKhPlotSvr::getFirstSwitch));
    expect(slotOf(&CKhPlotSvr::prepareArea));
    expect(slotOf(&CKhPlotSvr::setPlotArea));
    expect(slotOf(&CKhPlotSvr::getPlotArea));
    expect(slotOf(&CKhPlotSvr::hasNoWindow));
    expect(slotOf(&CKhPlotSvr::pickWindow));
    expect(slotOf(&CKhPlotSvr::overrideDialog));
    expect(slotOf(&CKhPlotSvr::setOverride));
    expect(slotOf(&CKhPlotSvr::getOverride));
}

TEST(PlotService, TheRecordHasItsFieldsInOrder) {
    KhExportSummary record;
    const auto* const start = reinterpret_cast<const char*>(&record);
    const auto at = [&](const void* field) { return reinterpret_cast<const char*>(field) - start; };
    const std::ptrdiff_t places[] = {at(&record.defaultLocation), at(&record.multiSheet),
                                     at(&record.summary),         at(&record.layerInformation),
                                     at(&record.mergeControl),    at(&record.passwordPrompt),
                                     at(&record.blockInformation)};
    EXPECT_EQ(places[0], 0);
    for (int i = 1; i < 7; ++i) EXPECT_LT(places[i - 1], places[i]) << i;
    EXPECT_EQ(sizeof record, static_cast<std::size_t>(places[6]) + sizeof(int)) << "nothing behind them";
}

TEST_F(UnderlayExport, OnlyASaveDialogHasItsTemplate) {
    look([&](HWND window) {
        EXPECT_EQ(templateId(), 57200);
        for (int id = 57201; id <= 57214; ++id) EXPECT_NE(own(window, id), nullptr) << id;
    });
    dialog.SetCreatingFile(0);
    look([&](HWND window) {
        EXPECT_EQ(templateId(), 57010);
        EXPECT_EQ(own(window, 57212), nullptr);
        EXPECT_NE(own(window, 57011), nullptr);
    });
    EXPECT_STREQ(className(), "CNavUnderlayExportFileDlg");
}

TEST_F(UnderlayExport, ItsSettingsHaveTheirFlags) {
    const auto flags = [&] { return dialog.GetImpObject()->m_fileDialog->GetOFN().Flags; };
    look([&](HWND) {
        EXPECT_TRUE(flags() & OFN_NOCHANGEDIR);
        EXPECT_FALSE(flags() & OFN_OVERWRITEPROMPT);
    });
    dialog.SetConfirmReplace(1);
    look([&](HWND) {
        EXPECT_TRUE(flags() & OFN_NOCHANGEDIR);
        EXPECT_TRUE(flags() & OFN_OVERWRITEPROMPT);
    });
}

TEST_F(UnderlayExport, HasTheTypesOfItsFilters) {
    look([&](HWND) {
        EXPECT_STREQ(dialog.GetImpObject()->m_fileDialog->GetOFN().lpstrFilter, L"Drawing(*.dwg)");
    });
}

TEST_F(UnderlayExport, WithoutTheFlagItIsTheUsualDialog) {
    dialog.ConvertFlagsToState(0);
    look([&](HWND window) { EXPECT_EQ(own(window, 57212), nullptr); });
    EXPECT_STREQ(className(), "CNavFileDlg");
    EXPECT_EQ(service.calls, Calls{});
}

TEST_F(UnderlayExport, AsksTheServiceInOrderWhenItComesUp) {
    Calls atStart;
    look([&](HWND) { atStart = service.calls; });
    EXPECT_EQ(atStart, (Calls{"format 2 1", "summary", "first?", "second?", "prepare model", "area? model",
                              "override?"}));
}

TEST_F(UnderlayExport, TheDefaultExtensionSaysTheFormatAndTheTag) {
    struct {
        const wchar_t* extension;
        const char *format, *tag;
    } const cases[] = {{L"dwf", "format 0 1", "override 1"},
                       {L"DWFx", "format 1 1", "override 2"},
                       {L"pdf", "format 2 1", "override 0"},
                       {L"plt", "format 0 1", "override 1"}};
    service.override = true;
    for (const auto& each : cases) {
        dialog.SetDefaultFileExtension(each.extension);
        service.calls.clear();
        look([&](HWND window) { click(window, 57214); });
        EXPECT_EQ(service.calls.front(), each.format);
        EXPECT_EQ(service.calls.back(), each.tag);
    }
}

TEST_F(UnderlayExport, WithoutAServiceEverythingIsInert) {
    host.services.clear();
    look([&](HWND window) {
        EXPECT_EQ(entries(window, 57212), Entries{});
        EXPECT_EQ(entries(window, 57213), Entries{});
        for (int id = 57201; id <= 57206; ++id) EXPECT_EQ(shown(window, id), L"") << id;
        for (const int id : {57207, 57208, 57209, 57210, 57211, 57214}) click(window, id);
        for (const int box : {57212, 57213}) select(window, box, 0);
        EXPECT_TRUE(::IsWindowVisible(window));
    });
    EXPECT_EQ(service.calls, Calls{});
    EXPECT_TRUE(main.heard.empty());
    EXPECT_FALSE(open.drawing().currentLayoutId().open<OdDbLayout>()->extensionDictionary().isValid());
}

TEST_F(UnderlayExport, AServiceThatGoesWhileItIsShownLeavesTheCommandsInert) {
    service.override = true;
    look([&](HWND window) {
        host.services.clear();
        service.calls.clear();
        for (const int id : {57207, 57208, 57209, 57210, 57211, 57214}) click(window, id);
        for (const int box : {57212, 57213}) select(window, box, 1);
    });
    EXPECT_EQ(service.calls, Calls{});
    EXPECT_TRUE(main.heard.empty());
}

TEST_F(UnderlayExport, ShowsTheSummary) {
    service.summary.summary = L"all & sundry";
    service.summary.multiSheet = 1;
    service.summary.layerInformation = 2;
    service.summary.passwordPrompt = 1;
    const auto expect = [&](std::initializer_list<const wchar_t*> texts) {
        look([&](HWND window) {
            int id = 57201;
            for (const wchar_t* text : texts) EXPECT_EQ(shown(window, id++), text);
        });
    };
    expect({L"Multi-sheet file", L"all & sundry", L"Include", L"Lines overwrite", L"Prompt for password",
            L"Don't include"});
    service.summary = {};
    service.summary.mergeControl = -1;
    service.summary.blockInformation = 1;
    service.summary.multiSheet = 2;
    expect({L"Single-sheet file", L"", L"Don't include", L"Lines merge", L"Disabled", L"Include"});
}

TEST_F(UnderlayExport, ItsWordsHaveDefaults) {
    const ui_test::WithoutStrings strings;
    service.override = true;
    look([&](HWND window) {
        EXPECT_EQ(shown(window, 57201), L"Single-sheet file");
        EXPECT_EQ(entries(window, 57213), (Entries{{L"Current", 0}, {L"Override", 1}}));
        EXPECT_EQ(entries(window, 57212), (Entries{{L"Display", 0}, {L"Extents", 1}, {L"Window", 2}}));
    });
    makePaperCurrent();
    look([&](HWND window) {
        EXPECT_EQ(entries(window, 57212), (Entries{{L"Current layout", 3}, {L"All layouts", 4}}));
    });
}

TEST_F(UnderlayExport, GoesToTheFolderOfTheService) {
    service.summary.defaultLocation = (folder + L"templates").GetString();
    look([&](HWND window) {
        EXPECT_EQ(folderOf(window), folder + L"templates");
        EXPECT_EQ(dialog.count("folder"), 1);
        service.calls.clear();
        click(window, 57207);
        EXPECT_EQ(dialog.count("folder"), 1) << "it is there already";
    });
}

TEST_F(UnderlayExport, StaysWhereItIsForAFolderThatIsNoneOrTheCurrentOne) {
    for (const CString& each : {CString(), folder, CString(L"C:\\nowhere\\at all"), folder + L"one.dwg",
                                folder + L"templates\\.."}) {
        service.summary.defaultLocation = each.GetString();
        look([&](HWND window) { EXPECT_EQ(folderOf(window) + L"\\", folder); });
    }
    EXPECT_EQ(dialog.count("folder"), 0);
}

TEST_F(UnderlayExport, ItsButtonsHaveTheirPictures) {
    look([&](HWND window) {
        for (const int id : {57210, 57211}) {
            CRect place;
            ::GetWindowRect(own(window, id), &place);
            EXPECT_EQ(place.Size(), CSize(26, 26)) << id;
            EXPECT_NE(dynamic_cast<CKtUiBitmapButton*>(CWnd::FromHandlePermanent(own(window, id))), nullptr);
        }
        EXPECT_EQ(shown(window, 57210), L"Plot stamp settings");
        EXPECT_EQ(shown(window, 57211), L"Pick window");
    });
    for (const wchar_t* name : {L"IDB_UNDERLAYEXPORT_PLOTSTAMP", L"IDB_UNDERLAYEXPORT_WINDOWPICK"})
        for (const auto& [suffix, size] : {std::pair(L"", 16), {L"_125", 20}, {L"_150", 24}, {L"_200", 32}}) {
            CBitmap picture;
            picture.Attach(::LoadBitmapW(::GetModuleHandleW(L"ktdsres.dll"), CString(name) + suffix));
            BITMAP seen = {};
            ASSERT_TRUE(picture.GetBitmap(&seen));
            EXPECT_EQ(CSize(seen.bmWidth, seen.bmHeight), CSize(size, size));
        }
}

TEST_F(UnderlayExport, TheCheckBoxesFollowTheSwitches) {
    for (const bool first : {false, true}) {
        service.first = first;
        service.second = !first;
        look([&](HWND window) {
            EXPECT_EQ(::IsDlgButtonChecked(own(window), 57209), first ? BST_CHECKED : BST_UNCHECKED);
            EXPECT_EQ(::IsDlgButtonChecked(own(window), 57208), first ? BST_UNCHECKED : BST_CHECKED);
        });
    }
}

TEST_F(UnderlayExport, AClickOnACheckBoxSetsItsSwitch) {
    EXPECT_EQ(callsOf([&](HWND window) {
                  turn(window, 57209);
                  turn(window, 57208);
                  turn(window, 57209);
                  turn(window, 57208);
              }),
              (Calls{"first on", "second on", "first off", "second off"}));
}

TEST_F(UnderlayExport, ModelSpaceHasItsAreas) {
    for (int area = 0; area < 3; ++area) {
        service.area = area;
        look([&](HWND window) {
            EXPECT_EQ(entries(window, 57212), (Entries{{L"Display", 0}, {L"Extents", 1}, {L"Window", 2}}));
            EXPECT_EQ(selected(window, 57212), area);
            EXPECT_EQ(isEnabled(window, 57211), area == 2);
        });
    }
}

TEST_F(UnderlayExport, ALayoutOnPaperHasItsAreas) {
    makePaperCurrent();
    for (int area = 3; area < 5; ++area) {
        service.area = area;
        service.calls.clear();
        look([&](HWND window) {
            EXPECT_EQ(entries(window, 57212), (Entries{{L"Current layout", 3}, {L"All layouts", 4}}));
            EXPECT_EQ(selected(window, 57212), area - 3);
            EXPECT_FALSE(isEnabled(window, 57211));
            EXPECT_TRUE(isEnabled(window, 57213)) << "until an area is chosen";
        });
        EXPECT_EQ(Calls(service.calls.begin() + 4, service.calls.begin() + 6),
                  (Calls{"prepare paper", "area? paper"}));
    }
}

TEST_F(UnderlayExport, WithoutADrawingTheAreasAreThoseOfPaper) {
    oddbHostApplicationServices()->setWorkingDatabase(nullptr);
    look([&](HWND window) {
        EXPECT_EQ(entries(window, 57212).size(), 2u);
        EXPECT_EQ(selected(window, 57212), -1) << "the service said 0, which paper doesn't have";
    });
    EXPECT_EQ(service.calls[4], "prepare paper");
}

TEST_F(UnderlayExport, AChosenAreaIsTheServices) {
    service.area = 2;
    look([&](HWND window) {
        service.calls.clear();
        select(window, 57212, 0);
        EXPECT_FALSE(isEnabled(window, 57211));
        select(window, 57212, 1);
        EXPECT_FALSE(isEnabled(window, 57211));
        EXPECT_EQ(service.calls, (Calls{"area 0 model", "area 1 model"}));
        service.calls.clear();
        select(window, 57212, 2);
        EXPECT_TRUE(isEnabled(window, 57211));
        EXPECT_TRUE(isEnabled(window, 57213));
        EXPECT_EQ(service.calls, (Calls{"area 2 model", "no window?"}));
    });
    EXPECT_TRUE(main.heard.empty());
}

TEST_F(UnderlayExport, AWindowThatIsMissingIsPickedAtOnce) {
    service.windowMissing = true;
    EXPECT_EQ(callsOf([&](HWND window) { select(window, 57212, 2); }),
              (Calls{"area 2 model", "no window?", "pick"}));
    EXPECT_EQ(main.heard.size(), 2u);
}

TEST_F(UnderlayExport, AllLayoutsTakeTheCurrentSetupAndGreyTheBox) {
    makePaperCurrent();
    service.area = 3;
    service.override = true;
    look([&](HWND window) {
        EXPECT_EQ(selected(window, 57213), 1);
        EXPECT_TRUE(isEnabled(window, 57214));
        service.calls.clear();
        select(window, 57212, 1);
        EXPECT_EQ(service.calls, (Calls{"area 4 paper", "override off"}));
        EXPECT_EQ(selected(window, 57213), 0);
        EXPECT_FALSE(isEnabled(window, 57213));
        EXPECT_FALSE(isEnabled(window, 57214));
        select(window, 57212, 0);
        EXPECT_TRUE(isEnabled(window, 57213));
        EXPECT_FALSE(isEnabled(window, 57214));
    });
}

TEST_F(UnderlayExport, ThePageSetupFollowsTheService) {
    for (const bool on : {false, true}) {
        service.override = on;
        look([&](HWND window) {
            EXPECT_EQ(entries(window, 57213), (Entries{{L"Current", 0}, {L"Override", 1}}));
            EXPECT_EQ(selected(window, 57213), on ? 1 : 0);
            EXPECT_EQ(isEnabled(window, 57214), on);
        });
    }
}

TEST_F(UnderlayExport, AChosenPageSetupIsTheServices) {
    look([&](HWND window) {
        service.calls.clear();
        select(window, 57213, 1);
        EXPECT_TRUE(isEnabled(window, 57214));
        select(window, 57213, 0);
        EXPECT_FALSE(isEnabled(window, 57214));
        EXPECT_EQ(service.calls, (Calls{"override on", "override off"}));
    });
}

TEST_F(UnderlayExport, TheOptionsAreShownAndTheSummaryFollows) {
    look([&](HWND window) {
        service.calls.clear();
        service.onCall = [&](const std::string& call) {
            if (call == "options") service.summary.summary = L"changed";
        };
        click(window, 57207);
        EXPECT_EQ(service.calls, (Calls{"options", "summary"}));
        EXPECT_EQ(shown(window, 57202), L"changed");
    });
}

TEST_F(UnderlayExport, ThePlotStampButtonShowsTheSettings) {
    EXPECT_EQ(callsOf([&](HWND window) { click(window, 57210); }), (Calls{"stamp"}));
}

TEST_F(UnderlayExport, StepsAsideWhileTheUserPicksAWindow) {
    service.area = 2;
    look([&](HWND window) {
        bool isHidden = false;
        CRect before, after;
        ::GetWindowRect(window, &before);
        service.onCall = [&](const std::string& call) {
            if (call != "pick") return;
            isHidden = !::IsWindowVisible(window);
            ASSERT_EQ(main.heard.size(), 1u) << "told before the pick";
            EXPECT_EQ(main.heard[0].datum, 1);
        };
        std::vector<UINT> flags;
        const ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
            if (message.hwnd == window && message.message == WM_WINDOWPOSCHANGING)
                flags.push_back(ui_test::position_flags(message));
        });
        click(window, 57211);
        constexpr UINT kInPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER;
        ASSERT_EQ(flags.size(), 2u);
        EXPECT_EQ(flags[0] & (kInPlace | SWP_HIDEWINDOW), kInPlace | SWP_HIDEWINDOW);
        EXPECT_EQ(flags[1] & (kInPlace | SWP_SHOWWINDOW), kInPlace | SWP_SHOWWINDOW);
        EXPECT_TRUE(isHidden);
        EXPECT_TRUE(::IsWindowVisible(window));
        ::GetWindowRect(window, &after);
        EXPECT_EQ(before, after);
        const auto id = static_cast<unsigned>(::GetDlgCtrlID(own(window))) & 0xFFFF;
        ASSERT_EQ(main.heard.size(), 2u);
        for (const ui_test::Heard& each : main.heard) {
            EXPECT_EQ(static_cast<int>(each.notification), 20);
            EXPECT_EQ(each.id, id);
        }
        EXPECT_EQ(main.heard[1].datum, -1);
    });
}

TEST_F(UnderlayExport, PicksWithoutAMainWindowToo) {
    AfxGetApp()->m_pMainWnd = nullptr;
    EXPECT_EQ(callsOf([&](HWND window) { click(window, 57211); }), (Calls{"pick"}));
}

TEST_F(UnderlayExport, EachCommandRunsWithoutTheHotKeysAndGivesThemBack) {
    hooks = 0;
    const ui_test::ReplacedImport set(toolkit(), "SetWindowsHookExW", &setHook);
    const ui_test::ReplacedImport removed(toolkit(), "UnhookWindowsHookEx", &removeHook);
    ASSERT_TRUE(set.isThere() && removed.isThere());
    service.override = true;
    look([&](HWND window) {
        int during = 0;
        service.onCall = [&](const std::string&) { during += hooks; };
        EXPECT_EQ(hooks, 1);
        for (const int id : {57207, 57208, 57209, 57210, 57211, 57214}) {
            service.calls.clear();
            click(window, id);
            EXPECT_FALSE(service.calls.empty()) << id;
            EXPECT_EQ(hooks, 1) << id;
            EXPECT_EQ(during, 0) << id;
        }
        for (const int box : {57212, 57213}) {
            service.calls.clear();
            select(window, box, 1);
            EXPECT_FALSE(service.calls.empty()) << box;
            EXPECT_EQ(hooks, 1) << box;
            EXPECT_EQ(during, 0) << box;
        }
    });
    EXPECT_EQ(hooks, 0);
}

TEST_F(UnderlayExport, ItsWordsAreThereInBothLanguages) {
    ui_test::expect_library_texts({{57250, L"Multi-sheet file", L"多图纸文件"},
                                   {57251, L"Single-sheet file", L"单图纸文件"},
                                   {57252, L"Include", L"包含"},
                                   {57253, L"Don't include", L"不包含"},
                                   {57254, L"Lines merge", L"线条合并"},
                                   {57255, L"Lines overwrite", L"线条覆盖"},
                                   {57256, L"Prompt for password", L"提示输入密码"},
                                   {57257, L"Disabled", L"禁用"},
                                   {57258, L"Display", L"显示"},
                                   {57259, L"Extents", L"范围"},
                                   {57260, L"Window", L"窗口"},
                                   {57261, L"Current layout", L"当前布局"},
                                   {57262, L"All layouts", L"所有布局"},
                                   {57263, L"Current", L"当前"},
                                   {57264, L"Override", L"替代"},
                                   {57265, L"Save As %s", L"另存为 %s"},
                                   {57266,
                                    L"<%s> is currently open in another program.\n"
                                    L"Please close the file and try again.",
                                    L"<%s> 当前已在其他程序中打开。\n请关闭该文件，然后重试。"}});
}

TEST_F(UnderlayExport, ItsTemplateIsThereInBothLanguages) {
    for (const LANGID language : {ui_test::kEnglish, ui_test::kChinese}) {
        const ui_test::InLanguage user(language);
        look([&](HWND window) {
            for (int id = 57201; id <= 57214; ++id) EXPECT_NE(own(window, id), nullptr) << id;
            EXPECT_EQ(shown(window, 57207),
                      language == ui_test::kChinese ? L"输出选项(&X)..." : L"E&xport Options...");
            for (const int id : {57207, 57208, 57209, 57214}) {
                const HWND control = own(window, id);
                CClientDC dc(CWnd::FromHandle(control));
                dc.SelectObject(
                    CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessageW(control, WM_GETFONT, 0, 0))));
                CRect room, text;
                ::GetClientRect(control, &room);
                dc.DrawText(text_of(control), &text, DT_CALCRECT | DT_SINGLELINE);
                EXPECT_LE(text.Width() + 16, room.Width()) << id;
            }
        });
    }
}
