// Device contexts, GDI objects, menus, image lists and string resources.
#include <afxcmn.h>
#include <afxext.h>

#include "leak_count.h"
#include "ui_test.h"

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kWhite = RGB(255, 255, 255);

/// A device context over a white bitmap of 32 by 32 pixels.
class Canvas : public CDC {
public:
    Canvas() {
        CClientDC screen(nullptr);
        CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, 32, 32);
        m_previous = SelectObject(&m_bitmap);
        PatBlt(0, 0, 32, 32, WHITENESS);
    }
    ~Canvas() override { SelectObject(m_previous); }

private:
    CBitmap m_bitmap;
    CBitmap* m_previous;
};

void end_temporary_objects() {
    CDC::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CMenu::DeleteTempMap();
    CImageList::DeleteTempMap();
}

}  // namespace

TEST(Selection, AnswersTheObjectBeforeAndRestoresIt) {
    Canvas dc;
    CPen red(PS_SOLID, 1, kRed);
    CPen blue(PS_SOLID, 1, kBlue);
    CPen* const original = dc.SelectObject(&red);
    ASSERT_NE(original, nullptr);
    EXPECT_TRUE(original->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_EQ(dc.SelectObject(&blue), &red);
    EXPECT_EQ(dc.GetCurrentPen(), &blue);
    EXPECT_EQ(dc.SelectObject(original), &blue);
    EXPECT_EQ(dc.GetCurrentPen()->m_hObject, original->m_hObject);
}

TEST(Selection, ATemporaryObjectIsOfTheClassThatFitsItsHandle) {
    Canvas dc;
    EXPECT_TRUE(dc.GetCurrentBrush()->IsKindOf(RUNTIME_CLASS(CBrush)));
    EXPECT_TRUE(dc.GetCurrentFont()->IsKindOf(RUNTIME_CLASS(CFont)));
    EXPECT_TRUE(CGdiObject::FromHandle(::GetStockObject(DEFAULT_PALETTE))->IsKindOf(RUNTIME_CLASS(CPalette)));
    CGdiObject* const before = dc.SelectStockObject(DC_PEN);
    EXPECT_TRUE(before->IsKindOf(RUNTIME_CLASS(CPen)));
    dc.SelectObject(before);
}

TEST(Selection, TemporaryObjectsDeleteNothing) {
    HPEN pen = ::CreatePen(PS_SOLID, 1, kRed);
    EXPECT_EQ(CPen::FromHandle(pen)->m_hObject, pen);
    end_temporary_objects();
    LOGPEN info;
    EXPECT_EQ(::GetObjectW(pen, sizeof info, &info), static_cast<int>(sizeof info));
    EXPECT_TRUE(::DeleteObject(pen));
}

TEST(Selection, AttachAndDetachMoveOwnership) {
    HBRUSH brush = ::CreateSolidBrush(kRed);
    {
        CBrush owner;
        EXPECT_FALSE(owner.Attach(nullptr));
        EXPECT_TRUE(owner.Attach(brush));
        EXPECT_EQ(CBrush::FromHandle(brush), &owner);
        EXPECT_EQ(owner.Detach(), brush);
        EXPECT_EQ(owner.GetSafeHandle(), nullptr);
        EXPECT_NE(CBrush::FromHandle(brush), &owner);
    }
    EXPECT_EQ(::GetObjectType(brush), static_cast<DWORD>(OBJ_BRUSH));
    ::DeleteObject(brush);
}

TEST(Selection, AFailedConstructorThrows) {
    const LOGBRUSH none = {0xFFFF, 0, 0};
    EXPECT_THROW(CPen(PS_GEOMETRIC | PS_USERSTYLE, 1, &none, 0, nullptr), CResourceException*);
}

TEST(Leaks, DrawingAThousandTimesLeavesNoGdiObject) {
    ui_test::ParentWindow parent;
    const auto draw = [&parent] {
        CClientDC target(&parent);
        CMemDC memory(target, &parent);
        CDC& dc = memory.GetDC();
        CPen pen(PS_SOLID, 1, kRed);
        CBrush brush(kBlue);
        CFont font;
        font.CreatePointFont(90, L"Tahoma", &dc);
        CRgn clip;
        clip.CreateRectRgn(0, 0, 20, 20);
        const int saved = dc.SaveDC();
        dc.SelectObject(&pen);
        dc.SelectObject(&brush);
        dc.SelectObject(&font);
        dc.SelectClipRgn(&clip);
        dc.Rectangle(CRect(0, 0, 10, 10));
        dc.TextOut(0, 0, L"text");
        dc.DrawDragRect(CRect(0, 0, 9, 9), CSize(2, 2), CRect(3, 3, 12, 12), CSize(2, 2));
        dc.RestoreDC(saved);
        end_temporary_objects();
    };
    draw();
    const int before = count_held_objects().gdiObjects;
    for (int i = 0; i < 1000; ++i) draw();
    EXPECT_EQ(count_held_objects().gdiObjects, before);
}

TEST(Drawing, FillsAndFrames) {
    Canvas dc;
    const COLORREF back = dc.GetBkColor();
    dc.FillSolidRect(2, 2, 4, 4, kRed);
    EXPECT_EQ(dc.GetPixel(2, 2), kRed);
    EXPECT_EQ(dc.GetPixel(5, 5), kRed);
    EXPECT_EQ(dc.GetPixel(6, 5), kWhite);
    EXPECT_EQ(dc.GetBkColor(), back);
    dc.Draw3dRect(CRect(10, 10, 20, 20), kRed, kBlue);
    EXPECT_EQ(dc.GetPixel(10, 10), kRed);
    EXPECT_EQ(dc.GetPixel(10, 18), kRed);
    EXPECT_EQ(dc.GetPixel(19, 19), kBlue);
    EXPECT_EQ(dc.GetPixel(19, 10), kBlue);
    EXPECT_EQ(dc.GetPixel(15, 15), kWhite);
    CBrush blue(kBlue);
    dc.FillRect(CRect(0, 30, 2, 32), &blue);
    EXPECT_EQ(dc.GetPixel(1, 31), kBlue);
    dc.InvertRect(CRect(0, 30, 2, 32));
    EXPECT_EQ(dc.GetPixel(1, 31), RGB(255, 255, 0));
}

TEST(Drawing, CopiesBlendsAndKeys) {
    Canvas source, dc;
    source.FillSolidRect(0, 0, 32, 32, kRed);
    source.FillSolidRect(0, 0, 4, 4, kBlue);
    dc.BitBlt(0, 0, 8, 8, &source, 0, 0, SRCCOPY);
    EXPECT_EQ(dc.GetPixel(3, 3), kBlue);
    EXPECT_EQ(dc.GetPixel(4, 4), kRed);
    dc.StretchBlt(8, 8, 8, 8, &source, 0, 0, 4, 4, SRCCOPY);
    EXPECT_EQ(dc.GetPixel(15, 15), kBlue);
    dc.TransparentBlt(20, 20, 8, 8, &source, 0, 0, 8, 8, kBlue);
    EXPECT_EQ(dc.GetPixel(20, 20), kWhite);
    EXPECT_EQ(dc.GetPixel(27, 27), kRed);
    dc.AlphaBlend(16, 0, 4, 4, &source, 8, 8, 4, 4, {AC_SRC_OVER, 0, 128, 0});
    EXPECT_NEAR(GetGValue(dc.GetPixel(17, 1)), 127, 2);
    EXPECT_EQ(GetRValue(dc.GetPixel(17, 1)), 255);
}

TEST(Drawing, MeasuresText) {
    Canvas dc;
    const CString text(L"Measured");
    EXPECT_EQ(dc.GetTextExtent(text), dc.GetTextExtent(text, -1));
    EXPECT_GT(dc.GetTextExtent(text).cx, dc.GetTextExtent(text, 3).cx);
    CRect box;
    dc.DrawText(text, box, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_EQ(box.Width(), dc.GetTextExtent(text).cx);
    CString face;
    dc.GetTextFace(face);
    EXPECT_FALSE(face.IsEmpty());
}

TEST(Drawing, MapsCoordinates) {
    Canvas dc;
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(10, 10);
    dc.SetViewportExt(20, 40);
    EXPECT_EQ(dc.SetViewportOrg(5, 6), CPoint(0, 0));
    CPoint point(1, 1);
    dc.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(7, 10));
    CSize size(2, 2);
    dc.LPtoDP(&size);
    EXPECT_EQ(size, CSize(4, 8));
    dc.DPtoLP(&size);
    EXPECT_EQ(size, CSize(2, 2));
}

TEST(Drawing, QuestionsGoToTheAttributeContext) {
    Canvas output, attributes;
    CDC dc;
    dc.SetOutputDC(output.m_hDC);
    dc.SetAttribDC(attributes.m_hDC);
    dc.SetTextColor(kBlue);
    EXPECT_EQ(dc.GetTextColor(), kBlue);
    EXPECT_EQ(::GetTextColor(output), kBlue);
    EXPECT_EQ(::GetTextColor(attributes), kBlue);
    dc.ReleaseAttribDC();
    dc.ReleaseOutputDC();
    EXPECT_EQ(dc.GetSafeHdc(), nullptr);
}

TEST(Drawing, APaintContextValidatesItsWindow) {
    ui_test::ParentWindow parent;
    ui_test::pump();
    parent.InvalidateRect(CRect(1, 2, 30, 40), FALSE);
    CRect painted;
    {
        CPaintDC dc(&parent);
        painted = dc.m_ps.rcPaint;
    }
    EXPECT_EQ(painted, CRect(1, 2, 30, 40));
    CRect left;
    EXPECT_FALSE(parent.GetUpdateRect(left));
}

TEST(Drawing, OffScreenDrawingShowsWhenTheObjectGoes) {
    Canvas dc;
    {
        CMemDC memory(dc, CRect(8, 8, 16, 16));
        ASSERT_TRUE(memory.IsMemDC());
        memory.GetDC().FillSolidRect(8, 8, 8, 8, kRed);
        EXPECT_EQ(dc.GetPixel(8, 8), kWhite);
    }
    EXPECT_EQ(dc.GetPixel(8, 8), kRed);
    EXPECT_EQ(dc.GetPixel(15, 15), kRed);
    EXPECT_EQ(dc.GetPixel(16, 16), kWhite);
}

TEST(Font, APointFontHasTheHeightOfItsPoints) {
    CClientDC screen(nullptr);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, L"Tahoma"));
    LOGFONTW info;
    font.GetLogFont(&info);
    EXPECT_EQ(info.lfHeight, -::MulDiv(12, screen.GetDeviceCaps(LOGPIXELSY), 72));
    EXPECT_STREQ(info.lfFaceName, L"Tahoma");
}

