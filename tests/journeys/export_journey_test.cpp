// A draughtsman exports the drawing: what is shown, all of it, a window, all layouts. The files stay beside
// the programs, where tools/check/exported looks at them with readers that nobody here wrote.
#include <filesystem>
#include <fstream>
#include <sstream>

#include "journey_fixture.h"

using namespace journey;

namespace {

constexpr int kNameBox = 1148, kTypeBox = 1136;
constexpr int kPickWindow = 57211, kArea = 57212, kPageSetup = 57213;
constexpr int kExtents = 1, kAllLayouts = 1;

class Exporting : public Journey {
protected:
    Exporting() { std::filesystem::create_directories(exported(L"")); }

    static std::wstring exported(const std::wstring& name) { return programFolder() + L"exported\\" + name; }
    static OdSmartPtr<OdDbLine> line(double x0, double y0, double x1, double y1, int color) {
        OdSmartPtr<OdDbLine> made(new OdDbLine);
        made->setStartPoint({x0, y0, 0});
        made->setEndPoint({x1, y1, 0});
        made->setColorIndex(color);
        made->setLineWeight(OdDb::kLnWt100);
        return made;
    }
    static void add(OdDbDatabase& drawing, const wchar_t* space, const OdDbEntityPtr& entity) {
        OdDbBlockTablePtr blocks;
        drawing.getBlockTable(blocks);
        blocks->getAt(space).open<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(entity);
    }
    /// A frame of 410 by 287 units: red below, black above, blue in the middle, and a text.
    static OdDbDatabasePtr frameDrawing() {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        const auto model = L"*Model_Space";
        add(*drawing, model, OdDbEntityPtr(line(0, 0, 410, 0, 1).get()));
        add(*drawing, model, OdDbEntityPtr(line(0, 287, 410, 287, 7).get()));
        add(*drawing, model, OdDbEntityPtr(line(205, 0, 205, 287, 5).get()));
        OdSmartPtr<OdDbText> text(new OdDbText);
        text->setTextString(L"Velmora \x56FE\x7EB8");
        text->setPosition({20, 100, 0});
        text->setHeight(10);
        add(*drawing, model, OdDbEntityPtr(text.get()));
        return drawing;
    }
    HWND openExport() {
        drafter->activate(drafter->frame());
        drafter->key('E', true);
        dialog = drafter->waitForDialogOf(drafter->frame());
        EXPECT_NE(dialog, nullptr);
        return dialog;
    }
    HWND own(int id) const { return item(::FindWindowExW(dialog, nullptr, L"#32770", nullptr), id); }
    /// Names the file and confirms; what was written.
    std::string saveAs(const std::wstring& name) {
        std::filesystem::remove(exported(name));
        drafter->replaceText(item(dialog, kNameBox), exported(name));
        drafter->key(VK_RETURN);
        EXPECT_TRUE(drafter->waitUntilGone(dialog));
        EXPECT_TRUE(waitUntil([&] { return std::filesystem::exists(exported(name)); }));
        std::ifstream file(std::filesystem::path(exported(name)), std::ios::binary);
        std::stringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }
    static int pages(const std::string& file) {
        int found = 0;
        for (auto at = file.find("/Type /Page "); at != std::string::npos;
             at = file.find("/Type /Page ", at + 1))
            ++found;
        return found;
    }
    std::wstring prompt() const { return textOf(::GetDlgItem(drafter->frame(), 0xE801)); }

