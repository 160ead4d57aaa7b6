// CCreateContext: what a frame is told about the view that it shall make.
#pragma once

#include <afx.h>

class CDocTemplate;
class CDocument;
class CFrameWnd;
class CView;

/// Comes with the creation of frames and views. Any of it may be null.
struct CCreateContext {
    CRuntimeClass* m_pNewViewClass = nullptr;
    CDocument* m_pCurrentDoc = nullptr;
    CDocTemplate* m_pNewDocTemplate = nullptr;
    CView* m_pLastView = nullptr;          ///< the view that the new one is modelled on
    CFrameWnd* m_pCurrentFrame = nullptr;  ///< the frame that the new one is modelled on
};
