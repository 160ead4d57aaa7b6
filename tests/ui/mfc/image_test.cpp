// CImage: bits, pixels, colours, drawing, files of each type.
#include <atlimage.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "leak_count.h"
#include "ui_test.h"

namespace {

const COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0), kBlue = RGB(0, 0, 255),
               kWhite = RGB(255, 255, 255);

/// A surface to draw on, white at first.
class Surface {
public:
    Surface() {
        m_image.Create(40, 40, 24);
        ::PatBlt(dc(), 0, 0, 40, 40, WHITENESS);
    }
    ~Surface() { m_image.ReleaseDC(); }
    HDC dc() { return m_dc != nullptr ? m_dc : m_dc = m_image.GetDC(); }
    COLORREF at(int x, int y) { return ::GetPixel(dc(), x, y); }

private:
    CImage m_image;
    HDC m_dc = nullptr;
};

/// A picture of four quarters: red and green above, blue and white below.
void fill(CImage& image) {
    const int w = image.GetWidth() / 2, h = image.GetHeight() / 2;
    for (int y = 0; y < 2 * h; ++y)
        for (int x = 0; x < 2 * w; ++x)
            image.SetPixel(x, y, y < h ? (x < w ? kRed : kGreen) : (x < w ? kBlue : kWhite));
}

class Images : public ::testing::Test {
protected:
    Images() {
        wchar_t folder[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        m_base = folder;
        m_base += L"ktui_image_test";
    }
    ~Images() override {
        for (const CString& each : m_made) ::DeleteFileW(each);
    }
    CString file(const wchar_t* extension) {
        const CString name = m_base + extension;
        m_made.push_back(name);
        return name;
    }
    CImage image;

private:
    CString m_base;
    std::vector<CString> m_made;
};

}  // namespace

TEST_F(Images, AreEmptyAtFirst) {
    EXPECT_TRUE(image.IsNull());
    EXPECT_EQ(image.GetWidth(), 0);
    EXPECT_EQ(image.GetBits(), nullptr);
    EXPECT_EQ(image.GetPixelAddress(0, 0), nullptr);
    EXPECT_EQ(image.GetPixel(0, 0), CLR_INVALID);
    EXPECT_EQ(image.GetDC(), nullptr);
    image.ReleaseDC();
    image.SetPixel(0, 0, kRed);
    image.SetPixelIndexed(0, 0, 1);
    Surface surface;
    EXPECT_FALSE(image.Draw(surface.dc(), 0, 0));
    EXPECT_FALSE(image.BitBlt(surface.dc(), 0, 0));
    EXPECT_FALSE(image.AlphaBlend(surface.dc(), 0, 0));
    EXPECT_FALSE(image.TransparentBlt(surface.dc(), 0, 0, 1, 1, kRed));
    EXPECT_EQ(image.Save(file(L".png")), E_INVALIDARG);
    EXPECT_EQ(image.Detach(), nullptr);
    image.Destroy();
}

TEST_F(Images, LinesStandOnTheHeadOrNot) {
    for (const int height : {6, -6}) {
        ASSERT_TRUE(image.Create(5, height, 24));
        EXPECT_TRUE(image.IsDIBSection());
        EXPECT_EQ(image.GetWidth(), 5);
        EXPECT_EQ(image.GetHeight(), 6);
        EXPECT_EQ(image.GetBPP(), 24);
        EXPECT_EQ(image.GetPitch(), height > 0 ? -16 : 16);
        EXPECT_FALSE(image.IsIndexed());
        EXPECT_EQ(image.GetMaxColorTableEntries(), 0);
        image.SetPixel(0, 0, kRed);
        image.SetPixelRGB(1, 2, 1, 2, 3);
        ::GdiFlush();
        EXPECT_EQ(static_cast<BYTE*>(image.GetBits())[2], 255);
        const auto* pixel = static_cast<BYTE*>(image.GetPixelAddress(1, 2));
        EXPECT_EQ(pixel, static_cast<BYTE*>(image.GetBits()) + 2 * image.GetPitch() + 3);
        EXPECT_EQ(pixel[0], 3);
        EXPECT_EQ(pixel[2], 1);
        EXPECT_EQ(image.GetPixel(1, 2), RGB(1, 2, 3));
        EXPECT_EQ(image.GetPixel(5, 0), CLR_INVALID);
        EXPECT_EQ(image.GetPixel(0, -1), CLR_INVALID);
        EXPECT_EQ(image.GetPixelAddress(0, 6), nullptr);
    }
}

