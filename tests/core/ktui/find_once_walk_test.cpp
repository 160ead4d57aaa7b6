// The walk of a search that visits each folder once.
#include <ktui/nav/find_once_walk.h>

#include <gtest/gtest.h>

#include "find_tree.h"

namespace {

using Heard = std::vector<std::wstring>;

Heard heardOf(const Tree& tree, const FindSearchRequest& request) {
    Notes notes;
    WalkFoldersOnce(request, tree, notes);
    return notes.heard;
}

Tree smallTree() {
    Tree tree;
    tree.folders[L"C:\\a\\"] = {folder(L"p"), file(L"one.dwg"), folder(L"q"), file(L"two.dxf"),
                                file(L"x.txt")};
    tree.folders[L"C:\\a\\p\\"] = {folder(L"deep"), file(L"three.dwg")};
    tree.folders[L"C:\\a\\p\\deep\\"] = {file(L"four.dxf")};
    tree.folders[L"C:\\a\\q\\"] = {file(L"five.dwg")};
    return tree;
}

}  // namespace

TEST(FindOnceWalk, VisitsEachFolderOnceWhateverThePatterns) {
    EXPECT_EQ(
        heardOf(smallTree(), Wanted({L"C:\\a\\"}, {L"*.dwg", L"*.dxf", L"one*"})),
        (Heard{L"C:\\a\\", L"+C:\\a\\one.dwg", L"+C:\\a\\two.dxf", L"C:\\a\\p\\", L"+C:\\a\\p\\three.dwg",
               L"C:\\a\\p\\deep\\", L"+C:\\a\\p\\deep\\four.dxf", L"C:\\a\\q\\", L"+C:\\a\\q\\five.dwg"}));
}

TEST(FindOnceWalk, AsksForOneListingOfEachFolder) {
    const Tree tree = smallTree();
    heardOf(tree, Wanted({L"C:\\a\\"}, {L"*.dwg", L"*.dxf"}));
    EXPECT_EQ(tree.asked, (Heard{L"C:\\a\\*.*", L"C:\\a\\p\\*.*", L"C:\\a\\p\\deep\\*.*", L"C:\\a\\q\\*.*"}));
    EXPECT_EQ(tree.listingsMade, 1);
}

TEST(FindOnceWalk, StaysInTheFolderWithoutSubfolders) {
    EXPECT_EQ(heardOf(smallTree(), Wanted({L"C:\\a\\"}, {L"*.dwg"}, 0)),
              (Heard{L"C:\\a\\", L"+C:\\a\\one.dwg"}));
}

TEST(FindOnceWalk, AFolderWithinAnotherIsNotVisitedAgain) {
    EXPECT_EQ(heardOf(smallTree(), Wanted({L"C:\\a\\q\\", L"C:\\a\\", L"C:\\a\\p\\deep\\"}, {})),
              (Heard{L"C:\\a\\q\\", L"C:\\a\\", L"C:\\a\\p\\", L"C:\\a\\p\\deep\\"}));
}

TEST(FindOnceWalk, TheSameFolderInOtherLettersIsTheSame) {
    EXPECT_EQ(heardOf(smallTree(), Wanted({L"C:\\a\\q\\", L"c:\\A\\Q\\"}, {})), (Heard{L"C:\\a\\q\\"}));
}

TEST(FindOnceWalk, ALinkThatLeadsBackIsNotFollowed) {
    Tree tree;
    tree.folders[L"C:\\a\\"] = {link(L"back", L"C:\\a\\"), folder(L"s"), file(L"f.x")};
    tree.folders[L"C:\\a\\s\\"] = {link(L"up", L"C:\\a\\"), file(L"g.x")};
    EXPECT_EQ(heardOf(tree, Wanted({L"C:\\a\\"}, {L"*.x"})),
              (Heard{L"C:\\a\\", L"+C:\\a\\f.x", L"C:\\a\\s\\", L"+C:\\a\\s\\g.x"}));
}

TEST(FindOnceWalk, AFolderIsMetAtItsOwnPlaceBeforeALinkToIt) {
    Tree tree;
    tree.folders[L"C:\\a\\"] = {link(L"b", L"C:\\a\\s\\"), folder(L"s")};
    tree.folders[L"C:\\a\\s\\"] = {file(L"g.x")};
    EXPECT_EQ(heardOf(tree, Wanted({L"C:\\a\\"}, {L"*.x"})),
              (Heard{L"C:\\a\\", L"C:\\a\\s\\", L"+C:\\a\\s\\g.x"}));
}

TEST(FindOnceWalk, ALinkToAnotherPlaceIsFollowedOnce) {
    Tree tree;
    tree.folders[L"C:\\a\\"] = {link(L"l", L"D:\\far\\"), link(L"m", L"D:\\far\\"), folder(L"s")};
    tree.folders[L"C:\\a\\s\\"] = {};
    tree.folders[L"D:\\far\\"] = {folder(L"t"), link(L"home", L"C:\\a\\")};
    tree.folders[L"D:\\far\\t\\"] = {file(L"g.x")};
    EXPECT_EQ(heardOf(tree, Wanted({L"C:\\a\\"}, {L"*.x"})),
              (Heard{L"C:\\a\\", L"C:\\a\\s\\", L"C:\\a\\l\\", L"C:\\a\\l\\t\\", L"+C:\\a\\l\\t\\g.x"}));
}

