// Loading linetypes from a file through the linetype manager.
#include "linetype_fixture.h"

namespace {

using ui_test::Texts;

const char kHouseFile[] =
    "; house\r\n*BEAM,Beams __ _\r\nA,8,-2,2,-2\r\n*DOT10,Ten dots\r\nA,0,-10\r\n"
    "*WALL,Walls "
    "___\r\nA,12,-3\r\n*GAS,Gas\r\nA,5,-2,[\"GAS\",STANDARD,S=1],-3\r\n*Continuous,\r\nA,1,-1\r\n";

class LoadLinetypes : public ui_test::LinetypeDialogTest {
protected:
    LoadLinetypes() : house(folder.write(L"house.lin", kHouseFile)) {}

    /// Lists the house's file, selects `names`, confirms, and answers a question by `button`.
    CString loadAndAnswer(const Texts& names, int button) {
        CString text;
        inManager([&](HWND manager) {
            inLoad(manager, [&](HWND load) {
                listFile(load, house);
                select(load, names);
                text = messageOf([&] { click(load, IDOK); }, button);
            });
            selectedAfter = selectedIn(manager);
            namesAfter = namesIn(manager);
        });
        return text;
    }
    double firstDash(const wchar_t* name) { return linetype(name)->dashLengthAt(0); }

    std::wstring house;
    Texts selectedAfter, namesAfter;
};

bool has(const CString& text, const wchar_t* part) { return text.Find(part) >= 0; }

}  // namespace

TEST_F(LoadLinetypes, ListsTheFileAndAddsWhatIsSelected) {
    EXPECT_TRUE(show([&](HWND manager) {
        inLoad(manager, [&](HWND load) {
            EXPECT_EQ(countOf(load), 0);
            listFile(load, house);
            EXPECT_EQ(namesIn(load), (Texts{L"BEAM", L"DOT10", L"WALL", L"GAS", L"Continuous"}));
            EXPECT_EQ(cell(load, 2, 2), L"Walls ___");
            EXPECT_EQ(::GetFocus(), listOf(load));
            select(load, {L"BEAM", L"WALL"});
            click(load, IDOK);
            EXPECT_FALSE(::IsWindowVisible(load));
        });
        EXPECT_EQ(namesIn(manager), (Texts{L"ByLayer", L"ByBlock", L"BEAM", L"Continuous", L"Dot2", L"DOT10",
                                           L"WALL", L"ZIGZAG"}));
        EXPECT_EQ(selectedIn(manager), Texts{L"BEAM"});
        click(manager, IDOK);
    }));
    EXPECT_EQ(chosen, table->getAt(L"BEAM"));
    EXPECT_EQ(linetype(L"BEAM")->comments(), L"Beams __ _");
    EXPECT_EQ(linetype(L"BEAM")->numDashes(), 4);
    EXPECT_EQ(firstDash(L"WALL"), 12);
}

TEST_F(LoadLinetypes, KeysAloneLoad) {
    inManager([&](HWND) {
        ui_test::when_dialog(ui_test::kLoadTitle, [&](HWND load) {
            ::SetFocus(::GetDlgItem(load, IDC_LOAD_FILE));
            ::SetDlgItemTextW(load, IDC_LOAD_FILE, house.c_str());
            pressKey(VK_RETURN);
            ASSERT_TRUE(ui_test::pump_until([&] { return countOf(load) == 5; }));
            pressKey(VK_RETURN);
        });
        pressMnemonic(L'o');
        EXPECT_TRUE(ui_test::pump_until([&] { return table->has(L"BEAM"); }));
    });
    EXPECT_FALSE(table->has(L"WALL"));
}

TEST_F(LoadLinetypes, WhatIsLoadedStaysAfterACancel) {
    inManager([&](HWND manager) {
        inLoad(manager, [&](HWND load) {
            listFile(load, house);
            click(load, IDOK);
        });
    });
    EXPECT_TRUE(table->has(L"BEAM"));
    EXPECT_TRUE(chosen.isNull());
}

