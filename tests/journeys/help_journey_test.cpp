// A draughtsman asks for help by F1 and by the Help buttons: the system's program for such pages gets the
// page of what is at hand.
#include <filesystem>
#include <fstream>

#include "journey_fixture.h"

using namespace journey;

namespace {

constexpr const wchar_t *kEnding = L".html", *kKind = L"Velmora.journey.page";

std::wstring classValue(const std::wstring& key) {
    wchar_t text[300] = {};
    DWORD size = sizeof text;
    ::RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text, &size);
    return text;
}

void setClassValue(const std::wstring& key, const std::wstring& text) {
    ::RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, text.c_str(),
                      static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

class Help : public Journey {
protected:
    Help() : Journey(L"bracket.dxf"), m_shown(scratchPath(L"shown page.txt")), m_former(classValue(kEnding)) {
        std::filesystem::remove(m_shown);
        setClassValue(kEnding, kKind);
        setClassValue(std::wstring(kKind) + L"\\shell\\open\\command",
                      L"\"" + programFolder() + L"shown_page.exe\" \"%1\" \"" + m_shown + L"\"");
    }
    ~Help() override {
        ::RegDeleteTreeW(HKEY_CLASSES_ROOT, kKind);
        if (m_former.empty())
            ::RegDeleteTreeW(HKEY_CLASSES_ROOT, kEnding);
        else
            setClassValue(kEnding, m_former);
        std::filesystem::remove(m_shown);
    }
    /// The page that was shown since the last call, without its folder; "none" if none is.
    std::wstring shown() {
        // A program has to start first, which takes its time on a machine with much else to do.
        constexpr unsigned kProgramStarts = 60000;  // milliseconds
        // While the program gives the file its name, nobody else can open it.
        std::ifstream file;
        const auto opens = [&] {
            file.open(std::filesystem::path(m_shown), std::ios::binary);
            return file.is_open();
        };
        if (!waitUntil(opens, kProgramStarts)) return L"none";
        const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
        file.close();
        std::filesystem::remove(m_shown);
        std::wstring page(bytes.size() / sizeof(wchar_t), L' ');
        memcpy(page.data(), bytes.data(), page.size() * sizeof(wchar_t));
        EXPECT_TRUE(std::filesystem::exists(page));
        EXPECT_EQ(std::filesystem::path(page).parent_path().filename(), L"en");
        return std::filesystem::path(page).filename().wstring();
    }
    std::wstring shownByF1() {
        drafter->key(VK_F1);
        return shown();
    }

private:
    std::wstring m_shown;
    std::wstring m_former;  ///< kind of file that the system takes such pages for; empty for none
};

TEST_F(Help, F1InTheDrawingOpensTheStartAndInThePickerBarThatOfTheBar) {
    drafter->activate(drafter->frame());
    EXPECT_EQ(shownByF1(), L"index.html");
    drafter->key('F', true);
    EXPECT_EQ(shownByF1(), L"PickerBar.html");
    drafter->key('H', false, true);
    drafter->key('H');
    EXPECT_EQ(shown(), L"index.html") << "the menu";
}

TEST_F(Help, F1InADialogOpensItsPage) {
    drafter->activate(drafter->frame());
    HWND dialog = drafter->openProperties();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(shownByF1(), L"Properties.html");
    drafter->click(item(dialog, IDC_ELEVATION));
    EXPECT_EQ(shownByF1(), L"Properties.html") << "from a field";
    drafter->click(item(dialog, IDHELP));
    EXPECT_EQ(shown(), L"Properties.html") << "the button";
    cancel(dialog);
    ASSERT_NE(dialog = openByKey('M'), nullptr);
    EXPECT_EQ(shownByF1(), L"Measure.html");
    cancel(dialog);
}

TEST_F(Help, F1InAPaletteOpensItsPage) {
    ASSERT_NE(drafter->openLayers(), nullptr);
    EXPECT_EQ(shownByF1(), L"Layers.html");
    drafter->key(VK_ESCAPE);
    EXPECT_EQ(shownByF1(), L"index.html") << "in the drawing beside it";
}

TEST_F(Help, F1OnAPageOfTheOptionsOpensThatOfThePage) {
    drafter->activate(drafter->frame());
    drafter->key('O', true, false, true);
    HWND dialog = drafter->waitForDialog(L"Options");
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(shownByF1(), L"OptionsFiles.html");
    drafter->key(VK_TAB, true);
    EXPECT_EQ(shownByF1(), L"OptionsDisplay.html");
    drafter->key(VK_TAB, true);
    EXPECT_EQ(shownByF1(), L"OptionsUnits.html");
    drafter->key(VK_TAB, true);
    EXPECT_EQ(shownByF1(), L"TitleBlock.html") << "of the extension";
    cancel(dialog);
}

}  // namespace
