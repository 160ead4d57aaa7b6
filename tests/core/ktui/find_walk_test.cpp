// The settled walk of a search for files: its order, its repetitions, and where it looks at the stop.
#include <ktui/nav/find_walk.h>

#include <gtest/gtest.h>

#include "find_tree.h"

namespace {

using Heard = std::vector<std::wstring>;

Heard heardOf(const Tree& tree, const FindSearchRequest& request) {
    Notes notes;
    WalkFolders(request, tree, notes);
    return notes.heard;
}

Tree smallTree() {
    Tree tree;
    tree.folders[L"C:\\a\\"] = {file(L"one.dwg"), folder(L"sub"), file(L"two.dxf"), file(L"x.txt")};
    tree.folders[L"C:\\a\\sub\\"] = {file(L"three.dwg"), file(L"four.dxf")};
    return tree;
}

}  // namespace

TEST(FindSearchRequest, HasNoFilterByDateAtFirst) {
    const FindSearchRequest request;
    EXPECT_FALSE(request.HasDates());
    EXPECT_NE(request.m_dateFrom, 0);
    EXPECT_EQ(request.m_includeSubfolders, 0);
    EXPECT_EQ(request.m_dialog, nullptr);
}

TEST(FindSearchRequest, ACopyHasArraysOfItsOwn) {
    Wanted request({L"C:\\a\\"}, {L"*.dwg"});
    request.m_dateFrom = 5;
    request.m_dateTo = 9;
    FindSearchRequest copy(request);
    copy.m_folders[0] = L"D:\\";
    copy.m_patterns.Add(L"*.dxf");
    EXPECT_EQ(request.m_folders[0], L"C:\\a\\");
    EXPECT_EQ(request.m_patterns.GetSize(), 1);
    EXPECT_EQ(copy.m_dateFrom, 5);
    EXPECT_EQ(copy.m_dateTo, 9);
    EXPECT_EQ(copy.m_includeSubfolders, 1);
}

TEST(FindWalk, TellsNothingWithoutFolders) {
    EXPECT_EQ(heardOf(smallTree(), Wanted({}, {L"*.dwg"})), Heard{});
}

TEST(FindWalk, TellsTheFolderThenItsFilesThenGoesDown) {
    EXPECT_EQ(heardOf(smallTree(), Wanted({L"C:\\a\\"}, {L"*.dwg"})),
              (Heard{L"C:\\a\\", L"+C:\\a\\one.dwg", L"C:\\a\\sub\\", L"+C:\\a\\sub\\three.dwg"}));
}

TEST(FindWalk, StaysInTheFolderWithoutSubfolders) {
    EXPECT_EQ(heardOf(smallTree(), Wanted({L"C:\\a\\"}, {L"*.dwg", L"*.dxf"}, 0)),
              (Heard{L"C:\\a\\", L"+C:\\a\\one.dwg", L"+C:\\a\\two.dxf"}));
}

TEST(FindWalk, NoPatternsGiveTheStatusAlone) {
    EXPECT_EQ(heardOf(smallTree(), Wanted({L"C:\\a\\"}, {})), (Heard{L"C:\\a\\"}));
}

TEST(FindWalk, TwoPatternsListEachFileOfASubfolderTwice) {
    EXPECT_EQ(heardOf(smallTree(), Wanted({L"C:\\a\\"}, {L"*.dwg", L"*.dxf"})),
              (Heard{L"C:\\a\\", L"+C:\\a\\one.dwg", L"C:\\a\\sub\\", L"+C:\\a\\sub\\three.dwg",
                     L"+C:\\a\\sub\\four.dxf", L"+C:\\a\\two.dxf", L"C:\\a\\sub\\", L"+C:\\a\\sub\\three.dwg",
                     L"+C:\\a\\sub\\four.dxf"}));
}