TEST_F(LoadLinetypes, KnownOnesAreReplacedOnYes) {
    const OdDbObjectId before = table->getAt(L"DOT10");
    const CString question = loadAndAnswer({L"BEAM", L"DOT10"}, IDYES);
    EXPECT_TRUE(has(question, L"DOT10") && has(question, L"Replace"));
    EXPECT_FALSE(has(question, L"BEAM"));
    EXPECT_EQ(firstDash(L"DOT10"), 0);
    EXPECT_EQ(linetype(L"DOT10")->comments(), L"Ten dots");
    EXPECT_EQ(table->getAt(L"DOT10"), before);
    EXPECT_TRUE(table->has(L"BEAM"));
}

TEST_F(LoadLinetypes, KnownOnesAreSkippedOnNo) {
    loadAndAnswer({L"BEAM", L"DOT10"}, IDNO);
    EXPECT_EQ(firstDash(L"DOT10"), 4);
    EXPECT_TRUE(table->has(L"BEAM"));
    EXPECT_EQ(selectedAfter, Texts{L"BEAM"});
}

TEST_F(LoadLinetypes, NothingIsLoadedOnCancel) {
    loadAndAnswer({L"BEAM", L"DOT10"}, IDCANCEL);
    EXPECT_EQ(firstDash(L"DOT10"), 4);
    EXPECT_FALSE(table->has(L"BEAM"));
    EXPECT_EQ(selectedAfter, Texts{L"Dot2"}) << "as before";
}

TEST_F(LoadLinetypes, ComplexOnesAndStandardOnesAreRefusedByName) {
    const CString text = loadAndAnswer({L"GAS", L"Continuous", L"WALL"}, IDOK);
    EXPECT_TRUE(has(text, L"GAS") && has(text, L"Continuous") && has(text, L"not loaded"));
    EXPECT_FALSE(has(text, L"WALL"));
    EXPECT_TRUE(table->has(L"WALL"));
    EXPECT_FALSE(table->has(L"GAS"));
    EXPECT_EQ(linetype(L"Continuous")->numDashes(), 0);
}

TEST_F(LoadLinetypes, WithNothingSelectedItAsksForSome) {
    EXPECT_EQ(loadAndAnswer({}, IDOK), L"Select the linetypes to load.");
    EXPECT_EQ(namesAfter.size(), 6u);
}

TEST_F(LoadLinetypes, AltAndASelectsAll) {
    inManager([&](HWND manager) {
        inLoad(manager, [&](HWND load) {
            listFile(load, house);
            pressMnemonic(L'a');
            EXPECT_TRUE(ui_test::pump_until([&] { return selectedIn(load).size() == 5; }));
        });
    });
}

TEST_F(LoadLinetypes, MistakesAreToldWithFileAndLine) {
    const std::wstring path = folder.write(L"bad.lin", "*A1\nA,1,oops\n*B1\nA,1,-1\nstray\n");
    inManager([&](HWND manager) {
        inLoad(manager, [&](HWND load) {
            const CString text = messageOf([&] { listFile(load, path); });
            EXPECT_TRUE(has(text, path.c_str()));
            EXPECT_TRUE(has(text, L"bad.lin, line 2: \"oops\" is no length")) << text.GetString();
            const CString last = L"bad.lin, line 5: the line belongs to no linetype";
            EXPECT_EQ(text.Right(last.GetLength()), last) << text.GetString();
            EXPECT_EQ(namesIn(load), Texts{L"B1"});
        });
    });
}

TEST_F(LoadLinetypes, OfManyMistakesTheFirstFewAreTold) {
    std::string bytes;
    for (int i = 0; i < 100; ++i) bytes += "stray\n";
    const std::wstring path = folder.write(L"stray.lin", bytes);
    inManager([&](HWND manager) {
        inLoad(manager, [&](HWND load) {
            const CString text = messageOf([&] { listFile(load, path); });
            EXPECT_TRUE(has(text, L"line 8:") && has(text, L"and 92 more"));
            EXPECT_FALSE(has(text, L"line 9:"));
        });
    });
}

