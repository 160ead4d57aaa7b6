// The text style dialog on a drawing of the test's, driven from inside.
#pragma once

#include <functional>

#include <standin_host.h>

#include "../../../samples/drafter/resource.h"
#include "../../../samples/drafter/text_style_dialog.h"
#include "ui_test.h"

namespace ui_test {

inline const wchar_t* const kTextStyleSettings = L"Software\\ktui drafter test";

/// The dialog with settings of its own; a test may answer the question for a font file.
class BrowsedTextStyleDialog : public CTextStyleDialog {
public:
    BrowsedTextStyleDialog(OdDbDatabase& drawing, CWnd* parent, FontLoader loader, const CString* fontFile)
        : CTextStyleDialog(drawing, parent, std::move(loader)), m_fontFile(fontFile) {
        SetAppRootKey((CString(kTextStyleSettings) + L"\\").GetString());
    }

protected:
    CString AskFontFile() override {
        return m_fontFile != nullptr ? *m_fontFile : CTextStyleDialog::AskFontFile();
    }

private:
    const CString* m_fontFile;
};

class TextStyleDialogTest : public ::testing::Test {
protected:
    TextStyleDialogTest() : drawing(new OdDbDatabase) {}
    ~TextStyleDialogTest() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kTextStyleSettings);
    }
    /// The host, a member of the test's class, is there by now.
    void SetUp() override {
        oddbHostApplicationServices()->setWorkingDatabase(drawing.get());
        AfxGetApp()->m_pMainWnd = &parent;
    }

    OdDbTextStyleTableRecordPtr standard() {
        return drawing->textstyle().open<OdDbTextStyleTableRecord>(OdDb::kForWrite);
    }
    /// Shows the dialog, runs `action` in it, and answers it with `answer`.
    void show(const std::function<void(CWnd&)>& action, int answer = IDOK) {
        BrowsedTextStyleDialog dialog(*drawing, &parent, loader, fontFile);
        later([&] {
            action(dialog);
            dialog.PostMessage(WM_COMMAND, static_cast<WPARAM>(answer));
        });
        EXPECT_EQ(dialog.DoModal(), answer);
    }
    static CString entry(CWnd& dialog, int id) {
        CWnd* combo = dialog.GetDlgItem(id);
        const auto index = static_cast<WPARAM>(combo->SendMessage(CB_GETCURSEL));
        wchar_t text[100] = {};
        combo->SendMessage(CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text));
        return text;
    }
    static void notify(CWnd& dialog, int id, int code) {
        dialog.SendMessage(WM_COMMAND, MAKEWPARAM(id, code),
                           reinterpret_cast<LPARAM>(dialog.GetDlgItem(id)->m_hWnd));
    }
    /// Selects an entry of a combo box as the user does.
    static void pick(CWnd& dialog, int id, const wchar_t* text) {
        CWnd* combo = dialog.GetDlgItem(id);
        const auto index =
            combo->SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text));
        ASSERT_GE(index, 0) << odUtf8(text);
        combo->SendMessage(CB_SETCURSEL, static_cast<WPARAM>(index));
        notify(dialog, id, CBN_SELCHANGE);
    }
    static bool isEnabled(CWnd& dialog, int id) { return dialog.GetDlgItem(id)->IsWindowEnabled() != 0; }
    static CString message(CWnd& dialog) { return text_of(dialog.GetDlgItem(IDC_MESSAGE)->m_hWnd); }

    OdDbDatabasePtr drawing;
    ParentWindow parent;
    CTextStyleDialog::FontLoader loader;  ///< handed to the dialog
    const CString* fontFile = nullptr;    ///< the answer to the question for a font file; null: really ask
};

}  // namespace ui_test
