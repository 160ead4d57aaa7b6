// What tells that fonts have come or gone since the last look.
#include "../../../platform/standin/fonts/font_scan_job.h"

#include "font_folder.h"
#include "registered_font.h"

namespace {

FontScanStamps stampsOf(const ui_test::FontFolder& folder, bool usesSystem) {
    return FontScanStamps::take({folder.path().GetString()}, usesSystem);
}

}  // namespace

TEST(FontStamps, AreCurrentUntilAFileComesOrGoes) {
    for (const bool usesSystem : {false, true}) {
        const ui_test::FontFolder folder(L"stamps");
        folder.writeShx(L"a.shx");
        const FontScanStamps before = stampsOf(folder, usesSystem);
        EXPECT_TRUE(before.isCurrent());
        // The time of a folder moves in steps of some milliseconds.
        EXPECT_TRUE(ui_test::pump_until([&] {
            folder.writeShx(L"b.shx");
            folder.remove(L"b.shx");
            return !before.isCurrent();
        })) << usesSystem;
        EXPECT_TRUE(stampsOf(folder, usesSystem).isCurrent());
    }
}

TEST(FontStamps, OfTheSystemTellOfFontsThatAreRegistered) {
    const ui_test::FontFolder folder(L"stamps");
    const FontScanStamps own = stampsOf(folder, false), all = stampsOf(folder, true);
    {
        const ui_test::RegisteredFont registered(folder.file(L"a.ttf"));
        EXPECT_FALSE(all.isCurrent());
        EXPECT_TRUE(own.isCurrent()) << "the system's fonts are none of theirs";
    }
}
