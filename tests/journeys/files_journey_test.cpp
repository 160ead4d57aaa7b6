// A draughtsman opens drawings: recent ones, dropped ones, and one that another program has.
#include <filesystem>
#include <fstream>

#include "dropped_on.h"
#include "journey_fixture.h"
#include "message_text.h"

using namespace journey;

namespace {

class Files : public Journey {
protected:
    Files() : first(scratchCopy(L"bracket.dxf")) {}

    bool titleBegins(const std::wstring& name) {
        return waitUntil([&] { return textOf(drafter->frame()).rfind(name, 0) == 0; });
    }
    void drop(const std::vector<std::wstring>& files) { dropOn(drafter->frame(), files); }
    static void dropOn(HWND window, const std::vector<std::wstring>& files) {
        ASSERT_TRUE(DropOn(window, files));
    }
    /// Answers File > Save As with a path.
    static void saveAs(Drafter& drafter, const std::wstring& path) {
        const bool isThere = std::filesystem::exists(path);
        drafter.activate(drafter.frame());
        drafter.key('F', false, true);
        drafter.key('A');
        HWND dialog = drafter.waitForDialogOf(drafter.frame());
        ASSERT_NE(dialog, nullptr);
        drafter.replaceText(focusOf(dialog), path);
        drafter.key(VK_RETURN);
        // The system asks about a file that is there.
        if (isThere) {
            HWND question = drafter.waitForDialogOf(dialog);
            ASSERT_NE(question, nullptr);
            drafter.click(item(question, IDYES));
        }
        EXPECT_TRUE(drafter.waitUntilGone(dialog));
    }
    std::wstring message() { return drafter->dismissMessage(drafter->frame()); }

