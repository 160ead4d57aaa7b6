// A resource script as an editor keeps it, through the function of the package that makes it fit for the
// compiler.
#include <afxwin.h>

#include "editor_resources/resource.h"
#include "ui_test.h"

namespace {

class ListsDialog : public CDialog {
public:
    ListsDialog() : CDialog(IDD_LISTS) {}
};

CString text(UINT id) {
    CString found;
    EXPECT_TRUE(found.LoadString(id)) << id;
    return found;
}

/// The bytes of a resource of this program.
std::vector<BYTE> resource(LPCWSTR name, LPCWSTR type) {
    const HRSRC found = ::FindResourceW(nullptr, name, type);
    if (!found) return {};
    const auto* bytes = static_cast<const BYTE*>(::LockResource(::LoadResource(nullptr, found)));
    return {bytes, bytes + ::SizeofResource(nullptr, found)};
}

}  // namespace

TEST(EditorResources, TextsOfEveryEncodingAreRead) {
    EXPECT_STREQ(text(IDS_WIDE), L"\u5c3a\u5bf8 \u00fc") << "UTF-16";
    EXPECT_STREQ(text(IDS_WESTERN), L"Gr\u00f6\u00dfe \u20ac") << "code page 1252 in an included script";
    EXPECT_STREQ(text(IDS_CHINESE), L"\u56fe\u5c42") << "code page 936 further down in it";
    EXPECT_STREQ(text(AFX_IDS_APP_TITLE), L"Editor");
    EXPECT_STREQ(text(ID_INDICATOR_CAPS), L"CAP");
}

TEST(EditorResources, ListsAreFilledFromBlocksWithoutCommas) {
    ListsDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_LISTS));
    const HWND kinds = ::GetDlgItem(dialog, IDC_KINDS);
    ASSERT_EQ(::SendMessageW(kinds, CB_GETCOUNT, 0, 0), 2);
    wchar_t entry[20] = {};
    ::SendMessageW(kinds, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(entry));
    EXPECT_STREQ(entry, L"Line");
    ::SendMessageW(kinds, CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(entry));
    EXPECT_STREQ(entry, L"Arc");
    dialog.DestroyWindow();
}

TEST(EditorResources, FilesAreFoundWhateverTheirCase) {
    CBitmap picture;
    EXPECT_TRUE(picture.LoadBitmap(IDR_PICTURE));
}

TEST(EditorResources, AToolbarHasItsSizeAndCommands) {
    const std::vector<BYTE> bytes = resource(MAKEINTRESOURCEW(IDR_BAR), MAKEINTRESOURCEW(241));
    ASSERT_EQ(bytes.size(), 14u);
    const auto* words = reinterpret_cast<const WORD*>(bytes.data());
    EXPECT_EQ(words[0], 1);  // version
    EXPECT_EQ(words[1], 16);
    EXPECT_EQ(words[2], 15);
    EXPECT_EQ(words[3], 3);
    EXPECT_EQ(words[4], ID_FILE_NEW);
    EXPECT_EQ(words[5], 0);
    EXPECT_EQ(words[6], ID_APP_ABOUT);
}

TEST(EditorResources, TheEditorsOwnNotesAreLeftOut) {
    EXPECT_TRUE(resource(MAKEINTRESOURCEW(1), L"TEXTINCLUDE").empty());
    EXPECT_TRUE(resource(MAKEINTRESOURCEW(3), L"TEXTINCLUDE").empty());
    EXPECT_FALSE(resource(MAKEINTRESOURCEW(IDD_LISTS), L"AFX_DIALOG_LAYOUT").empty()) << "other types stay";
}
