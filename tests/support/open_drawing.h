// A drawing that is open in the host of a test, and its document.
#pragma once

#include <kt_ap_document.h>
#include <od_db.h>
#include <od_host_services.h>

#include <map>
#include <string>
#include <vector>

#include "test_host.h"

namespace ui_test {

/// A document whose variables a test sets and whose calls it reads.
class TestDocument final : public KtApDocument, public CKhVariableStore {
public:
    explicit TestDocument(OdDbDatabase& drawing) : m_drawing(drawing) {}
    OdDbDatabase* database() override { return &m_drawing; }
    CKhDrawingView* drawingView() override { return nullptr; }
    CKhVariableStore* variables() override { return this; }

    std::map<std::wstring, int> numbers;
    std::map<std::wstring, bool> switches;
    std::vector<std::wstring> calls;  ///< what was stored

    bool getInt(const wchar_t* name, int& value) override {
        if (!numbers.count(name)) return false;
        value = numbers[name];
        return true;
    }
    bool setInt(const wchar_t* name, int value) override {
        calls.push_back(std::wstring(name) + L"=" + std::to_wstring(value));
        return true;
    }
    bool getBool(const wchar_t* name, bool& value) override {
        if (!switches.count(name)) return false;
        value = switches[name];
        return true;
    }
    bool setBool(const wchar_t* name, bool value) override {
        calls.push_back(std::wstring(name) + (value ? L"=on" : L"=off"));
        return true;
    }

private:
    OdDbDatabase& m_drawing;
};

/// Makes a new drawing the working one and the host's current document for as long as it lives.
class OpenDrawing {
public:
    explicit OpenDrawing(TestHost& host)
        : m_host(host),
          m_former(oddbHostApplicationServices()),
          m_drawing(new OdDbDatabase),
          document(*m_drawing) {
        oddbSetHostApplicationServices(&m_services);
        m_services.setWorkingDatabase(m_drawing.get());
        host.document = &document;
    }
    ~OpenDrawing() {
        m_host.document = nullptr;
        oddbSetHostApplicationServices(m_former);
    }
    OpenDrawing(const OpenDrawing&) = delete;
    OpenDrawing& operator=(const OpenDrawing&) = delete;

    OdDbDatabase& drawing() const { return *m_drawing; }

private:
    TestHost& m_host;
    OdDbHostAppServices m_services;
    OdDbHostAppServices* m_former;
    OdDbDatabasePtr m_drawing;

public:
    TestDocument document;
};

}  // namespace ui_test
