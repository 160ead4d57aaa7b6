// CImage's ways to copy itself somewhere, beside the system's own functions; and image lists.
#include <afxcmn.h>
#include <atlimage.h>

#include "drawn_beside.h"
#include "replaced_import.h"

namespace {

using ui_test::expect_drawn_beside;

constexpr COLORREF kGreen = RGB(0, 200, 0), kYellow = RGB(255, 255, 0);
const CRect kTo(11, 23, 56, 60), kFrom(3, 4, 33, 25);

/// 40 by 30 pixels, no two parts alike.
struct ImageCopies : ::testing::Test {
    ImageCopies() {
        image.Create(40, 30, 32);
        for (int y = 0; y < 30; ++y)
            for (int x = 0; x < 40; ++x)
                image.SetPixel(x, y, x < 20 && y < 12 ? kYellow : RGB(6 * x, 8 * y, 100));
        const WORD rows[30] = {0xFF0F, 0x00FF, 0x0FF0, 0x3333, 0x5555,
                               0xFFFF, 0x8001, 0x1234, 0x4321, 0xF0F0};
        mask.CreateBitmap(16, 30, 1, 1, rows);
        from = image.GetDC();
    }
    ~ImageCopies() override { image.ReleaseDC(); }

    CImage image;
    CBitmap mask;
    HDC from;
};

}  // namespace

TEST_F(ImageCopies, AsItIs) {
    const auto bare = [this](HDC dc) { return ::BitBlt(dc, 11, 23, 40, 30, from, 0, 0, SRCINVERT); };
    expect_drawn_beside(
        "whole", [this](CDC& dc) { return image.BitBlt(dc, 11, 23, SRCINVERT); }, bare);
    expect_drawn_beside(
        "whole at a point", [this](CDC& dc) { return image.BitBlt(dc, CPoint(11, 23), SRCINVERT); }, bare);
    const auto part = [this](HDC dc) { return ::BitBlt(dc, 11, 23, 45, 37, from, 3, 4, SRCINVERT); };
    expect_drawn_beside(
        "part", [this](CDC& dc) { return image.BitBlt(dc, 11, 23, 45, 37, 3, 4, SRCINVERT); }, part);
    expect_drawn_beside(
        "part in a rectangle", [this](CDC& dc) { return image.BitBlt(dc, kTo, CPoint(3, 4), SRCINVERT); },
        part);
}

TEST_F(ImageCopies, Stretched) {
    const auto whole = [this](HDC dc) {
        return ::StretchBlt(dc, 11, 23, 45, 37, from, 0, 0, 40, 30, SRCINVERT);
    };
    expect_drawn_beside(
        "whole", [this](CDC& dc) { return image.StretchBlt(dc, 11, 23, 45, 37, SRCINVERT); }, whole);
    expect_drawn_beside(
        "whole in a rectangle", [this](CDC& dc) { return image.StretchBlt(dc, kTo, SRCINVERT); }, whole);
    const auto part = [this](HDC dc) {
        return ::StretchBlt(dc, 11, 23, 45, 37, from, 3, 4, 30, 21, SRCINVERT);
    };
    expect_drawn_beside(
        "part", [this](CDC& dc) { return image.StretchBlt(dc, 11, 23, 45, 37, 3, 4, 30, 21, SRCINVERT); },
        part);
    expect_drawn_beside(
        "part in rectangles", [this](CDC& dc) { return image.StretchBlt(dc, kTo, kFrom, SRCINVERT); }, part);
}

