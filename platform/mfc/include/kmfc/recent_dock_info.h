// CRecentDockSiteInfo: where a pane was docked and where it floated.
#pragma once

#include <kmfc/docking_types.h>

/// One remembered place. It is there when m_nRecentPercent is not 0.
struct CRecentPaneContainerInfo {
    CRect m_rectDockedRect{0, 0, 0, 0};  ///< screen coordinates
    int m_nRecentPercent = 0;            ///< share of the room of its container, hundredths
    DWORD m_dwRecentAlignment = 0;       ///< CBRS_ALIGN_ bit of the side
};

/// Kept by each CPane in m_recentDockInfo. The docking manager itself keeps the exact place of a pane among
/// its neighbours; these are the figures that programs read.
class KMFC_API CRecentDockSiteInfo : public CObject {
public:
    explicit CRecentDockSiteInfo(CPane* pBar) : m_pBar(pBar) {}

    CRect m_rectRecentFloatingRect{0, 0, 0, 0};      ///< the floating frame, screen coordinates
    DWORD m_dwRecentAlignmentToFrame = 0;            ///< side of the frame at which the pane was docked
    CRecentPaneContainerInfo m_recentSliderInfo;     ///< docked in the main frame
    CRecentPaneContainerInfo m_recentMiniFrameInfo;  ///< in a floating frame

    /// The rectangle when last docked in the main frame (`bForSlider`), or when last in a floating frame.
    CRect& GetRecentDockedRect(BOOL bForSlider) {
        return bForSlider ? m_recentSliderInfo.m_rectDockedRect : m_recentMiniFrameInfo.m_rectDockedRect;
    }
    void SetInfo(BOOL bForSlider, const CRecentPaneContainerInfo& info) {
        (bForSlider ? m_recentSliderInfo : m_recentMiniFrameInfo) = info;
    }
    const CRecentPaneContainerInfo& GetInfo(BOOL bForSlider) const {
        return bForSlider ? m_recentSliderInfo : m_recentMiniFrameInfo;
    }
    /// Notes the pane's present place. No effect before it has a window.
    virtual void StoreDockInfo();
    CRecentDockSiteInfo& operator=(const CRecentDockSiteInfo& src);

protected:
    CPane* m_pBar;  ///< whose places these are
};
