// The order in which a bar's places are written, and what a document that fails on the way makes of it.
#include <ktui/docking/dock_bar_xml.h>

#include <comdef.h>

#include <gtest/gtest.h>

#include "fake_dom.h"

namespace {

using namespace docking_test;

struct DockBarSave : ::testing::Test {
    DomNotes notes;
    FakeElement* node = new FakeElement(notes, L"bars");

    ~DockBarSave() override {
        EXPECT_EQ(notes.alive, 1) << "all others were released";
        node->Release();
    }
    int save() {
        return SaveDockBar(node,
                           {false, true, CRect(-10, 20, 290, 225), CRect(1, -2, 31, 38), CBRS_ALIGN_RIGHT});
    }
    /// The last thing that was tried with a document whose `call` fails.
    std::wstring lastBefore(const wchar_t* call) {
        notes.calls.clear();
        notes.failing = call;
        EXPECT_EQ(save(), 0) << CStringA(call).GetString();
        return notes.calls.empty() ? L"" : notes.calls.back();
    }
};

const std::vector<std::wstring> kWritten = {L"owner",
                                            L"create CAdUiDockControlBar",
                                            L"CAdUiDockControlBar.Orientation ui4 16384",
                                            L"CAdUiDockControlBar.AllowDocking uint 1",
                                            L"create FloatInfo",
                                            L"FloatInfo.Left i4 -10",
                                            L"FloatInfo.Top i4 20",
                                            L"FloatInfo.Width uint 300",
                                            L"FloatInfo.Height uint 205",
                                            L"append FloatInfo to CAdUiDockControlBar",
                                            L"create DockInfo",
                                            L"DockInfo.Left i4 1",
                                            L"DockInfo.Top i4 -2",
                                            L"DockInfo.Width uint 30",
                                            L"DockInfo.Height uint 40",
                                            L"DockInfo.MRUDockID ui4 16384",
                                            L"append DockInfo to CAdUiDockControlBar",
                                            L"append CAdUiDockControlBar to bars"};

TEST_F(DockBarSave, WritesEverythingInOrder) {
    EXPECT_EQ(save(), 1);
    EXPECT_EQ(notes.calls, kWritten);
}

TEST_F(DockBarSave, WithoutADocumentOrAnElementNothingMoreIsTried) {
    for (const wchar_t* call :
         {L"owner", L"create CAdUiDockControlBar", L"create FloatInfo", L"create DockInfo"})
        EXPECT_EQ(lastBefore(call), call);
}

TEST_F(DockBarSave, AnAttributeOrAnElementThatCantBePutInIsThrown) {
    for (const std::wstring& written : kWritten) {
        const std::wstring call =
            written.find(L'.') != std::wstring::npos ? written.substr(0, written.find(L' ')) : written;
        if (call == L"owner" || call.starts_with(L"create ")) continue;
        notes.calls.clear();
        notes.failing = call;
        try {
            save();
            ADD_FAILURE() << "nothing was thrown: " << CStringA(call.c_str()).GetString();
        } catch (const _com_error& error) {
            EXPECT_EQ(error.Error(), E_FAIL);
        }
        EXPECT_EQ(notes.calls.back(), written) << "and nothing more was tried";
        EXPECT_EQ(notes.alive, 1);
    }
}

}  // namespace
