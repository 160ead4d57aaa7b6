// The docking classes as the framework finds them by name.
#include <ktui/docking/kbui_palette.h>
#include <ktui/docking/kbui_palette_set.h>
#include <ktui/docking/mfc_tab_ctrl_ex.h>
#include <ktui/docking/multi_pane_frame_wnd_ex.h>
#include <ktui/docking/tabbed_pane_ex.h>

#include "ui_test.h"

TEST(DockingClasses, AreRegisteredWithTheLibrary) {
    EXPECT_EQ(CRuntimeClass::FromName("CTabbedPaneEx"), RUNTIME_CLASS(CTabbedPaneEx));
    EXPECT_EQ(CRuntimeClass::FromName("CMultiPaneFrameWndEx"), RUNTIME_CLASS(CMultiPaneFrameWndEx));
    EXPECT_EQ(CRuntimeClass::FromName("CKbUiDockControlBar"), RUNTIME_CLASS(CKbUiDockControlBar));
}

TEST(DockingClasses, AreMadeByTheFramework) {
    for (CRuntimeClass* made :
         {RUNTIME_CLASS(CTabbedPaneEx), RUNTIME_CLASS(CMultiPaneFrameWndEx), RUNTIME_CLASS(CMFCTabCtrlEx),
          RUNTIME_CLASS(CKbUiDockControlBar), RUNTIME_CLASS(CKbUiPalette), RUNTIME_CLASS(CKbUiPaletteSet)}) {
        CObject* object = made->CreateObject();
        ASSERT_NE(object, nullptr) << made->m_lpszClassName;
        EXPECT_EQ(object->GetRuntimeClass(), made);
        delete object;
    }
}