    std::wstring first;
};

TEST_F(Files, ARecentDrawingIsOpenedByKeysAndOneThatIsGoneIsDropped) {
    const std::wstring second = scratchCopy(L"site_plan.dxf");
    open(first);
    ASSERT_TRUE(titleBegins(L"bracket.dxf"));
    drafter->openDrawing(second);
    ASSERT_TRUE(titleBegins(L"site_plan.dxf"));
    drafter->activate(drafter->frame());
    drafter->key('F', false, true);
    picture("journey-recent-files");
    drafter->key('2');
    EXPECT_TRUE(titleBegins(L"bracket.dxf"));
    // Now the site plan is the second one; it goes.
    std::filesystem::remove(second);
    drafter->activate(drafter->frame());
    drafter->key('F', false, true);
    drafter->key('2');
    EXPECT_NE(message().find(L"no longer there"), std::wstring::npos);
    EXPECT_TRUE(titleBegins(L"bracket.dxf"));
    drafter->activate(drafter->frame());
    drafter->key('F', false, true);
    picture("journey-recent-gone");
    drafter->key('2');
    drafter->key(VK_ESCAPE);
    drafter->key(VK_ESCAPE);
    EXPECT_TRUE(titleBegins(L"bracket.dxf")) << "it is in the list no more";
    // The next program has the list as well.
    drafter.reset();
    open(L"");
    drafter->activate(drafter->frame());
    drafter->key('F', false, true);
    drafter->key('2');
    drafter->key('1');
    EXPECT_TRUE(titleBegins(L"bracket.dxf"));
}

TEST_F(Files, ANewDrawingHasAProposedNameInTheLastFolder) {
    open(first);
    const std::filesystem::path proposed = std::filesystem::path(first).parent_path() / L"Drawing1.dxf";
    std::filesystem::remove(proposed);
    drafter->activate(drafter->frame());
    drafter->key('N', true);
    ASSERT_TRUE(titleBegins(L"Untitled"));
    drafter->key('S', true);
    HWND dialog = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(dialog, nullptr);
    picture("journey-proposed-name");
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
    EXPECT_TRUE(titleBegins(L"Drawing1.dxf"));
    EXPECT_TRUE(std::filesystem::exists(proposed));
    std::filesystem::remove(proposed);
}

TEST_F(Files, ASecondProgramIsToldAndOpensReadOnly) {
    open(first);
    ASSERT_TRUE(titleBegins(L"bracket.dxf"));
    Drafter other(L"");
    ASSERT_NE(other.frame(), nullptr);
    other.openDrawing(first);
    HWND question = other.waitForDialogOf(other.frame());
    ASSERT_NE(question, nullptr);
    picture("journey-in-use");
    other.key(VK_RETURN);
    EXPECT_TRUE(other.waitUntilGone(question));
    EXPECT_TRUE(waitUntil([&] {
        return textOf(other.frame()).find(L"bracket.dxf [read-only]") != std::wstring::npos;
    })) << "the first command is that";
    // Saving asks for another name.
    other.activate(other.frame());
    other.key('S', true);
    HWND dialog = other.waitForDialogOf(other.frame());
    EXPECT_NE(dialog, nullptr);
    other.key(VK_ESCAPE);
    EXPECT_TRUE(other.waitUntilGone(dialog));
}

TEST_F(Files, SavingOverADrawingThatAnotherProgramHasOpenIsRefused) {
    open(first);
    ASSERT_TRUE(titleBegins(L"bracket.dxf"));
    const std::wstring second = scratchCopy(L"site_plan.dxf");
    const std::uintmax_t size = std::filesystem::file_size(first);
    Drafter other(second);
    ASSERT_NE(other.frame(), nullptr);
    ASSERT_TRUE(waitUntil([&] { return textOf(other.frame()).rfind(L"site_plan.dxf", 0) == 0; }));
    saveAs(other, first);
    picture("journey-save-in-use");
    const std::wstring words = other.dismissMessage(other.frame());
    EXPECT_NE(words.find(L"bracket.dxf is open in a program of "), std::wstring::npos);
    EXPECT_NE(words.find(L"another name"), std::wstring::npos);
    EXPECT_EQ(std::filesystem::file_size(first), size) << "nothing was written";
    EXPECT_EQ(textOf(other.frame()).rfind(L"site_plan.dxf", 0), 0u);
    // Under another name it is saved, and has the lock of that one.
    const std::wstring third = scratchPath(L"third.dxf");
    std::filesystem::remove(third);
    saveAs(other, third);
    EXPECT_TRUE(waitUntil([&] { return textOf(other.frame()).rfind(L"third.dxf", 0) == 0; }));
    EXPECT_TRUE(std::filesystem::exists(third + L".lock"));
    EXPECT_FALSE(std::filesystem::exists(second + L".lock"));
    EXPECT_TRUE(std::filesystem::exists(first + L".lock"));
}

TEST_F(Files, WhatTheFirstProgramHasClosedIsFree) {
    open(first);
    ASSERT_TRUE(titleBegins(L"bracket.dxf"));
    drafter->activate(drafter->frame());
    drafter->key('N', true);
    ASSERT_TRUE(titleBegins(L"Untitled"));
    EXPECT_TRUE(std::filesystem::exists(first + L".lock")) << "it is still open behind the other";
    drafter->key(VK_TAB, true);
    ASSERT_TRUE(titleBegins(L"bracket.dxf"));
    drafter->key(VK_F4, true);
    ASSERT_TRUE(titleBegins(L"Untitled"));
    Drafter other(first);
    ASSERT_NE(other.frame(), nullptr);
    EXPECT_TRUE(waitUntil([&] { return textOf(other.frame()).rfind(L"bracket.dxf - ", 0) == 0; }));
}

TEST_F(Files, WhatWasMendedInADrawingIsSaidAndTheDrawingOpens) {
    std::string text;
    {
        std::ifstream file(std::filesystem::path(first), std::ios::binary);
        text.assign(std::istreambuf_iterator<char>(file), {});
    }
    // The end mark is missing.
    text.erase(text.rfind("EOF"));
    const std::filesystem::path cut = std::filesystem::path(first).replace_filename(L"cut.dxf");
    std::ofstream(cut, std::ios::binary) << text;
    open(cut.wstring());
    EXPECT_NE(message().find(L"The file ends before its end mark."), std::wstring::npos);
    ASSERT_TRUE(titleBegins(L"cut.dxf"));
    const HWND status = ::GetDlgItem(drafter->frame(), 0xE801);
    EXPECT_TRUE(waitUntil([&] { return textOf(status).find(L"end") != std::wstring::npos; }))
        << odUtf8(textOf(status));
    EXPECT_EQ(textOf(status).rfind(L"Places mended in the drawing: 1. Line ", 0), 0u)
        << odUtf8(textOf(status));
}

TEST_F(Files, WhatIsNotDrawnIsSaidInTheStatusLineOfItsDrawing) {
    const std::filesystem::path odd = std::filesystem::path(first).replace_filename(L"odd.dxf");
    std::ofstream(odd) << "0\nSECTION\n2\nENTITIES\n0\nREGION\n8\n0\n0\nREGION\n8\n0\n0\nBODY\n8\n0\n"
                          "0\nLINE\n8\n0\n10\n0\n20\n0\n11\n5\n21\n5\n0\nENDSEC\n0\nEOF\n";
    open(odd.wstring());
    ASSERT_TRUE(titleBegins(L"odd.dxf"));
    const HWND status = ::GetDlgItem(drafter->frame(), 0xE801);
    const auto says = [&](const wchar_t* words) {
        return waitUntil([&] { return textOf(status).find(words) != std::wstring::npos; });
    };
    EXPECT_TRUE(says(L"3 objects are not shown: BODY 1, REGION 2")) << odUtf8(textOf(status));
    drafter->activate(drafter->frame());
    drafter->key('N', true);
    ASSERT_TRUE(titleBegins(L"Untitled"));
    EXPECT_TRUE(waitUntil([&] { return textOf(status).find(L"not shown") == std::wstring::npos; }));
    drafter->key(VK_TAB, true);
    EXPECT_TRUE(says(L"3 objects are not shown"));
}

TEST_F(Files, ABinaryDrawingStaysOneWhenItIsSaved) {
    const std::filesystem::path binary = std::filesystem::path(first).replace_filename(L"binary.dxf");
    {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        ASSERT_EQ(drawing->readDxf(first.c_str()), kOdOk);
        ASSERT_EQ(drawing->writeDxf(binary.wstring().c_str(), OdDxfForm{OdDb::kDHL_1032, true}), kOdOk);
    }
    open(binary.wstring());
    ASSERT_TRUE(titleBegins(L"binary.dxf"));
    // Both would fall into one second of the library's clock.
    const auto written = [&] {
        WIN32_FILE_ATTRIBUTE_DATA data = {};
        ::GetFileAttributesExW(binary.wstring().c_str(), GetFileExInfoStandard, &data);
        return static_cast<std::uint64_t>(data.ftLastWriteTime.dwHighDateTime) << 32 |
               data.ftLastWriteTime.dwLowDateTime;
    };
    const std::uint64_t before = written();
    drafter->activate(drafter->frame());
    drafter->key('S', true);
    EXPECT_TRUE(waitUntil([&] { return written() != before; }));
    OdDbDatabasePtr again(new OdDbDatabase);
    EXPECT_EQ(again->readDxf(binary.wstring().c_str()), kOdOk);
    EXPECT_TRUE(again->originalFileIsBinary());
}

TEST_F(Files, ADamagedDrawingIsOpenedWithWhatCanBeKeptAndTheLineIsTold) {
    const std::wstring damaged = scratchPath(L"damaged.dxf");
    std::string text = "0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < 8; ++i) text += "0\nCIRCLE\n8\n0\n10\nabc\n20\n7\n40\n2\n";
    std::ofstream(std::filesystem::path(damaged), std::ios::binary) << text << "0\nENDSEC\n0\nEOF\n";
    open(L"");
    drafter->openDrawing(damaged);
    HWND told = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(told, nullptr);
    picture("journey-damaged");
    const std::wstring words = message();
    EXPECT_NE(words.find(L"damaged.dxf"), std::wstring::npos);
    EXPECT_NE(words.find(L"Line 10: A number was expected"), std::wstring::npos);
    EXPECT_NE(words.find(L"Line 50: "), std::wstring::npos) << "the fifth";
    EXPECT_NE(words.find(L"And 3 more."), std::wstring::npos);
    EXPECT_TRUE(titleBegins(L"damaged.dxf - "));
    // Saved in its own form, the file has again what no one could read, for whoever can.
    drafter->activate(drafter->frame());
    drafter->key('S', true);
    EXPECT_TRUE(waitUntil(
        [&] { return std::filesystem::exists(std::filesystem::path(damaged).replace_extension(L".bak")); }));
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDxfReading reading;
    EXPECT_TRUE(waitUntil([&] { return drawing->readDxf(damaged.c_str(), nullptr, &reading) == kOdOk; }));
    EXPECT_EQ(entitiesOf(*drawing).size(), 8u);
    EXPECT_EQ(reading.mendCount, 8u);
}

TEST_F(Files, ADroppedDrawingIsOpened) {
    open(L"");
    drop({first});
    EXPECT_TRUE(titleBegins(L"bracket.dxf"));
}

TEST_F(Files, EachOfTenDroppedFilesIsOpened) {
    open(L"");
    std::vector<std::wstring> ten;
    for (int i = 0; i < 10; ++i) {
        ten.push_back(scratchPath(L"dropped " + std::to_wstring(i) + L".dxf"));
        ::CopyFileW(first.c_str(), ten.back().c_str(), FALSE);
    }
    drop(ten);
    ASSERT_TRUE(titleBegins(L"dropped 9.dxf"));
    EXPECT_EQ(drafter->drawings(),
              (std::vector<std::wstring>{
                  L"dropped 0.dxf", L"dropped 1.dxf", L"dropped 2.dxf", L"dropped 3.dxf", L"dropped 4.dxf",
                  L"dropped 5.dxf", L"dropped 6.dxf", L"dropped 7.dxf", L"dropped 8.dxf", L"dropped 9.dxf"}));
    picture("journey-ten-drawings");
}

TEST_F(Files, OfDroppedFilesTheGoodOnesAreOpenedAndTheOthersRefused) {
    open(first);
    const std::wstring second = scratchCopy(L"site_plan.dxf");
    drop({first + L".gone", second, std::filesystem::path(first).parent_path().wstring()});
    EXPECT_NE(message().find(L"no longer there"), std::wstring::npos);
    ASSERT_TRUE(titleBegins(L"site_plan.dxf"));
    EXPECT_NE(message().find(L"This is a folder"), std::wstring::npos);
    EXPECT_EQ(drafter->drawings(), (std::vector<std::wstring>{L"bracket.dxf", L"site_plan.dxf"}));
}

TEST_F(Files, AFolderAndAFileThatIsGoneAreRefusedInWords) {
    open(first);
    drop({std::filesystem::path(first).parent_path().wstring()});
    EXPECT_NE(message().find(L"This is a folder"), std::wstring::npos);
    drop({first + L".gone"});
    EXPECT_NE(message().find(L"no longer there"), std::wstring::npos);
    EXPECT_TRUE(titleBegins(L"bracket.dxf"));
}

TEST_F(Files, ADrawingDroppedInPropertiesGivesItsLayerSettings) {
    OdDbDatabasePtr other(new OdDbDatabase);
    OdDbLayerTablePtr layers;
    other->getLayerTable(layers);
    OdSmartPtr<OdDbLayerTableRecord> layer(new OdDbLayerTableRecord);
    layer->setName(L"FROM ELSEWHERE");
    layers->add(OdDbSymbolTableRecordPtr(layer.get()));
    layer->setLineWeight(OdDb::kLnWt070);
    const std::wstring elsewhere = scratchPath(L"elsewhere.dxf");
    ASSERT_EQ(other->writeDxf(elsewhere.c_str()), kOdOk);
    open(path = first);
    ASSERT_TRUE(titleBegins(L"bracket.dxf"));
    drafter->activate(drafter->frame());
    HWND dialog = drafter->openProperties();
    ASSERT_NE(dialog, nullptr);
    const auto says = [&](const wchar_t* words) {
        return waitUntil([&] { return textOf(item(dialog, IDC_MESSAGE)).find(words) != std::wstring::npos; });
    };
    dropOn(item(dialog, IDC_DROP_LAYERS), {first + L".gone"});
    EXPECT_TRUE(says(L"no longer there"));
    dropOn(item(dialog, IDC_DROP_LAYERS), {std::filesystem::path(first).parent_path().wstring()});
    EXPECT_TRUE(says(L"This is a folder"));
    dropOn(item(dialog, IDC_DROP_LAYERS), {elsewhere});
    EXPECT_TRUE(says(L"elsewhere.dxf (layers: 2)"));
    picture("journey-drop-site");
    ok(dialog);
    const OdDbDatabasePtr drawing = saved();
    OdDbLayerTablePtr table;
    drawing->getLayerTable(table);
    const auto taken = table->getAt(L"FROM ELSEWHERE").open<OdDbLayerTableRecord>();
    ASSERT_TRUE(taken);
    EXPECT_EQ(taken->lineWeight(), OdDb::kLnWt070);
}

}  // namespace