TEST_F(Images, WhatCannotBeMadeIsRefused) {
    EXPECT_FALSE(image.Create(0, 5, 24));
    EXPECT_FALSE(image.Create(5, 0, 24));
    EXPECT_FALSE(image.Create(-5, 5, 24));
    EXPECT_FALSE(image.Create(5, INT_MIN, 24));
    EXPECT_FALSE(image.Create(5, 5, 7));
    EXPECT_FALSE(image.Create(5, 5, 24, CImage::createAlphaChannel));
    const DWORD masks[] = {0xF800, 0x07E0, 0x001F};
    EXPECT_FALSE(image.CreateEx(5, 5, 24, BI_BITFIELDS, masks));
    EXPECT_FALSE(image.CreateEx(5, 5, 16, BI_BITFIELDS));
    EXPECT_FALSE(image.CreateEx(5, 5, 16, BI_RGB, masks));
    EXPECT_FALSE(image.CreateEx(5, 5, 8, BI_RLE8));
    EXPECT_TRUE(image.IsNull());
    ASSERT_TRUE(image.CreateEx(5, 5, 16, BI_BITFIELDS, masks));
    image.SetPixel(0, 0, kGreen);
    ::GdiFlush();
    EXPECT_EQ(*static_cast<WORD*>(image.GetBits()), 0x07E0);
}

TEST_F(Images, TakeAndGiveBitmaps) {
    HBITMAP plain = ::CreateBitmap(7, 8, 1, 32, nullptr);
    image.Attach(plain);
    EXPECT_EQ(static_cast<HBITMAP>(image), plain);
    EXPECT_FALSE(image.IsDIBSection());
    EXPECT_EQ(image.GetWidth(), 7);
    EXPECT_EQ(image.GetHeight(), 8);
    EXPECT_EQ(image.GetBits(), nullptr);
    image.Attach(plain);
    EXPECT_EQ(image.Detach(), plain);
    EXPECT_TRUE(image.IsNull());
    EXPECT_EQ(::GetObjectType(plain), static_cast<DWORD>(OBJ_BITMAP));
    image.Attach(plain);
    image.GetDC();
    image.Destroy();
    EXPECT_EQ(::GetObjectType(plain), 0u);
    CImage source;
    source.Create(4, 4, 32);
    image.Attach(source.Detach(), CImage::DIBOR_TOPDOWN);
    EXPECT_EQ(image.GetPitch(), 16);
    image.Attach(nullptr);
    EXPECT_TRUE(image.IsNull());
}

TEST_F(Images, IndexedOnesHaveATableOfColors) {
    for (const int bits : {1, 4, 8}) {
        ASSERT_TRUE(image.Create(9, 3, bits));
        EXPECT_TRUE(image.IsIndexed());
        EXPECT_EQ(image.GetMaxColorTableEntries(), 1 << bits);
        const RGBQUAD table[2] = {{1, 2, 3, 0}, {0, 0, 255, 0}};
        image.SetColorTable(0, 2, table);
        RGBQUAD got[2] = {};
        image.GetColorTable(0, 2, got);
        EXPECT_EQ(got[0].rgbBlue, 1);
        EXPECT_EQ(got[1].rgbRed, 255);
        for (const int x : {0, 5, 8}) {
            image.SetPixelIndexed(x, 1, 1);
            EXPECT_EQ(image.GetPixel(x, 1), kRed) << bits << " " << x;
            EXPECT_EQ(image.GetPixel(x > 0 ? x - 1 : x + 1, 1), RGB(3, 2, 1)) << bits << " " << x;
        }
        image.SetPixelIndexed(0, 0, 1 << bits);
        image.SetPixelIndexed(0, 0, -1);
        image.SetPixelIndexed(9, 0, 1);
        EXPECT_EQ(image.GetPixel(0, 0), RGB(3, 2, 1));
        EXPECT_EQ(image.SetTransparentColor(1), -1);
        EXPECT_EQ(image.GetTransparentColor(), 1);
        Surface surface;
        EXPECT_TRUE(image.Draw(surface.dc(), 2, 2));
        EXPECT_EQ(surface.at(2, 3), kWhite) << "the transparent one";
        EXPECT_EQ(surface.at(3, 3), RGB(3, 2, 1));
        EXPECT_EQ(image.SetTransparentColor(999), 1);
        EXPECT_EQ(image.GetTransparentColor(), -1);
        EXPECT_FALSE(image.TransparentBlt(surface.dc(), 0, 0, 9, 3)) << "none is";
    }
}

