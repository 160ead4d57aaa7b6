// Layouts as XML elements: what is written comes back, what is wrong is named.
#include <ktui/docking/layout_xml.h>

#include <gtest/gtest.h>

#include <functional>

#include "random_layout.h"

namespace {

using namespace layouts;

/// Two rows, a group, a floating frame: something of everything.
Record sample() {
    Record record;
    Tree split;
    split.share = 400000;
    split.upright = false;
    split.halves.resize(2);
    split.halves[0].id = 4001;
    split.halves[1].id = kFirstGroup;
    Tree hiding;
    hiding.id = 4004;
    hiding.hides = true;
    hiding.size = CSize(150, 560);
    Tree placeKept;
    placeKept.id = 4005;
    placeKept.shown = false;
    record.rows = {{Side::left, 220, split}, {Side::right, 150, hiding}, {Side::bottom, 90, placeKept}};
    Frame frame;
    frame.place = CRect(-30, 200, 210, 600);
    frame.panes.id = 4005;
    record.frames = {frame};
    record.groups = {{kFirstGroup, 4003, {{4002, true}, {4003, true}}}};
    for (unsigned id = 4001; id <= 4005; ++id) record.panes.push_back({id, L"P", CRect(1, 2, 3, 4), -1});
    record.panes[2].palette = 2;
    return record;
}

Element file() { return ToElement({{L"Drafting", sample()}}); }

Element& child(Element& element, std::initializer_list<int> way) {
    Element* at = &element;
    for (const int index : way) at = &at->children.at(static_cast<std::size_t>(index));
    return *at;
}

void set(Element& element, const wchar_t* name, const wchar_t* value) {
    for (auto& [each, text] : element.attributes)
        if (each == name) text = value;
}

void drop(Element& element, const wchar_t* name) {
    std::erase_if(element.attributes, [&](const auto& each) { return each.first == name; });
}

void expectFault(const std::function<void(Element&)>& spoil, FaultKind kind, const wchar_t* element,
                 const wchar_t* attribute = L"", const wchar_t* value = L"") {
    Element root = file();
    spoil(root);
    std::vector<NamedRecord> layouts{{L"before", {}}};
    Fault fault;
    EXPECT_FALSE(FromElement(root, layouts, fault));
    EXPECT_EQ(static_cast<int>(fault.kind), static_cast<int>(kind));
    EXPECT_EQ(fault.element, element);
    EXPECT_EQ(fault.attribute, attribute);
    EXPECT_EQ(fault.value, value);
    ASSERT_EQ(layouts.size(), 1u);
    EXPECT_EQ(layouts[0].name, L"before");
}

/// The first layout's parts.
constexpr int kRows = 0, kFrames = 1, kGroups = 2, kStates = 3;

}  // namespace

TEST(LayoutXml, IsWrittenInTheseWords) {
    Element root = file();
    EXPECT_EQ(root.name, L"KtUiPaletteLayouts");
    EXPECT_EQ(*root.find(L"Version"), L"1");
    EXPECT_EQ(*child(root, {0}).find(L"Name"), L"Drafting");
    Element& row = child(root, {0, kRows, 0});
    EXPECT_EQ(row.name, L"Row");
    EXPECT_EQ(*row.find(L"Side"), L"left");
    EXPECT_EQ(*row.find(L"Extent"), L"220");
    Element& split = child(row, {0});
    EXPECT_EQ(*split.find(L"Direction"), L"below");
    EXPECT_EQ(*split.find(L"Share"), L"400000");
    EXPECT_EQ(split.children[0].name, L"Pane");
    EXPECT_EQ(*split.children[0].find(L"Id"), L"4001");
    EXPECT_EQ(split.children[0].find(L"Hides"), nullptr);
    EXPECT_EQ(split.children[1].name, L"TabGroup");
    EXPECT_EQ(*split.children[1].find(L"Id"), L"1");
    Element& hiding = child(root, {0, kRows, 1, 0});
    EXPECT_EQ(*hiding.find(L"Hides"), L"1");
    EXPECT_EQ(*hiding.find(L"Width"), L"150");
    EXPECT_EQ(*hiding.find(L"Height"), L"560");
    Element& frame = child(root, {0, kFrames, 0});
    EXPECT_EQ(*frame.find(L"Left"), L"-30");
    EXPECT_EQ(*frame.find(L"Width"), L"240");
    EXPECT_EQ(*child(root, {0, kGroups, 0}).find(L"Active"), L"4003");
    EXPECT_EQ(*child(root, {0, kGroups, 0, 1}).find(L"Pane"), L"4003");
    EXPECT_EQ(*child(root, {0, kStates, 2}).find(L"Palette"), L"2");
    EXPECT_EQ(child(root, {0, kStates, 1}).find(L"Palette"), nullptr);
}

