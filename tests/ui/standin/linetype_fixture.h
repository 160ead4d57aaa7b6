// A drawing with linetypes, and the linetype manager on it.
#pragma once

#include "../../../platform/standin/resource.h"
#include "standin_fixture.h"

namespace ui_test {

using Texts = std::vector<std::wstring>;

constexpr const wchar_t* kManagerTitle = L"Linetype Manager";
constexpr const wchar_t* kLoadTitle = L"Load Linetypes";

class LinetypeDialogTest : public StandinTest {
protected:
    LinetypeDialogTest() {
        drawing->getLinetypeTable(table, OdDb::kForWrite);
        for (const wchar_t* name : {L"ZIGZAG", L"Dot2", L"DOT10", L"SITE|FENCE"}) add(name);
        current = table->getAt(L"Dot2");
    }

    OdDbObjectId add(const wchar_t* name) {
        OdSmartPtr<OdDbLinetypeTableRecord> record(new OdDbLinetypeTableRecord);
        record->setName(name);
        record->setComments((std::wstring(L"words of ") + name).c_str());
        record->setDashes({4, -4});
        OdDbObjectId id;
        table->add(OdDbSymbolTableRecordPtr(record.get()), &id);
        return id;
    }
    OdSmartPtr<OdDbLinetypeTableRecord> linetype(const wchar_t* name) {
        return table->getAt(name).open<OdDbLinetypeTableRecord>();
    }
    OdDbEntityPtr addLine(const wchar_t* linetypeName) {
        OdSmartPtr<OdDbLine> line(new OdDbLine);
        drawing->modelSpaceId()
            .open<OdDbBlockTableRecord>(OdDb::kForWrite)
            ->appendOdDbEntity(OdDbEntityPtr(line.get()));
        line->setLinetype(table->getAt(linetypeName));
        return OdDbEntityPtr(line.get());
    }

    /// Shows the manager and runs `script` in it; the script has to close it.
    bool show(const std::function<void(HWND)>& script) {
        when_dialog(kManagerTitle, script);
        return host.uiHost()->showLinetypeDialog(current, chosen, 1);
    }
    /// Shows the manager, runs `script` and closes it by Cancel.
    void inManager(const std::function<void(HWND)>& script) {
        EXPECT_FALSE(show([&](HWND manager) {
            script(manager);
            click(manager, IDCANCEL);
        }));
    }
    /// Opens the load dialog from the manager, runs `script`, and closes it by Cancel if it is still there.
    static void inLoad(HWND manager, const std::function<void(HWND)>& script) {
        when_dialog(kLoadTitle, [&script](HWND load) {
            script(load);
            if (::IsWindowVisible(load)) click(load, IDCANCEL);
        });
        click(manager, IDC_LINETYPE_LOAD);
    }
    /// Types a file's name and has it listed.
    static void listFile(HWND load, const std::wstring& path) {
        ::SetDlgItemTextW(load, IDC_LOAD_FILE, path.c_str());
        click(load, IDOK);
    }

    static HWND listOf(HWND dialog) {
        const HWND list = ::GetDlgItem(dialog, IDC_LINETYPE_LIST);
        return list != nullptr ? list : ::GetDlgItem(dialog, IDC_LOAD_LIST);
    }
    static int countOf(HWND dialog) {
        return static_cast<int>(::SendMessageW(listOf(dialog), LVM_GETITEMCOUNT, 0, 0));
    }
    static std::wstring cell(HWND dialog, int row, int column) {
        wchar_t text[256] = {};
        LVITEMW item = {};
        item.iSubItem = column;
        item.pszText = text;
        item.cchTextMax = 256;
        ::SendMessageW(listOf(dialog), LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                       reinterpret_cast<LPARAM>(&item));
        return text;
    }
    /// The names in the list.
    static Texts namesIn(HWND dialog) {
        Texts names;
        for (int row = 0; row < countOf(dialog); ++row) names.push_back(cell(dialog, row, 0));
        return names;
    }
    /// The names that are selected.
    static Texts selectedIn(HWND dialog) {
        Texts names;
        for (int row = 0; row < countOf(dialog); ++row)
            if (::SendMessageW(listOf(dialog), LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED))
                names.push_back(cell(dialog, row, 0));
        return names;
    }
    /// Selects the rows of these names and no others.
    static void select(HWND dialog, const Texts& names) {
        LVITEMW item = {};
        item.stateMask = LVIS_SELECTED;
        const auto set = [&](int row) {
            ::SendMessageW(listOf(dialog), LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                           reinterpret_cast<LPARAM>(&item));
        };
        set(-1);
        item.state = LVIS_SELECTED;
        for (int row = 0; row < countOf(dialog); ++row)
            if (std::find(names.begin(), names.end(), cell(dialog, row, 0)) != names.end()) set(row);
    }

    OdDbLinetypeTablePtr table;
    OdDbObjectId current;
    OdDbObjectId chosen;
};

}  // namespace ui_test