TEST_F(Images, AreDrawnWholeInPartAndStretched) {
    ASSERT_TRUE(image.Create(4, 4, 24));
    fill(image);
    {
        Surface surface;
        EXPECT_TRUE(image.Draw(surface.dc(), 10, 20));
        EXPECT_EQ(surface.at(10, 20), kRed);
        EXPECT_EQ(surface.at(13, 20), kGreen);
        EXPECT_EQ(surface.at(10, 23), kBlue);
        EXPECT_EQ(surface.at(14, 20), kWhite);
        EXPECT_EQ(surface.at(9, 20), kWhite);
    }
    {
        Surface surface;
        EXPECT_TRUE(image.Draw(surface.dc(), CRect(0, 0, 8, 8)));
        EXPECT_EQ(surface.at(3, 3), kRed);
        EXPECT_EQ(surface.at(4, 3), kGreen);
        EXPECT_TRUE(image.Draw(surface.dc(), CRect(20, 20, 30, 30), CRect(2, 0, 4, 2)));
        EXPECT_EQ(surface.at(20, 20), kGreen);
        EXPECT_EQ(surface.at(29, 29), kGreen);
        EXPECT_TRUE(image.StretchBlt(surface.dc(), CRect(30, 0, 38, 8)));
        EXPECT_EQ(surface.at(37, 0), kGreen);
        EXPECT_TRUE(image.BitBlt(surface.dc(), CRect(0, 30, 2, 32), CPoint(0, 2)));
        EXPECT_EQ(surface.at(1, 31), kBlue);
        EXPECT_TRUE(image.BitBlt(surface.dc(), CPoint(12, 12), NOTSRCCOPY));
        EXPECT_EQ(surface.at(12, 12), RGB(0, 255, 255));
    }
    {
        Surface surface;
        EXPECT_TRUE(image.TransparentBlt(surface.dc(), CRect(0, 0, 4, 4), kRed));
        EXPECT_EQ(surface.at(0, 0), kWhite);
        EXPECT_EQ(surface.at(3, 0), kGreen);
        const POINT corners[] = {{10, 10}, {14, 10}, {10, 14}};
        EXPECT_TRUE(image.PlgBlt(surface.dc(), corners));
        EXPECT_EQ(surface.at(10, 10), kRed);
        EXPECT_FALSE(image.PlgBlt(surface.dc(), nullptr));
        EXPECT_TRUE(image.MaskBlt(surface.dc(), CPoint(20, 20), nullptr));
        EXPECT_EQ(surface.at(20, 20), kRed);
    }
}

TEST_F(Images, BlendByTheirAlpha) {
    ASSERT_TRUE(image.Create(2, 1, 32, CImage::createAlphaChannel));
    auto* pixels = static_cast<DWORD*>(image.GetPixelAddress(0, 0));
    pixels[0] = 0x80800000;  // half red, multiplied
    pixels[1] = 0;
    Surface surface;
    EXPECT_TRUE(image.Draw(surface.dc(), 0, 0));
    EXPECT_NEAR(GetRValue(surface.at(0, 0)), 255, 1);
    EXPECT_NEAR(GetGValue(surface.at(0, 0)), 127, 2);
    EXPECT_EQ(surface.at(1, 0), kWhite);
    CImage opaque;
    opaque.Create(1, 1, 24);
    EXPECT_TRUE(opaque.AlphaBlend(surface.dc(), 5, 5, 64));
    EXPECT_NEAR(GetRValue(surface.at(5, 5)), 191, 2);
}

TEST_F(Images, AreSavedAndLoadedAgain) {
    ASSERT_TRUE(image.Create(16, 16, 24));
    fill(image);
    for (const wchar_t* extension : {L".bmp", L".png", L".gif", L".tif", L".jpg", L".PNG"}) {
        const CString name = file(extension);
        ASSERT_EQ(image.Save(name), S_OK) << CStringA(name).GetString();
        CImage loaded;
        ASSERT_EQ(loaded.Load(name), S_OK) << CStringA(name).GetString();
        EXPECT_EQ(loaded.GetWidth(), 16);
        EXPECT_EQ(loaded.GetHeight(), 16);
        EXPECT_TRUE(loaded.IsDIBSection());
        const COLORREF red = loaded.GetPixel(2, 2), blue = loaded.GetPixel(2, 13),
                       green = loaded.GetPixel(13, 2);
        EXPECT_GT(GetRValue(red), 230) << CStringA(name).GetString();
        EXPECT_LT(GetGValue(red), 30);
        EXPECT_GT(GetGValue(green), 230);
        EXPECT_GT(GetBValue(blue), 230);
        EXPECT_LT(GetRValue(blue), 30);
    }
    EXPECT_EQ(image.Save(file(L".bin"), Gdiplus::ImageFormatPNG), S_OK);
    BYTE head[4] = {};
    FILE* saved = ::_wfopen(file(L".bin"), L"rb");
    ASSERT_NE(saved, nullptr);
    EXPECT_EQ(fread(head, 1, 4, saved), 4u);
    fclose(saved);
    EXPECT_EQ(head[1], 'P');
    EXPECT_EQ(image.Save(file(L".unknown")), E_FAIL);
    EXPECT_EQ(image.Save(static_cast<LPCTSTR>(nullptr)), E_INVALIDARG);
    EXPECT_TRUE(FAILED(image.Save(L"z:\\no\\such\\folder\\x.png")));
}

