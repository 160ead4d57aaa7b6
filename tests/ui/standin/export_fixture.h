// A host with a drawing to export, and what it writes.
#pragma once

#include <kh_plot_service.h>
#include <standin_plot_view.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "host_fixture.h"

namespace ui_test {

class ExportedDocument final : public KtApDocument {
public:
    OdDbDatabase* database() override { return drawing.get(); }
    CKhDrawingView* drawingView() override { return nullptr; }
    CKhVariableStore* variables() override { return nullptr; }
    OdDbDatabasePtr drawing{new OdDbDatabase};
};

/// Shows a square of the drawing, and has "the user" pick another one.
class PlottedView final : public StandinPlotView {
public:
    bool displayedArea(OdGePoint2d& low, OdGePoint2d& high) override {
        low = {0, 0};
        high = {100, 50};
        return shows;
    }
    bool pickArea(OdGePoint2d& first, OdGePoint2d& second) override {
        ++asked;
        first = from;
        second = to;
        return picks;
    }
    bool shows = true, picks = true;
    int asked = 0;
    OdGePoint2d from{30, 40}, to{10, 20};
};

class Exports : public HostTest {
protected:
    Exports() {
        host.SetFontFolders({});
        host.SetCurrentDocument(&document);
        host.SetPlotView(&view);
        host.SetExportOpener([this](const CString& path) {
            opened.push_back(path);
            return true;
        });
        addLine(L"*Model_Space");
    }
    ~Exports() override {
        host.SetCurrentDocument(nullptr);
        for (const auto& file : std::filesystem::directory_iterator(folder.path()))
            std::filesystem::remove(file.path());
    }

    CKhPlotSvr& plot() {
        return *static_cast<CKhPlotSvr*>(host.serviceManager()->getService(kKhPlotService));
    }
    OdDbObjectId block(const wchar_t* name) {
        OdDbBlockTablePtr blocks;
        document.drawing->getBlockTable(blocks);
        return blocks->getAt(name);
    }
    void addLine(const wchar_t* space) {
        OdSmartPtr<OdDbLine> line(new OdDbLine);
        line->setDatabaseDefaults(document.drawing.get());
        line->setEndPoint({100, 50, 0});
        block(space).open<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(OdDbEntityPtr(line.get()));
    }
    OdDbLayoutPtr layout() { return document.drawing->currentLayoutId().open<OdDbLayout>(OdDb::kForWrite); }
    CString path(const wchar_t* name) { return CString((folder.path() + L"\\" + name).c_str()); }
    std::string exported(const wchar_t* name = L"a.pdf") {
        EXPECT_TRUE(host.ExportDrawing(path(name), message)) << CStringA(message).GetString();
        return bytesOf(name);
    }
    std::string bytesOf(const wchar_t* name) {
        std::ifstream file(std::filesystem::path(path(name).GetString()), std::ios::binary);
        std::stringstream text;
        text << file.rdbuf();
        return text.str();
    }
    bool isThere(const wchar_t* name) { return ::GetFileAttributesW(path(name)) != INVALID_FILE_ATTRIBUTES; }
    CString refused(const wchar_t* name = L"a.pdf") {
        message.Empty();
        EXPECT_FALSE(host.ExportDrawing(path(name), message));
        EXPECT_TRUE(opened.empty());
        return message;
    }
    static int count(const std::string& text, const std::string& part) {
        int found = 0;
        for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++found;
        return found;
    }
    static int pages(const std::string& file) { return count(file, "/Type /Page "); }
    /// Shows a dialog by `show`, acts in it, and presses a button.
    void inDialog(const wchar_t* title, std::function<void()> show, std::function<void(HWND)> act,
                  int button) {
        when_dialog(title, [&](HWND dialog) {
            act(dialog);
            ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
        });
        show();
    }

    ExportedDocument document;
    PlottedView view;
    CString message;
    std::vector<CString> opened;
};

}  // namespace ui_test
