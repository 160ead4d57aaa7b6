// States of bars to the number: what an archive and the profile have of each, which numbers no bar has, and
// how reading is refused.
#include <afxadv.h>

#include <functional>
#include <string>
#include <vector>

#include "ui_test.h"

namespace {

using Numbers = std::vector<int>;

constexpr const wchar_t* kProfile = L"ktui dock state archive test";
constexpr const wchar_t* kNames[] = {L"BarID",    L"Visible",   L"Floating", L"Horz",   L"XPos",  L"YPos",
                                     L"MRUWidth", L"DockBarID", L"Row",      L"Offset", L"OwnRow"};
const Numbers kSound = {700, 1, 0, 1, -40, 50, 60, 70, 8, 90, 1};

CControlBarInfo sound() {
    CControlBarInfo info;
    info.m_nBarID = 700;
    info.m_bVisible = TRUE;
    info.m_bFloating = FALSE;
    info.m_bHorz = TRUE;
    info.m_pointPos = CPoint(-40, 50);
    info.m_nMRUWidth = 60;
    info.m_nDockBarID = 70;
    info.m_nRow = 8;
    info.m_nOffset = 90;
    info.m_bOwnRow = TRUE;
    return info;
}

void expect_sound(const CControlBarInfo& info) {
    EXPECT_EQ(info.m_nBarID, 700U);
    EXPECT_TRUE(info.m_bVisible);
    EXPECT_FALSE(info.m_bFloating);
    EXPECT_TRUE(info.m_bHorz);
    EXPECT_EQ(info.m_pointPos, CPoint(-40, 50));
    EXPECT_EQ(info.m_nMRUWidth, 60U);
    EXPECT_EQ(info.m_nDockBarID, 70U);
    EXPECT_EQ(info.m_nRow, 8);
    EXPECT_EQ(info.m_nOffset, 90);
    EXPECT_TRUE(info.m_bOwnRow);
}

/// The cause of the exception when `object` is read from these numbers; -1 without one.
template <class T>
int failure_of(T& object, const Numbers& numbers) {
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        for (const int number : numbers) archive << number;
    }
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    try {
        object.Serialize(archive);
    } catch (CArchiveException* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    }
    return -1;
}

Numbers with(size_t place, int number) {
    Numbers numbers = kSound;
    numbers[place] = number;
    return numbers;
}

}  // namespace

TEST(DockStateArchive, ABarIsElevenNumbers) {
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        sound().Serialize(archive);
    }
    ASSERT_EQ(file.GetLength(), 44U);
    file.SeekToBegin();
    Numbers numbers(11);
    file.Read(numbers.data(), 44);
    EXPECT_EQ(numbers, kSound);
    CControlBarInfo read;
    EXPECT_EQ(failure_of(read, kSound), -1);
    expect_sound(read);
}

TEST(DockStateArchive, NumbersThatNoBarHasAreRefused) {
    const struct {
        size_t place;
        Numbers good, bad;
    } rows[] = {
        {0, {1, 0xFFFF}, {0, -1, 0x10000}},
        {1, {0, 2, -1000000}, {-1000001, 1000001}},
        {2, {0, 1}, {1000001}},
        {3, {0, 1}, {1000001}},
        {4, {-1000000, 1000000}, {-1000001, 1000001}},
        {5, {-1000000, 1000000}, {-1000001, 1000001}},
        {6, {1, 1000000}, {0, -1, 1000001}},
        {7, {0, 1}, {-1}},
        {8, {0, 1}, {-1}},
        {9, {0, 1}, {-1}},
        {10, {0, 7}, {1000001}},
    };
    for (const auto& row : rows) {
        for (const int number : row.good) {
            CControlBarInfo info;
            EXPECT_EQ(failure_of(info, with(row.place, number)), -1) << row.place << " " << number;
        }
        for (const int number : row.bad) {
            CControlBarInfo info = sound();
            Numbers numbers = with(row.place, number);
            numbers[row.place == 0 ? 8 : 0] = 5;
            EXPECT_EQ(failure_of(info, numbers), CArchiveException::genericException)
                << row.place << " " << number;
            expect_sound(info);
        }
    }
}