TEST(LayoutXml, AttributesStandInTheirOrder) {
    Element root = file();
    const auto order = [&](std::initializer_list<int> way) {
        CString names;
        for (const auto& [name, value] : child(root, way).attributes)
            names += (names.IsEmpty() ? L"" : L" ") + name;
        return names;
    };
    EXPECT_EQ(order({0, kRows, 0}), L"Side Extent");
    EXPECT_EQ(order({0, kRows, 0, 0}), L"Direction Share");
    EXPECT_EQ(order({0, kRows, 0, 0, 0}), L"Id Shown");
    EXPECT_EQ(order({0, kRows, 1, 0}), L"Id Shown Hides Width Height");
    EXPECT_EQ(order({0, kFrames, 0}), L"Left Top Width Height");
    EXPECT_EQ(order({0, kGroups, 0}), L"Id Active");
    EXPECT_EQ(order({0, kGroups, 0, 1}), L"Pane Shown");
    EXPECT_EQ(order({0, kStates, 2}), L"Id Name Left Top Width Height Palette");
}

TEST(LayoutXml, WhatIsWrittenComesBack) {
    std::vector<NamedRecord> layouts;
    Fault fault;
    ASSERT_TRUE(FromElement(file(), layouts, fault));
    ASSERT_EQ(layouts.size(), 1u);
    EXPECT_EQ(layouts[0].name, L"Drafting");
    EXPECT_TRUE(layouts[0].record == sample());
}

TEST(LayoutXml, RandomLayoutsComeBack) {
    RecordProperty("seed", random_layout::kSeed);
    random_layout::Maker maker(random_layout::kSeed);
    for (int i = 0; i < 400; ++i) {
        const Record one = maker.make(static_cast<unsigned>(i % 13)), other = maker.make(5);
        std::vector<NamedRecord> layouts;
        Fault fault;
        ASSERT_TRUE(FromElement(ToElement({{L"one", one}, {L"other", other}}), layouts, fault))
            << "seed " << random_layout::kSeed << ", layout " << i << ", " << fault.element.GetString();
        ASSERT_EQ(layouts.size(), 2u);
        ASSERT_TRUE(layouts[0].record == one) << "seed " << random_layout::kSeed << ", layout " << i;
        ASSERT_TRUE(layouts[1].record == other);
    }
}

TEST(LayoutXml, ForeignOlderAndNewerFilesAreToldApart) {
    expectFault([](Element& root) { root.name = L"CAdUiDockControlBar"; }, FaultKind::foreign,
                L"CAdUiDockControlBar");
    expectFault([](Element& root) { set(root, L"Version", L"0"); }, FaultKind::older, L"KtUiPaletteLayouts",
                L"Version", L"0");
    expectFault([](Element& root) { set(root, L"Version", L"2"); }, FaultKind::newer, L"KtUiPaletteLayouts",
                L"Version", L"2");
    expectFault([](Element& root) { set(root, L"Version", L"1.0"); }, FaultKind::badAttribute,
                L"KtUiPaletteLayouts", L"Version", L"1.0");
    expectFault([](Element& root) { drop(root, L"Version"); }, FaultKind::missingAttribute,
                L"KtUiPaletteLayouts", L"Version");
    expectFault([](Element& root) { root.children.clear(); }, FaultKind::missingElement, L"Layout");
}

