// Which field the message line of a dialog speaks of.
#include "../../../samples/drafter/name_dialog.h"
#include "../../../samples/drafter/properties_dialog.h"
#include "drafter_fixture.h"

using namespace ui_test;

namespace {

CString words(UINT id) {
    CString text;
    text.LoadString(id);
    const int example = text.Find(L"%s");
    return example < 0 ? text : text.Left(example);
}

class FieldMessages : public DrafterTest {
protected:
    FieldMessages() : dialog(*drawing, std::vector<OdDbObjectId>(), &parent) {}

    /// Enters a text as a user who has clicked into the field.
    void enter(int id, const wchar_t* text) {
        item(dialog, id).SetFocus();
        item(dialog, id).SendMessage(EM_SETSEL, 0, -1);
        item(dialog, id).SendMessage(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
        pump();
    }
    /// Whether the message is the one of this string, whatever example is in it.
    bool says(UINT id) {
        const CString message = text_of(item(dialog, IDC_MESSAGE).m_hWnd);
        return !message.IsEmpty() && message.Find(words(id)) == 0;
    }
    bool saysNothing() { return text_of(item(dialog, IDC_MESSAGE).m_hWnd).IsEmpty(); }

    WithOwnSettings<CPropertiesDialog> dialog;
};

TEST_F(FieldMessages, CorrectingOneFieldSpeaksOfTheOtherBadOne) {
    show(dialog, [&] {
        enter(IDC_THICKNESS, L"-1");
        enter(IDC_ELEVATION, L"high");
        EXPECT_TRUE(says(IDS_BAD_ELEVATION)) << "the field with the focus";
        enter(IDC_ELEVATION, L"3");
        EXPECT_TRUE(says(IDS_BAD_THICKNESS)) << "the one that is still bad";
        enter(IDC_THICKNESS, L"1");
        EXPECT_TRUE(saysNothing());
    });
}

TEST_F(FieldMessages, GoingFromBadToBadStillSaysWhy) {
    show(dialog, [&] {
        enter(IDC_THICKNESS, L"-1");
        enter(IDC_LINETYPE_SCALE, L"0");
        enter(IDC_LINETYPE_SCALE, L"2");
        enter(IDC_THICKNESS, L"thick");
        EXPECT_TRUE(says(IDS_BAD_THICKNESS));
        enter(IDC_THICKNESS, L"-7");
        EXPECT_TRUE(says(IDS_BAD_THICKNESS));
    });
}

TEST_F(FieldMessages, TheFocusDecidesAmongBadFields) {
    show(dialog, [&] {
        enter(IDC_LINETYPE_SCALE, L"0");
        enter(IDC_THICKNESS, L"-1");
        item(dialog, IDC_LINETYPE_SCALE).SetFocus();
        EXPECT_TRUE(says(IDS_BAD_LINETYPE_SCALE));
        item(dialog, IDC_THICKNESS).SetFocus();
        EXPECT_TRUE(says(IDS_BAD_THICKNESS));
        item(dialog, IDC_TRUE_COLOR).SetFocus();
        EXPECT_TRUE(says(IDS_BAD_LINETYPE_SCALE)) << "the first one, since the focus is in none";
    });
}

TEST_F(FieldMessages, PuttingTheFormerTextBackIsNoMistake) {
    show(dialog, [&] {
        const CString before = text_of(item(dialog, IDC_THICKNESS).m_hWnd);
        enter(IDC_THICKNESS, L"-1");
        enter(IDC_THICKNESS, before);
        EXPECT_TRUE(saysNothing());
    });
}

TEST_F(DrafterTest, ATakenNameIsToldUntilItIsChanged) {
    WithOwnSettings<CNameDialog> dialog(std::vector<OdString>{L"Taken"}, &parent,
                                        CNameDialog::Words{IDS_NEW_STYLE_TITLE, IDS_TAKEN_STYLE_NAME});
    show(dialog, [&] {
        item(dialog, IDC_STYLE_NAME).SendMessage(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"taken"));
        dialog.SendMessage(WM_COMMAND, IDOK);
        EXPECT_EQ(text_of(item(dialog, IDC_MESSAGE).m_hWnd), words(IDS_TAKEN_STYLE_NAME));
        item(dialog, IDC_STYLE_NAME).SendMessage(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"2"));
        EXPECT_TRUE(text_of(item(dialog, IDC_MESSAGE).m_hWnd).IsEmpty());
    });
}

}  // namespace
