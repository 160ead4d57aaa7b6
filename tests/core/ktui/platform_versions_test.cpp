#include <ktui/host/platform_versions.h>

#include <gtest/gtest.h>

TEST(PlatformVersions, SystemIsPlatformThenMajorThenMinor) {
    EXPECT_EQ(MakeOsVersionCode(2, 5, 1), 0x020501u);
    EXPECT_EQ(MakeOsVersionCode(2, 6, 0), 0x020600u);
    EXPECT_EQ(MakeOsVersionCode(2, 10, 7), 0x020A07u);
}

TEST(PlatformVersions, ControlsAreMajorThenMinor) {
    EXPECT_EQ(MakeControlsVersion(6, 0), 0x00060000u);
    EXPECT_EQ(MakeControlsVersion(5, 0x51), 0x00050051u);
    EXPECT_EQ(kUntoldControlsVersion, MakeControlsVersion(4, 0));
}

TEST(PlatformVersions, AVersionHasItsMajor) {
    EXPECT_EQ(OsMajorVersion(0x020501), 5u);
    EXPECT_EQ(OsMajorVersion(0x020A07), 10u);
    EXPECT_EQ(OsMajorVersion(MakeOsVersionCode(1, 6, 3)), 6u);
}