TEST(LayoutXml, NumbersOutOfRangeAreNamed) {
    const wchar_t* const row = L"Layout[1]/Docked[1]/Row[1]";
    for (const wchar_t* bad : {L"-1", L"100001", L"99999999999999999999", L"", L" 5", L"5 ", L"+5", L"0x10",
                               L"5.5", L"-", L"\u0665"})
        expectFault(
            [&](Element& root) {
                set(child(root, {0, kRows, 0}), L"Extent", bad);
            },
            FaultKind::badAttribute, row, L"Extent", bad);
    expectFault(
        [](Element& root) {
            set(child(root, {0, kRows, 0}), L"Side", L"Left");
        },
        FaultKind::badAttribute, row, L"Side", L"Left");
    expectFault(
        [](Element& root) {
            drop(child(root, {0, kRows, 0}), L"Side");
        },
        FaultKind::missingAttribute, row, L"Side");
    expectFault(
        [](Element& root) {
            set(child(root, {0, kRows, 0, 0}), L"Share", L"1000001");
        },
        FaultKind::badAttribute, L"Layout[1]/Docked[1]/Row[1]/Split[1]", L"Share", L"1000001");
    expectFault(
        [](Element& root) {
            set(child(root, {0, kRows, 0, 0}), L"Direction", L"beyond");
        },
        FaultKind::badAttribute, L"Layout[1]/Docked[1]/Row[1]/Split[1]", L"Direction", L"beyond");
    for (const wchar_t* bad : {L"0", L"65535", L"-4001"})
        expectFault(
            [&](Element& root) {
                set(child(root, {0, kRows, 0, 0, 0}), L"Id", bad);
            },
            FaultKind::badAttribute, L"Layout[1]/Docked[1]/Row[1]/Split[1]/Pane[1]", L"Id", bad);
    expectFault(
        [](Element& root) {
            set(child(root, {0, kRows, 0, 0, 0}), L"Shown", L"2");
        },
        FaultKind::badAttribute, L"Layout[1]/Docked[1]/Row[1]/Split[1]/Pane[1]", L"Shown", L"2");
    const wchar_t* const frame = L"Layout[1]/Floating[1]/Frame[1]";
    for (const wchar_t* name : {L"Left", L"Top"})
        for (const wchar_t* bad : {L"-100001", L"100001"})
            expectFault(
                [&](Element& root) {
                    set(child(root, {0, kFrames, 0}), name, bad);
                },
                FaultKind::badAttribute, frame, name, bad);
    for (const wchar_t* name : {L"Width", L"Height"})
        expectFault(
            [&](Element& root) {
                set(child(root, {0, kFrames, 0}), name, L"-1");
            },
            FaultKind::badAttribute, frame, name, L"-1");
    expectFault(
        [](Element& root) {
            set(child(root, {0, kStates, 2}), L"Palette", L"-1");
        },
        FaultKind::badAttribute, L"Layout[1]/Panes[1]/State[3]", L"Palette", L"-1");
    expectFault(
        [](Element& root) {
            set(child(root, {0, kRows, 1, 0}), L"Width", L"-7");
        },
        FaultKind::badAttribute, L"Layout[1]/Docked[1]/Row[2]/Pane[1]", L"Width", L"-7");
}

TEST(LayoutXml, TheEdgesOfRangesAreTaken) {
    Element root = file();
    set(child(root, {0, kRows, 0}), L"Extent", L"100000");
    set(child(root, {0, kRows, 0, 0}), L"Share", L"0");
    set(child(root, {0, kFrames, 0}), L"Left", L"-100000");
    set(child(root, {0, kFrames, 0}), L"Width", L"0");
    std::vector<NamedRecord> layouts;
    Fault fault;
    ASSERT_TRUE(FromElement(root, layouts, fault));
    EXPECT_EQ(layouts[0].record.rows[0].extent, 100000);
    EXPECT_EQ(layouts[0].record.frames[0].place.left, -100000);
    EXPECT_EQ(layouts[0].record.frames[0].place.right, -100000);
}