TEST(FindWalk, VisitsAFolderAtDepthDPatternsToThePowerOfDTimes) {
    Tree tree;
    tree.folders[L"C:\\"] = {folder(L"1")};
    tree.folders[L"C:\\1\\"] = {folder(L"2")};
    tree.folders[L"C:\\1\\2\\"] = {folder(L"3")};
    tree.folders[L"C:\\1\\2\\3\\"] = {file(L"x.a")};
    Notes notes;
    WalkFolders(Wanted({L"C:\\"}, {L"*.a", L"*.b", L"*.c"}), tree, notes);
    EXPECT_EQ(notes.Count(L"C:\\"), 1);
    EXPECT_EQ(notes.Count(L"C:\\1\\"), 3);
    EXPECT_EQ(notes.Count(L"C:\\1\\2\\"), 9);
    EXPECT_EQ(notes.Count(L"C:\\1\\2\\3\\"), 27);
    EXPECT_EQ(notes.Count(L"+C:\\1\\2\\3\\x.a"), 27);
}

TEST(FindWalk, ADescentFromTheFirstFolderGoesThroughTheSecondAgain) {
    Tree tree;
    tree.folders[L"C:\\a\\"] = {folder(L"s")};
    tree.folders[L"C:\\a\\s\\"] = {};
    tree.folders[L"D:\\b\\"] = {file(L"f.x")};
    EXPECT_EQ(heardOf(tree, Wanted({L"C:\\a\\", L"D:\\b\\"}, {L"*.x"})),
              (Heard{L"C:\\a\\", L"C:\\a\\s\\", L"D:\\b\\", L"+D:\\b\\f.x", L"D:\\b\\", L"+D:\\b\\f.x"}));
}

TEST(FindWalk, ADescentFromTheSecondFolderGoesThroughTheFirstAgain) {
    Tree tree;
    tree.folders[L"C:\\a\\"] = {file(L"f.x")};
    tree.folders[L"D:\\b\\"] = {folder(L"s")};
    tree.folders[L"D:\\b\\s\\"] = {};
    EXPECT_EQ(heardOf(tree, Wanted({L"C:\\a\\", L"D:\\b\\"}, {L"*.x"})),
              (Heard{L"C:\\a\\", L"+C:\\a\\f.x", L"D:\\b\\", L"C:\\a\\", L"+C:\\a\\f.x", L"D:\\b\\s\\"}));
}

TEST(FindWalk, NeverListsOrEntersWhatIsHidden) {
    Tree tree;
    tree.folders[L"C:\\"] = {hidden(file(L"h.x")), hidden(folder(L"hs")), file(L"v.x")};
    tree.folders[L"C:\\hs\\"] = {file(L"in.x")};
    EXPECT_EQ(heardOf(tree, Wanted({L"C:\\"}, {L"*.x"})), (Heard{L"C:\\", L"+C:\\v.x"}));
}

TEST(FindWalk, AFolderWhoseNameFitsIsNoFile) {
    Tree tree;
    tree.folders[L"C:\\"] = {folder(L"d.x"), file(L"f.x")};
    EXPECT_EQ(heardOf(tree, Wanted({L"C:\\"}, {L"*.x"}, 0)), (Heard{L"C:\\", L"+C:\\f.x"}));
}

TEST(FindWalk, DatesCountBothEnds) {
    Tree tree;
    tree.folders[L"C:\\"] = {file(L"9.x", 9), file(L"10.x", 10), file(L"15.x", 15), file(L"20.x", 20),
                             file(L"21.x", 21)};
    Wanted request({L"C:\\"}, {L"*.x"});
    request.m_dateFrom = 10;
    request.m_dateTo = 20;
    EXPECT_EQ(heardOf(tree, request), (Heard{L"C:\\", L"+C:\\10.x", L"+C:\\15.x", L"+C:\\20.x"}));
}