TEST_F(ImageCopies, Drawn) {
    const auto whole = [this](HDC dc) {
        return ::StretchBlt(dc, 11, 23, 40, 30, from, 0, 0, 40, 30, SRCCOPY);
    };
    expect_drawn_beside(
        "whole", [this](CDC& dc) { return image.Draw(dc, 11, 23); }, whole);
    expect_drawn_beside(
        "whole at a point", [this](CDC& dc) { return image.Draw(dc, CPoint(11, 23)); }, whole);
    const auto wide = [this](HDC dc) {
        return ::StretchBlt(dc, 11, 23, 45, 37, from, 0, 0, 40, 30, SRCCOPY);
    };
    expect_drawn_beside(
        "stretched", [this](CDC& dc) { return image.Draw(dc, 11, 23, 45, 37); }, wide);
    expect_drawn_beside(
        "in a rectangle", [this](CDC& dc) { return image.Draw(dc, kTo); }, wide);
    const auto part = [this](HDC dc) {
        return ::StretchBlt(dc, 11, 23, 45, 37, from, 3, 4, 30, 21, SRCCOPY);
    };
    expect_drawn_beside(
        "part", [this](CDC& dc) { return image.Draw(dc, 11, 23, 45, 37, 3, 4, 30, 21); }, part);
    expect_drawn_beside(
        "part in rectangles", [this](CDC& dc) { return image.Draw(dc, kTo, kFrom); }, part);
}

TEST_F(ImageCopies, Blended) {
    const BLENDFUNCTION third = {AC_SRC_OVER, 0, 85, 0};
    const auto whole = [&](HDC dc) { return ::AlphaBlend(dc, 11, 23, 40, 30, from, 0, 0, 40, 30, third); };
    expect_drawn_beside(
        "whole", [this](CDC& dc) { return image.AlphaBlend(dc, 11, 23, 85); }, whole);
    expect_drawn_beside(
        "whole at a point", [this](CDC& dc) { return image.AlphaBlend(dc, CPoint(11, 23), 85); }, whole);
    const auto part = [&](HDC dc) { return ::AlphaBlend(dc, 11, 23, 45, 37, from, 3, 4, 30, 21, third); };
    expect_drawn_beside(
        "part", [this](CDC& dc) { return image.AlphaBlend(dc, 11, 23, 45, 37, 3, 4, 30, 21, 85); }, part);
    expect_drawn_beside(
        "part in rectangles", [this](CDC& dc) { return image.AlphaBlend(dc, kTo, kFrom, 85); }, part);
}

TEST_F(ImageCopies, WithATransparentColor) {
    const auto whole = [this](HDC dc) {
        return ::TransparentBlt(dc, 11, 23, 45, 37, from, 0, 0, 40, 30, kYellow);
    };
    expect_drawn_beside(
        "whole", [this](CDC& dc) { return image.TransparentBlt(dc, 11, 23, 45, 37, kYellow); }, whole);
    expect_drawn_beside(
        "whole in a rectangle", [this](CDC& dc) { return image.TransparentBlt(dc, kTo, kYellow); }, whole);
    const auto part = [this](HDC dc) {
        return ::TransparentBlt(dc, 11, 23, 45, 37, from, 3, 4, 30, 21, kYellow);
    };
    expect_drawn_beside(
        "part", [this](CDC& dc) { return image.TransparentBlt(dc, 11, 23, 45, 37, 3, 4, 30, 21, kYellow); },
        part);
    expect_drawn_beside(
        "part in rectangles", [this](CDC& dc) { return image.TransparentBlt(dc, kTo, kFrom, kYellow); },
        part);
}

TEST_F(ImageCopies, ThroughAMask) {
    const DWORD rop = MAKEROP4(SRCCOPY, BLACKNESS);
    const auto part = [&](HDC dc) { return ::MaskBlt(dc, 11, 23, 9, 7, from, 3, 4, mask, 2, 1, rop); };
    expect_drawn_beside(
        "part", [&](CDC& dc) { return image.MaskBlt(dc, 11, 23, 9, 7, 3, 4, mask, 2, 1, rop); }, part);
    expect_drawn_beside(
        "part in a rectangle",
        [&](CDC& dc) {
            return image.MaskBlt(dc, CRect(11, 23, 20, 30), CPoint(3, 4), mask, CPoint(2, 1), rop);
        },
        part);
    const auto whole = [&](HDC dc) {
        return ::MaskBlt(dc, 11, 23, 40, 30, from, 0, 0, nullptr, 0, 0, SRCINVERT);
    };
    expect_drawn_beside(
        "whole", [&](CDC& dc) { return image.MaskBlt(dc, 11, 23, nullptr, SRCINVERT); }, whole);
    expect_drawn_beside(
        "whole at a point", [&](CDC& dc) { return image.MaskBlt(dc, CPoint(11, 23), nullptr, SRCINVERT); },
        whole);
}

