// The table of theme functions: which entry calls which function, and what stands in for missing ones.
#include <ktui/host/test_door.h>
#include <ktui/host/theme_api.h>

#include <gtest/gtest.h>

#include <cstring>

#include "test_host.h"

namespace {

/// An address that no other slot has.
ThemeEntry entryOf(ThemeSlot slot) { return reinterpret_cast<ThemeEntry>(0x1000 + 16 * slot); }

/// Everything found.
ThemeResolution allFound() {
    ThemeResolution found;
    for (std::size_t slot = 0; slot < kThemeSlotCount; ++slot)
        found.entries[slot] = entryOf(static_cast<ThemeSlot>(slot));
    found.windowFallback = found.animationFallback = false;
    return found;
}

template <class Function>
void expectBound(Function member, ThemeSlot slot) {
    EXPECT_EQ(reinterpret_cast<ThemeEntry>(member), entryOf(slot)) << kThemeEntryNames[slot];
}

void expectWindowEntriesBound(const ThemeApi& api) {
    expectBound(api.isCompositionActive, kThemeIsCompositionActive);
    expectBound(api.isThemeActive, kThemeIsActive);
    expectBound(api.openThemeData, kThemeOpen);
    expectBound(api.setWindowTheme, kThemeSetWindow);
}

void expectDrawingEntriesBound(const ThemeApi& api) {
    expectBound(api.closeThemeData, kThemeClose);
    expectBound(api.drawThemeBackground, kThemeDrawBackground);
    expectBound(api.drawThemeEdge, kThemeDrawEdge);
    expectBound(api.drawThemeIcon, kThemeDrawIcon);
    expectBound(api.drawThemeParentBackground, kThemeDrawParentBackground);
    expectBound(api.drawThemeText, kThemeDrawText);
    expectBound(api.getThemeBackgroundContentRect, kThemeGetBackgroundContentRect);
    expectBound(api.getThemeColor, kThemeGetColor);
    expectBound(api.getThemeTextExtent, kThemeGetTextExtent);
    expectBound(api.isThemeBackgroundPartiallyTransparent, kThemeIsBackgroundPartiallyTransparent);
}

void expectAnimationEntriesBound(const ThemeApi& api) {
    expectBound(api.beginBufferedAnimation, kThemeBeginBufferedAnimation);
    expectBound(api.bufferedPaintInit, kThemeBufferedPaintInit);
    expectBound(api.bufferedPaintUnInit, kThemeBufferedPaintUnInit);
    expectBound(api.bufferedPaintStopAllAnimations, kThemeBufferedPaintStopAllAnimations);
    expectBound(api.getThemeTransitionDuration, kThemeGetTransitionDuration);
}

void expectNoThemes(const ThemeApi& api) {
    EXPECT_EQ(api.openThemeData(nullptr, L"BUTTON"), nullptr);
    EXPECT_FALSE(api.isThemeActive());
    EXPECT_FALSE(api.isCompositionActive());
    EXPECT_EQ(api.setWindowTheme(nullptr, L"", L""), E_NOTIMPL);
}

void expectNoAnimations(const ThemeApi& api) {
    EXPECT_EQ(api.bufferedPaintInit(), E_NOTIMPL);
    EXPECT_EQ(api.bufferedPaintUnInit(), E_NOTIMPL);
    EXPECT_EQ(api.bufferedPaintStopAllAnimations(nullptr), E_NOTIMPL);
    EXPECT_EQ(api.beginBufferedAnimation(nullptr, nullptr, nullptr, BPBF_COMPATIBLEBITMAP, nullptr, nullptr,
                                         nullptr, nullptr),
              nullptr);
    DWORD duration = 99;
    EXPECT_EQ(api.getThemeTransitionDuration(nullptr, 0, 0, 0, 0, &duration), E_NOTIMPL);
    EXPECT_EQ(duration, 0u);
}

}  // namespace

TEST(ThemeApi, EachEntryIsBoundToTheFunctionOfItsName) {
    const ThemeApi api = MakeThemeApi(allFound());
    expectWindowEntriesBound(api);
    expectDrawingEntriesBound(api);
    expectAnimationEntriesBound(api);
    expectBound(api.bufferedPaintRenderAnimation, kThemeBufferedPaintRenderAnimation);
    expectBound(api.endBufferedAnimation, kThemeEndBufferedAnimation);
}

TEST(ThemeApi, SystemWithoutAnimationsKeepsItsThemes) {
    ThemeResolution found = allFound();
    found.animationFallback = true;
    for (std::size_t slot = kFirstAnimationSlot; slot < kThemeSlotCount; ++slot)
        found.entries[slot] = nullptr;
    const ThemeApi api = MakeThemeApi(found);
    expectWindowEntriesBound(api);
    expectDrawingEntriesBound(api);
    expectNoAnimations(api);
    EXPECT_EQ(api.bufferedPaintRenderAnimation, nullptr);
    EXPECT_EQ(api.endBufferedAnimation, nullptr);
}

TEST(ThemeApi, SystemWithoutThemesHasNoDrawingEntries) {
    const ThemeApi api = MakeThemeApi({});
    expectNoThemes(api);
    expectNoAnimations(api);
    EXPECT_EQ(api.closeThemeData, nullptr);
    EXPECT_EQ(api.drawThemeBackground, nullptr) << "reached with theme data only";
    EXPECT_EQ(api.drawThemeText, nullptr);
    EXPECT_EQ(api.isThemeBackgroundPartiallyTransparent, nullptr);
}

TEST(ThemeApi, OldControlsAnswerAsASystemWithoutThemes) {
    const ThemeApi api = MakeThemeApi(ResolveThemeEntries(0x020600, 0x00050051, SystemThemeLibrary()));
    expectNoThemes(api);
    expectNoAnimations(api);
    EXPECT_EQ(api.drawThemeBackground, nullptr);
}

TEST(ThemeApi, SystemWithThemesBindsItsOwnEntries) {
    const ThemeResolution found = ResolveThemeEntries(0x020600, 0x00060000, SystemThemeLibrary());
    ASSERT_FALSE(found.windowFallback);
    ASSERT_EQ(found.module, ::GetModuleHandleW(L"uxtheme.dll"));
    const auto module = static_cast<HMODULE>(found.module);
    for (std::size_t slot = 0; slot < kThemeSlotCount; ++slot)
        EXPECT_EQ(found.entries[slot],
                  reinterpret_cast<ThemeEntry>(::GetProcAddress(module, kThemeEntryNames[slot])));
    SystemThemeLibrary().unload(found.module);
}

TEST(ThemeApi, LibraryThatIsLoadedIsFreedByItsUnload) {
    const HMODULE held = ::LoadLibraryW(L"second_entry_point.dll");
    ASSERT_NE(held, nullptr);
    SystemThemeLibrary().unload(held);
    EXPECT_EQ(::GetModuleHandleW(L"second_entry_point.dll"), nullptr);
}

TEST(ThemeApi, ExchangeAnswersTheEntriesBefore) {
    const ThemeApi mine = MakeThemeApi(allFound());
    const ThemeApi former = KtUiTestDoor().exchangeThemeApi(mine);
    EXPECT_EQ(former.openThemeData(nullptr, L"BUTTON"), nullptr) << "themes are off here";
    const ThemeApi back = KtUiTestDoor().exchangeThemeApi(former);
    EXPECT_EQ(back.openThemeData, mine.openThemeData);
    EXPECT_EQ(back.closeThemeData, mine.closeThemeData);
}
