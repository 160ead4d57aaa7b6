// CMenuImages: the small signs of menus and captions, drawn as shapes at the size that the resolution asks
// for.
#pragma once

#include <kmfc/gdi.h>

/// All static. The signs have no files: they are drawn, so they are sharp at any size and in any colour.
class KMFC_API CMenuImages {
public:
    enum IMAGES_IDS {
        IdArrowDown,
        IdArrowRight,
        IdCheck,
        IdMinimize,
        IdRestore,
        IdClose,
        IdArrowUp,
        IdArrowLeft,
        IdCloseSmall,
        IdMoreButtons,
        IdMaximize,
        IdPinHorz,  ///< a pin that lies: the pane hides itself
        IdPinVert,  ///< a pin that stands: the pane stays
        IdArrowLeftLarge,
        IdArrowRightLarge,
        IdArrowFirst,
        IdArrowLast,
        IdRadio,
        IdArrowDownLarge,
        IdArrowUpLarge,
    };
    /// Colours that a sign is drawn in.
    enum IMAGE_STATE {
        ImageBlack,
        ImageGray,
        ImageDkGray,
        ImageLtGray,
        ImageWhite,
        ImageBlack2,
        LastImageState
    };

    /// The size of every sign, in pixels: 9 by 9 at 96 dots an inch, and in proportion.
    static CSize Size();
    /// Draws a sign with its upper left corner at a point. A size other than zero scales it.
    static void Draw(CDC* pDC, IMAGES_IDS id, const CPoint& ptImage, IMAGE_STATE state = ImageBlack,
                     const CSize& sizeImage = CSize(0, 0));
    /// Draws a sign in the middle of a rectangle.
    static void Draw(CDC* pDC, IMAGES_IDS id, const CRect& rectImage, IMAGE_STATE state = ImageBlack,
                     const CSize& sizeImage = CSize(0, 0));
    /// The state that can be seen on a background of this colour; with FALSE, the one that is nearest to it.
    static IMAGE_STATE GetStateByColor(COLORREF clrImage, BOOL bIsBackgroundColor = TRUE);
    /// What a state means; it starts with black, grey, dark grey, light grey, white and black.
    static void SetColor(IMAGE_STATE state, COLORREF color);
    /// Forgets the pictures that were made; they are made anew when they are drawn next.
    static void CleanUp();

    /// Draws a sign in any colour.
    static void draw_in_color(CDC* pDC, IMAGES_IDS id, const CRect& rectImage, COLORREF color,
                              const CSize& sizeImage = CSize(0, 0));
};