TEST_F(Images, KeepTheirAlphaInStreams) {
    ASSERT_TRUE(image.Create(2, 1, 32, CImage::createAlphaChannel));
    auto* pixels = static_cast<DWORD*>(image.GetPixelAddress(0, 0));
    pixels[0] = 0x80800000;
    pixels[1] = 0xFF00FF00;
    IStream* stream = nullptr;
    ASSERT_EQ(::CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK);
    ASSERT_EQ(image.Save(stream, Gdiplus::ImageFormatPNG), S_OK);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    CImage loaded;
    ASSERT_EQ(loaded.Load(stream), S_OK);
    stream->Release();
    EXPECT_EQ(loaded.GetBPP(), 32);
    const auto* got = static_cast<const DWORD*>(loaded.GetPixelAddress(0, 0));
    EXPECT_EQ(got[0] >> 24, 0x80u);
    EXPECT_NEAR(static_cast<int>(got[0] >> 16 & 0xFF), 0x80, 1);
    EXPECT_EQ(got[1], 0xFF00FF00u);
    Surface surface;
    loaded.Draw(surface.dc(), 0, 0);
    EXPECT_NEAR(GetGValue(surface.at(0, 0)), 127, 2);
    EXPECT_EQ(image.Save(static_cast<IStream*>(nullptr), Gdiplus::ImageFormatPNG), E_INVALIDARG);
    EXPECT_EQ(loaded.Load(static_cast<IStream*>(nullptr)), E_INVALIDARG);
}

TEST_F(Images, AFileThatIsNoneLeavesThePicture) {
    ASSERT_TRUE(image.Create(3, 3, 24));
    HBITMAP before = image;
    EXPECT_TRUE(FAILED(image.Load(L"no such file.png")));
    EXPECT_EQ(image.Load(static_cast<LPCTSTR>(nullptr)), E_INVALIDARG);
    const CString name = file(L".txt");
    FILE* text = ::_wfopen(name, L"wb");
    fputs("this is no picture", text);
    fclose(text);
    EXPECT_TRUE(FAILED(image.Load(name)));
    // The head of a picture without the rest of it.
    const CString whole = file(L".png");
    ASSERT_EQ(image.Save(whole), S_OK);
    BYTE bytes[40] = {};
    FILE* in = ::_wfopen(whole, L"rb");
    const size_t count = fread(bytes, 1, sizeof bytes, in);
    fclose(in);
    FILE* out = ::_wfopen(name, L"wb");
    fwrite(bytes, 1, count, out);
    fclose(out);
    EXPECT_TRUE(FAILED(image.Load(name)));
    EXPECT_EQ(static_cast<HBITMAP>(image), before);
}

TEST_F(Images, FiltersForFileDialogs) {
    CString filter;
    CSimpleArray<GUID> types;
    ASSERT_EQ(CImage::GetImporterFilterString(filter, types, L"All"), S_OK);
    EXPECT_EQ(filter.Left(4), L"All|");
    EXPECT_EQ(filter.Right(2), L"||");
    EXPECT_NE(filter.Find(L"*.ICO"), -1);
    ASSERT_GT(types.GetSize(), 5);
    EXPECT_TRUE(types[0] == GUID_NULL);
    int pieces = 0;
    for (const wchar_t* at = filter; *at != 0; ++at) pieces += *at == L'|';
    EXPECT_EQ(pieces, 2 * types.GetSize() + 1) << "a description and a pattern each";
    ASSERT_EQ(CImage::GetExporterFilterString(filter, types, nullptr,
                                              CImage::excludeDefaultSave | CImage::excludeGIF, L';'),
              S_OK);
    EXPECT_EQ(filter.Find(L"*.ICO"), -1);
    EXPECT_EQ(filter.Find(L"*.GIF"), -1);
    EXPECT_EQ(filter.Find(L'|'), -1);
    EXPECT_EQ(types.GetSize(), 4);
    EXPECT_TRUE(types[0] == Gdiplus::ImageFormatBMP);
    EXPECT_EQ(types.Find(Gdiplus::ImageFormatGIF), -1);
    EXPECT_EQ(types.Find(Gdiplus::ImageFormatPNG), 3);
    EXPECT_THROW(types[4], CInvalidArgException*);
    EXPECT_FALSE(types.RemoveAt(4));
    EXPECT_TRUE(types.Remove(Gdiplus::ImageFormatPNG));
    EXPECT_EQ(types.GetSize(), 3);
}

