// The entries of the open menu, and what each says about the file.
#include <ktui/nav/open_menu.h>

#include <gtest/gtest.h>

#include <string>

namespace {

std::vector<unsigned> commandsFor(bool readOnlyHidden, bool partial, bool noTemplate) {
    std::vector<unsigned> commands;
    for (const OpenMenuEntry& entry : OpenMenuEntries({true, readOnlyHidden, partial, noTemplate}))
        commands.push_back(entry.command);
    return commands;
}

struct Said {
    int readOnly, noTemplate;
    bool operator==(const Said&) const = default;
};

Said after(unsigned command, Said before) {
    ApplyOpenMenuCommand(command, before.readOnly, before.noTemplate);
    return before;
}

}  // namespace

TEST(OpenMenu, IsThereForAnOpenDialogUnlessNothingIsLeftToChoose) {
    EXPECT_TRUE(HasOpenMenu({true, false, false, false}));
    EXPECT_FALSE(HasOpenMenu({true, true, false, false}));
    EXPECT_TRUE(HasOpenMenu({true, true, true, false}));
    EXPECT_TRUE(HasOpenMenu({true, true, false, true}));
    EXPECT_FALSE(HasOpenMenu({false, false, true, true}));
}

TEST(OpenMenu, HasItsEntriesInOrder) {
    using Commands = std::vector<unsigned>;
    EXPECT_EQ(commandsFor(false, true, true), (Commands{1125, 1126, 1127, 1128, 1129, 1130}));
    EXPECT_EQ(commandsFor(false, false, false), (Commands{1125, 1126}));
    EXPECT_EQ(commandsFor(true, false, false), (Commands{1125}));
    EXPECT_EQ(commandsFor(true, true, false), (Commands{1125, 1127}));
    EXPECT_EQ(commandsFor(false, true, false), (Commands{1125, 1126, 1127, 1128}));
    EXPECT_EQ(commandsFor(true, false, true), (Commands{1125, 1129, 1130}));
}

TEST(OpenMenu, EachEntryHasItsTextAndItsDefault) {
    const std::vector<OpenMenuEntry> entries = OpenMenuEntries({true, false, true, true});
    ASSERT_EQ(entries.size(), 6u);
    const wchar_t* const texts[] = {L"打开(&O)",
                                    L"以只读方式打开(&R)",
                                    L"局部打开(&P)",
                                    L"以只读方式局部打开(&T)",
                                    L"无样板打开 - 英制(&I)",
                                    L"无样板打开 - 公制(&I)"};
    for (unsigned i = 0; i < 6; ++i) {
        EXPECT_EQ(entries[i].textId, 54052 + i);
        EXPECT_EQ(std::wstring(entries[i].text), texts[i]);
    }
}

TEST(OpenMenu, OpeningSaysWhetherToReadOnly) {
    EXPECT_EQ(after(1125, {1, 0}), (Said{0, 0}));
    EXPECT_EQ(after(1126, {0, 0}), (Said{1, 0}));
    EXPECT_EQ(after(1126, {0, 2}), (Said{1, 2}));
}

TEST(OpenMenu, OpeningWithoutTemplateSaysTheUnits) {
    EXPECT_EQ(after(1129, {1, 0}), (Said{1, 1}));
    EXPECT_EQ(after(1130, {1, 0}), (Said{1, 2}));
}

TEST(OpenMenu, OpeningInPartSaysNothing) {
    for (const unsigned command : {1127u, 1128u, 0u, 1124u, 1131u})
        EXPECT_EQ(after(command, {1, 2}), (Said{1, 2})) << command;
}
