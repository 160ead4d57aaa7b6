// The underlay export dialog with a plot service that notes what it is asked.
#pragma once

#include <kh_plot_service.h>
#include <ktui/nav/underlay_export_dlg.h>

#include <string>
#include <vector>

#include "open_drawing.h"
#include "recording_holder.h"
#include "shown_fixture.h"

/// Notes each call as a word with what it was given, and answers what the test sets.
class NotedPlotService final : public CKhPlotSvr {
public:
    std::vector<std::string> calls;
    KhExportSummary summary;
    bool first = false, second = false, windowMissing = false, override = false;
    int area = 0;
    OdDbPlotSettings* overridden = nullptr;
    std::function<void(const std::string& call)> onCall;  ///< while the call runs

    void plotStampDialog() override { note("stamp"); }
    void exportOptionsDialog() override { note("options"); }
    void getExportSummary(KhExportSummary& given) override {
        note("summary");
        given = summary;
    }
    void setExportFormat(int format, int flag) override {
        note("format " + std::to_string(format) + " " + std::to_string(flag));
    }
    void setSecondSwitch(bool on) override { note(on ? "second on" : "second off"); }
    bool getSecondSwitch() override {
        note("second?");
        return second;
    }
    void setFirstSwitch(bool on) override { note(on ? "first on" : "first off"); }
    bool getFirstSwitch() override {
        note("first?");
        return first;
    }
    void prepareArea(bool isModel) override { note(isModel ? "prepare model" : "prepare paper"); }
    void setPlotArea(int value, bool isModel) override {
        note("area " + std::to_string(value) + (isModel ? " model" : " paper"));
    }
    int getPlotArea(bool isModel) override {
        note(isModel ? "area? model" : "area? paper");
        return area;
    }
    bool hasNoWindow() override {
        note("no window?");
        return windowMissing;
    }
    void pickWindow() override { note("pick"); }
    void overrideDialog(OdDbPlotSettings* settings, int tag) override {
        overridden = settings;
        note("override " + std::to_string(tag));
    }
    void setOverride(bool on) override { note(on ? "override on" : "override off"); }
    bool getOverride() override {
        note("override?");
        return override;
    }

private:
    void note(const std::string& call) {
        calls.push_back(call);
        if (onCall) onCall(call);
    }
};

using Calls = std::vector<std::string>;

class UnderlayExport : public ShownTest {
protected:
    UnderlayExport() {
        dialog.SetCreatingFile(1);
        dialog.ConvertFlagsToState(0x10000000);
        dialog.SetDefaultFileExtension(L"pdf");
        host.services[L"CKhPlotSvr"] = &service;
        AfxGetApp()->m_pMainWnd = &main;
    }
    ~UnderlayExport() override { AfxGetApp()->m_pMainWnd = nullptr; }

    /// Shows the dialog, lets `at` look at it, and cancels.
    void look(std::function<void(HWND)> at) {
        run([&](HWND window) {
            at(window);
            press(window, IDCANCEL);
        });
    }
    /// The same, with the calls at the start forgotten.
    Calls callsOf(std::function<void(HWND)> act) {
        look([&](HWND window) {
            service.calls.clear();
            act(window);
        });
        return service.calls;
    }
    /// Of the file dialog that was shown last.
    const char* className() const {
        return dialog.GetImpObject()->m_fileDialog->GetRuntimeClass()->m_lpszClassName;
    }
    int templateId() const {
        const auto* const name = dialog.GetImpObject()->m_fileDialog->GetOFN().lpTemplateName;
        return static_cast<int>(reinterpret_cast<ULONG_PTR>(name));
    }
    static CString shown(HWND window, int id) { return text_of(own(window, id)); }
    static bool isEnabled(HWND window, int id) { return ::IsWindowEnabled(own(window, id)) != 0; }
    static int selected(HWND window, int box) {
        return static_cast<int>(::SendMessageW(own(window, box), CB_GETCURSEL, 0, 0));
    }
    /// Selects an entry as a user does.
    static void select(HWND window, int box, int index) {
        ::SendMessageW(own(window, box), CB_SETCURSEL, static_cast<WPARAM>(index), 0);
        ::SendMessageW(own(window), WM_COMMAND, MAKEWPARAM(box, CBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(own(window, box)));
    }
    /// Checks or clears a box as a user does.
    static void turn(HWND window, int id) { ::SendMessageW(own(window, id), BM_CLICK, 0, 0); }
    /// Entries of a box with their data.
    static std::vector<std::pair<std::wstring, int>> entries(HWND window, int box) {
        std::vector<std::pair<std::wstring, int>> found;
        const HWND control = own(window, box);
        for (WPARAM i = 0; i < static_cast<WPARAM>(::SendMessageW(control, CB_GETCOUNT, 0, 0)); ++i) {
            wchar_t text[100] = {};
            ::SendMessageW(control, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
            found.emplace_back(text, static_cast<int>(::SendMessageW(control, CB_GETITEMDATA, i, 0)));
        }
        return found;
    }
    /// The current layout of the drawing is one on paper, or model space's.
    void makePaperCurrent() const { setModelType(false); }
    void setModelType(bool model) const {
        open.drawing().currentLayoutId().open<OdDbLayout>(OdDb::kForWrite)->setModelType(model);
    }

    NotedPlotService service;
    ui_test::RecordingHolder main;
    ui_test::OpenDrawing open{host};
};