TEST(Bitmap, LoadsFromTheResourceChain) {
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(300));
    BITMAP info;
    bitmap.GetBitmap(&info);
    EXPECT_EQ(info.bmWidth, 4);
    EXPECT_EQ(info.bmHeight, 2);
    CBitmap missing;
    EXPECT_FALSE(missing.LoadBitmap(999));
}

TEST(Region, Combines) {
    CRgn a, b, both;
    a.CreateRectRgn(0, 0, 10, 10);
    b.CreateRectRgn(5, 0, 15, 10);
    both.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(both.CombineRgn(&a, &b, RGN_OR), SIMPLEREGION);
    CRect box;
    both.GetRgnBox(box);
    EXPECT_EQ(box, CRect(0, 0, 15, 10));
    EXPECT_TRUE(both.PtInRegion(14, 9));
}

TEST(Menu, LoadsAndAnswersItsItems) {
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(100));
    EXPECT_EQ(menu.GetMenuItemCount(), 2);
    EXPECT_EQ(menu.GetMenuItemID(1), 103u);
    CMenu* const file = menu.GetSubMenu(0);
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->GetMenuItemCount(), 3);
    CString text;
    EXPECT_EQ(file->GetMenuString(101, text, MF_BYCOMMAND), 12);
    EXPECT_EQ(text, L"&Open\tCtrl+O");
    EXPECT_EQ(CMenu::FromHandle(menu), &menu);
    EXPECT_EQ(CMenu::FromHandlePermanent(file->m_hMenu), nullptr);
    EXPECT_EQ(menu.GetSubMenu(1), nullptr);
}