TEST(DockStateArchive, AStateIsItsVersionItsCountAndItsBars) {
    CDockState state;
    Numbers numbers = {2, 2};
    for (int i = 0; i < 2; ++i) numbers.insert(numbers.end(), kSound.begin(), kSound.end());
    EXPECT_EQ(failure_of(state, numbers), -1);
    ASSERT_EQ(state.m_arrBarInfo.GetSize(), 2);
    for (int i = 0; i < 2; ++i) expect_sound(*static_cast<CControlBarInfo*>(state.m_arrBarInfo[i]));
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        state.Serialize(archive);
    }
    file.SeekToBegin();
    Numbers written(numbers.size());
    ASSERT_EQ(file.GetLength(), 4 * written.size());
    file.Read(written.data(), static_cast<UINT>(4 * written.size()));
    EXPECT_EQ(written, numbers);
}

TEST(DockStateArchive, WhatIsNoStateSaysWhy) {
    Numbers most = {2, 1000};
    for (int i = 0; i < 1000; ++i) most.insert(most.end(), kSound.begin(), kSound.end());
    CDockState state;
    EXPECT_EQ(failure_of(state, most), -1);
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 1000);
    most[1] = 1001;
    most.insert(most.end(), kSound.begin(), kSound.end());
    EXPECT_EQ(failure_of(state, most), CArchiveException::badSchema);
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 0);
    for (const int version : {0, 1, 3})
        EXPECT_EQ(failure_of(state, {version, 0}), CArchiveException::badSchema);
    EXPECT_EQ(failure_of(state, {2, 0}), -1);
    EXPECT_EQ(failure_of(state, {2}), CArchiveException::endOfFile);
    Numbers broken = {2, 2};
    broken.insert(broken.end(), kSound.begin(), kSound.end());
    EXPECT_EQ(failure_of(state, broken), CArchiveException::endOfFile);
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 0) << "nor is a part of it kept";
    const Numbers wrong = with(6, 0);
    broken.insert(broken.end(), wrong.begin(), wrong.end());
    EXPECT_EQ(failure_of(state, broken), CArchiveException::genericException);
    EXPECT_EQ(state.m_arrBarInfo.GetSize(), 0);
}

TEST(DockStateArchive, TheProfileHasEachNumberByItsName) {
    CWinApp* const app = AfxGetApp();
    const CString summary = CString(kProfile) + L"-Summary";
    CDockState state;
    state.m_arrBarInfo.Add(new CControlBarInfo(sound()));
    // More bars than there ever are take those away that may have been kept.
    app->WriteProfileInt(summary, L"Bars", 1001);
    app->WriteProfileInt(CString(kProfile) + L"-Bar1", L"BarID", 5);
    app->WriteProfileInt(CString(kProfile) + L"-Bar999", L"BarID", 5);
    app->WriteProfileInt(CString(kProfile) + L"-Bar1000", L"BarID", 5);
    state.SaveState(kProfile);
    EXPECT_EQ(app->GetProfileInt(summary, L"Version", 7), 2U);
    EXPECT_EQ(app->GetProfileInt(summary, L"Bars", 7), 1U);
    for (size_t i = 0; i < std::size(kNames); ++i)
        EXPECT_EQ(static_cast<int>(app->GetProfileInt(CString(kProfile) + L"-Bar0", kNames[i], -9)),
                  kSound[i]);
    EXPECT_EQ(app->GetProfileInt(CString(kProfile) + L"-Bar1", L"BarID", 7), 7U);
    EXPECT_EQ(app->GetProfileInt(CString(kProfile) + L"-Bar999", L"BarID", 7), 7U);
    EXPECT_EQ(app->GetProfileInt(CString(kProfile) + L"-Bar1000", L"BarID", 7), 5U);
    CControlBarInfo read;
    EXPECT_TRUE(read.LoadState(kProfile, 0));
    expect_sound(read);
    EXPECT_FALSE(read.LoadState(kProfile, 1));
    expect_sound(read);
    EXPECT_TRUE(sound().SaveState(kProfile, 3));
    EXPECT_EQ(app->GetProfileInt(CString(kProfile) + L"-Bar3", L"MRUWidth", 7), 60U);
    for (const wchar_t* part : {L"-Summary", L"-Bar0", L"-Bar3", L"-Bar1000"})
        app->WriteProfileString(CString(kProfile) + part, nullptr, nullptr);
}