TEST_F(ImageCopies, Turned) {
    const POINT corners[] = {{80, 10}, {80, 70}, {10, 10}};
    const auto whole = [&](HDC dc) { return ::PlgBlt(dc, corners, from, 0, 0, 40, 30, nullptr, 0, 0); };
    expect_drawn_beside(
        "whole", [&](CDC& dc) { return image.PlgBlt(dc, corners); }, whole);
    const auto part = [&](HDC dc) { return ::PlgBlt(dc, corners, from, 3, 4, 30, 21, nullptr, 0, 0); };
    expect_drawn_beside(
        "part", [&](CDC& dc) { return image.PlgBlt(dc, corners, 3, 4, 30, 21); }, part);
    expect_drawn_beside(
        "part in a rectangle", [&](CDC& dc) { return image.PlgBlt(dc, corners, kFrom); }, part);
}

TEST(ImagePixels, OnlyEntriesOfThePaletteAreTaken) {
    CImage image;
    image.Create(4, 4, 4);
    RGBQUAD colors[16] = {};
    for (BYTE i = 0; i < 16; ++i) colors[i].rgbRed = static_cast<BYTE>(i * 16);
    image.SetColorTable(0, 16, colors);
    image.SetPixelIndexed(1, 2, 15);
    EXPECT_EQ(image.GetPixel(1, 2), RGB(240, 0, 0));
    image.SetPixelIndexed(1, 2, 16);
    EXPECT_EQ(image.GetPixel(1, 2), RGB(240, 0, 0)) << "there are sixteen";
    image.SetPixelIndexed(1, 2, -1);
    EXPECT_EQ(image.GetPixel(1, 2), RGB(240, 0, 0));
}

TEST(ImageLists, MasksComeByColorOrByBitmap) {
    CBitmap picture, mask;
    ui_test::Canvas canvas(20, 10);
    canvas.dc.FillSolidRect(0, 0, 10, 10, kGreen);
    canvas.dc.FillSolidRect(10, 0, 10, 10, kYellow);
    CClientDC screen(nullptr);
    picture.CreateCompatibleBitmap(&screen, 10, 10);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap* const former = memory.SelectObject(&picture);
    memory.FillSolidRect(0, 0, 10, 10, kGreen);
    memory.FillSolidRect(0, 0, 5, 10, kYellow);
    memory.SelectObject(former);
    CImageList list;
    ASSERT_TRUE(list.Create(10, 10, ILC_COLOR32 | ILC_MASK, 0, 4));
    const WORD half[10] = {0x3FC0, 0x3FC0, 0x3FC0, 0x3FC0, 0x3FC0, 0x3FC0, 0x3FC0, 0x3FC0, 0x3FC0, 0x3FC0};
    mask.CreateBitmap(10, 10, 1, 1, half);
    EXPECT_EQ(list.Add(&picture, &mask), 0);
    EXPECT_EQ(list.Add(&picture, static_cast<CBitmap*>(nullptr)), 1);
    EXPECT_EQ(list.Add(&picture, kYellow), 2) << "last: the system blackens what is transparent";
    const auto seen = [&](int index, int x) {
        ui_test::Canvas shown(10, 10);
        EXPECT_TRUE(list.Draw(&shown.dc, index, CPoint(0, 0), ILD_TRANSPARENT));
        return shown.at(x, 5);
    };
    const COLORREF white = RGB(255, 255, 255);
    EXPECT_EQ(seen(0, 0), white) << "the mask is set there";
    EXPECT_EQ(seen(0, 2), kYellow);
    EXPECT_EQ(seen(1, 2), kYellow) << "without a mask all of it shows";
    EXPECT_EQ(seen(1, 7), kGreen);
    EXPECT_EQ(seen(2, 2), white) << "its color is transparent";
    EXPECT_EQ(seen(2, 7), kGreen);
    EXPECT_TRUE(list.Replace(1, &picture, &mask));
    EXPECT_EQ(seen(1, 0), white);
    EXPECT_TRUE(list.Replace(0, &picture, nullptr));
    EXPECT_EQ(list.GetImageCount(), 3);
    EXPECT_FALSE(list.Replace(9, &picture, nullptr));
}

