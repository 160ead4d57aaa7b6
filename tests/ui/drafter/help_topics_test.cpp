// F1 and the Help buttons open the page of the dialog at hand, and every dialog has one in both languages.
#include <map>

#include <ktut.h>

#include "../../../samples/drafter/choice_dialog.h"
#include "../../../samples/drafter/dimension_style_dialog.h"
#include "../../../samples/drafter/drawing_picker.h"
#include "../../../samples/drafter/extensions.h"
#include "../../../samples/drafter/layers_panel.h"
#include "../../../samples/drafter/measure_dialog.h"
#include "../../../samples/drafter/name_dialog.h"
#include "../../../samples/drafter/options_dialog.h"
#include "../../../samples/drafter/picker_bar.h"
#include "../../../samples/drafter/properties_dialog.h"
#include "../../../samples/drafter/text_style_dialog.h"
#include "drafter_fixture.h"

namespace {

using ui_test::WithOwnSettings;
using Names = std::vector<std::wstring>;

struct NoPicker final : CDrawingPicker {
    void PickPlaces(std::size_t, unsigned, PlacesPicked) override {}
    void PickObjects(unsigned, ObjectsPicked) override {}
};

class HelpTopics : public ui_test::DrafterTest {
protected:
    HelpTopics() {
        host.SetHelpOpener([this](const CString& page) {
            pages.emplace_back(page.GetString());
            OdString name;
            ktutSplitPath(page, nullptr, nullptr, &name, nullptr);
            topics.emplace_back(name.view());
            return true;
        });
        host.SetHelpTopic(HID_PICKER_BAR, L"PickerBar");
    }
    /// F1, as the system reports it from the control that has the focus.
    static void pressF1() {
        HELPINFO info = {};
        info.cbSize = sizeof(info);
        info.iContextType = HELPINFO_WINDOW;
        info.hItemHandle = ::GetFocus();
        ::SendMessageW(::GetFocus(), WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
    }
    /// The topics that F1 in the first control, and the Help button if there is one, open in a dialog.
    template <class Dialog>
    Names topicsOf(Dialog& dialog) {
        topics.clear();
        show(dialog, [&] {
            pressF1();
            if (::GetDlgItem(dialog, IDHELP)) dialog.SendMessage(WM_COMMAND, IDHELP);
        });
        return topics;
    }
    /// The same for a page of the options.
    std::wstring topicOfPage(int index) {
        CExtensions extensions(CString(ktutProgramFolder().c_str()) + L"extensions\\");
        WithOwnSettings<COptionsDialog> dialog(
            DrafterOptions(), [](const DrafterOptions&) {}, &extensions, &parent);
        topics.clear();
        show(dialog, [&] {
            CKbUiTab& tabs = *dialog.GetTabControl();
            tabs.SetActiveTab(index);
            ::SetFocus(::GetNextDlgTabItem(*tabs.GetDialogPointer(index), nullptr, FALSE));
            pressF1();
        });
        return topics.size() == 1 ? topics[0] : L"opened " + std::to_wstring(topics.size());
    }
    Names topics, pages;
};

Names times(std::size_t count, const wchar_t* topic) { return Names(count, topic); }

}  // namespace

TEST_F(HelpTopics, EachDialogOpensItsOwn) {
    WithOwnSettings<CPropertiesDialog> properties(*drawing, std::vector<OdDbObjectId>(), &parent);
    EXPECT_EQ(topicsOf(properties), times(2, L"Properties"));
    WithOwnSettings<CDimensionStyleDialog> dimension(*drawing, &parent);
    EXPECT_EQ(topicsOf(dimension), times(2, L"DimensionStyle"));
    const auto noFont = [](const CString&, CString&) -> CKhFontStyle* { return nullptr; };
    WithOwnSettings<CTextStyleDialog> text(*drawing, &parent, noFont);
    EXPECT_EQ(topicsOf(text), times(2, L"TextStyle"));
    NoPicker picker;
    WithOwnSettings<CMeasureDialog> measure(*drawing, picker, &parent);
    EXPECT_EQ(topicsOf(measure), times(1, L"Measure"));
    WithOwnSettings<CNameDialog> name(std::vector<OdString>(), &parent,
                                      CNameDialog::Words{IDS_NEW_STYLE_TITLE, IDS_TAKEN_STYLE_NAME});
    EXPECT_EQ(topicsOf(name), times(2, L"StyleName"));
    WithOwnSettings<CNameChoiceDialog> block(std::vector<OdString>{L"A"}, &parent);
    EXPECT_EQ(topicsOf(block), times(1, L"BlockChoice"));
}

TEST_F(HelpTopics, TheLayersDialogHasOneInTheListAndInTheSearchBox) {
    CUndoHistory history(drawing);
    CLayersPanel layers([] {});
    ASSERT_TRUE(layers.Create(IDD_LAYERS_PANEL, &parent));
    layers.Show(*drawing, history);
    layers.ShowWindow(SW_SHOW);
    for (const int id : {IDC_LAYER_LIST, IDC_LAYER_SEARCH}) {
        topics.clear();
        layers.GetDlgItem(id)->SetFocus();
        pressF1();
        EXPECT_EQ(topics, times(1, L"Layers")) << id;
    }
    layers.DestroyWindow();
}

TEST_F(HelpTopics, ThePagesOfTheOptionsHaveTheirs) {
    EXPECT_EQ(topicOfPage(0), L"OptionsFiles");
    EXPECT_EQ(topicOfPage(1), L"OptionsDisplay");
    EXPECT_EQ(topicOfPage(2), L"OptionsUnits");
    EXPECT_EQ(topicOfPage(3), L"TitleBlock");
    WithOwnSettings<COptionsDialog> dialog(
        DrafterOptions(), [](const DrafterOptions&) {}, nullptr, &parent);
    topics.clear();
    show(dialog, [&] {
        CKbUiTab& tabs = *dialog.GetTabControl();
        tabs.SetActiveTab(1);
        tabs.SetFocus();
        pressF1();
        EXPECT_EQ(topics, times(1, L"OptionsDisplay")) << "on the strip, with that page in front";
        topics.clear();
        dialog.GetDlgItem(IDHELP)->SetFocus();
        dialog.SendMessage(WM_COMMAND, IDHELP);
    });
    EXPECT_EQ(topics, times(1, L"Options"));
}

TEST_F(HelpTopics, ADialogThatBelongsToADialogOpensItsPageOnce) {
    WithOwnSettings<CDimensionStyleDialog> owner(*drawing, &parent);
    show(owner, [&] {
        ui_test::when_dialog(L"New Style", [&](HWND name) {
            pressF1();
            ::PostMessageW(name, WM_COMMAND, IDCANCEL, 0);
        });
        owner.SendMessage(WM_COMMAND, IDC_NEW_STYLE);
        EXPECT_EQ(topics, times(1, L"StyleName"));
    });
}

TEST_F(HelpTopics, ThePickerBarHasOne) {
    auto* frame = new CFrameWnd;  // deletes itself
    frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 700, 300));
    CPickerBar bar([](UINT) {});
    ASSERT_TRUE(bar.CreateBar(frame));
    bar.ShowWindow(SW_SHOW);
    bar.GetDlgItem(IDC_LINETYPE)->SetFocus();
    host.uiHost()->showHelp(nullptr);
    EXPECT_EQ(topics, times(1, L"PickerBar"));
    frame->DestroyWindow();
}

