// What leak tests with the stand-in host start from; see leak_growth.h for how they count.
#pragma once

#include <standin_host.h>

#include "leak_growth.h"

namespace leaks {

/// A host with a working drawing and a window that dialogs and pickers belong to.
class Leaks : public ::testing::Test {
protected:
    Leaks() : host(*AfxGetApp()), drawing(new OdDbDatabase) {
        oddbHostApplicationServices()->setWorkingDatabase(drawing.get());
        // No look for fonts in the background, which would count as growth.
        host.SetFontFolders({});
        host.SetFontCacheFile(nullptr);
        AfxGetApp()->m_pMainWnd = &parent;
    }
    ~Leaks() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kDialogsKey);
    }

    CStandinHost host;
    OdDbDatabasePtr drawing;
    ui_test::ParentWindow parent;
};

}  // namespace leaks