TEST(FindOnceWalk, WhatLiesBelowALinkMayHaveBeenThereToo) {
    Tree tree;
    tree.folders[L"C:\\a\\t\\"] = {file(L"g.x")};
    tree.folders[L"C:\\b\\"] = {link(L"l", L"C:\\a\\")};
    tree.folders[L"C:\\a\\"] = {folder(L"t")};
    EXPECT_EQ(heardOf(tree, Wanted({L"C:\\a\\t\\", L"C:\\b\\"}, {L"*.x"})),
              (Heard{L"C:\\a\\t\\", L"+C:\\a\\t\\g.x", L"C:\\b\\", L"C:\\b\\l\\"}));
}

TEST(FindOnceWalk, AStartThatIsAnotherOneByAnotherPathIsNotVisitedAgain) {
    Tree tree;
    tree.folders[L"C:\\"] = {link(L"l", L"D:\\far\\")};
    tree.folders[L"D:\\far\\"] = {file(L"g.x")};
    EXPECT_EQ(heardOf(tree, Wanted({L"D:\\far\\", L"C:\\l\\"}, {L"*.x"})),
              (Heard{L"D:\\far\\", L"+D:\\far\\g.x"}));
}

/// Counts how often the system is asked which folder a path names.
class CountsIdentities : public Tree {
public:
    mutable int questions = 0;
    CString Identity(const CString& path) const override { return ++questions, path; }
};

TEST(FindOnceWalk, AsksWhichFolderItIsOnlyWhereThereAreLinks) {
    CountsIdentities tree;
    tree.folders = smallTree().folders;
    heardOf(tree, Wanted({L"C:\\a\\"}, {L"*.x"}));
    EXPECT_EQ(tree.questions, 0);
    tree.folders[L"C:\\a\\q\\"].push_back(link(L"l", L"D:\\"));
    heardOf(tree, Wanted({L"C:\\a\\"}, {L"*.x"}));
    EXPECT_EQ(tree.questions, 5);
}

/// Two volumes may give different folders the same number.
class SameNumbers : public Tree {
public:
    CString Identity(const CString&) const override { return L"1"; }
};

TEST(FindOnceWalk, FoldersWithTheSameNumberAreVisitedWhereNoLinkLeads) {
    SameNumbers tree;
    static_cast<Tree&>(tree).folders = smallTree().folders;
    EXPECT_EQ(heardOf(tree, Wanted({L"C:\\a\\"}, {})),
              (Heard{L"C:\\a\\", L"C:\\a\\p\\", L"C:\\a\\p\\deep\\", L"C:\\a\\q\\"}));
}

TEST(FindOnceWalk, HiddenEntriesAreNeitherToldNorEntered) {
    Tree tree;
    tree.folders[L"C:\\"] = {hidden(file(L"h.x")), hidden(folder(L"hs")), hidden(link(L"hl", L"D:\\")),
                             file(L"v.x")};
    tree.folders[L"C:\\hs\\"] = {file(L"in.x")};
    tree.folders[L"D:\\"] = {file(L"in.x")};
    EXPECT_EQ(heardOf(tree, Wanted({L"C:\\"}, {L"*.x"})), (Heard{L"C:\\", L"+C:\\v.x"}));
}

TEST(FindOnceWalk, DatesCountBothEnds) {
    Tree tree;
    tree.folders[L"C:\\"] = {file(L"9.x", 9), file(L"10.x", 10), file(L"20.x", 20), file(L"21.x", 21)};
    Wanted request({L"C:\\"}, {L"*.x"});
    request.m_dateFrom = 10;
    request.m_dateTo = 20;
    EXPECT_EQ(heardOf(tree, request), (Heard{L"C:\\", L"+C:\\10.x", L"+C:\\20.x"}));
    request.m_dateTo = 10;
    EXPECT_EQ(heardOf(tree, request).size(), 5u) << "one moment is no filter";
}

TEST(FindOnceWalk, AfterAStopNothingIsTold) {
    Notes notes;
    notes.stopsAfter = [](const std::wstring& text) { return text == L"+C:\\a\\one.dwg"; };
    Tree tree = smallTree();
    tree.folders[L"C:\\a\\"].push_back(link(L"l", L"D:\\"));
    tree.folders[L"D:\\"] = {file(L"y.dwg")};
    WalkFoldersOnce(Wanted({L"C:\\a\\", L"C:\\a\\q\\"}, {L"*.d*"}), tree, notes);
    EXPECT_EQ(notes.heard, (Heard{L"C:\\a\\", L"+C:\\a\\one.dwg"}));
}

TEST(FindOnceWalk, AVirtualFolderStandsForAllDrivesAndEndsNothing) {
    Tree tree = smallTree();
    tree.drives = 1u << 2 | 1u << 4;
    tree.folders[L"C:\\"] = {folder(L"a")};
    EXPECT_EQ(heardOf(tree, Wanted({L"::{1}\\", L"C:\\a\\q\\", L"F:\\"}, {L"five*"})),
              (Heard{L"C:\\", L"C:\\a\\", L"C:\\a\\p\\", L"C:\\a\\p\\deep\\", L"C:\\a\\q\\",
                     L"+C:\\a\\q\\five.dwg", L"E:\\", L"F:\\"}));
    EXPECT_EQ(heardOf(tree, Wanted({L"::{1}\\", L"C:\\a\\q\\"}, {L"five*"}, 0)),
              (Heard{L"C:\\a\\q\\", L"+C:\\a\\q\\five.dwg"}));
}
