// A current document without variables, whose drawing is the working one, for as long as the object lives.
#pragma once

#include <kt_ap_document.h>
#include <od_db.h>
#include <od_host_services.h>

#include "test_host.h"

namespace ui_test {

class PlainDocument final : public KtApDocument, public CKhVariableStore {
public:
    explicit PlainDocument(TestHost& host) : m_host(host), m_former(oddbHostApplicationServices()) {
        m_services.setWorkingDatabase(m_drawing.get());
        oddbSetHostApplicationServices(&m_services);
        host.document = this;
    }
    ~PlainDocument() {
        m_host.document = nullptr;
        oddbSetHostApplicationServices(m_former);
    }
    PlainDocument(const PlainDocument&) = delete;
    PlainDocument& operator=(const PlainDocument&) = delete;

    OdDbDatabase* database() override { return m_drawing.get(); }
    CKhDrawingView* drawingView() override { return nullptr; }
    CKhVariableStore* variables() override { return this; }
    bool getInt(const wchar_t*, int&) override { return false; }
    bool setInt(const wchar_t*, int) override { return false; }
    bool getBool(const wchar_t*, bool&) override { return false; }
    bool setBool(const wchar_t*, bool) override { return false; }

private:
    TestHost& m_host;
    OdDbHostAppServices* m_former;
    OdDbHostAppServices m_services;
    OdDbDatabasePtr m_drawing{new OdDbDatabase};
};

}  // namespace ui_test
