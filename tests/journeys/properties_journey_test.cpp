// A draughtsman edits objects through Format > Properties, start to end.
#include <windows.h>
#include <commctrl.h>

#include "journey_fixture.h"

using namespace journey;

namespace {

class Properties : public Journey {
protected:
    Properties() : Journey(L"bracket.dxf") {}
};

TEST_F(Properties, TheFrameIsTitledAfterTheDrawing) {
    ASSERT_NE(drafter->frame(), nullptr);
    EXPECT_EQ(textOf(drafter->frame()), L"bracket.dxf - Drafter");
}

TEST_F(Properties, AGoodValueBecomesCanonicalWhenTheFieldIsLeftAndIsStored) {
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    HWND thickness = item(dialog, IDC_THICKNESS);
    drafter->replaceText(thickness, L"2.5000000");
    EXPECT_EQ(textOf(thickness), L"2.5000000") << "nothing is rewritten while typing";
    drafter->key(VK_TAB);
    EXPECT_NE(textOf(thickness), L"2.5000000");
    EXPECT_EQ(textOf(item(dialog, IDC_MESSAGE)), L"");
    ok(dialog);
    EXPECT_NE(textOf(drafter->frame()).find(L'*'), std::wstring::npos) << "the drawing counts as changed";
    EXPECT_DOUBLE_EQ(firstOf(*saved())->thickness(), 2.5);
}

TEST_F(Properties, ABadValueIsMarkedOkRefusesAndTheFocusGoesThere) {
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    HWND thickness = item(dialog, IDC_THICKNESS);
    drafter->replaceText(thickness, L"-3");
    EXPECT_NE(textOf(item(dialog, IDC_MESSAGE)), L"") << "the problem is said in words";
    drafter->key(VK_TAB);
    EXPECT_EQ(textOf(thickness), L"-3") << "bad text stays as typed";
    picture("journey-invalid-thickness");
    drafter->click(item(dialog, IDOK));
    EXPECT_TRUE(::IsWindowVisible(dialog)) << "OK refuses";
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(dialog, nullptr), &info);
    EXPECT_EQ(info.hwndFocus, thickness);
    drafter->type(L"4");
    EXPECT_EQ(textOf(thickness), L"4") << "the text was selected";
    EXPECT_EQ(textOf(item(dialog, IDC_MESSAGE)), L"");
    ok(dialog);
    EXPECT_DOUBLE_EQ(firstOf(*saved())->thickness(), 4);
}

TEST_F(Properties, LettersInANumberAndAnIllegalNameOfANewLayerAreRefused) {
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    drafter->replaceText(item(dialog, IDC_ELEVATION), L"abc");
    drafter->click(item(dialog, IDOK));
    EXPECT_TRUE(::IsWindowVisible(dialog));
    drafter->replaceText(item(dialog, IDC_ELEVATION), L"1");
    drafter->pickLast(item(dialog, IDC_LAYER));
    HWND name = drafter->waitForDialog(L"New Layer");
    ASSERT_NE(name, nullptr);
    drafter->replaceText(item(name, IDC_STYLE_NAME), L"a<b");
    drafter->click(item(name, IDOK));
    EXPECT_TRUE(::IsWindowVisible(name));
    EXPECT_NE(textOf(item(name, IDC_MESSAGE)), L"");
    drafter->replaceText(item(name, IDC_STYLE_NAME), L"Journey");
    picture("journey-new-layer");
    ok(name);
    EXPECT_EQ(currentEntry(item(dialog, IDC_LAYER)), L"Journey");
    picture("journey-layer-picked");
    ok(dialog);
    EXPECT_EQ(firstOf(*saved())->layer(), L"Journey");
}

TEST_F(Properties, CancelChangesNothing) {
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    drafter->replaceText(item(dialog, IDC_THICKNESS), L"9");
    cancel(dialog);
    EXPECT_EQ(textOf(drafter->frame()), L"bracket.dxf - Drafter");
    bool found = true;
    setting(L"Properties", L"X", found);
    EXPECT_FALSE(found) << "a cancelled dialog stores nothing";
}

TEST_F(Properties, AStandardColourIsPickedByMouseAndKeysAndApplied) {
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    HWND color = item(dialog, IDC_TRUE_COLOR);
    drafter->pick(color, 3);
    EXPECT_EQ(currentEntry(color), L"red");
    EXPECT_EQ(currentEntry(item(dialog, IDC_INDEX_COLOR)), L"red") << "both pickers show the choice";
    ok(dialog);
    EXPECT_EQ(firstOf(*saved())->colorIndex(), 1);
}

TEST_F(Properties, OtherCancelledLeavesTheSelectionAndOtherStaysInTheList) {
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    HWND color = item(dialog, IDC_INDEX_COLOR);
    drafter->pick(color, 3);
    const std::wstring before = currentEntry(color);
    const int count = entryCount(color);
    drafter->pickLast(color);
    HWND other = drafter->waitForDialog(L"Select Color");
    ASSERT_NE(other, nullptr);
    EXPECT_EQ(currentEntry(color), before) << "the former choice shows while the dialog is up";
    cancel(other);
    EXPECT_EQ(currentEntry(color), before);
    EXPECT_GE(entryCount(color), count);
    cancel(dialog);
}