TEST(LayoutXml, IdsThatMeetAreNamed) {
    expectFault(
        [](Element& root) {
            set(child(root, {0, kRows, 1, 0}), L"Id", L"4001");
        },
        FaultKind::doubledId, L"Layout[1]/Docked[1]/Row[2]/Pane[1]", L"Id", L"4001");
    expectFault(
        [](Element& root) {
            set(child(root, {0, kRows, 1, 0}), L"Id", L"4002");
        },
        FaultKind::doubledId, L"Layout[1]/Docked[1]/Row[2]/Pane[1]", L"Id", L"4002");
    expectFault(
        [](Element& root) {
            set(child(root, {0, kFrames, 0, 0}), L"Id", L"4001");
        },
        FaultKind::doubledId, L"Layout[1]/Floating[1]/Frame[1]/Pane[1]", L"Id", L"4001");
    expectFault(
        [](Element& root) {
            set(child(root, {0, kGroups, 0, 0}), L"Pane", L"4003");
        },
        FaultKind::doubledId, L"Layout[1]/Tabs[1]/TabGroup[1]/Tab[2]", L"Pane", L"4003");
    expectFault(
        [](Element& root) {
            child(root, {0, kGroups}).children.push_back(child(root, {0, kGroups, 0}));
        },
        FaultKind::doubledId, L"Layout[1]/Tabs[1]/TabGroup[2]", L"Id", L"1");
    expectFault(
        [](Element& root) {
            set(child(root, {0, kStates, 1}), L"Id", L"4001");
        },
        FaultKind::doubledId, L"Layout[1]/Panes[1]/State[2]", L"Id", L"4001");
    expectFault(
        [](Element& root) {
            root.children.push_back(child(root, {0}));
            set(root.children[1], L"Name", L" DRAFTING ");
        },
        FaultKind::doubledId, L"Layout[2]", L"Name", L" DRAFTING ");
}

TEST(LayoutXml, GroupsThatNobodyHasAndTabsThatLeadNowhereAreNamed) {
    expectFault(
        [](Element& root) {
            set(child(root, {0, kRows, 0, 0, 1}), L"Id", L"2");
        },
        FaultKind::unknownId, L"Layout[1]/Docked[1]/Row[1]/Split[1]/TabGroup[1]", L"Id", L"2");
    expectFault(
        [](Element& root) {
            child(root, {0, kRows}).children.erase(child(root, {0, kRows}).children.begin());
        },
        FaultKind::unknownId, L"Layout[1]/Tabs[1]/TabGroup[1]", L"Id", L"1");
    expectFault(
        [](Element& root) {
            set(child(root, {0, kGroups, 0}), L"Active", L"4001");
        },
        FaultKind::unknownId, L"Layout[1]/Tabs[1]/TabGroup[1]", L"Active", L"4001");
    expectFault(
        [](Element& root) {
            child(root, {0, kGroups, 0}).children.clear();
        },
        FaultKind::missingElement, L"Layout[1]/Tabs[1]/TabGroup[1]/Tab");
    // A group within itself: a tab is no place for one.
    expectFault(
        [](Element& root) {
            set(child(root, {0, kGroups, 0, 0}), L"Pane", L"65536");
        },
        FaultKind::badAttribute, L"Layout[1]/Tabs[1]/TabGroup[1]/Tab[1]", L"Pane", L"65536");
    expectFault(
        [](Element& root) {
            child(root, {0, kGroups, 0, 0}).add(L"TabGroup");
        },
        FaultKind::unknownElement, L"Layout[1]/Tabs[1]/TabGroup[1]/Tab[1]/TabGroup");
}

