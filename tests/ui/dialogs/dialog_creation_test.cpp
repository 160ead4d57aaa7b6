// Which resource module is current while a dialog is made and shown, and in which order it comes up.
#include <ktui/tips/kbui_text_tip.h>

#include "dialog_fixture.h"

namespace {

using ui_test::later;

/// The resources of `module`, at first of another than the one with the templates, are current for as long as
/// this lives.
class OtherResources {
public:
    explicit OtherResources(HINSTANCE module = handle()) : m_former(AfxGetResourceHandle()) {
        AfxSetResourceHandle(module);
    }
    ~OtherResources() { AfxSetResourceHandle(m_former); }
    OtherResources(const OtherResources&) = delete;
    OtherResources& operator=(const OtherResources&) = delete;
    static HINSTANCE handle() { return ::GetModuleHandleW(L"kernel32.dll"); }

private:
    HINSTANCE m_former;
};

/// Notes what it calls with the resource module that is current then.
class SwitchingDialog : public CKbUiBaseDialog {
public:
    SwitchingDialog(CWnd* parent, HINSTANCE resource) : CKbUiBaseDialog(IDD_ELASTIC, parent, resource) {}
    using CKbUiBaseDialog::m_isModal;
    using CKbUiBaseDialog::m_savedResource;
    std::vector<std::string> log;
    BOOL initialised = -1;
    bool failing = false;

protected:
    void note(const std::string& call) {
        const HINSTANCE current = AfxGetResourceHandle();
        std::string line = call + (current == AfxGetInstanceHandle()     ? " own"
                                   : current == OtherResources::handle() ? " other"
                                                                         : " ?");
        if (m_savedResource != nullptr)
            line += m_savedResource == OtherResources::handle() ? " saved" : " wrong";
        log.push_back(line + (m_isModal ? " modal" : ""));
    }
    BOOL OnInitDialog() override {
        note("init");
        return initialised = CKbUiBaseDialog::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* exchange) override {
        if (failing) exchange->Fail();
    }
    void EnableFloatingWindows(int enable) override { note(enable == 1 ? "floating 1" : "floating 0"); }
    int EnableMultiDocumentActivation(int enable) override {
        note(enable == 1 ? "activation 1" : "activation 0");
        return 0;
    }
};

class ResourceSwitch : public DialogTest {};

TEST_F(ResourceSwitch, LastsThroughAModalShowingAndTheHooksAroundIt) {
    OtherResources other;
    SwitchingDialog dialog(&parent, AfxGetInstanceHandle());
    later([&] { dialog.EndDialog(1234); });
    EXPECT_EQ(dialog.DoModal(), 1234);
    EXPECT_EQ(dialog.log,
              (std::vector<std::string>{"floating 0 own saved modal", "activation 0 own saved modal",
                                        "init own saved modal", "activation 1 own saved modal",
                                        "floating 1 own saved modal"}));
    EXPECT_EQ(AfxGetResourceHandle(), OtherResources::handle());
    EXPECT_EQ(dialog.m_savedResource, nullptr);
    EXPECT_EQ(dialog.m_isModal, 0);
}

TEST_F(ResourceSwitch, LastsThroughTheMakingOfAModelessDialogByIdAndByName) {
    OtherResources other;
    SwitchingDialog byId(&parent, AfxGetInstanceHandle()), byName(&parent, AfxGetInstanceHandle());
    EXPECT_TRUE(byId.Create(IDD_ELASTIC, &parent));
    EXPECT_EQ(byId.log, (std::vector<std::string>{"init own saved"}));
    EXPECT_EQ(AfxGetResourceHandle(), OtherResources::handle());
    EXPECT_EQ(byId.m_savedResource, nullptr);
    EXPECT_TRUE(byName.Create(MAKEINTRESOURCEW(IDD_FIXED), &parent));
    EXPECT_EQ(byName.log, (std::vector<std::string>{"init own saved"}));
    EXPECT_EQ(AfxGetResourceHandle(), OtherResources::handle());
    EXPECT_EQ(ui_test::text_of(byId.m_hWnd), L"elastic");
    EXPECT_EQ(ui_test::text_of(byName.m_hWnd), L"fixed");
}

TEST_F(ResourceSwitch, EndsWhenTheTemplateIsMissing) {
    OtherResources other;
    SwitchingDialog dialog(&parent, AfxGetInstanceHandle());
    EXPECT_FALSE(dialog.Create(L"NO SUCH TEMPLATE", &parent));
    EXPECT_EQ(AfxGetResourceHandle(), OtherResources::handle());
    EXPECT_EQ(dialog.m_savedResource, nullptr);
}

TEST_F(ResourceSwitch, IsLeftOutWithoutAModuleOfItsOwn) {
    OtherResources own(AfxGetInstanceHandle());
    SwitchingDialog modal(&parent, nullptr), modeless(&parent, nullptr);
    later([&] {
        AfxSetResourceHandle(OtherResources::handle());
        modal.EndDialog(5);
    });
    EXPECT_EQ(modal.DoModal(), 5);
    EXPECT_EQ(AfxGetResourceHandle(), OtherResources::handle()) << "what was set in between stays";
    AfxSetResourceHandle(AfxGetInstanceHandle());
    EXPECT_EQ(modal.log,
              (std::vector<std::string>{"floating 0 own modal", "activation 0 own modal", "init own modal",
                                        "activation 1 other modal", "floating 1 other modal"}));
    EXPECT_TRUE(modeless.Create(IDD_ELASTIC, &parent));
    EXPECT_EQ(modeless.log, (std::vector<std::string>{"init own"}));
}

TEST_F(ResourceSwitch, TheResultOfTheInitialisationIsThePlatforms) {
    SwitchingDialog good(&parent, nullptr), bad(&parent, nullptr);
    good.Create(IDD_ELASTIC, &parent);
    EXPECT_EQ(good.initialised, TRUE);
    bad.failing = true;
    EXPECT_EQ(bad.DoModal(), -1);
    EXPECT_EQ(bad.initialised, FALSE);
}

/// Notes the order of its initialisation, and whether its tips are there.
class InitialisingDialog : public CKbUiBaseDialog {
public:
    explicit InitialisingDialog(CWnd* parent) : CKbUiBaseDialog(IDD_ELASTIC, parent, nullptr) {}
    using CKbUiBaseDialog::m_icon;
    std::vector<std::string> log;
    std::vector<HICON> icons;

protected:
    void note(const std::string& call) {
        const bool tips = m_textTip != nullptr && m_toolTip != nullptr;
        log.push_back(call + (tips ? " tips" : "") + (GetExStyle() & WS_EX_CONTEXTHELP ? " help" : ""));
    }
    void OnInitDialogBegin() override {
        ModifyStyleEx(0, WS_EX_CONTEXTHELP | WS_EX_DLGMODALFRAME);
        note("begin");
    }
    void DoDataExchange(CDataExchange* exchange) override {
        note(exchange->m_bSaveAndValidate ? "save" : "fill");
    }
    void OnInitDialogFinish() override { note("finish"); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_SETICON) {
            note(wParam == ICON_BIG ? "big" : "small");
            icons.push_back(reinterpret_cast<HICON>(lParam));
        }
        return CKbUiBaseDialog::WindowProc(message, wParam, lParam);
    }
};

