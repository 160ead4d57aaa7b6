// The ways by which sheets and pages are made, and what each of them hands on to the system.
#include "sheet_fixture.h"

namespace {

using namespace sheets;

class OpenPage : public CPropertyPage {
public:
    using CPropertyPage::CPropertyPage;
    using CPropertyPage::m_lpszTemplateName;
    using CPropertyPage::m_nIDHelp;
};

class OpenSheet : public CPropertySheet {
public:
    using CPropertySheet::CPropertySheet;
    using CPropertySheet::m_pParentWnd;
    using CPropertySheet::m_strCaption;
};

const wchar_t* const kTitle = L"a tab of the resources";
const wchar_t* const kMessage = L"a message of the resources";
constexpr UINT kTitleId = 500, kMessageId = 501;

/// Whether a page is that of template 430 with the title, headings as far as they are asked for.
void expect_page(const OpenPage& page, bool title, bool headings) {
    EXPECT_EQ(page.m_lpszTemplateName, MAKEINTRESOURCEW(kFirst));
    EXPECT_EQ(page.m_nIDHelp, static_cast<UINT>(kFirst));
    EXPECT_EQ(page.m_psp.pszTemplate, MAKEINTRESOURCEW(kFirst));
    EXPECT_EQ((page.m_psp.dwFlags & PSP_USETITLE) != 0, title);
    if (title) {
        EXPECT_STREQ(page.m_psp.pszTitle, kTitle);
    }
    EXPECT_EQ((page.m_psp.dwFlags & PSP_USEHEADERTITLE) != 0, headings);
    EXPECT_EQ((page.m_psp.dwFlags & PSP_USEHEADERSUBTITLE) != 0, headings);
    if (!headings) return;
    EXPECT_STREQ(page.m_psp.pszHeaderTitle, kMessage);
    EXPECT_STREQ(page.m_psp.pszHeaderSubTitle, kTitle);
}

}  // namespace

TEST(SheetMakes, PagesByNumberOrNameWithTitleAndHeadings) {
    const LPCTSTR name = MAKEINTRESOURCEW(kFirst);
    expect_page(OpenPage(static_cast<UINT>(kFirst)), false, false);
    expect_page(OpenPage(static_cast<UINT>(kFirst), kTitleId), true, false);
    expect_page(OpenPage(name, kTitleId), true, false);
    expect_page(OpenPage(name), false, false);
    expect_page(OpenPage(static_cast<UINT>(kFirst), kTitleId, kMessageId, kTitleId), true, true);
    expect_page(OpenPage(name, kTitleId, kMessageId, kTitleId), true, true);
    expect_page(OpenPage(name, 0, kMessageId, kTitleId), false, true);
    OpenPage later;
    later.Construct(static_cast<UINT>(kFirst), kTitleId);
    expect_page(later, true, false);
    later.Construct(name);
    expect_page(later, false, false);
    later.Construct(static_cast<UINT>(kFirst), kTitleId, kMessageId, kTitleId);
    expect_page(later, true, true);
    later.Construct(name, 0, kMessageId, kTitleId);
    expect_page(later, false, true);
    const OpenPage named(L"a template of this name");
    EXPECT_EQ(named.m_nIDHelp, 0U);
    EXPECT_STREQ(named.m_psp.pszTemplate, L"a template of this name");
}

TEST(SheetMakes, SheetsByNumberOrNameWithPictures) {
    ui_test::ParentWindow parent;
    const auto watermark = reinterpret_cast<HBITMAP>(0x11), header = reinterpret_cast<HBITMAP>(0x33);
    const auto palette = reinterpret_cast<HPALETTE>(0x22);
    const auto expect = [&](const OpenSheet& sheet, const wchar_t* caption, bool pictures) {
        EXPECT_STREQ(sheet.m_strCaption, caption);
        EXPECT_STREQ(sheet.m_psh.pszCaption, caption);
        EXPECT_EQ(sheet.m_pParentWnd, &parent);
        EXPECT_EQ(sheet.m_psh.nStartPage, 1U);
        EXPECT_NE(sheet.m_psh.dwFlags & PSH_PROPSHEETPAGE, 0U);
        constexpr DWORD kMarks =
            PSH_WATERMARK | PSH_USEHBMWATERMARK | PSH_USEHPLWATERMARK | PSH_HEADER | PSH_USEHBMHEADER;
        EXPECT_EQ(sheet.m_psh.dwFlags & kMarks, pictures ? kMarks : 0U);
        if (!pictures) return;
        EXPECT_EQ(sheet.m_psh.hbmWatermark, watermark);
        EXPECT_EQ(sheet.m_psh.hplWatermark, palette);
        EXPECT_EQ(sheet.m_psh.hbmHeader, header);
    };
    expect(OpenSheet(kTitleId, &parent, 1), kTitle, false);
    expect(OpenSheet(L"plain", &parent, 1), L"plain", false);
    expect(OpenSheet(kTitleId, &parent, 1, watermark, palette, header), kTitle, true);
    expect(OpenSheet(L"plain", &parent, 1, watermark, palette, header), L"plain", true);
    expect(OpenSheet(61999, &parent, 1), L"", false);
    OpenSheet later;
    EXPECT_STREQ(later.m_strCaption, L"");
    EXPECT_EQ(later.m_psh.nStartPage, 0U);
    later.Construct(kTitleId, &parent, 1);
    expect(later, kTitle, false);
    later.Construct(L"plain", &parent, 1);
    expect(later, L"plain", false);
    later.Construct(kTitleId, &parent, 1, watermark, palette, header);
    expect(later, kTitle, true);
    later.Construct(L"plain", &parent, 1);
    expect(later, L"plain", false);
}

class SheetMakesPages : public Sheets {};

TEST_F(SheetMakesPages, PagesAreKnownByPlaceAndBelongToOneSheet) {
    EXPECT_EQ(sheet.GetPageCount(), 2);
    EXPECT_EQ(sheet.GetPage(1), &second);
    EXPECT_EQ(sheet.GetPageIndex(&second), 1);
    EXPECT_EQ(sheet.GetPageIndex(&third), -1);
    EXPECT_EQ(sheet.GetActiveIndex(), 0);
    EXPECT_THROW(sheet.GetPage(2), CInvalidArgException*);
    EXPECT_THROW(sheet.GetPage(-1), CInvalidArgException*);
    sheet.RemovePage(&third);
    EXPECT_EQ(sheet.GetPageCount(), 2) << "it isn't in it";
    sheet.RemovePage(&first);
    EXPECT_EQ(sheet.GetPageCount(), 1);
    EXPECT_EQ(sheet.GetPage(0), &second);
    sheet.AddPage(&first);
    EXPECT_EQ(sheet.GetPageIndex(&first), 1);
    run([&] {
        EXPECT_EQ(sheet.GetActivePage(), &second);
        sheet.AddPage(&third);
        EXPECT_EQ(sheet.GetPageCount(), 3);
        EXPECT_TRUE(sheet.SetActivePage(&third));
        EXPECT_EQ(sheet.GetActiveIndex(), 2);
        sheet.RemovePage(0);
        EXPECT_EQ(sheet.GetPageCount(), 2);
        EXPECT_EQ(sheet.GetPage(0), &first);
        EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 2);
        press(PSBTN_CANCEL);
    });
}
