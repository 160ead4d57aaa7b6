// The document that the gallery's pickers show: a drawing with a few linetypes.
#pragma once

#include <kh_system.h>
#include <od_db.h>

class CGalleryDocument final : public KtApDocument, private CKhVariableStore {
public:
    CGalleryDocument();
    OdDbDatabase* database() override { return m_drawing.get(); }
    CKhDrawingView* drawingView() override { return nullptr; }
    CKhVariableStore* variables() override { return this; }

private:
    // It has no variables of its own.
    bool getInt(const wchar_t*, int&) override { return false; }
    bool setInt(const wchar_t*, int) override { return false; }
    bool getBool(const wchar_t*, bool&) override { return false; }
    bool setBool(const wchar_t*, bool) override { return false; }

    OdDbDatabasePtr m_drawing;
};
