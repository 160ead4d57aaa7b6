// The placeholder of a theme: every question is answered with 0, and nothing that is told is kept.
#include <ktui/docking/kbui_theme.h>

#include <cstring>
#include <type_traits>

#include "ui_test.h"

/// What makes themes lies outside the toolkit; here it is the test.
class CKbUiThemeMgr {
public:
    static CKbUiTheme* make() { return new CKbUiTheme; }
    static void end(CKbUiTheme* theme) { delete theme; }
    static int references(const CKbUiTheme& theme) { return theme.RefCount(); }
    static void release(CKbUiTheme& theme) { theme.DecrementRefCount(); }
    static int suspensions(const CKbUiTheme& theme) { return theme.m_suspendCount; }
    static void setUsesXP(CKbUiTheme& theme, int value) { theme.m_usesXP = value; }
    static int usesXP(const CKbUiTheme& theme) { return theme.UsesXP(); }
    static void tellAll(CKbUiTheme& theme) {
        theme.SendThemeModifiedNotifications(static_cast<KbUiThemeElement>(1));
        theme.CheckXP();
    }
    static bool isEmpty(const CKbUiTheme& theme) {
        return theme.m_colors.IsEmpty() && theme.m_data.IsEmpty() && theme.m_reactors.IsEmpty();
    }
    static UINT colorBuckets(const CKbUiTheme& theme) { return theme.m_colors.GetHashTableSize(); }
    static UINT dataBuckets(const CKbUiTheme& theme) { return theme.m_data.GetHashTableSize(); }
    static void fill(CKbUiTheme& theme, CKbUiThemeModifiedReactor* reactor) {
        theme.m_colors.SetAt(1, 2);
        theme.m_data.SetAt(1, CString(L"text"));
        theme.m_reactors.Add(reactor);
    }
};

/// An observer that fails the test when anything of it is called.
class CKbUiThemeModifiedReactor {
public:
    virtual void first() { ADD_FAILURE() << "called"; }
    virtual void second() { ADD_FAILURE() << "called"; }
    virtual ~CKbUiThemeModifiedReactor() = default;
};

