// A palette when windows can't be made, when it is renamed by a subclass, and what its name does to the
// strip.
#include "palette_fixture.h"

namespace {

using namespace docking_test;

/// While it lives no window is made on this thread.
class NoWindows {
public:
    NoWindows() : m_hook(::SetWindowsHookExW(WH_CBT, refuse, nullptr, ::GetCurrentThreadId())) {}
    ~NoWindows() { ::UnhookWindowsHookEx(m_hook); }
    NoWindows(const NoWindows&) = delete;
    NoWindows& operator=(const NoWindows&) = delete;

private:
    static LRESULT CALLBACK refuse(int code, WPARAM window, LPARAM data) {
        return code == HCBT_CREATEWND ? 1 : ::CallNextHookEx(nullptr, code, window, data);
    }
    HHOOK m_hook;
};

/// Counts the messages that one window gets while this lives.
class Counted {
public:
    explicit Counted(HWND window) {
        s_window = window;
        s_paints = s_erasures = 0;
        m_hook = ::SetWindowsHookExW(WH_CALLWNDPROC, count, nullptr, ::GetCurrentThreadId());
    }
    ~Counted() { ::UnhookWindowsHookEx(m_hook); }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    int paints() const { return s_paints; }
    int erasures() const { return s_erasures; }

private:
    static LRESULT CALLBACK count(int code, WPARAM sender, LPARAM data) {
        const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(data);
        if (sent.hwnd == s_window) {
            s_paints += sent.message == WM_PAINT;
            s_erasures += sent.message == WM_ERASEBKGND;
        }
        return ::CallNextHookEx(nullptr, code, sender, data);
    }
    HHOOK m_hook;
    static HWND s_window;
    static int s_paints, s_erasures;
};
HWND Counted::s_window = nullptr;
int Counted::s_paints = 0, Counted::s_erasures = 0;

/// A palette whose hooks say no.
class Refusing : public TestPalette {
public:
    Refusing() : TestPalette(L"Layers") {}
    int NameEditValidation(CEdit*) override {
        ++validations;
        return 0;
    }
    int OnKillActive() override {
        TestPalette::OnKillActive();
        return -1;
    }
    int validations = 0;
};

struct PaletteMessages : PaletteSetTest {
    Refusing* palette = new Refusing;
    TestPalette* other = new TestPalette(L"Blocks");

    void SetUp() override {
        PaletteSetTest::make();
        ASSERT_TRUE(palette->CKbUiPalette::Create(&set));
        ASSERT_EQ(set.AddPalette(palette), 0);
        ASSERT_EQ(set.AddPalette(other), 0);
        set.SetActivePalette(palette);
    }
};

TEST_F(PaletteMessages, TheSubclassIsNotAskedForItsConsentToAName) {
    palette->EditName();
    endNameEdit(L"Walls");
    EXPECT_EQ(palette->GetName(), L"Walls");
    EXPECT_EQ(palette->validations, 0);
}

TEST_F(PaletteMessages, TheAnswerOfTheOneThatGoesIsNotLookedAt) {
    ASSERT_EQ(set.GetActivePalette(), palette);
    other->OnSetActive();
    EXPECT_EQ(palette->kills, 1);
    EXPECT_EQ(set.GetActivePalette(), other);
}

TEST_F(PaletteMessages, WithoutAPopupTheNameEditDoesntBegin) {
    {
        const NoWindows none;
        EXPECT_EQ(palette->SendMessage(WM_USER + 101, 0, 0), 0);
    }
    EXPECT_EQ(openNameEdit(), nullptr);
    EXPECT_EQ(palette->SendMessage(WM_USER + 101, 0, 0), 1);
    endNameEdit(nullptr);
}

TEST_F(PaletteMessages, WithoutAWindowThereIsNoPalette) {
    CKbUiPalette late;
    late.SetName(L"Late");
    {
        const NoWindows none;
        EXPECT_EQ(late.Create(WS_CHILD, L"Other", &set, 1), 0);
    }
    EXPECT_EQ(late.m_hWnd, nullptr);
    EXPECT_EQ(late.GetName(), L"Late");
    EXPECT_EQ(late.GetPaletteStyle(), 0u);
    CSize size;
    EXPECT_EQ(late.GetMinimumSize(size), 0) << "it is in no set";
}

TEST_F(PaletteMessages, ANewNamePaintsTheStripAnewOnItsBackground) {
    strip().UpdateWindow();
    const Counted counted(strip().m_hWnd);
    palette->SetName(L"Walls");
    EXPECT_EQ(counted.paints(), 1);
    EXPECT_EQ(counted.erasures(), 1);
}

TEST_F(PaletteMessages, TheKeyHoldsTheAddressOfItsPath) {
    const NotedSettings::InForce settings;
    std::vector<std::wstring> paths;
    NotedSettings::onKey() = [&](const std::wstring& key) {
        paths.push_back(reinterpret_cast<const wchar_t*>(std::stoull(key.substr(0, 16), nullptr, 16)));
    };
    const CWinApp& application = *AfxGetApp();
    std::wstring path = L"SOFTWARE\\";
    for (const wchar_t* part : {application.m_pszRegistryKey, application.m_pszProfileName})
        if (part != nullptr) path += std::wstring(part) + L"\\";
    path += L"Palette\\";
    palette->Save(nullptr);
    palette->Load(nullptr);
    EXPECT_EQ(paths, (std::vector<std::wstring>{path, path}));
}

}  // namespace
