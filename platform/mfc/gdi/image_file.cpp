// CImage: loading and saving by the system's decoders and encoders.
#include <atlimage.h>

#include <memory>
#include <new>
#include <vector>

#include <shlwapi.h>
#include <wincodec.h>

#include "../core/com_reference.h"

namespace {

using kmfc::fill;
using kmfc::Reference;

/// COM for its lifetime, whether or not the caller has it.
class ComScope {
public:
    ComScope() : m_result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComScope() {
        if (SUCCEEDED(m_result)) ::CoUninitialize();
    }
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;

private:
    HRESULT m_result;
};

HRESULT make_factory(Reference<IWICImagingFactory>& factory) {
    return fill(factory, [](IWICImagingFactory** made) {
        return ::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                  IID_IWICImagingFactory, reinterpret_cast<void**>(made));
    });
}

/// A type of picture files.
struct Format {
    const GUID* type;       ///< as callers name it
    const GUID* container;  ///< as the system does
    DWORD exclude;
    const wchar_t* description;
    const wchar_t* patterns;
    bool isSaved;
};

const Format kFormats[] = {
    {&Gdiplus::ImageFormatBMP, &GUID_ContainerFormatBmp, CImage::excludeBMP, L"BMP", L"*.BMP;*.DIB;*.RLE",
     true},
    {&Gdiplus::ImageFormatJPEG, &GUID_ContainerFormatJpeg, CImage::excludeJPEG, L"JPEG",
     L"*.JPG;*.JPEG;*.JPE;*.JFIF", true},
    {&Gdiplus::ImageFormatGIF, &GUID_ContainerFormatGif, CImage::excludeGIF, L"GIF", L"*.GIF", true},
    {&Gdiplus::ImageFormatTIFF, &GUID_ContainerFormatTiff, CImage::excludeTIFF, L"TIFF", L"*.TIF;*.TIFF",
     true},
    {&Gdiplus::ImageFormatPNG, &GUID_ContainerFormatPng, CImage::excludePNG, L"PNG", L"*.PNG", true},
    {&Gdiplus::ImageFormatIcon, &GUID_ContainerFormatIco, CImage::excludeIcon, L"ICO", L"*.ICO", false},
};

/// The format that a type or else a file's name tells; null for none that can be saved.
const Format* saved_format(REFGUID type, LPCWSTR name) {
    for (const Format& each : kFormats) {
        if (!each.isSaved) continue;
        if (type != GUID_NULL
                ? type == *each.type
                : name != nullptr && ::PathMatchSpecExW(name, each.patterns, PMSF_MULTIPLE) == S_OK)
            return &each;
    }
    return nullptr;
}

/// How the bits of a decoded picture are kept.
struct Layout {
    WICPixelFormatGUID format;
    int bpp;
    bool hasAlpha;
};

bool has_alpha(IWICImagingFactory& factory, REFGUID format) {
    Reference<IWICComponentInfo> info;
    if (FAILED(fill(info, [&](auto** made) { return factory.CreateComponentInfo(format, made); })))
        return false;
    Reference<IWICPixelFormatInfo2> pixels;
    BOOL transparent = FALSE;
    if (FAILED(fill(pixels, [&](auto** made) {
            return info->QueryInterface(IID_IWICPixelFormatInfo2, reinterpret_cast<void**>(made));
        })))
        return false;
    return SUCCEEDED(pixels->SupportsTransparency(&transparent)) && transparent;
}

Layout layout_of(IWICImagingFactory& factory, REFGUID format) {
    if (format == GUID_WICPixelFormat1bppIndexed) return {format, 1, false};
    if (format == GUID_WICPixelFormat4bppIndexed) return {format, 4, false};
    if (format == GUID_WICPixelFormat8bppIndexed) return {format, 8, false};
    if (format == GUID_WICPixelFormat32bppBGR) return {format, 32, false};
    if (has_alpha(factory, format)) return {GUID_WICPixelFormat32bppPBGRA, 32, true};
    return {GUID_WICPixelFormat24bppBGR, 24, false};
}

}  // namespace

/// Moves a CImage between its bits and the system's decoders.
class PictureFile {
public:
    static HRESULT load(CImage& image, IStream& stream);
    static HRESULT save(const CImage& image, IStream& stream, const Format& format);

private:
    static HRESULT copy_palette(IWICImagingFactory& factory, IWICBitmapFrameDecode& frame, CImage& image);
    static HRESULT write_frame(IWICImagingFactory& factory, const CImage& image, IWICBitmapFrameEncode& frame,
                               const Format& format);
};