namespace {

constexpr auto kElement = static_cast<KbUiThemeElement>(3);

struct Theme : ::testing::Test {
    CKbUiTheme& theme = *CKbUiThemeMgr::make();
    ~Theme() override { CKbUiThemeMgr::end(&theme); }
};

TEST_F(Theme, HasNoColorForAnyElement) {
    for (int element = -1; element < 200; ++element)
        EXPECT_EQ(theme.GetColor(static_cast<KbUiThemeElement>(element)), 0u) << element;
}

TEST_F(Theme, KeepsNoColor) {
    EXPECT_EQ(theme.SetColor(kElement, 0x123456), 0);
    EXPECT_EQ(theme.GetColor(kElement), 0u);
    EXPECT_TRUE(CKbUiThemeMgr::isEmpty(theme));
}

TEST_F(Theme, HasNoFontAndLeavesTheArgumentAlone) {
    LOGFONT font;
    std::memset(&font, 0x5A, sizeof font);
    const LOGFONT before = font;
    EXPECT_EQ(theme.SetFont(kElement, &font), 0);
    EXPECT_EQ(theme.GetFont(kElement, &font), 0);
    EXPECT_EQ(std::memcmp(&font, &before, sizeof font), 0);
    CFont own;
    CFont* pointer = &own;
    EXPECT_EQ(theme.GetFont(kElement, pointer), 0);
    EXPECT_EQ(pointer, &own);
}

TEST_F(Theme, KeepsNoData) {
    theme.SetData(7, CString(L"kept?"));
    theme.SetData(7, 99ul);
    CString text = L"mine";
    unsigned long value = 5;
    EXPECT_EQ(theme.GetData(7, text), 0);
    EXPECT_EQ(theme.GetData(7, value), 0);
    EXPECT_EQ(text, L"mine");
    EXPECT_EQ(value, 5u);
    EXPECT_TRUE(CKbUiThemeMgr::isEmpty(theme));
}

TEST_F(Theme, AReactorIsRefusedAndNeverCalled) {
    CKbUiThemeModifiedReactor reactor;
    EXPECT_EQ(theme.RegisterReactor(&reactor), 0);
    EXPECT_TRUE(CKbUiThemeMgr::isEmpty(theme));
    CKbUiThemeMgr::fill(theme, &reactor);
    theme.SendModifiedNotification();
    CKbUiThemeMgr::tellAll(theme);
    theme.SetColor(kElement, 1);
    EXPECT_EQ(theme.UnregisterReactor(&reactor), 0);
    EXPECT_FALSE(CKbUiThemeMgr::isEmpty(theme));
}

TEST_F(Theme, TheCountOfSuspensionsOnlyRises) {
    const int before = CKbUiThemeMgr::suspensions(theme);
    theme.SuspendModifiedNotifications();
    theme.SuspendModifiedNotifications();
    theme.ResumeModifiedNotifications();
    EXPECT_EQ(CKbUiThemeMgr::suspensions(theme), before + 2);
}

TEST_F(Theme, ReferencesAreCountedAndTheLastOneDeletesNothing) {
    const int before = CKbUiThemeMgr::references(theme);
    theme.IncrementRefCount();
    theme.IncrementRefCount();
    EXPECT_EQ(CKbUiThemeMgr::references(theme), before + 2);
    CKbUiThemeMgr::release(theme);
    CKbUiThemeMgr::release(theme);
    EXPECT_EQ(CKbUiThemeMgr::references(theme), before);
    EXPECT_EQ(theme.GetColor(kElement), 0u) << "still there";
}

TEST_F(Theme, AnAssignmentCopiesNothing) {
    CKbUiTheme& other = *CKbUiThemeMgr::make();
    other.IncrementRefCount();
    other.SuspendModifiedNotifications();
    const int references = CKbUiThemeMgr::references(theme);
    EXPECT_EQ(&(theme = &other), &theme);
    EXPECT_EQ(CKbUiThemeMgr::references(theme), references);
    EXPECT_EQ(CKbUiThemeMgr::suspensions(theme), 0);
    CKbUiThemeMgr::end(&other);
}

TEST_F(Theme, ReadsWhetherItUsesVisualStyles) {
    CKbUiThemeMgr::setUsesXP(theme, 17);
    EXPECT_EQ(CKbUiThemeMgr::usesXP(theme), 17);
    CKbUiThemeMgr::tellAll(theme);
    EXPECT_EQ(CKbUiThemeMgr::usesXP(theme), 17);
}

TEST_F(Theme, ItsMapsHaveSeventeenBuckets) {
    EXPECT_EQ(CKbUiThemeMgr::colorBuckets(theme), 17u);
    EXPECT_EQ(CKbUiThemeMgr::dataBuckets(theme), 17u);
}

TEST(ThemeType, CannotBeMadeOrEndedByAClient) {
    EXPECT_FALSE(std::is_default_constructible_v<CKbUiTheme>);
    EXPECT_FALSE(std::is_destructible_v<CKbUiTheme>);
    EXPECT_TRUE(std::is_polymorphic_v<CKbUiTheme>);
}

TEST(ThemeMgrReactor, IsAbstractWithThreeOperationsAndCanBeCopied) {
    EXPECT_TRUE(std::is_abstract_v<CKbUiThemeMgrReactor>);
    struct Observer : CKbUiThemeMgrReactor {
        int heard = 0;
        void first() override { ++heard; }
        void second() override { ++heard; }
        void third() override { ++heard; }
    } one;
    Observer copy(one);
    copy = one;
    EXPECT_EQ(copy.heard, 0);
    EXPECT_EQ(sizeof(CKbUiThemeMgrReactor), sizeof(void*)) << "nothing but its operations";
}

}  // namespace