TEST(FindWalk, OneAndTheSameMomentIsNoFilter) {
    Tree tree;
    tree.folders[L"C:\\"] = {file(L"9.x", 9), file(L"10.x", 10)};
    Wanted request({L"C:\\"}, {L"*.x"});
    request.m_dateFrom = request.m_dateTo = 10;
    EXPECT_EQ(heardOf(tree, request), (Heard{L"C:\\", L"+C:\\9.x", L"+C:\\10.x"}));
}

TEST(FindWalk, DatesTheWrongWayRoundFindNothing) {
    Tree tree;
    tree.folders[L"C:\\"] = {file(L"x.x", 15)};
    Wanted request({L"C:\\"}, {L"*.x"});
    request.m_dateFrom = 20;
    request.m_dateTo = 10;
    EXPECT_EQ(heardOf(tree, request), (Heard{L"C:\\"}));
}

TEST(FindWalk, TheDatesGoDownToSubfolders) {
    Tree tree;
    tree.folders[L"C:\\"] = {folder(L"s")};
    tree.folders[L"C:\\s\\"] = {file(L"9.x", 9), file(L"10.x", 10)};
    Wanted request({L"C:\\"}, {L"*.x"});
    request.m_dateFrom = 10;
    request.m_dateTo = 20;
    EXPECT_EQ(heardOf(tree, request), (Heard{L"C:\\", L"C:\\s\\", L"+C:\\s\\10.x"}));
}

TEST(FindWalk, AFolderThatIsNotThereIsToldAndLeft) {
    EXPECT_EQ(heardOf(smallTree(), Wanted({L"Q:\\gone\\", L"C:\\a\\sub\\"}, {L"*.dwg"})),
              (Heard{L"Q:\\gone\\", L"C:\\a\\sub\\", L"+C:\\a\\sub\\three.dwg"}));
}

TEST(FindWalk, AFreshListingServesEachPattern) {
    const Tree tree = smallTree();
    heardOf(tree, Wanted({L"C:\\a\\"}, {L"*.dwg", L"*.dxf"}, 0));
    EXPECT_EQ(tree.listingsMade, 2);
    EXPECT_EQ(tree.asked, (Heard{L"C:\\a\\*.dwg", L"C:\\a\\*.dxf"}));
    tree.asked.clear();
    heardOf(tree, Wanted({L"C:\\a\\sub\\"}, {L"*.dwg"}));
    EXPECT_EQ(tree.asked, (Heard{L"C:\\a\\sub\\*.dwg", L"C:\\a\\sub\\*.*"}));
}

TEST(FindWalk, AVirtualFolderStandsForEachDriveInTurn) {
    Tree tree;
    tree.drives = 1u << 0 | 1u << 2 | 1u << 25;
    tree.folders[L"C:\\"] = {file(L"f.x")};
    EXPECT_EQ(heardOf(tree, Wanted({L"::{20D04FE0}\\"}, {L"*.x"})),
              (Heard{L"A:\\", L"C:\\", L"+C:\\f.x", L"Z:\\"}));
}

TEST(FindWalk, AVirtualFolderWithoutSubfoldersEndsTheWholeWalk) {
    Tree tree = smallTree();
    tree.drives = 4;
    EXPECT_EQ(heardOf(tree, Wanted({L"C:\\a\\", L"::{1}\\", L"C:\\a\\sub\\"}, {L"*.dwg"}, 0)),
              (Heard{L"C:\\a\\", L"+C:\\a\\one.dwg"}));
}

TEST(FindWalk, AVirtualFolderWithoutDrivesEndsTheWholeWalk) {
    EXPECT_EQ(heardOf(smallTree(), Wanted({L"::{1}\\", L"C:\\a\\"}, {L"*.dwg"})), Heard{});
}

TEST(FindWalk, FoldersBehindAVirtualOneAreReachedInItsCopiesOnly) {
    Tree tree;
    tree.drives = 4;
    tree.folders[L"C:\\"] = {};
    tree.folders[L"D:\\b\\"] = {};
    EXPECT_EQ(heardOf(tree, Wanted({L"::{1}\\", L"D:\\b\\"}, {L"*.x"})), (Heard{L"C:\\", L"D:\\b\\"}));
}

