// CXTMemDC: a device context in memory, of a rectangle's size, to draw a strip of tabs in.
//
// What is drawn stays in memory: whoever made it copies it to the target, straight or turned. Text goes to
// the context's own handle, whatever a target would make of it.
#pragma once

#include <afxwin.h>

#include <ktui/ktui_api.h>

class KTUI_API CXTMemDC : public CDC {
public:
    static constexpr COLORREF kNoColor = static_cast<COLORREF>(-1);  ///< leaves the picture as it was made

    CXTMemDC() = default;
    /// Creates at once; IsValid tells whether that worked.
    CXTMemDC(CDC* target, const CRect& rect, COLORREF color = kNoColor);
    ~CXTMemDC() override;
    CXTMemDC(const CXTMemDC&) = delete;
    CXTMemDC& operator=(const CXTMemDC&) = delete;

    /// Makes a picture of the size of `rect` (of the target's clip box if that is empty) in the target's
    /// mapping mode, and fills `rect` with `color`. What the object held before goes. Non-zero on success.
    int Create(CDC* target, const CRect& rect, COLORREF color = kNoColor);
    /// Gives the picture and the context back.
    void Release();

    bool IsValid() const { return m_valid; }
    /// The rectangle of the target that the picture stands for.
    const CRect& GetRect() const { return m_rect; }
    CDC* GetTarget() const { return m_target; }
    /// The picture, selected in the context.
    const CBitmap& GetBitmap() const { return m_bitmap; }

    using CDC::DrawText;
    using CDC::ExtTextOut;
    using CDC::PtVisible;
    using CDC::TextOut;
    BOOL TextOut(int x, int y, LPCTSTR text, int count) override;
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCTSTR text, UINT count,
                    LPINT widths) override;
    CSize TabbedTextOut(int x, int y, LPCTSTR text, int count, int positions, LPINT stops,
                        int origin) override;
    int DrawText(LPCTSTR text, int count, LPRECT rect, UINT format) override;
    int DrawTextEx(LPTSTR text, int count, LPRECT rect, UINT format, LPDRAWTEXTPARAMS params) override;
    BOOL PtVisible(int x, int y) const override;
    BOOL RectVisible(LPCRECT rect) const override;
    virtual BOOL GrayString(CBrush* brush, GRAYSTRINGPROC output, LPARAM data, int count, int x, int y,
                            int width, int height);
    virtual int Escape(int escape, int count, LPCSTR input, LPVOID output);

private:
    CDC* m_target = nullptr;  ///< not owned
    CRect m_rect;
    CBitmap m_bitmap;
    CBitmap* m_oldBitmap = nullptr;
    bool m_valid = false;
};
