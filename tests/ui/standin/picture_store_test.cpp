// Pictures of the kinds that drawings name, read from files; what is kept of them, and what is not.
#include "pictures/picture_store.h"

#include <atlimage.h>

#include <thread>

#include "pictures/picture_decoder.h"
#include "screen_scene.h"
#include "standin_fixture.h"

namespace {

constexpr PicturePixel kRed = 0xFFFF0000, kGreen = 0xFF00FF00, kBlue = 0xFF0000FF, kWhite = 0xFFFFFFFF;

// Two pixels, black and white, as another program writes them: packed as a fax, in greys, and in bits.
constexpr unsigned char kGroup4Tiff[] = {
    0x49, 0x49, 0x2A, 0x00, 0x0E, 0x00, 0x00, 0x00, 0x09, 0x40, 0x04, 0x00, 0x40, 0x00, 0x0D, 0x00,
    0x00, 0x01, 0x03, 0x00, 0x01, 0x00, 0x00, 0x00, 0x02, 0x00, 0x00, 0x00, 0x01, 0x01, 0x03, 0x00,
    0x01, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x02, 0x01, 0x03, 0x00, 0x01, 0x00, 0x00, 0x00,
    0x01, 0x00, 0x00, 0x00, 0x03, 0x01, 0x03, 0x00, 0x01, 0x00, 0x00, 0x00, 0x04, 0x00, 0x00, 0x00,
    0x06, 0x01, 0x03, 0x00, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x0A, 0x01, 0x03, 0x00,
    0x01, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x11, 0x01, 0x04, 0x00, 0x01, 0x00, 0x00, 0x00,
    0x08, 0x00, 0x00, 0x00, 0x12, 0x01, 0x03, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00,
    0x15, 0x01, 0x03, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x16, 0x01, 0x03, 0x00,
    0x01, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x17, 0x01, 0x04, 0x00, 0x01, 0x00, 0x00, 0x00,
    0x05, 0x00, 0x00, 0x00, 0x1C, 0x01, 0x03, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00,
    0x29, 0x01, 0x03, 0x00, 0x02, 0x00, 0x00, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00,
};
constexpr unsigned char kGrayPng[] = {
    0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48, 0x44, 0x52, 0x00,
    0x00, 0x00, 0x02, 0x00, 0x00, 0x00, 0x01, 0x08, 0x00, 0x00, 0x00, 0x00, 0xD1, 0x49, 0x20, 0x56, 0x00,
    0x00, 0x00, 0x0B, 0x49, 0x44, 0x41, 0x54, 0x08, 0xD7, 0x63, 0x60, 0xF8, 0x0F, 0x00, 0x01, 0x02, 0x01,
    0x00, 0xDA, 0xC6, 0x12, 0xCC, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82,
};
constexpr unsigned char kInkPng[] = {
    0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48, 0x44, 0x52, 0x00,
    0x00, 0x00, 0x02, 0x00, 0x00, 0x00, 0x01, 0x01, 0x00, 0x00, 0x00, 0x00, 0xDC, 0x59, 0x42, 0x27, 0x00,
    0x00, 0x00, 0x0A, 0x49, 0x44, 0x41, 0x54, 0x08, 0xD7, 0x63, 0x70, 0x00, 0x00, 0x00, 0x42, 0x00, 0x41,
    0x83, 0xB9, 0xEC, 0xAD, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82,
};

class PictureStores : public ui_test::StandinTest {
protected:
    std::wstring pathOf(const wchar_t* name) { return files.path() + L"\\" + name; }
    /// Quarters of red and green over blue and white, `size` pixels large, as the system writes them.
    std::wstring save(const wchar_t* name, int size = 32) {
        CImage image;
        image.Create(size, size, 24);
        constexpr BYTE kBlueGreenRed[][3] = {{0, 0, 255}, {0, 255, 0}, {255, 0, 0}, {255, 255, 255}};
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x)
                std::copy_n(kBlueGreenRed[y * 2 / size * 2 + x * 2 / size], 3,
                            static_cast<BYTE*>(image.GetPixelAddress(x, y)));
        return save(image, name);
    }
    std::wstring save(const CImage& image, const wchar_t* name) {
        const std::wstring path = files.write(name, "");
        EXPECT_TRUE(SUCCEEDED(image.Save(path.c_str())));
        return path;
    }
    static int apart(PicturePixel a, PicturePixel b) {
        int most = 0;
        for (const int shift : {0, 8, 16, 24})
            most = std::max(
                most, std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF)));
        return most;
    }
    static void expectQuarters(const std::shared_ptr<const ScenePicture>& picture, int size, int reach) {
        ASSERT_NE(picture, nullptr);
        ASSERT_EQ(picture->width(), size);
        ASSERT_EQ(picture->height(), size);
        const auto at = [&](int x, int y) {
            return picture->levels().front().pixels[static_cast<std::size_t>(y * size + x)];
        };
        const int low = size / 4, high = size * 3 / 4;
        EXPECT_LE(apart(at(low, low), kRed), reach);
        EXPECT_LE(apart(at(high, low), kGreen), reach);
        EXPECT_LE(apart(at(low, high), kBlue), reach);
        EXPECT_LE(apart(at(high, high), kWhite), reach);
    }
    std::shared_ptr<const ScenePicture> read(const std::wstring& path) {
        return store.picture(path, PictureReading::kAll).picture;
    }

    ui_test::TemporaryFolder files;
    PictureStore store{64 << 20};
};

