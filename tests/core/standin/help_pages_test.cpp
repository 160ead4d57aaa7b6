// Where the page of a help topic is looked for.
#include "help/help_pages.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace {

using Files = std::set<std::wstring>;

std::wstring find(const Files& files, const wchar_t* language, const wchar_t* topic) {
    return findHelpPage(L"H:\\help", language, topic,
                        [&](const std::wstring& path) { return files.count(path) != 0; });
}

}  // namespace

TEST(HelpPages, ThePageOfTheLanguageComesBeforeTheEnglishOne) {
    const Files files = {L"H:\\help\\en\\Measure.html", L"H:\\help\\zh\\Measure.html",
                         L"H:\\help\\en\\Only.html"};
    EXPECT_EQ(find(files, L"zh", L"Measure"), L"H:\\help\\zh\\Measure.html");
    EXPECT_EQ(find(files, L"en", L"Measure"), L"H:\\help\\en\\Measure.html");
    EXPECT_EQ(find(files, L"zh", L"Only"), L"H:\\help\\en\\Only.html");
    EXPECT_EQ(find(files, L"zh", L"None"), L"");
}

TEST(HelpPages, NoTopicIsTheStartPage) {
    EXPECT_EQ(find({L"H:\\help\\en\\index.html"}, L"en", L""), L"H:\\help\\en\\index.html");
    EXPECT_EQ(find({}, L"en", L""), L"");
}

TEST(HelpPages, ATopicIsAPlainName) {
    for (const wchar_t* good : {L"a", L"Z", L"0", L"9-_", L"OptionsFiles"}) EXPECT_TRUE(isHelpTopic(good));
    for (const wchar_t* bad :
         {L"", L"..", L"a\\b", L"a/b", L"a.b", L"a b", L"a:b", L"\u00E9", L"@", L"[", L"`", L"{"})
        EXPECT_FALSE(isHelpTopic(bad));
    EXPECT_TRUE(isHelpTopic(std::wstring(64, L'a')));
    EXPECT_FALSE(isHelpTopic(std::wstring(65, L'a')));
}

TEST(HelpPages, ATopicThatIsNoneIsNotLookedFor) {
    bool asked = false;
    const auto exists = [&](const std::wstring&) { return asked = true; };
    EXPECT_EQ(findHelpPage(L"H:\\help", L"en", L"..\\secret", exists), L"");
    EXPECT_FALSE(asked);
}
