#include <ktui/host/theme_api.h>

#include <utility>

namespace {

// The fallbacks of the window entries: a system without themes.
BOOL WINAPI NoComposition() { return FALSE; }
BOOL WINAPI NoActiveTheme() { return FALSE; }
HTHEME WINAPI NoThemeData(HWND, LPCWSTR) { return nullptr; }
HRESULT WINAPI NoWindowTheme(HWND, LPCWSTR, LPCWSTR) { return E_NOTIMPL; }

// The fallbacks of the animation entries: changes of state are painted at once.
HRESULT WINAPI NoBufferedPaintInit() { return E_NOTIMPL; }
HRESULT WINAPI NoBufferedPaintUnInit() { return E_NOTIMPL; }
HRESULT WINAPI NoBufferedPaintStop(HWND) { return E_NOTIMPL; }
HANIMATIONBUFFER WINAPI NoBufferedAnimation(HWND, HDC, const RECT*, BP_BUFFERFORMAT, BP_PAINTPARAMS*,
                                            BP_ANIMATIONPARAMS*, HDC*, HDC*) {
    return nullptr;
}
HRESULT WINAPI NoTransitionDuration(HTHEME, int, int, int, int, DWORD* duration) {
    *duration = 0;
    return E_NOTIMPL;
}

class UxTheme final : public ThemeLibrary {
public:
    void* load() override { return ::LoadLibraryW(L"UXTHEME.DLL"); }
    ThemeEntry find(void* module, const char* name) override {
        return reinterpret_cast<ThemeEntry>(::GetProcAddress(static_cast<HMODULE>(module), name));
    }
    void unload(void* module) override { ::FreeLibrary(static_cast<HMODULE>(module)); }
};

/// An entry as it was found, which takes the type of the member that it is put into.
struct Found {
    ThemeEntry entry;
    template <class Function>
    operator Function() const {
        return reinterpret_cast<Function>(entry);
    }
};

ThemeApi themeApi = MakeThemeApi({});

}  // namespace

ThemeApi MakeThemeApi(const ThemeResolution& found) {
    const auto entry = [&found](ThemeSlot slot) { return Found{found.entries[slot]}; };
    ThemeApi api = {
        .closeThemeData = entry(kThemeClose),
        .drawThemeBackground = entry(kThemeDrawBackground),
        .drawThemeEdge = entry(kThemeDrawEdge),
        .drawThemeIcon = entry(kThemeDrawIcon),
        .drawThemeParentBackground = entry(kThemeDrawParentBackground),
        .drawThemeText = entry(kThemeDrawText),
        .getThemeBackgroundContentRect = entry(kThemeGetBackgroundContentRect),
        .getThemeColor = entry(kThemeGetColor),
        .getThemeTextExtent = entry(kThemeGetTextExtent),
        .isCompositionActive = entry(kThemeIsCompositionActive),
        .isThemeActive = entry(kThemeIsActive),
        .isThemeBackgroundPartiallyTransparent = entry(kThemeIsBackgroundPartiallyTransparent),
        .openThemeData = entry(kThemeOpen),
        .setWindowTheme = entry(kThemeSetWindow),
        .beginBufferedAnimation = entry(kThemeBeginBufferedAnimation),
        .bufferedPaintInit = entry(kThemeBufferedPaintInit),
        .bufferedPaintUnInit = entry(kThemeBufferedPaintUnInit),
        .bufferedPaintRenderAnimation = entry(kThemeBufferedPaintRenderAnimation),
        .bufferedPaintStopAllAnimations = entry(kThemeBufferedPaintStopAllAnimations),
        .endBufferedAnimation = entry(kThemeEndBufferedAnimation),
        .getThemeTransitionDuration = entry(kThemeGetTransitionDuration),
    };
    if (found.windowFallback) {
        api.isCompositionActive = NoComposition;
        api.isThemeActive = NoActiveTheme;
        api.openThemeData = NoThemeData;
        api.setWindowTheme = NoWindowTheme;
    }
    if (found.animationFallback) {
        api.bufferedPaintInit = NoBufferedPaintInit;
        api.bufferedPaintUnInit = NoBufferedPaintUnInit;
        api.bufferedPaintStopAllAnimations = NoBufferedPaintStop;
        api.beginBufferedAnimation = NoBufferedAnimation;
        api.getThemeTransitionDuration = NoTransitionDuration;
    }
    return api;
}

ThemeLibrary& SystemThemeLibrary() {
    static UxTheme library;
    return library;
}

const ThemeApi& ActiveThemeApi() { return themeApi; }

ThemeApi ExchangeThemeApi(const ThemeApi& api) { return std::exchange(themeApi, api); }