TEST_F(PictureStores, ReadTheKindsThatDrawingsName) {
    expectQuarters(read(save(L"a.bmp")), 32, 0);
    expectQuarters(read(save(L"a.png")), 32, 0);
    expectQuarters(read(save(L"a.tif")), 32, 0);
    expectQuarters(read(save(L"a.gif")), 32, 0);
    expectQuarters(read(save(L"a.jpg")), 32, 12);
}

TEST_F(PictureStores, WhatIsClearInAPngIsClear) {
    CImage image;
    image.Create(2, 1, 32, CImage::createAlphaChannel);
    auto* pixels = static_cast<DWORD*>(image.GetBits());
    pixels[0] = 0;
    pixels[1] = 0x80800000;  // multiplied: half of red
    const auto picture = read(save(image, L"clear.png"));
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->levels().front().pixels, (std::vector<PicturePixel>{0, 0x80FF0000}));
    EXPECT_FALSE(picture->isBitonal());
}

TEST_F(PictureStores, InkOnPaperIsKnown) {
    // One bit for each pixel, black and white, then with another color.
    const auto bmp = [](const char* second) {
        std::string bytes("BM\x4E\0\0\0\0\0\0\0\x3E\0\0\0\x28\0\0\0\2\0\0\0\1\0\0\0\1\0\1\0", 30);
        bytes += std::string(4, '\0') + std::string("\4\0\0\0", 4) + std::string(16, '\0');
        bytes += std::string(4, '\0') + std::string(second, 3) + std::string(1, '\0');
        return bytes + std::string("\x40\0\0\0", 4);
    };
    files.write(L"ink.bmp", bmp("\xFF\xFF\xFF"));
    files.write(L"color.bmp", bmp("\xFF\xFF\x20"));
    const auto ink = read(pathOf(L"ink.bmp")), color = read(pathOf(L"color.bmp"));
    ASSERT_NE(ink, nullptr);
    EXPECT_TRUE(ink->isBitonal());
    EXPECT_EQ(ink->levels().front().pixels, (std::vector<PicturePixel>{0xFF000000, kWhite}));
    ASSERT_NE(color, nullptr);
    EXPECT_FALSE(color->isBitonal());
    EXPECT_EQ(color->levels().front().pixels.at(1), 0xFF20FFFFu);
}

TEST_F(PictureStores, ScansAndGreysOfAnotherProgramAreRead) {
    const auto readBytes = [&](const wchar_t* name, const auto& bytes) {
        return read(files.write(name, {reinterpret_cast<const char*>(bytes), sizeof bytes}));
    };
    const std::vector<PicturePixel> expected = {0xFF000000, kWhite};
    const auto fax = readBytes(L"fax.tif", kGroup4Tiff), grey = readBytes(L"grey.png", kGrayPng),
               bits = readBytes(L"bits.png", kInkPng);
    ASSERT_NE(fax, nullptr);
    EXPECT_EQ(fax->levels().front().pixels, expected);
    EXPECT_TRUE(fax->isBitonal());
    ASSERT_NE(grey, nullptr);
    EXPECT_EQ(grey->levels().front().pixels, expected);
    EXPECT_FALSE(grey->isBitonal());
    ASSERT_NE(bits, nullptr);
    EXPECT_EQ(bits->levels().front().pixels, expected);
    EXPECT_TRUE(bits->isBitonal());
}