TEST(LayoutXml, ElementsThatAreMissingOrOutOfPlaceAreNamed) {
    const wchar_t* const parts[] = {L"Docked", L"Floating", L"Tabs", L"Panes"};
    for (int part = 0; part < 4; ++part) {
        expectFault(
            [&](Element& root) {
                auto& children = child(root, {0}).children;
                children.erase(children.begin() + part);
            },
            FaultKind::missingElement, CString(L"Layout[1]/") + parts[part]);
        expectFault(
            [&](Element& root) {
                child(root, {0}).children.push_back(child(root, {0, part}));
            },
            FaultKind::unknownElement, CString(L"Layout[1]/") + parts[part] + L"[2]");
        expectFault(
            [&](Element& root) {
                child(root, {0, part}).add(L"Fish");
            },
            FaultKind::unknownElement, CString(L"Layout[1]/") + parts[part] + L"[1]/Fish[1]");
    }
    expectFault(
        [](Element& root) {
            child(root, {0, kRows, 0, 0}).children.pop_back();
        },
        FaultKind::missingElement, L"Layout[1]/Docked[1]/Row[1]/Split[1]/Pane");
    expectFault(
        [](Element& root) {
            child(root, {0, kRows, 0, 0}).add(L"Pane");
        },
        FaultKind::unknownElement, L"Layout[1]/Docked[1]/Row[1]/Split[1]/Pane[2]");
    expectFault(
        [](Element& root) {
            child(root, {0, kRows, 0}).add(L"Pane");
        },
        FaultKind::unknownElement, L"Layout[1]/Docked[1]/Row[1]/Pane[1]");
    expectFault(
        [](Element& root) {
            child(root, {0, kRows, 0}).children.clear();
        },
        FaultKind::missingElement, L"Layout[1]/Docked[1]/Row[1]/Pane");
    expectFault(
        [](Element& root) {
            child(root, {0, kRows, 1, 0}).add(L"Pane");
        },
        FaultKind::unknownElement, L"Layout[1]/Docked[1]/Row[2]/Pane[1]/Pane");
    expectFault(
        [](Element& root) {
            child(root, {0, kStates, 0}).add(L"State");
        },
        FaultKind::unknownElement, L"Layout[1]/Panes[1]/State[1]/State");
    expectFault([](Element& root) { root.add(L"Pane"); }, FaultKind::unknownElement, L"Pane[1]");
}

TEST(LayoutXml, OnlyWhatIsDockedAndShownHidesAtAnEdge) {
    expectFault(
        [](Element& root) {
            set(child(root, {0, kRows, 1, 0}), L"Shown", L"0");
        },
        FaultKind::badAttribute, L"Layout[1]/Docked[1]/Row[2]/Pane[1]", L"Hides", L"1");
    expectFault(
        [](Element& root) {
            child(root, {0, kFrames, 0, 0}).put(L"Hides", 1L);
        },
        FaultKind::badAttribute, L"Layout[1]/Floating[1]/Frame[1]/Pane[1]", L"Hides", L"1");
}

TEST(LayoutXml, DepthAndCountAreBounded) {
    const auto nested = [](int splits) {
        Record record;
        Tree tree;
        tree.id = 1;
        for (int i = 0; i < splits; ++i) {
            Tree split, other;
            other.id = static_cast<unsigned>(i) + 2;
            split.halves = {tree, other};
            tree = split;
        }
        record.rows = {{Side::left, 100, tree}};
        return ToElement({{L"deep", record}});
    };
    std::vector<NamedRecord> layouts;
    Fault fault;
    EXPECT_TRUE(FromElement(nested(64), layouts, fault));
    EXPECT_FALSE(FromElement(nested(65), layouts, fault));
    EXPECT_EQ(static_cast<int>(fault.kind), static_cast<int>(FaultKind::tooDeep));
    expectFault(
        [](Element& root) {
            for (int i = 0; i < 1001; ++i) child(root, {0, kRows}).add(L"Row");
        },
        FaultKind::tooMany, L"Layout[1]/Docked[1]");
}

TEST(LayoutXml, NamesAreTrimmedAndBounded) {
    Element root = file();
    set(child(root, {0}), L"Name", L"  two words ");
    std::vector<NamedRecord> layouts;
    Fault fault;
    ASSERT_TRUE(FromElement(root, layouts, fault));
    EXPECT_EQ(layouts[0].name, L"two words");
    for (const CString& bad : {CString(L""), CString(L"   "), CString(L'x', 65), CString(L"a\tb")})
        expectFault([&](Element& file) { set(child(file, {0}), L"Name", bad); }, FaultKind::badAttribute,
                    L"Layout[1]", L"Name", bad);
    EXPECT_TRUE(IsName(CString(L'x', 64)));
}

TEST(LayoutXml, APaneOfWhichNothingIsSaidIsAdded) {
    Element root = file();
    child(root, {0, kStates}).children.clear();
    std::vector<NamedRecord> layouts;
    Fault fault;
    ASSERT_TRUE(FromElement(root, layouts, fault));
    EXPECT_EQ(layouts[0].record.panes.size(), 5u);
    ASSERT_NE(layouts[0].record.findPane(4002), nullptr);
    EXPECT_TRUE(CRect(layouts[0].record.findPane(4002)->floating).IsRectNull());
}