TEST(FindWalk, FoldersBeforeAVirtualOneAreWalkedForEachDriveAgain) {
    Tree tree;
    tree.drives = 4 | 8;
    tree.folders[L"E:\\b\\"] = {};
    EXPECT_EQ(heardOf(tree, Wanted({L"E:\\b\\", L"::{1}\\"}, {L"*.x"})),
              (Heard{L"E:\\b\\", L"E:\\b\\", L"C:\\", L"E:\\b\\", L"D:\\"}));
}

TEST(FindWalk, AStopEndsTheLoopOverFiles) {
    Tree tree;
    tree.folders[L"C:\\"] = {file(L"1.x"), file(L"2.x"), file(L"3.x")};
    Notes notes;
    notes.stopsAfter = [](const std::wstring& text) { return text == L"+C:\\2.x"; };
    WalkFolders(Wanted({L"C:\\"}, {L"*.x"}, 0), tree, notes);
    EXPECT_EQ(notes.heard, (Heard{L"C:\\", L"+C:\\1.x", L"+C:\\2.x"}));
}

TEST(FindWalk, AStopEndsTheLoopOverSubfolders) {
    Tree tree;
    tree.folders[L"C:\\"] = {folder(L"a"), folder(L"b"), folder(L"c")};
    for (const wchar_t* path : {L"C:\\a\\", L"C:\\b\\", L"C:\\c\\"}) tree.folders[path] = {file(L"f.x")};
    Notes notes;
    notes.stopsAfter = [](const std::wstring& text) { return text == L"+C:\\b\\f.x"; };
    WalkFolders(Wanted({L"C:\\"}, {L"*.x"}), tree, notes);
    EXPECT_EQ(notes.heard, (Heard{L"C:\\", L"C:\\a\\", L"+C:\\a\\f.x", L"C:\\b\\", L"+C:\\b\\f.x"}));
}

TEST(FindWalk, FoldersThatAreLeftStillTellTheirStatusAfterAStop) {
    Tree tree;
    tree.folders[L"C:\\a\\"] = {file(L"1.x"), file(L"2.x")};
    tree.folders[L"C:\\b\\"] = {file(L"3.x")};
    Notes notes;
    notes.stopsAfter = [](const std::wstring& text) { return text == L"+C:\\a\\1.x"; };
    WalkFolders(Wanted({L"C:\\a\\", L"C:\\b\\"}, {L"*.x", L"*.y"}), tree, notes);
    EXPECT_EQ(notes.heard, (Heard{L"C:\\a\\", L"+C:\\a\\1.x", L"C:\\b\\"}));
}

TEST(FindWalk, TheStopIsLookedAtBeforeEachEntryOnly) {
    Tree tree;
    tree.folders[L"C:\\"] = {file(L"1.x"), file(L"2.y")};
    Notes notes;
    // One file; then the two dots and both files of "*.*".
    WalkFolders(Wanted({L"C:\\"}, {L"*.x"}), tree, notes);
    EXPECT_EQ(notes.stopQuestions, 1 + 4);
    Notes flat;
    WalkFolders(Wanted({L"C:\\", L"Q:\\"}, {L"*.q", L"*.r"}, 0), tree, flat);
    EXPECT_EQ(flat.stopQuestions, 0);
}

TEST(FindWalk, AStopEndsTheLoopOverDrivesAfterTheDriveAtHand) {
    Tree tree;
    tree.drives = 4 | 8 | 16;
    tree.folders[L"D:\\"] = {file(L"f.x")};
    Notes notes;
    notes.stopsAfter = [](const std::wstring& text) { return text == L"C:\\"; };
    WalkFolders(Wanted({L"::\\", L"E:\\"}, {L"*.x"}), tree, notes);
    EXPECT_EQ(notes.heard, (Heard{L"C:\\", L"E:\\"}));
}