TEST(Menu, IsDestroyedWithItsObjectOnly) {
    HMENU handle;
    {
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, 1, L"one");
        menu.InsertMenu(0, MF_BYPOSITION, 2, L"two");
        menu.CheckMenuItem(1, MF_CHECKED);
        menu.EnableMenuItem(2, MF_GRAYED);
        EXPECT_EQ(menu.GetMenuItemID(0), 2u);
        EXPECT_TRUE(menu.GetMenuState(1, MF_BYCOMMAND) & MF_CHECKED);
        EXPECT_TRUE(menu.GetMenuState(2, MF_BYCOMMAND) & MF_GRAYED);
        EXPECT_TRUE(menu.DeleteMenu(2, MF_BYCOMMAND));
        EXPECT_EQ(menu.GetMenuItemCount(), 1);
        handle = menu.m_hMenu;
        EXPECT_TRUE(::IsMenu(handle));
    }
    EXPECT_FALSE(::IsMenu(handle));
}

TEST(ImageList, HoldsAndDrawsImages) {
    CImageList list;
    ASSERT_TRUE(list.Create(4, 2, ILC_COLOR24 | ILC_MASK, 0, 4));
    CBitmap red, blue;
    red.LoadBitmap(300);
    blue.LoadBitmap(301);
    EXPECT_EQ(list.Add(&red, RGB(0, 255, 0)), 0);
    EXPECT_EQ(list.Add(&blue, RGB(0, 255, 0)), 1);
    EXPECT_EQ(list.GetImageCount(), 2);
    int cx, cy;
    list.GetIconSize(&cx, &cy);
    EXPECT_EQ(CSize(cx, cy), CSize(4, 2));
    Canvas dc;
    EXPECT_TRUE(list.Draw(&dc, 1, CPoint(3, 3), ILD_NORMAL));
    EXPECT_EQ(dc.GetPixel(3, 3), kBlue);
    EXPECT_EQ(dc.GetPixel(7, 3), kWhite);
    EXPECT_TRUE(list.Remove(0));
    EXPECT_EQ(CImageList::FromHandle(list), &list);
    CImageList copy;
    EXPECT_TRUE(copy.Create(&list));
    EXPECT_EQ(copy.GetImageCount(), 1);
    CImageList strip;
    EXPECT_TRUE(strip.Create(300, 2, 0, RGB(0, 255, 0)));
    EXPECT_EQ(strip.GetImageCount(), 2);
}

