// Where pictures are looked for, by what drawings call them.
#include "pictures/picture_places.h"

#include <gtest/gtest.h>

namespace {

using Places = std::vector<std::wstring>;

TEST(PicturePlacesTest, AWholePathFirstAndThenTheDrawingsFolder) {
    EXPECT_EQ(PicturePlaces(L"D:\\plans\\site.png", L"C:\\work\\"),
              (Places{L"D:\\plans\\site.png", L"C:\\work\\site.png"}));
    EXPECT_EQ(PicturePlaces(L"\\\\server\\plans\\site.png", L"C:\\work"),
              (Places{L"\\\\server\\plans\\site.png", L"C:\\work\\site.png"}));
    EXPECT_EQ(PicturePlaces(L"D:/plans/site.png", L""), Places{L"D:\\plans\\site.png"});
}

TEST(PicturePlacesTest, AnotherOneFromTheDrawingsFolder) {
    EXPECT_EQ(PicturePlaces(L"site.png", L"C:\\work"), Places{L"C:\\work\\site.png"});
    EXPECT_EQ(PicturePlaces(L"..\\plans\\site.png", L"C:\\work\\"),
              (Places{L"C:\\work\\..\\plans\\site.png", L"C:\\work\\site.png"}));
    EXPECT_EQ(PicturePlaces(L"./plans/site.png", L"C:\\work"),
              (Places{L"C:\\work\\.\\plans\\site.png", L"C:\\work\\site.png"}));
    EXPECT_EQ(PicturePlaces(L"\\plans\\site.png", L"C:\\work"), Places{L"C:\\work\\site.png"});
    EXPECT_EQ(PicturePlaces(L"site.png", L""), Places{}) << "a drawing that has no folder yet";
}

TEST(PicturePlacesTest, NowhereForWhatIsNoFile) {
    EXPECT_EQ(PicturePlaces(L"", L"C:\\work"), Places{});
    EXPECT_EQ(PicturePlaces(L"plans\\", L"C:\\work"), Places{L"C:\\work\\plans\\"});
    for (const wchar_t* name :
         {L"\\\\.\\PhysicalDrive0", L"//./COM1", L"\\\\?\\C:\\x.png", L"\\\\?\\UNC\\server\\x.png",
          L"http://x/y.png", L"site.png:stream", L"C:site.png", L"C:\\a\\b.png:c"})
        EXPECT_EQ(PicturePlaces(name, L"C:\\work"), Places{}) << name;
}

}  // namespace
