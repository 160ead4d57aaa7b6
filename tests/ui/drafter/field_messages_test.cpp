// Which field the message line of a dialog speaks of.
#include "../../../samples/drafter/name_dialog.h"
#include "../../../samples/drafter/properties_dialog.h"
#include "drafter_fixture.h"

#include <shlobj.h>

#include "picture.h"

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

/// The handle of a drop of files; the window that takes it frees it.
HDROP dropOf(const std::vector<CString>& paths) {
    std::wstring names;
    for (const CString& path : paths) names += std::wstring(path.GetString()) + L'\0';
    names += L'\0';
    const SIZE_T bytes = names.size() * sizeof(wchar_t);
    const HGLOBAL block = ::GlobalAlloc(GHND, sizeof(DROPFILES) + bytes);
    auto* const head = static_cast<DROPFILES*>(::GlobalLock(block));
    head->pFiles = sizeof(DROPFILES);
    head->fWide = TRUE;
    memcpy(head + 1, names.data(), bytes);
    ::GlobalUnlock(block);
    return static_cast<HDROP>(block);
}

/// Whether a window shows anything in red.
bool hasRed(CWnd& window) {
    constexpr int kMuch = 80;
    window.RedrawWindow();
    const Picture picture(window);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (GetRValue(picture.at(x, y)) > GetGValue(picture.at(x, y)) + kMuch) return true;
    return false;
}

TEST_F(FieldMessages, WhatADropWillDoIsNoProblemAndAFileThatIsGoneIsOne) {
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    const CString path = CString(folder) + L"a drawing to drop.dxf";
    ASSERT_EQ(OdDbDatabasePtr(new OdDbDatabase)->writeDxf(path), kOdOk);
    show(dialog, [&] {
        CWnd& line = item(dialog, IDC_MESSAGE);
        const auto dropAll = [&](const std::vector<CString>& files) {
            item(dialog, IDC_DROP_LAYERS).SendMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(dropOf(files)));
            pump();
        };
        const auto drop = [&](const CString& file) { dropAll({file}); };
        dropAll({path, path + L".gone", path + L".other"});
        EXPECT_STREQ(text_of(line.m_hWnd),
                     L"OK takes the layer settings of a drawing to drop.dxf, the first of 3 files.");
        EXPECT_FALSE(hasRed(line));
        drop(path);
        EXPECT_STREQ(text_of(line.m_hWnd),
                     L"OK takes the layer settings of a drawing to drop.dxf (layers: 1).");
        EXPECT_FALSE(hasRed(line));
        drop(path + L".gone");
        EXPECT_GE(text_of(line.m_hWnd).Find(L"a drawing to drop.dxf.gone - "), 0);
        EXPECT_TRUE(hasRed(line));
        drop(path);
        EXPECT_FALSE(hasRed(line)) << "the next drop serves";
        enter(IDC_THICKNESS, L"-1");
        EXPECT_TRUE(hasRed(line)) << "a bad field comes first, and is a problem";
    });
    ::DeleteFileW(path);
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
