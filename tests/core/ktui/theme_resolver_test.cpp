#include <ktui/host/theme_resolver.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr std::uint32_t kOldSystem = 0x020500;
constexpr std::uint32_t kOldControls = 0x00050051;

void SomeEntry() {}

/// A theme library that lacks the names it is told to.
class FakeLibrary final : public ThemeLibrary {
public:
    explicit FakeLibrary(std::string missing = "", bool present = true)
        : m_missing(std::move(missing)), m_present(present) {}

    void* load() override {
        ++loads;
        return m_present ? this : nullptr;
    }
    ThemeEntry find(void* module, const char* name) override {
        EXPECT_EQ(module, this);
        asked.emplace_back(name);
        return name == m_missing ? nullptr : SomeEntry;
    }
    void unload(void* module) override {
        EXPECT_EQ(module, this);
        ++unloads;
    }

    int loads = 0;
    int unloads = 0;
    std::vector<std::string> asked;

private:
    std::string m_missing;
    bool m_present;
};

int FoundEntries(const ThemeResolution& found) {
    int count = 0;
    for (const ThemeEntry entry : found.entries) count += entry != nullptr;
    return count;
}

ThemeResolution Resolve(ThemeLibrary& library) {
    return ResolveThemeEntries(kFirstSystemWithThemes, kFirstControlsWithThemes, library);
}

}  // namespace

TEST(ThemeResolver, OldControlsLoadNothing) {
    FakeLibrary library;
    const ThemeResolution found = ResolveThemeEntries(kFirstSystemWithThemes, kOldControls, library);
    EXPECT_EQ(library.loads, 0);
    EXPECT_EQ(found.module, nullptr);
    EXPECT_TRUE(found.windowFallback);
    EXPECT_TRUE(found.animationFallback);
    EXPECT_EQ(FoundEntries(found), 0);
}

TEST(ThemeResolver, OldSystemLoadsNothing) {
    FakeLibrary library;
    const ThemeResolution found = ResolveThemeEntries(kOldSystem, kFirstControlsWithThemes, library);
    EXPECT_EQ(library.loads, 0);
    EXPECT_TRUE(found.windowFallback);
}

TEST(ThemeResolver, TheFirstVersionsWithThemesAreEnoughAndTheOnesBeforeAreNot) {
    struct Version {
        std::uint32_t system, controls;
        int loads;
    };
    for (const Version& each : {Version{0x020501, 0x00060000, 1}, Version{0x020500, 0x00060000, 0},
                                Version{0x020501, 0x0005FFFF, 0}, Version{0x020600, 0x00060010, 1}}) {
        FakeLibrary library;
        ResolveThemeEntries(each.system, each.controls, library);
        EXPECT_EQ(library.loads, each.loads) << std::hex << each.system << ' ' << each.controls;
    }
}

TEST(ThemeResolver, MissingLibraryFallsBack) {
    FakeLibrary library("", false);
    const ThemeResolution found = Resolve(library);
    EXPECT_EQ(found.module, nullptr);
    EXPECT_TRUE(found.windowFallback);
    EXPECT_TRUE(found.animationFallback);
    EXPECT_EQ(library.unloads, 0);
}

TEST(ThemeResolver, FullLibraryBindsAllTwentyOneInOrder) {
    FakeLibrary library;
    const ThemeResolution found = Resolve(library);
    EXPECT_EQ(found.module, &library);
    EXPECT_FALSE(found.windowFallback);
    EXPECT_FALSE(found.animationFallback);
    EXPECT_EQ(FoundEntries(found), 21);
    const std::vector<std::string> order = {"CloseThemeData",
                                            "DrawThemeBackground",
                                            "DrawThemeEdge",
                                            "DrawThemeIcon",
                                            "DrawThemeParentBackground",
                                            "DrawThemeText",
                                            "GetThemeBackgroundContentRect",
                                            "GetThemeColor",
                                            "GetThemeTextExtent",
                                            "IsCompositionActive",
                                            "IsThemeActive",
                                            "IsThemeBackgroundPartiallyTransparent",
                                            "OpenThemeData",
                                            "SetWindowTheme",
                                            "BeginBufferedAnimation",
                                            "BufferedPaintInit",
                                            "BufferedPaintUnInit",
                                            "BufferedPaintRenderAnimation",
                                            "BufferedPaintStopAllAnimations",
                                            "EndBufferedAnimation",
                                            "GetThemeTransitionDuration"};
    EXPECT_EQ(library.asked, order);
}

TEST(ThemeResolver, EveryMissingWindowEntryUnloadsAndFallsBackEntirely) {
    for (std::size_t slot = 0; slot < kFirstAnimationSlot; ++slot) {
        FakeLibrary library(kThemeEntryNames[slot]);
        const ThemeResolution found = Resolve(library);
        EXPECT_EQ(library.unloads, 1) << kThemeEntryNames[slot];
        EXPECT_EQ(found.module, nullptr);
        EXPECT_TRUE(found.windowFallback);
        EXPECT_TRUE(found.animationFallback);
        EXPECT_EQ(FoundEntries(found), 0);
        EXPECT_EQ(library.asked.size(), slot + 1) << "nothing is looked for behind a missing name";
    }
}

TEST(ThemeResolver, EveryMissingAnimationEntryCostsTheAnimationsOnly) {
    for (std::size_t slot = kFirstAnimationSlot; slot < kThemeSlotCount; ++slot) {
        FakeLibrary library(kThemeEntryNames[slot]);
        const ThemeResolution found = Resolve(library);
        EXPECT_EQ(library.unloads, 0) << kThemeEntryNames[slot];
        EXPECT_EQ(found.module, &library);
        EXPECT_FALSE(found.windowFallback);
        EXPECT_TRUE(found.animationFallback);
        EXPECT_EQ(FoundEntries(found), 14);
    }
}
