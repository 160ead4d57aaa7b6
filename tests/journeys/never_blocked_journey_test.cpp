// A drive that does not answer: previews that take ten seconds each keep no dialog waiting that must not
// wait.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "drafter_driver.h"
#include "gallery_program.h"

using namespace journey;

namespace {

constexpr int kNameBox = 1148, kPreview = 57022;
// Milliseconds. On a machine with nothing else to do the longest answer takes some tens; where others hold
// the processors up, some hundreds. A dialog that waits for its preview takes ten thousand.
constexpr ULONGLONG kQuick = 50, kAnswer = 1000;
constexpr ULONGLONG kPreviewTime = 10000;

/// How long `window` took to answer, milliseconds; `most` if it did not.
ULONGLONG answerTime(HWND window, ULONGLONG most) {
    const ULONGLONG start = ::GetTickCount64();
    DWORD_PTR result = 0;
    ::SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, static_cast<UINT>(most), &result);
    return ::GetTickCount64() - start;
}

TEST(NeverBlockedJourney, TheDialogAnswersWhileItsPreviewTakesTenSecondsAndClosesAtOnce) {
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / L"ktui never blocked journey";
    std::filesystem::create_directories(folder);
    std::filesystem::copy_file(scratchCopy(L"bracket.dxf"), folder / L"one.dxf",
                               std::filesystem::copy_options::overwrite_existing);
    {
        GalleryProgram gallery;
        ASSERT_TRUE(gallery.openPage(L"Navigation", L"Never blocked"));
        for (const wchar_t* name : {L"Never blocked", L"Previews take 10 s"})
            gallery.click(gallery.button(name));
        gallery.click(gallery.button(L"Open..."));
        HWND dialog = gallery.waitForDialogOf(gallery.frame());
        ASSERT_NE(dialog, nullptr);
        gallery.replaceText(item(dialog, kNameBox), folder.wstring());
        gallery.key(VK_RETURN);
        gallery.replaceText(item(dialog, kNameBox), (folder / L"one.dxf").wstring());
        // The file list has it selected, and so the preview is asked for.
        HWND list = nullptr;
        EXPECT_TRUE(waitUntil([&] {
            HWND view = item(dialog, 1121);
            if (view == nullptr) view = ::FindWindowExW(dialog, nullptr, L"SHELLDLL_DefView", nullptr);
            list = view != nullptr ? ::GetWindow(view, GW_CHILD) : nullptr;
            return list != nullptr;
        }));
        // What the system itself does for a folder and its files is over.
        int quick = 0;
        EXPECT_TRUE(waitUntil([&] {
            quick = answerTime(dialog, 3000) <= kQuick ? quick + 1 : 0;
            return quick > 20;
        }));
        gallery.click(list, {60, 12});
        ULONGLONG longest = 0, asked = 0, when = 0;
        const ULONGLONG start = ::GetTickCount64();
        while (::GetTickCount64() - start < kPreviewTime + 1000) {
            const ULONGLONG now = ::GetTickCount64() - start, answer = answerTime(dialog, 3000);
            if (answer > longest) {
                longest = answer;
                when = now;
            }
            ++asked;
        }
        picture("journey-never-blocked");
        EXPECT_LE(longest, kAnswer) << "of " << asked << " answers, after " << when << " ms";
        std::printf("longest answer of %llu: %llu ms\n", asked, longest);
        // Another file, and Cancel while that is read.
        gallery.click(list, {300, 200});
        gallery.click(list, {60, 12});
        const ULONGLONG cancelled = ::GetTickCount64();
        ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        EXPECT_TRUE(gallery.waitUntilGone(dialog));
        EXPECT_LT(::GetTickCount64() - cancelled, 2000u);
    }
    std::error_code error;
    std::filesystem::remove_all(folder, error);
}

}  // namespace