TEST(ImageLists, ImagesAreReplacedCountedAndMadeIcons) {
    CImageList list, other;
    list.Create(16, 16, ILC_COLOR32 | ILC_MASK, 0, 4);
    other.Create(16, 16, ILC_COLOR32 | ILC_MASK, 0, 4);
    const HICON warning = ::LoadIconW(nullptr, IDI_WARNING), hand = ::LoadIconW(nullptr, IDI_HAND);
    EXPECT_EQ(list.Add(warning), 0);
    EXPECT_EQ(list.Add(hand), 1);
    const auto drawn = [&](CImageList& from, int index) {
        ui_test::Canvas shown(16, 16);
        from.Draw(&shown.dc, index, CPoint(0, 0), ILD_TRANSPARENT);
        return shown.pixels();
    };
    const auto first = drawn(list, 0), second = drawn(list, 1);
    EXPECT_NE(first, second);
    EXPECT_EQ(list.Replace(1, warning), 1);
    EXPECT_EQ(drawn(list, 1), first);
    EXPECT_EQ(other.GetImageCount(), 0);
    EXPECT_TRUE(list.SetImageCount(5));
    EXPECT_EQ(list.GetImageCount(), 5);
    EXPECT_EQ(list.SetBkColor(kGreen), CLR_NONE);
    EXPECT_EQ(list.GetBkColor(), kGreen);
    IMAGEINFO info = {};
    EXPECT_TRUE(list.GetImageInfo(1, &info));
    EXPECT_EQ(CRect(info.rcImage).Size(), CSize(16, 16));
    EXPECT_FALSE(list.GetImageInfo(7, &info));
    const HICON icon = list.ExtractIcon(0);
    EXPECT_NE(icon, nullptr);
    ::DestroyIcon(icon);
    EXPECT_TRUE(list.SetOverlayImage(1, 2));
    EXPECT_FALSE(list.SetOverlayImage(1, 99));
    CImageList merged;
    EXPECT_TRUE(merged.Create(list, 0, list, 1, 4, 0));
    EXPECT_EQ(merged.GetImageCount(), 1);
    int cx = 0, cy = 0;
    EXPECT_TRUE(merged.GetIconSize(&cx, &cy));
    EXPECT_EQ(CSize(cx, cy), CSize(20, 16));
}

TEST(ImageLists, PartsAreDrawnInColors) {
    CImageList list;
    list.Create(16, 16, ILC_COLOR32 | ILC_MASK, 0, 4);
    list.Add(::LoadIconW(nullptr, IDI_WARNING));
    list.Add(::LoadIconW(nullptr, IDI_HAND));
    expect_drawn_beside(
        "DrawEx",
        [&](CDC& dc) {
            return list.DrawEx(&dc, 1, CPoint(21, 34), CSize(9, 12), kYellow, kGreen, ILD_BLEND50);
        },
        [&](HDC dc) { return ::ImageList_DrawEx(list, 1, dc, 21, 34, 9, 12, kYellow, kGreen, ILD_BLEND50); });
    expect_drawn_beside(
        "Draw", [&](CDC& dc) { return list.Draw(&dc, 1, CPoint(21, 34), ILD_NORMAL); },
        [&](HDC dc) { return ::ImageList_Draw(list, 1, dc, 21, 34, ILD_NORMAL); });
    IMAGELISTDRAWPARAMS how = {};
    how.i = 1;
    how.x = 21;
    how.y = 34;
    how.rgbBk = CLR_NONE;
    expect_drawn_beside(
        "DrawIndirect",
        [&](CDC& dc) {
            how.hdcDst = dc;
            return list.DrawIndirect(&how);
        },
        [&](HDC dc) { return ::ImageList_Draw(list, 1, dc, 21, 34, ILD_TRANSPARENT); });
    EXPECT_EQ(how.himl, static_cast<HIMAGELIST>(list));
}

namespace {

struct CopyCall {
    HIMAGELIST to;
    int toIndex;
    HIMAGELIST from;
    int fromIndex;
    UINT flags;
} copied;

WINBOOL WINAPI noted_copy(HIMAGELIST to, int toIndex, HIMAGELIST from, int fromIndex, UINT flags) {
    copied = {to, toIndex, from, fromIndex, flags};
    return 7;
}

}  // namespace

