// The host's font list: the fonts of a catalogue as the objects that pickers hold on to.
//
// A font and a style keep their addresses for as long as the list lives. What is gone from the catalogue is
// set aside and comes back, at its old address, when the files do.
#pragma once

#include <kh_font_list.h>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "font_catalogue.h"

/// A style of a font. Never changes.
class ListedStyle final : public CKhFontStyle {
public:
    ListedStyle(CKhFont* font, const CatalogueStyle& style) : m_font(font), m_style(style) {}

    CKhFont* font() const override { return m_font; }
    bool isFlagged() const override { return m_style.isFlagged; }
    const wchar_t* fileName() const override { return m_style.fileName.c_str(); }
    const wchar_t* styleName() const override { return m_style.name.c_str(); }

private:
    CKhFont* m_font;
    const CatalogueStyle m_style;
};

/// A font. Its name and kind never change, its styles do with the files.
class ListedFont final : public CKhFont {
public:
    ListedFont(std::wstring name, FontKind kind) : m_name(std::move(name)), m_kind(kind) {}

    bool isShx() const override { return m_kind == FontKind::kShape || m_kind == FontKind::kBigFont; }
    bool isTrueType() const override { return m_kind == FontKind::kTrueType; }
    bool isBigFont() const override { return m_kind == FontKind::kBigFont; }
    const wchar_t* name() const override { return m_name.c_str(); }
    int styleCount() const override { return static_cast<int>(m_styles.size()); }
    /// The first style of that name, in any case; one that isn't flagged stands first.
    CKhFontStyle* styleByName(const wchar_t* text) const override;
    CKhFontStyle* styleAt(int index) const override;

    /// Makes `styles` the styles, at the addresses that they had.
    void setStyles(const std::vector<CatalogueStyle>& styles);

private:
    using Key = std::pair<std::wstring, std::pair<std::wstring, bool>>;  // path, name, flag

    const std::wstring m_name;
    const FontKind m_kind;
    std::map<Key, std::unique_ptr<ListedStyle>> m_known;
    std::vector<ListedStyle*> m_styles;
};

class FontList final : public CKhFontList {
public:
    int count() const override { return static_cast<int>(m_fonts.size()); }
    CKhFont* at(int index) const override;
    /// Finds as findFontFile does.
    CKhFontStyle* find(const wchar_t* name) const override;

    /// Makes the fonts of `catalogue` the fonts of the list.
    void assign(std::vector<CatalogueFont> catalogue);

private:
    std::map<std::pair<std::wstring, FontKind>, std::unique_ptr<ListedFont>> m_known;
    std::vector<CatalogueFont> m_catalogue;
    std::vector<ListedFont*> m_fonts;  // in the order of the catalogue
};
