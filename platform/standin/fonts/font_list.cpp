#include "font_list.h"

#include <od_string.h>

namespace {

template <class Object>
Object* elementAt(const std::vector<Object*>& all, int index) {
    return index < 0 || static_cast<std::size_t>(index) >= all.size() ? nullptr
                                                                      : all[static_cast<std::size_t>(index)];
}

}  // namespace

CKhFontStyle* ListedFont::styleByName(const wchar_t* text) const {
    if (!text) return nullptr;
    for (ListedStyle* style : m_styles)
        if (odCompareFolded(style->styleName(), text) == 0) return style;
    return nullptr;
}

CKhFontStyle* ListedFont::styleAt(int index) const { return elementAt(m_styles, index); }

void ListedFont::setStyles(const std::vector<CatalogueStyle>& styles) {
    m_styles.clear();
    for (const CatalogueStyle& style : styles) {
        auto& known = m_known[{style.path, {style.name, style.isFlagged}}];
        if (!known) known = std::make_unique<ListedStyle>(this, style);
        m_styles.push_back(known.get());
    }
}

CKhFont* FontList::at(int index) const { return elementAt(m_fonts, index); }

CKhFontStyle* FontList::find(const wchar_t* name) const {
    const auto place = name ? findFontFile(m_catalogue, name) : std::nullopt;
    return place ? m_fonts[place->font]->styleAt(static_cast<int>(place->style)) : nullptr;
}

void FontList::assign(std::vector<CatalogueFont> catalogue) {
    if (catalogue == m_catalogue) return;
    m_catalogue = std::move(catalogue);
    m_fonts.clear();
    for (const CatalogueFont& font : m_catalogue) {
        auto& known = m_known[{font.name, font.kind}];
        if (!known) known = std::make_unique<ListedFont>(font.name, font.kind);
        known->setStyles(font.styles);
        m_fonts.push_back(known.get());
    }
}
