// What the journeys start from: the drafter on a scratch copy of a drawing, and the drawing as it was saved.
#pragma once

#include <memory>

#include <gtest/gtest.h>
#include <od_db.h>

#include "../../samples/drafter/resource.h"
#include "drafter_driver.h"

class Journey : public ::testing::Test {
protected:
    /// Opens a copy of a drawing that comes with the sample.
    explicit Journey(const wchar_t* drawing) {
        journey::forgetSettings();
        open(journey::scratchCopy(drawing));
    }
    /// Opens nothing yet.
    Journey() { journey::forgetSettings(); }

    /// Opens a drawing in the drafter, or in the one of another folder.
    void open(const std::wstring& drawing, const std::wstring& folder = {}) {
        path = drawing;
        drafter = std::make_unique<journey::Drafter>(path, folder);
    }
    /// Opens the dialog behind Ctrl and a letter.
    HWND openByKey(WORD letter) {
        drafter->activate(drafter->frame());
        drafter->key(letter, true);
        return drafter->waitForDialogOf(drafter->frame());
    }
    /// Writes `drawing` to a scratch file of this name and opens it.
    void open(OdDbDatabase& drawing, const wchar_t* name) {
        const std::wstring scratch = journey::scratchPath(name);
        ASSERT_EQ(drawing.writeDxf(scratch.c_str(), OdDb::kDHL_1032), kOdOk);
        open(scratch);
    }
    /// The same with a drawing of nothing but a line.
    void openLine(const wchar_t* name) {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        const OdSmartPtr<OdDbLine> line(new OdDbLine);
        line->setEndPoint({100, 50, 0});
        drawing->modelSpaceId()
            .open<OdDbBlockTableRecord>(OdDb::kForWrite)
            ->appendOdDbEntity(OdDbEntityPtr(line.get()));
        open(*drawing, name);
    }
    /// Closes the drafter, and starts it again on the same drawing.
    void restart(const std::wstring& arguments = {}) {
        ::PostMessageW(drafter->frame(), WM_CLOSE, 0, 0);
        ASSERT_TRUE(journey::waitUntil([&] { return !drafter->isRunning(); }));
        drafter = std::make_unique<journey::Drafter>(path, std::wstring(), arguments);
        ASSERT_NE(drafter->frame(), nullptr);
    }
    /// Opens Properties on everything in the drawing.
    HWND openOnAll() {
        drafter->activate(drafter->frame());
        drafter->click(drafter->view(), {4, 4});
        drafter->key('A', true);
        return drafter->openProperties();
    }
    void ok(HWND dialog) {
        drafter->click(journey::item(dialog, IDOK));
        EXPECT_TRUE(drafter->waitUntilGone(dialog));
    }
    void cancel(HWND dialog) {
        drafter->key(VK_ESCAPE);
        EXPECT_TRUE(drafter->waitUntilGone(dialog));
    }
    /// Saves the drawing and reads it back.
    OdDbDatabasePtr saved() {
        drafter->activate(drafter->frame());
        drafter->key('S', true);
        journey::waitUntil(
            [this] { return journey::textOf(drafter->frame()).find(L'*') == std::wstring::npos; });
        OdDbDatabasePtr drawing(new OdDbDatabase);
        EXPECT_EQ(drawing->readDxf(path.c_str()), kOdOk);
        return drawing;
    }
    /// The entities of model space.
    static const std::vector<OdDbEntity*>& entitiesOf(OdDbDatabase& drawing) {
        return drawing.modelSpaceId().open<OdDbBlockTableRecord>()->entities();
    }
    static OdDbEntity* firstOf(OdDbDatabase& drawing) { return entitiesOf(drawing).front(); }

    std::wstring path;
    std::unique_ptr<journey::Drafter> drafter;
};
