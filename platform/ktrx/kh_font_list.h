// The fonts known to the application, as the font pickers see them.
//
// Lists, fonts and styles belong to the host and outlive every control that shows them: a picker keeps the
// address of a font as the value of its list entry. Texts stay valid as long as their object.
#pragma once

class CKhFont;

/// One style of a font, such as "Bold".
class CKhFontStyle {
public:
    /// The font that this is a style of; never null.
    virtual CKhFont* font() const = 0;
    /// True for a style that a picker leaves out when it was told to hide flagged styles.
    virtual bool isFlagged() const = 0;
    /// Name of the font file that holds the style, as handed to callers ("arialbd.ttf").
    virtual const wchar_t* fileName() const = 0;
    /// Text to show ("Bold").
    virtual const wchar_t* styleName() const = 0;

protected:
    ~CKhFontStyle() = default;
};

/// One font.
class CKhFont {
public:
    /// A shape font (.shx).
    virtual bool isShx() const = 0;
    /// A TrueType font.
    virtual bool isTrueType() const = 0;
    /// A shape font that holds the second half of an Asian text style.
    virtual bool isBigFont() const = 0;
    /// Name to show.
    virtual const wchar_t* name() const = 0;
    /// Number of styles, 0 for a font without any.
    virtual int styleCount() const = 0;
    /// The style whose styleName() is `text`, or null.
    virtual CKhFontStyle* styleByName(const wchar_t* text) const = 0;
    /// The style at `index`, 0 to styleCount() - 1; null outside that range.
    virtual CKhFontStyle* styleAt(int index) const = 0;

protected:
    ~CKhFont() = default;
};

/// All fonts, in the order in which a picker lists them.
class CKhFontList {
public:
    /// Number of fonts.
    virtual int count() const = 0;
    /// The font at `index`, 0 to count() - 1; null outside that range.
    virtual CKhFont* at(int index) const = 0;
    /// The style held by the font file `name`, or null for an unknown name.
    virtual CKhFontStyle* find(const wchar_t* name) const = 0;

protected:
    ~CKhFontList() = default;
};