TEST(Resources, StringsLoadByTheirIds) {
    CString text;
    EXPECT_TRUE(text.LoadString(200));
    EXPECT_EQ(text, L"A text from the resources: 图层");
    EXPECT_EQ(CString(MAKEINTRESOURCE(216)), L"first of the next");
    EXPECT_TRUE(text.LoadString(215));
    EXPECT_EQ(text, L"last of its block");
    EXPECT_FALSE(text.LoadString(202));
    EXPECT_FALSE(text.LoadString(::GetModuleHandleW(L"kernel32.dll"), 200));
    text.Format(201u, 3, L"seven");
    EXPECT_EQ(text, L"3 of seven");
    text.FormatMessage(217u, 1, L"all");
    EXPECT_EQ(text, L"1 before all");
    BSTR copy = text.AllocSysString();
    EXPECT_STREQ(copy, L"1 before all");
    ::SysFreeString(copy);
    ::SetEnvironmentVariableW(L"KMFC_TEST", L"set");
    EXPECT_TRUE(text.GetEnvironmentVariable(L"KMFC_TEST"));
    EXPECT_EQ(text, L"set");
}

TEST(Resources, ReportingAnExceptionShowsItsText) {
    int answer = 0;
    CString shown;
    ui_test::when_dialog(L"", [&shown](HWND dialog) {
        shown = ui_test::text_of(::GetDlgItem(dialog, 0xFFFF));
        ::SendMessageW(dialog, WM_COMMAND, IDOK, 0);
    });
    try {
        AfxThrowNotSupportedException();
    } catch (CException* e) {
        answer = e->ReportError(MB_OK);
        e->Delete();
    }
    EXPECT_EQ(answer, IDOK);
    EXPECT_EQ(shown, L"An unsupported operation was attempted.");
}