TEST_F(PictureStores, WhatIsNoPictureIsNothing) {
    files.write(L"text.png", "no picture");
    files.write(L"empty.png", "");
    EXPECT_EQ(read(pathOf(L"text.png")), nullptr);
    EXPECT_EQ(read(pathOf(L"empty.png")), nullptr);
    EXPECT_EQ(read(pathOf(L"gone.png")), nullptr);
    EXPECT_EQ(read(files.path()), nullptr) << "a folder";
    EXPECT_EQ(store.bytes(), 0u);
    std::string whole;
    save(L"whole.png");
    {
        CFile file(pathOf(L"whole.png").c_str(), CFile::modeRead);
        whole.resize(static_cast<std::size_t>(file.GetLength()));
        file.Read(whole.data(), static_cast<UINT>(whole.size()));
    }
    files.write(L"cut.png", whole.substr(0, 40));
    EXPECT_EQ(read(pathOf(L"cut.png")), nullptr);
}

TEST_F(PictureStores, APictureThatWouldBeTooLargeIsNotUnpacked) {
    // A header that promises four thousand million pixels.
    files.write(L"large.png", std::string("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\0\1\0\0\0\1\0\0\x08\2\0\0\0", 29) +
                                  std::string(100, 'x'));
    EXPECT_EQ(read(pathOf(L"large.png")), nullptr);
}

TEST_F(PictureStores, ALargePictureIsKeptInPartOfItsSize) {
    const int size = 4400;  // 19 million pixels
    expectQuarters(read(save(L"large.bmp", size)), size / 2, 0);
}

TEST_F(PictureStores, AFileIsReadOnceUntilItChanges) {
    const std::wstring path = save(L"a.bmp");
    EXPECT_TRUE(store.picture(path, PictureReading::kUnpacked).isLater);
    const auto first = read(path);
    EXPECT_EQ(read(path), first);
    const FoundPicture unpacked = store.picture(path, PictureReading::kUnpacked);
    EXPECT_EQ(unpacked.picture, first);
    EXPECT_FALSE(unpacked.isLater);
    save(L"a.bmp", 64);
    EXPECT_TRUE(store.picture(path, PictureReading::kUnpacked).isLater);
    expectQuarters(read(path), 64, 0);
    ::DeleteFileW(path.c_str());
    EXPECT_EQ(read(path), nullptr);
    EXPECT_FALSE(store.picture(path, PictureReading::kUnpacked).isLater) << "nothing to wait for";
}

TEST_F(PictureStores, AFileThatIsNoPictureIsNotReadAgain) {
    files.write(L"text.png", "no picture");
    EXPECT_TRUE(store.picture(pathOf(L"text.png"), PictureReading::kUnpacked).isLater);
    read(pathOf(L"text.png"));
    EXPECT_FALSE(store.picture(pathOf(L"text.png"), PictureReading::kUnpacked).isLater);
}

TEST_F(PictureStores, TheOldestGoesWhereRoomIsNeededButNotWhatIsShown) {
    PictureStore small(3 * 64 * 64 * 4);  // two pictures with their smaller levels
    const std::wstring a = save(L"a.bmp", 64), b = save(L"b.bmp", 64), c = save(L"c.bmp", 64);
    const auto reads = [&](const std::wstring& path) {
        return small.picture(path, PictureReading::kAll).picture;
    };
    const auto isKept = [&](const std::wstring& path) {
        return !small.picture(path, PictureReading::kUnpacked).isLater;
    };
    reads(a);
    reads(b);
    EXPECT_TRUE(isKept(a)) << "asked for last";
    reads(c);
    EXPECT_TRUE(isKept(a));
    EXPECT_FALSE(isKept(b));
    EXPECT_LE(small.bytes(), 3u * 64 * 64 * 4);
    const auto shownA = reads(a), shownC = reads(c);
    EXPECT_EQ(reads(b), nullptr) << "no room beside what is shown";
    EXPECT_EQ(reads(a), shownA);
    EXPECT_LE(small.bytes(), 3u * 64 * 64 * 4);
}

TEST_F(PictureStores, AnotherThreadReadsToo) {
    const std::wstring path = save(L"a.jpg");
    std::shared_ptr<const ScenePicture> read;
    std::thread([&] { read = store.picture(path, PictureReading::kAll).picture; }).join();
    expectQuarters(read, 32, 12);
}

TEST_F(PictureStores, DrawingsFindTheirPicturesInTheirFolder) {
    save(L"site.png");
    const ScenePictureFile source = store.source(files.path(), PictureReading::kAll);
    expectQuarters(source(L"Z:\\elsewhere\\site.png").picture, 32, 0);
    expectQuarters(source(L".\\site.png").picture, 32, 0);
    EXPECT_EQ(source(L"other.png").picture, nullptr);
    EXPECT_EQ(store.source(L"", PictureReading::kAll)(L"site.png").picture, nullptr);
}

}  // namespace
