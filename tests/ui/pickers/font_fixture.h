// Fonts of a host, as a test sets them up.
#pragma once

#include <kh_font_list.h>

#include <memory>
#include <string>
#include <vector>

namespace ui_test {

class FakeStyle final : public CKhFontStyle {
public:
    FakeStyle(CKhFont* font, std::wstring style, std::wstring file, bool isHidden)
        : m_font(font), m_style(std::move(style)), m_file(std::move(file)), m_isFlagged(isHidden) {}
    CKhFont* font() const override { return m_font; }
    bool isFlagged() const override { return m_isFlagged; }
    const wchar_t* fileName() const override { return m_file.c_str(); }
    const wchar_t* styleName() const override { return m_style.c_str(); }

private:
    CKhFont* m_font;
    std::wstring m_style;
    std::wstring m_file;
    bool m_isFlagged;
};

enum class FontKind { kTrueType, kShx, kBigFont, kNeither };

class FakeFont final : public CKhFont {
public:
    FakeFont(std::wstring name, FontKind kind) : m_name(std::move(name)), m_kind(kind) {}

    FakeFont& withStyle(const wchar_t* style, const wchar_t* file, bool isFlagged = false) {
        m_styles.push_back(std::make_unique<FakeStyle>(this, style, file, isFlagged));
        return *this;
    }

    bool isShx() const override { return m_kind == FontKind::kShx || m_kind == FontKind::kBigFont; }
    bool isTrueType() const override { return m_kind == FontKind::kTrueType; }
    bool isBigFont() const override { return m_kind == FontKind::kBigFont; }
    const wchar_t* name() const override { return m_name.c_str(); }
    int styleCount() const override { return static_cast<int>(m_styles.size()); }
    CKhFontStyle* styleByName(const wchar_t* text) const override {
        for (const auto& style : m_styles)
            if (std::wstring(text) == style->styleName()) return style.get();
        return nullptr;
    }
    CKhFontStyle* styleAt(int index) const override {
        return index < 0 || index >= styleCount() ? nullptr : m_styles[static_cast<std::size_t>(index)].get();
    }

private:
    std::wstring m_name;
    FontKind m_kind;
    std::vector<std::unique_ptr<FakeStyle>> m_styles;
};

/// "Arial" with Regular, Bold and a flagged Narrow; "Bare" without styles; "Secret" with a flagged style
/// only; the shape font "txt.shx"; the big font "big.shx"; "Odd", which is of no kind.
class FakeFonts final : public CKhFontList {
public:
    FakeFonts() {
        add(L"Arial", FontKind::kTrueType)
            .withStyle(L"Regular", L"arial.ttf")
            .withStyle(L"Narrow", L"arialn.ttf", true)
            .withStyle(L"Bold", L"arialbd.ttf");
        add(L"txt.shx", FontKind::kShx).withStyle(L"txt", L"txt.shx");
        add(L"big.shx", FontKind::kBigFont).withStyle(L"big", L"big.shx");
        add(L"Bare", FontKind::kTrueType);
        add(L"Secret", FontKind::kTrueType).withStyle(L"Hidden", L"secret.ttf", true);
        add(L"Odd", FontKind::kNeither).withStyle(L"Plain", L"odd.pfb");
    }

    FakeFont& add(const wchar_t* name, FontKind kind) {
        m_fonts.push_back(std::make_unique<FakeFont>(name, kind));
        return *m_fonts.back();
    }

    int count() const override { return static_cast<int>(m_fonts.size()); }
    CKhFont* at(int index) const override {
        return index < 0 || index >= count() ? nullptr : m_fonts[static_cast<std::size_t>(index)].get();
    }
    CKhFontStyle* find(const wchar_t* name) const override {
        for (const auto& font : m_fonts)
            for (int i = 0; i < font->styleCount(); ++i)
                if (std::wstring(name) == font->styleAt(i)->fileName()) return font->styleAt(i);
        return nullptr;
    }

private:
    std::vector<std::unique_ptr<FakeFont>> m_fonts;
};

}  // namespace ui_test