class Initialisation : public DialogTest {};

TEST_F(Initialisation, HooksThenTipsThenIconsThenTheHelpButtonGoes) {
    InitialisingDialog dialog(&parent);
    ASSERT_TRUE(dialog.Create(IDD_ELASTIC, &parent));
    EXPECT_TRUE(dialog.GetExStyle() & WS_EX_DLGMODALFRAME) << "the rest of the style stays";
    EXPECT_EQ(dialog.log, (std::vector<std::string>{"begin help", "fill help", "finish help", "big tips help",
                                                    "small tips help"}));
    EXPECT_FALSE(dialog.GetExStyle() & WS_EX_CONTEXTHELP);
    const HICON icon = ::LoadIconW(::GetModuleHandleW(L"ktui.dll"), MAKEINTRESOURCEW(1017));
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(dialog.icons, (std::vector<HICON>{icon, icon}));
    EXPECT_EQ(dialog.GetDialogIcon(), icon);
}

TEST_F(Initialisation, AnIconThatIsSetBeforeIsKeptAndNotSent) {
    InitialisingDialog dialog(&parent);
    dialog.m_icon = ::LoadIconW(nullptr, IDI_WARNING);
    ASSERT_TRUE(dialog.Create(IDD_ELASTIC, &parent));
    EXPECT_TRUE(dialog.icons.empty());
    EXPECT_EQ(dialog.GetDialogIcon(), ::LoadIconW(nullptr, IDI_WARNING));
    dialog.SetDialogIcon(::LoadIconW(nullptr, IDI_ERROR));
    EXPECT_EQ(dialog.icons, (std::vector<HICON>(2, ::LoadIconW(nullptr, IDI_ERROR))));
    EXPECT_EQ(dialog.log.back(), "small tips");
}

TEST_F(Initialisation, AnIconMayBeSetFirstThingInTheSubclass) {
    InitialisingDialog dialog(&parent);
    ASSERT_TRUE(dialog.Create(IDD_ELASTIC, &parent));
    dialog.SetDialogIcon(nullptr);
    EXPECT_EQ(dialog.GetDialogIcon(), nullptr);
    EXPECT_EQ(dialog.icons.back(), nullptr);
}

}  // namespace