TEST_F(LoadLinetypes, ARowThatIsNotThereHasNoSample) {
    inManager([&](HWND manager) {
        inLoad(manager, [&](HWND load) {
            CClientDC screen(nullptr);
            CDC dc;
            dc.CreateCompatibleDC(&screen);
            CBitmap bitmap;
            bitmap.CreateCompatibleBitmap(&screen, 400, 100);
            CBitmap* const former = dc.SelectObject(&bitmap);
            dc.PatBlt(0, 0, 400, 100, WHITENESS);
            NMLVCUSTOMDRAW draw = {};
            draw.nmcd.hdr = {listOf(load), static_cast<UINT_PTR>(::GetDlgCtrlID(listOf(load))),
                             NM_CUSTOMDRAW};
            draw.nmcd.dwDrawStage = CDDS_ITEMPOSTPAINT;
            draw.nmcd.hdc = dc;
            for (const int row : {-1, 0, 1}) {
                draw.nmcd.dwItemSpec = static_cast<DWORD_PTR>(row);
                ::SendMessageW(load, WM_NOTIFY, draw.nmcd.hdr.idFrom, reinterpret_cast<LPARAM>(&draw));
            }
            for (int x = 0; x < 400; ++x)
                for (int y = 0; y < 100; ++y) ASSERT_EQ(dc.GetPixel(x, y), RGB(255, 255, 255));
            dc.SelectObject(former);
        });
    });
}

TEST_F(LoadLinetypes, EveryMistakeHasWords) {
    for (int fault = 0; fault <= IDS_FAULT_TOO_MANY_LINETYPES - IDS_LINETYPE_FAULT_FIRST; ++fault) {
        wchar_t text[256] = {};
        EXPECT_GT(::LoadStringW(::GetModuleHandleW(L"ktstandin.dll"),
                                static_cast<UINT>(IDS_LINETYPE_FAULT_FIRST + fault), text, 256),
                  5)
            << fault;
    }
}

TEST_F(LoadLinetypes, AFileThatIsNotThereOrEmptyIsTold) {
    const std::wstring empty = folder.write(L"empty.lin", "; nothing\n");
    inManager([&](HWND manager) {
        inLoad(manager, [&](HWND load) {
            listFile(load, house);
            const CString gone = messageOf([&] { listFile(load, folder.path() + L"\\gone.lin"); });
            EXPECT_TRUE(has(gone, L"gone.lin was not found"));
            EXPECT_EQ(countOf(load), 0);
            EXPECT_TRUE(has(messageOf([&] { click(load, IDOK); }), L"not found")) << "asked again";
            EXPECT_TRUE(has(messageOf([&] { listFile(load, empty); }), L"defines no linetypes"));
            listFile(load, house);
            EXPECT_EQ(countOf(load), 5);
        });
    });
}

TEST_F(LoadLinetypes, StartsWithTheFileForTheUnitsOfTheDrawing) {
    folder.write(L"velmora.lin", "*INCH,\nA,1,-1\n");
    folder.write(L"velmora_metric.lin", "*METRE,\nA,1,-1\n");
    host.SetSupportDirectories({folder.path().c_str()});
    for (const int measurement : {0, 1}) {
        drawing->setMEASUREMENT(measurement);
        inManager([&](HWND manager) {
            inLoad(manager, [&](HWND load) {
                EXPECT_EQ(namesIn(load), Texts{measurement ? L"METRE" : L"INCH"});
                EXPECT_EQ(textOf(load, IDC_LOAD_FILE), measurement ? L"velmora_metric.lin" : L"velmora.lin");
            });
        });
    }
}

TEST_F(LoadLinetypes, BrowseListsTheFileThatIsPicked) {
    inManager([&](HWND manager) {
        inLoad(manager, [&](HWND load) {
            ui_test::when_window(
                [&](HWND window) {
                    return ::GetWindow(window, GW_OWNER) == load && ::GetDlgItem(window, 1148);
                },
                [&](HWND dialog) {
                    ::SetDlgItemTextW(dialog, 1148, house.c_str());
                    ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
                });
            click(load, IDC_LOAD_BROWSE);
            EXPECT_EQ(countOf(load), 5);
            EXPECT_EQ(textOf(load, IDC_LOAD_FILE), house.c_str());
            ui_test::when_window(
                [&](HWND window) {
                    return ::GetWindow(window, GW_OWNER) == load && ::GetDlgItem(window, 1148);
                },
                [&](HWND dialog) { ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
            click(load, IDC_LOAD_BROWSE);
            EXPECT_EQ(countOf(load), 5) << "a cancel changes nothing";
        });
    });
}
