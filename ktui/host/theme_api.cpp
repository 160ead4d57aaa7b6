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

template <class Function>
void Bind(Function& member, const ThemeResolution& found, ThemeSlot slot) {
    member = reinterpret_cast<Function>(found.entries[slot]);
}

void BindWindowEntries(ThemeApi& api, const ThemeResolution& found) {
    Bind(api.closeThemeData, found, kThemeClose);
    Bind(api.drawThemeBackground, found, kThemeDrawBackground);
    Bind(api.drawThemeEdge, found, kThemeDrawEdge);
    Bind(api.drawThemeIcon, found, kThemeDrawIcon);
    Bind(api.drawThemeParentBackground, found, kThemeDrawParentBackground);
    Bind(api.drawThemeText, found, kThemeDrawText);
    Bind(api.getThemeBackgroundContentRect, found, kThemeGetBackgroundContentRect);
    Bind(api.getThemeColor, found, kThemeGetColor);
    Bind(api.getThemeTextExtent, found, kThemeGetTextExtent);
    Bind(api.isCompositionActive, found, kThemeIsCompositionActive);
    Bind(api.isThemeActive, found, kThemeIsActive);
    Bind(api.isThemeBackgroundPartiallyTransparent, found, kThemeIsBackgroundPartiallyTransparent);
    Bind(api.openThemeData, found, kThemeOpen);
    Bind(api.setWindowTheme, found, kThemeSetWindow);
}

void BindAnimationEntries(ThemeApi& api, const ThemeResolution& found) {
    Bind(api.beginBufferedAnimation, found, kThemeBeginBufferedAnimation);
    Bind(api.bufferedPaintInit, found, kThemeBufferedPaintInit);
    Bind(api.bufferedPaintUnInit, found, kThemeBufferedPaintUnInit);
    Bind(api.bufferedPaintRenderAnimation, found, kThemeBufferedPaintRenderAnimation);
    Bind(api.bufferedPaintStopAllAnimations, found, kThemeBufferedPaintStopAllAnimations);
    Bind(api.endBufferedAnimation, found, kThemeEndBufferedAnimation);
    Bind(api.getThemeTransitionDuration, found, kThemeGetTransitionDuration);
}

ThemeApi themeApi = MakeThemeApi({});

}  // namespace

ThemeApi MakeThemeApi(const ThemeResolution& found) {
    ThemeApi api;
    BindWindowEntries(api, found);
    BindAnimationEntries(api, found);
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