    HWND dialog = nullptr;
};

TEST_F(Exporting, TheDisplay) {
    open(*frameDrawing(), L"export display.dxf");
    openExport();
    picture("journey-export");
    EXPECT_EQ(currentEntry(own(kArea)), L"Display");
    EXPECT_EQ(pages(saveAs(L"display.pdf")), 1);
}

TEST_F(Exporting, TheExtents) {
    open(*frameDrawing(), L"export extents.dxf");
    openExport();
    drafter->pick(own(kArea), kExtents);
    EXPECT_FALSE(::IsWindowEnabled(own(kPickWindow)));
    EXPECT_EQ(pages(saveAs(L"extents.pdf")), 1);
}

TEST_F(Exporting, AWindowPickedByTwoClicksAndAgainGivenUp) {
    open(*frameDrawing(), L"export window.dxf");
    openExport();
    const std::wstring idle = prompt();
    // By the mouse: keys would choose the entry, and begin the pick, while the list is still open.
    drafter->pickByMouse(own(kArea), L"Window");
    const auto isAway = [&] {
        return waitUntil([&] { return !::IsWindowVisible(dialog) && ::IsWindowEnabled(drafter->frame()); });
    };
    const auto isBack = [&] {
        return waitUntil([&] { return ::IsWindowVisible(dialog) && !::IsWindowEnabled(drafter->frame()); });
    };
    ASSERT_TRUE(isAway());
    ASSERT_TRUE(waitUntil([&] { return prompt() != idle; }));
    const std::wstring first = prompt();
    const RECT view = rectOf(drafter->view());
    const POINT middle = {(view.right - view.left) / 2, (view.bottom - view.top) / 2};
    // From left of the blue line to right of it, around the middle.
    drafter->click(drafter->view(), {middle.x - 80, middle.y - 56});
    ASSERT_TRUE(waitUntil([&] { return prompt() != first; }));
    drafter->hover(drafter->view(), {middle.x + 60, middle.y + 40});
    picture("journey-export-window");
    drafter->click(drafter->view(), {middle.x + 80, middle.y + 56});
    ASSERT_TRUE(isBack());
    EXPECT_TRUE(::IsWindowEnabled(own(kPickWindow)));
    // Picked anew and given up: the window stays.
    drafter->click(own(kPickWindow));
    ASSERT_TRUE(isAway());
    drafter->key(VK_ESCAPE);
    ASSERT_TRUE(isBack());
    EXPECT_EQ(pages(saveAs(L"window.pdf")), 1);
    EXPECT_TRUE(::IsWindowEnabled(drafter->frame()));
}

TEST_F(Exporting, AllLayouts) {
    OdDbDatabasePtr drawing = frameDrawing();
    add(*drawing, L"*Paper_Space", OdDbEntityPtr(line(20, 20, 400, 20, 3).get()));
    drawing->setTILEMODE(0);
    open(*drawing, L"export layouts.dxf");
    openExport();
    EXPECT_EQ(currentEntry(own(kArea)), L"Current layout");
    EXPECT_TRUE(::IsWindowEnabled(own(kPageSetup)));
    drafter->pick(own(kArea), kAllLayouts);
    EXPECT_FALSE(::IsWindowEnabled(own(kPageSetup)));
    EXPECT_EQ(pages(saveAs(L"layouts.pdf")), 1);
}

TEST_F(Exporting, OtherKindsOfFilesAreToldToBeOutOfReach) {
    open(*frameDrawing(), L"export kinds.dxf");
    openExport();
    drafter->pick(item(dialog, kTypeBox), 2);
    EXPECT_NE(textOf(item(dialog, kNameBox)).find(L".dwf"), std::wstring::npos);
    drafter->key(VK_RETURN);
    const std::wstring words = drafter->dismissMessage(drafter->frame());
    EXPECT_NE(words.find(L"DWF files can't be written"), std::wstring::npos) << words.size();
    EXPECT_FALSE(std::filesystem::exists(scratchPath(L"export kinds.dwf")));
}

TEST_F(Exporting, AFileThatAnotherProgramHoldsIsTold) {
    open(*frameDrawing(), L"export held.dxf");
    // The name that is proposed.
    const std::wstring target = scratchPath(L"export held.pdf");
    std::ofstream(std::filesystem::path(target)) << "held";
    const HANDLE held = ::CreateFileW(target.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    openExport();
    EXPECT_EQ(textOf(item(dialog, kNameBox)), L"export held.pdf");
    drafter->key(VK_RETURN);
    // The platform asks first whether the file is to be replaced.
    HWND question = drafter->waitForDialogOf(dialog);
    ASSERT_NE(question, nullptr);
    picture("journey-export-held");
    drafter->click(item(question, IDYES));
    HWND told = drafter->waitForDialog(L"Save As PDF");
    ASSERT_NE(told, nullptr);
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
    ::CloseHandle(held);
    EXPECT_EQ(std::filesystem::file_size(target), 4u);
    std::filesystem::remove(target);
    EXPECT_TRUE(drafter->isRunning());
}

}  // namespace
