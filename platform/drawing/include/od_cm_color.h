// OdCmColor, the colour of a drawing object: an index of the 255-colour palette (ACI), a true colour, or a
// true colour with a name from a colour book. The palettes themselves and the lookups between the forms are
// here too.
//
// Wherever a colour is one number, red is in the low byte, then green, then blue, as in a COLORREF.
#pragma once

#include <cstdint>
#include "od_string.h"

/// A colour value. A default colour is ByLayer.
class ODRT_API OdCmColor {
public:
    static constexpr int kByBlockIndex = 0;    ///< The index that means ByBlock.
    static constexpr int kByLayerIndex = 256;  ///< The index that means ByLayer.
    static constexpr int kForeground = 7;      ///< White on a dark background, black on a light one.

    OdCmColor() = default;
    OdCmColor(const OdCmColor&) = default;
    OdCmColor& operator=(const OdCmColor&) = default;
    virtual ~OdCmColor();

    /// Same kind, same value, same names.
    bool operator==(const OdCmColor& other) const;
    bool operator!=(const OdCmColor& other) const { return !(*this == other); }

    /// Whether the colour is given by an index; ByLayer and ByBlock count, being indexes 256 and 0.
    bool isByACI() const { return !m_trueColor; }
    bool isByLayer() const { return !m_trueColor && m_index == kByLayerIndex; }
    bool isByBlock() const { return !m_trueColor && m_index == kByBlockIndex; }
    /// Whether the colour is a true colour, with or without a name.
    bool isByColor() const { return m_trueColor; }

    /// The index, 0 to 256. For a true colour the nearest index of the dark palette.
    int colorIndex() const;
    /// Makes it an indexed colour without names. An index outside 0 to 256 changes nothing and answers false.
    bool setColorIndex(int index);

    /// The parts of the colour, 0 to 255. An index gives the dark palette's; ByLayer and ByBlock give 0.
    std::uint8_t red() const { return static_cast<std::uint8_t>(color()); }
    std::uint8_t green() const { return static_cast<std::uint8_t>(color() >> 8); }
    std::uint8_t blue() const { return static_cast<std::uint8_t>(color() >> 16); }
    /// Makes it a true colour and drops the names.
    void setRGB(std::uint8_t r, std::uint8_t g, std::uint8_t b);
    /// red(), green() and blue() in one number, red in the low byte, high byte 0.
    std::uint32_t color() const;

    /// Names a true colour after an entry of a colour book. Answers false for an indexed colour, which has
    /// none.
    bool setNames(const OdString& colorName, const OdString& bookName = OdString());
    /// Whether a name was set.
    bool hasName() const { return !m_colorName.isEmpty(); }
    const OdString& colorName() const { return m_colorName; }
    const OdString& bookName() const { return m_bookName; }

private:
    std::uint32_t m_rgb = 0;
    std::int16_t m_index = kByLayerIndex;
    bool m_trueColor = false;
    OdString m_colorName;
    OdString m_bookName;
};

/// The palette for a light background: 256 colours by index, with index 7 black. Static, never null.
ODRT_API const std::uint32_t* odcmAcadLightPalette();

/// The palette for a dark background: 256 colours by index, with index 7 white. Static, never null.
ODRT_API const std::uint32_t* odcmAcadDarkPalette();

/// The colour of `aci` in `palette` (256 entries; null stands for the dark palette). An index outside 0 to
/// 255 gives 0.
ODRT_API std::uint32_t odcmLookupRGB(int aci, const std::uint32_t* palette);

/// The index, 1 to 255, whose colour in `palette` (null: dark) is `rgb`, or else the nearest one. A grey is
/// matched with greys only, so that black never turns into a dark colour. Of equal ones the lowest index
/// wins.
ODRT_API int odcmLookupACI(std::uint32_t rgb, const std::uint32_t* palette);