TEST_F(Properties, OtherAcceptedAddsTheColourAndOneAlreadyThereIsOnlySelected) {
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    HWND color = item(dialog, IDC_INDEX_COLOR);
    drafter->pickLast(color);
    HWND other = drafter->waitForDialog(L"Select Color");
    ASSERT_NE(other, nullptr);
    drafter->type(L"30");
    picture("journey-select-color");
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(other));
    EXPECT_EQ(currentEntry(color), L"color 30");
    const int count = entryCount(color);
    // "Other" is no longer last: the new colour was added behind it.
    drafter->pick(color, count - 2);
    other = drafter->waitForDialog(L"Select Color");
    ASSERT_NE(other, nullptr);
    drafter->type(L"3");
    drafter->key(VK_RETURN);
    EXPECT_TRUE(drafter->waitUntilGone(other));
    EXPECT_EQ(currentEntry(color), L"green");
    EXPECT_EQ(entryCount(color), count);
    cancel(dialog);
}

TEST_F(Properties, MoreColoursThanTheStoreHoldsStayInTheList) {
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    HWND color = item(dialog, IDC_INDEX_COLOR);
    drafter->pickLast(color);
    const int other = 10;  // the differing values, ByLayer, ByBlock and the seven colours stand before it
    for (int i = 0; i < 7; ++i) {
        if (i > 0) drafter->pick(color, other);
        HWND chooser = drafter->waitForDialog(L"Select Color");
        ASSERT_NE(chooser, nullptr) << i;
        drafter->type(std::to_wstring(20 + i * 10));
        drafter->key(VK_RETURN);
        ASSERT_TRUE(drafter->waitUntilGone(chooser));
    }
    EXPECT_EQ(entryCount(color), other + 1 + 7) << "the evicted colour's entry stays";
    EXPECT_EQ(currentEntry(color), L"color 80");
    cancel(dialog);
}

TEST_F(Properties, TheDialogComesBackWhereItWasLeft) {
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    const RECT before = rectOf(dialog), list = rectOf(item(dialog, IDC_LAYER_LIST));
    const RECT wanted = {60, 40, 60 + (before.right - before.left) + 120,
                         40 + (before.bottom - before.top) + 80};
    drafter->place(dialog, wanted);
    const RECT stretched = rectOf(item(dialog, IDC_LAYER_LIST));
    EXPECT_EQ(stretched.right - stretched.left, list.right - list.left + 120);
    EXPECT_EQ(stretched.bottom - stretched.top, list.bottom - list.top + 80);
    picture("journey-resized");
    ok(dialog);
    dialog = drafter->openProperties();
    ASSERT_NE(dialog, nullptr);
    const RECT again = rectOf(dialog);
    EXPECT_EQ(again.left, wanted.left);
    EXPECT_EQ(again.top, wanted.top);
    EXPECT_EQ(again.right, wanted.right);
    EXPECT_EQ(again.bottom, wanted.bottom);
    cancel(dialog);
}

TEST_F(Properties, AStoredPlaceOffTheDesktopIsIgnored) {
    storeSetting(L"Properties", L"X", 9000);
    storeSetting(L"Properties", L"Y", 9000);
    storeSetting(L"Properties", L"Width", 500);
    storeSetting(L"Properties", L"Height", 500);
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    const RECT shown = rectOf(dialog);
    EXPECT_LT(shown.left, 1280);
    EXPECT_LT(shown.top, 1024);
    cancel(dialog);
}

TEST_F(Properties, AClippedLayerNameShowsATip) {
    HWND dialog = openOnAll();
    ASSERT_NE(dialog, nullptr);
    HWND list = item(dialog, IDC_LAYER_LIST);
    // Makes the first column too narrow for any name.
    ::SendMessageW(list, LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(20, 0));
    drafter->hover(list, {8, 34});
    drafter->hover(list, {10, 36});
    HWND tip = nullptr;
    EXPECT_TRUE(waitUntil(
        [&] {
            tip = ::FindWindowW(L"CKbUiTipWindow", nullptr);
            while (tip != nullptr && !::IsWindowVisible(tip))
                tip = ::FindWindowExW(nullptr, tip, L"CKbUiTipWindow", nullptr);
            return tip != nullptr;
        },
        3000));
    picture("journey-tip");
    drafter->hover(dialog, {3, 3});
    EXPECT_TRUE(waitUntil([&] { return !::IsWindowVisible(tip); }, 2000)) << "the tip goes with the pointer";
    cancel(dialog);
}

TEST_F(Properties, AFileThatIsNoDrawingIsRefusedInWordsAndTheProgramGoesOn) {
    const std::wstring bad = scratchCopy(L"bracket.dxf") + L".bad.dxf";
    HANDLE file = ::CreateFileW(bad.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(file, "Minutes of a meeting\r\nnot a drawing\r\n", 37, &written, nullptr);
    ::CloseHandle(file);
    Drafter second(bad);
    HWND message = second.waitForDialog(L"Drafter");
    ASSERT_NE(message, nullptr);
    second.activate(message);
    second.key(VK_RETURN);
    EXPECT_TRUE(second.waitUntilGone(message));
    EXPECT_TRUE(second.isRunning());
    EXPECT_EQ(textOf(second.frame()), L"Untitled - Drafter");
}

}  // namespace