HRESULT PictureFile::load(CImage& image, IStream& stream) {
    Reference<IWICImagingFactory> factory;
    HRESULT result = make_factory(factory);
    if (FAILED(result)) return result;
    Reference<IWICBitmapDecoder> decoder;
    result = fill(decoder, [&](auto** made) {
        return factory->CreateDecoderFromStream(&stream, nullptr, WICDecodeMetadataCacheOnDemand, made);
    });
    if (FAILED(result)) return result;
    Reference<IWICBitmapFrameDecode> frame;
    result = fill(frame, [&](auto** made) { return decoder->GetFrame(0, made); });
    if (FAILED(result)) return result;

    WICPixelFormatGUID stored;
    UINT width = 0, height = 0;
    result = frame->GetPixelFormat(&stored);
    if (SUCCEEDED(result)) result = frame->GetSize(&width, &height);
    if (FAILED(result)) return result;
    if (width == 0 || height == 0 || width > INT_MAX || height > INT_MAX) return E_FAIL;
    const Layout layout = layout_of(*factory, stored);

    Reference<IWICFormatConverter> converter;
    IWICBitmapSource* source = frame.get();
    if (stored != layout.format) {
        result = fill(converter, [&](auto** made) { return factory->CreateFormatConverter(made); });
        if (SUCCEEDED(result))
            result = converter->Initialize(frame.get(), layout.format, WICBitmapDitherTypeNone, nullptr, 0,
                                           WICBitmapPaletteTypeCustom);
        if (FAILED(result)) return result;
        source = converter.get();
    }
    CImage made;
    if (!made.Create(static_cast<int>(width), -static_cast<int>(height), layout.bpp,
                     layout.hasAlpha ? CImage::createAlphaChannel : 0))
        return E_OUTOFMEMORY;
    const UINT pitch = static_cast<UINT>(made.GetPitch());
    result = source->CopyPixels(nullptr, pitch, pitch * height, static_cast<BYTE*>(made.GetBits()));
    if (SUCCEEDED(result) && layout.bpp <= 8) result = copy_palette(*factory, *frame, made);
    if (FAILED(result)) return result;
    const LONG transparent = made.m_transparent;
    image.Attach(made.Detach(), CImage::DIBOR_TOPDOWN);
    image.m_hasAlpha = layout.hasAlpha;
    image.m_transparent = transparent;
    return S_OK;
}

HRESULT PictureFile::copy_palette(IWICImagingFactory& factory, IWICBitmapFrameDecode& frame, CImage& image) {
    Reference<IWICPalette> palette;
    HRESULT result = fill(palette, [&](auto** made) { return factory.CreatePalette(made); });
    if (SUCCEEDED(result)) result = frame.CopyPalette(palette.get());
    WICColor colors[256] = {};
    UINT count = 0;
    if (SUCCEEDED(result)) result = palette->GetColors(256, colors, &count);
    if (FAILED(result)) return result;
    RGBQUAD table[256] = {};
    count = std::min<UINT>(count, static_cast<UINT>(image.GetMaxColorTableEntries()));
    for (UINT i = 0; i < count; ++i) {
        table[i] = {static_cast<BYTE>(colors[i]), static_cast<BYTE>(colors[i] >> 8),
                    static_cast<BYTE>(colors[i] >> 16), 0};
        if ((colors[i] >> 24) == 0 && image.m_transparent < 0) image.m_transparent = static_cast<LONG>(i);
    }
    image.SetColorTable(0, count, table);
    return S_OK;
}

HRESULT PictureFile::save(const CImage& image, IStream& stream, const Format& format) {
    Reference<IWICImagingFactory> factory;
    HRESULT result = make_factory(factory);
    if (FAILED(result)) return result;
    Reference<IWICBitmapEncoder> encoder;
    result =
        fill(encoder, [&](auto** made) { return factory->CreateEncoder(*format.container, nullptr, made); });
    if (SUCCEEDED(result)) result = encoder->Initialize(&stream, WICBitmapEncoderNoCache);
    if (FAILED(result)) return result;
    Reference<IWICBitmapFrameEncode> frame;
    result = fill(frame, [&](auto** made) { return encoder->CreateNewFrame(made, nullptr); });
    if (SUCCEEDED(result)) result = frame->Initialize(nullptr);
    if (SUCCEEDED(result)) result = write_frame(*factory, image, *frame, format);
    if (SUCCEEDED(result)) result = frame->Commit();
    return SUCCEEDED(result) ? encoder->Commit() : result;
}