namespace {

/// The topics of the dialogs by the ids of their templates.
const std::map<UINT, const wchar_t*> kTopics = {{IDD_PROPERTIES, L"Properties"},
                                                {IDD_DIMENSION_STYLE, L"DimensionStyle"},
                                                {IDD_TEXT_STYLE, L"TextStyle"},
                                                {IDD_STYLE_NAME, L"StyleName"},
                                                {IDD_BLOCK_CHOICE, L"BlockChoice"},
                                                {IDD_OPTIONS, L"Options"},
                                                {IDD_OPTIONS_FILES, L"OptionsFiles"},
                                                {IDD_OPTIONS_DISPLAY, L"OptionsDisplay"},
                                                {IDD_OPTIONS_UNITS, L"OptionsUnits"},
                                                {IDD_PICKER_BAR, L"PickerBar"},
                                                {IDD_MEASURE, L"Measure"},
                                                {IDD_LAYERS_PANEL, L"Layers"},
                                                {IDD_PROPERTIES_PANEL, L"PropertiesPalette"},
                                                {IDD_BLOCKS_PANEL, L"BlocksPalette"}};

/// The ids of the dialog templates of a module.
std::vector<UINT> dialogsOf(HMODULE module) {
    std::vector<UINT> ids;
    ::EnumResourceNamesW(
        module, RT_DIALOG,
        [](HMODULE, LPCWSTR, LPWSTR name, LONG_PTR to) -> BOOL {
            if (IS_INTRESOURCE(name))
                reinterpret_cast<std::vector<UINT>*>(to)->push_back(LOWORD(reinterpret_cast<UINT_PTR>(name)));
            return TRUE;
        },
        reinterpret_cast<LONG_PTR>(&ids));
    return ids;
}

void expectPages(const wchar_t* topic) {
    for (const wchar_t* language : {L"en", L"zh"}) {
        const std::wstring page =
            std::wstring(ktutProgramFolder().view()) + L"help\\" + language + L"\\" + topic + L".html";
        EXPECT_TRUE(ktutPathExists(page.c_str())) << CStringA(page.c_str());
    }
}

}  // namespace

TEST_F(HelpTopics, EachDialogOfTheDrafterHasAPageInBothLanguages) {
    const std::vector<UINT> dialogs = dialogsOf(AfxGetInstanceHandle());
    ASSERT_GE(dialogs.size(), kTopics.size());
    for (const UINT id : dialogs) {
        const auto topic = kTopics.find(id);
        ASSERT_NE(topic, kTopics.end()) << "dialog " << id << " has no topic";
        expectPages(topic->second);
    }
}

TEST_F(HelpTopics, EachOtherTopicHasAPageInBothLanguages) {
    for (const wchar_t* topic :
         {L"index", L"TitleBlock", L"SelectColor", L"LinetypeManager", L"LoadLinetypes", L"SelectPlotStyle",
          L"SecurityOptions", L"ExportOptions", L"PlotStamp", L"PageSetup", L"Export", L"OpenDrawing",
          L"SaveDrawing", L"FindFiles", L"Places", L"SaveOptions"})
        expectPages(topic);
}