TEST_F(Images, ComeFromResources) {
    image.LoadFromResource(::GetModuleHandleW(nullptr), 440u);
    ASSERT_FALSE(image.IsNull());
    EXPECT_EQ(image.GetWidth(), 24);
    EXPECT_EQ(image.GetPixel(0, 0), kRed);
    EXPECT_EQ(image.GetPixel(23, 7), kBlue);
    image.LoadFromResource(::GetModuleHandleW(nullptr), 4711u);
    EXPECT_TRUE(image.IsNull());
}

TEST_F(Images, ADeviceContextLastsUntilItsLastUserLetsGo) {
    image.Create(4, 4, 24);
    const HDC dc = image.GetDC();
    EXPECT_EQ(image.GetDC(), dc);
    image.ReleaseDC();
    EXPECT_NE(::SetPixel(dc, 1, 1, kRed), CLR_INVALID);
    image.ReleaseDC();
    EXPECT_EQ(image.GetPixel(1, 1), kRed);
}

TEST_F(Images, APictureThatIsGivenAwayTakesItsTransparencyAlong) {
    image.Create(4, 4, 8);
    image.SetTransparentColor(1);
    ::DeleteObject(image.Detach());
    EXPECT_EQ(image.GetTransparentColor(), -1);
    image.Create(4, 4, 8);
    EXPECT_EQ(image.GetTransparentColor(), -1);
}

TEST_F(Images, IconsAreReadAndNeverWritten) {
    CString filter;
    CSimpleArray<GUID> types;
    CImage::GetExporterFilterString(filter, types, nullptr, 0);
    EXPECT_EQ(filter.Find(L"*.ICO"), -1);
    CImage::GetImporterFilterString(filter, types, nullptr, 0);
    EXPECT_NE(filter.Find(L"*.ICO"), -1);
    image.Create(4, 4, 24);
    const CString name = file(L".ico");
    EXPECT_TRUE(FAILED(image.Save(name)));
    EXPECT_EQ(::GetFileAttributesW(name), INVALID_FILE_ATTRIBUTES);
}

TEST_F(Images, TheFirstInvisibleColourOfAPaletteIsTheTransparentOne) {
    // A GIF of 1 by 1 pixel and two colours, the second of them transparent.
    const BYTE gif[] = {'G', 'I', 'F', '8',  '9',  'a',  1, 0, 1, 0,    0x80, 0, 0,    0xFF, 0,
                        0,   0,   0,   0xFF, 0x21, 0xF9, 4, 1, 0, 0,    1,    0, 0x2C, 0,    0,
                        0,   0,   1,   0,    1,    0,    0, 2, 2, 0x4C, 1,    0, 0x3B};
    const CString name = file(L".gif");
    const HANDLE made = ::CreateFileW(name, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(made, gif, sizeof gif, &written, nullptr);
    ::CloseHandle(made);
    ASSERT_EQ(image.Load(name), S_OK);
    EXPECT_TRUE(image.IsIndexed());
    EXPECT_EQ(image.GetTransparentColor(), 1);
}

TEST_F(Images, LeaveNothingBehind) {
    const CString name = file(L".png");
    image.Create(8, 8, 24);
    image.Save(name);
    const auto once = [&] {
        CImage loaded;
        loaded.Load(name);
        loaded.GetDC();
        loaded.Save(name);
    };
    for (int i = 0; i < 5; ++i) once();
    const HeldObjects before = count_held_objects();
    for (int i = 0; i < 100; ++i) once();
    const HeldObjects after = count_held_objects();
    EXPECT_LE(after.gdiObjects, before.gdiObjects + 2);
    EXPECT_LE(after.kernelHandles, before.kernelHandles + 2);
}