HRESULT PictureFile::write_frame(IWICImagingFactory& factory, const CImage& image,
                                 IWICBitmapFrameEncode& frame, const Format& format) {
    // A bitmap that is not the picture's own is selected nowhere while the system reads it.
    Reference<IWICBitmap> bits;
    const WICBitmapAlphaChannelOption alpha =
        image.m_hasAlpha ? WICBitmapUsePremultipliedAlpha : WICBitmapIgnoreAlpha;
    HRESULT result = fill(bits, [&](auto** made) {
        return factory.CreateBitmapFromHBITMAP(image.m_hBitmap, nullptr, alpha, made);
    });
    if (FAILED(result)) return result;
    result = frame.SetSize(static_cast<UINT>(image.GetWidth()), static_cast<UINT>(image.GetHeight()));
    WICPixelFormatGUID wanted = image.m_hasAlpha ? GUID_WICPixelFormat32bppBGRA : GUID_WICPixelFormat24bppBGR;
    Reference<IWICPalette> palette;
    const bool isIndexed = *format.container == GUID_ContainerFormatGif;
    if (isIndexed) {
        wanted = GUID_WICPixelFormat8bppIndexed;
        if (SUCCEEDED(result))
            result = fill(palette, [&](auto** made) { return factory.CreatePalette(made); });
        if (SUCCEEDED(result))
            result = palette->InitializePredefined(WICBitmapPaletteTypeFixedWebPalette, FALSE);
        if (SUCCEEDED(result)) result = frame.SetPalette(palette.get());
    }
    if (SUCCEEDED(result)) result = frame.SetPixelFormat(&wanted);
    if (FAILED(result)) return result;
    Reference<IWICFormatConverter> converter;
    result = fill(converter, [&](auto** made) { return factory.CreateFormatConverter(made); });
    if (SUCCEEDED(result))
        result = converter->Initialize(
            bits.get(), wanted, WICBitmapDitherTypeNone, palette.get(), 0,
            isIndexed ? WICBitmapPaletteTypeFixedWebPalette : WICBitmapPaletteTypeCustom);
    return SUCCEEDED(result) ? frame.WriteSource(converter.get(), nullptr) : result;
}

HRESULT CImage::Load(LPCTSTR pszFileName) noexcept {
    if (pszFileName == nullptr) return E_INVALIDARG;
    Reference<IStream> stream;
    const HRESULT result = fill(stream, [&](IStream** made) {
        return ::SHCreateStreamOnFileW(pszFileName, STGM_READ | STGM_SHARE_DENY_WRITE, made);
    });
    return SUCCEEDED(result) ? Load(stream.get()) : result;
}

HRESULT CImage::Load(IStream* pStream) noexcept {
    if (pStream == nullptr) return E_INVALIDARG;
    const ComScope com;
    return PictureFile::load(*this, *pStream);
}

HRESULT CImage::Save(LPCTSTR pszFileName, REFGUID guidFileType) const noexcept {
    const Format* format = saved_format(guidFileType, pszFileName);
    if (pszFileName == nullptr || IsNull()) return E_INVALIDARG;
    if (format == nullptr) return E_FAIL;
    Reference<IStream> stream;
    const HRESULT result = fill(stream, [&](IStream** made) {
        return ::SHCreateStreamOnFileW(pszFileName, STGM_CREATE | STGM_READWRITE, made);
    });
    if (FAILED(result)) return result;
    const ComScope com;
    return PictureFile::save(*this, *stream, *format);
}

HRESULT CImage::Save(IStream* pStream, REFGUID guidFileType) const noexcept {
    const Format* format = saved_format(guidFileType, nullptr);
    if (pStream == nullptr || IsNull()) return E_INVALIDARG;
    if (format == nullptr) return E_FAIL;
    const ComScope com;
    return PictureFile::save(*this, *pStream, *format);
}

namespace {

HRESULT filter_string(CSimpleString& filter, CSimpleArray<GUID>& types, LPCTSTR all, DWORD exclude,
                      TCHAR separator, bool isSave) {
    CString every, each;
    types.RemoveAll();
    if (all != nullptr) types.Add(GUID_NULL);
    for (const Format& format : kFormats) {
        if ((format.exclude & exclude) || (isSave && !format.isSaved)) continue;
        if (!every.IsEmpty()) every += L';';
        every += format.patterns;
        each += format.description;
        each += L" (";
        each += format.patterns;
        each += L')';
        each += separator;
        each += format.patterns;
        each += separator;
        types.Add(*format.type);
    }
    CString whole;
    if (all != nullptr) {
        whole = all;
        whole += separator;
        whole += every;
        whole += separator;
    }
    whole += each;
    whole += separator;
    filter = whole;
    return S_OK;
}

}  // namespace

HRESULT CImage::GetImporterFilterString(CSimpleString& strImporters, CSimpleArray<GUID>& aguidFileTypes,
                                        LPCTSTR pszAllFilesDescription, DWORD dwExclude, TCHAR chSeparator) {
    return filter_string(strImporters, aguidFileTypes, pszAllFilesDescription, dwExclude, chSeparator, false);
}

HRESULT CImage::GetExporterFilterString(CSimpleString& strExporters, CSimpleArray<GUID>& aguidFileTypes,
                                        LPCTSTR pszAllFilesDescription, DWORD dwExclude, TCHAR chSeparator) {
    return filter_string(strExporters, aguidFileTypes, pszAllFilesDescription, dwExclude, chSeparator, true);
}