TEST(ImageLists, CopiesAreLeftToTheSystem) {
    CImageList list, other;
    list.Create(4, 4, ILC_COLOR, 1, 1);
    other.Create(4, 4, ILC_COLOR, 1, 1);
    const ui_test::ReplacedImport copy(::GetModuleHandleW(nullptr), "ImageList_Copy", &noted_copy);
    ASSERT_TRUE(copy.isThere());
    EXPECT_EQ(list.Copy(3, 5, ILCF_SWAP), 7);
    EXPECT_EQ(copied.to, list.m_hImageList);
    EXPECT_EQ(copied.toIndex, 3);
    EXPECT_EQ(copied.from, list.m_hImageList);
    EXPECT_EQ(copied.fromIndex, 5);
    EXPECT_EQ(copied.flags, static_cast<UINT>(ILCF_SWAP));
    EXPECT_EQ(list.Copy(2, &other, 6), 7);
    EXPECT_EQ(copied.to, list.m_hImageList);
    EXPECT_EQ(copied.toIndex, 2);
    EXPECT_EQ(copied.from, other.m_hImageList);
    EXPECT_EQ(copied.fromIndex, 6);
    EXPECT_EQ(copied.flags, static_cast<UINT>(ILCF_MOVE));
}

TEST(ImageLists, HandlesComeAndGo) {
    CImageList list;
    EXPECT_FALSE(list.Attach(nullptr));
    EXPECT_FALSE(list.DeleteImageList());
    EXPECT_EQ(list.Detach(), nullptr);
    const HIMAGELIST first = ::ImageList_Create(4, 4, ILC_COLOR, 1, 1),
                     second = ::ImageList_Create(5, 5, ILC_COLOR, 1, 1);
    EXPECT_TRUE(list.Attach(first));
    EXPECT_TRUE(list.Attach(second));
    EXPECT_EQ(CImageList::FromHandlePermanent(first), nullptr);
    EXPECT_EQ(CImageList::FromHandlePermanent(second), &list);
    EXPECT_EQ(list.GetSafeHandle(), second);
    EXPECT_TRUE(list.DeleteImageList());
    EXPECT_EQ(list.GetSafeHandle(), nullptr);
    EXPECT_TRUE(::ImageList_Destroy(first));
}

TEST(ImageLists, AnOverlayIsAnImageByItsNumber) {
    CImageList list;
    ASSERT_TRUE(list.Create(8, 8, ILC_COLOR32 | ILC_MASK, 3, 0));
    for (const COLORREF color : {kGreen, kYellow, RGB(90, 0, 0)}) {
        CImage image;
        image.Create(8, 8, 32);
        CDC* dc = CDC::FromHandle(image.GetDC());
        dc->FillSolidRect(0, 0, 8, 8, color);
        image.ReleaseDC();
        list.Add(CBitmap::FromHandle(image), RGB(1, 2, 3));
    }
    ASSERT_EQ(list.GetImageCount(), 3);
    ASSERT_TRUE(list.SetOverlayImage(2, 1));
    CImage drawn;
    drawn.Create(8, 8, 32);
    ::ImageList_Draw(list.m_hImageList, 0, drawn.GetDC(), 0, 0, ILD_NORMAL | INDEXTOOVERLAYMASK(1));
    drawn.ReleaseDC();
    EXPECT_EQ(drawn.GetPixel(4, 4), RGB(90, 0, 0));
}

TEST(SimpleArrays, AValueIsRemovedWhereverItStands) {
    CSimpleArray<int> numbers;
    for (const int number : {5, 6, 7}) numbers.Add(number);
    EXPECT_FALSE(numbers.Remove(8));
    EXPECT_TRUE(numbers.Remove(5)) << "the first";
    EXPECT_TRUE(numbers.Remove(7)) << "the last";
    ASSERT_EQ(numbers.GetSize(), 1);
    EXPECT_EQ(numbers[0], 6);
    EXPECT_FALSE(numbers.RemoveAt(1));
    EXPECT_EQ(numbers.Find(7), -1);
}
