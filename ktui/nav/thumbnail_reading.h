// The steps of a preview: reading it, for which any thread serves, and painting it. Private to the library.
#pragma once

#include <string>

#include <ktui/nav/background_reader.h>
#include <ktui/nav/thumbnail.h>

/// What KtUiSetThumbnailProvider set; null for none.
KtUiThumbnailProvider ThumbnailProvider();

/// ktuiGetThumbnail with a provider of the caller's, which may be null.
HBITMAP ReadThumbnail(KtUiThumbnailProvider asked, const wchar_t* path, int width, int height);

/// Paints a preview into the middle of `width` by `height` pixels at the origin of `dc`.
void PaintThumbnail(HBITMAP bitmap, HDC dc, int width, int height);

/// A preview to be read by the provider of the moment, whose module is held meanwhile.
class ThumbnailReading : public BackgroundReading {
public:
    ThumbnailReading(const wchar_t* path, SIZE room);
    ~ThumbnailReading() override;
    void Read() override;

    const std::wstring& Path() const { return m_path; }
    SIZE Room() const { return m_room; }
    /// What was read, owned by this object; null for none.
    HBITMAP Bitmap() const { return m_bitmap; }

private:
    std::wstring m_path;
    SIZE m_room;
    KtUiThumbnailProvider m_provider;
    HMODULE m_module = nullptr;  ///< of the provider
    HBITMAP m_bitmap = nullptr;
};
