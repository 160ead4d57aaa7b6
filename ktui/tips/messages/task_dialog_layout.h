// How a task dialog of the toolkit divides its client area, and which width it takes.
//
// No window is needed: texts are measured by whoever asks. All numbers are pixels of the client area.
// Private to the library; its tests link it by itself.
#pragma once

#include <afx.h>

#include <vector>

// Options and buttons have the numbers of the system's task dialog.
enum TaskDialogOption {
    kTaskDialogCustomIcon = 0x0002,
    kTaskDialogCancellable = 0x0008,
    kTaskDialogLinks = 0x0010,       ///< command links with an arrow glyph
    kTaskDialogPlainLinks = 0x0020,  ///< command links without one
    kTaskDialogVerified = 0x0100,    ///< the verification box starts checked
    kTaskDialogRelative = 0x1000,    ///< placed relative to the parent
};

/// A common button: its bit, its id, and where its text comes from.
struct TaskDialogCommonButton {
    int mask;
    int id;
    unsigned stringId;
    const wchar_t* text;  ///< if the resource library has none
};

/// The common buttons in the order in which they stand in a dialog.
inline constexpr int kTaskDialogCommonButtonCount = 6;
extern const TaskDialogCommonButton kTaskDialogCommonButtons[kTaskDialogCommonButtonCount];

/// One command control: a link or a push button.
struct CTaskDialogButton {
    int m_id = 0;
    CString m_text;
    CString m_extendedText;
    int m_flag = 0;
};

enum class TaskDialogFont { kText, kHeading };

/// Measures a text as DrawText does with DT_CALCRECT.
class TaskDialogMeasurer {
public:
    virtual ~TaskDialogMeasurer() = default;
    /// Size of `text`, broken into lines at words so that it fits `width`; a longer word sticks out.
    virtual SIZE Wrapped(const CString& text, TaskDialogFont font, int width) const = 0;
    /// Size of `text` in one line of the text font.
    virtual SIZE Line(const CString& text) const = 0;
};

/// What is to be shown.
struct TaskDialogContents {
    CString heading, body, verification;
    std::vector<CTaskDialogButton> commands;
    int commonButtons = 0;
    int options = 0;
    bool hasIcon = false;
    int requestedWidth = 0;  ///< below 1: the layout chooses

    bool linksOn() const { return (options & (kTaskDialogLinks | kTaskDialogPlainLinks)) != 0; }
    bool hasLinks() const { return linksOn() && !commands.empty(); }
    bool hasPushCommands() const { return !linksOn() && !commands.empty(); }
};

/// The lengths that everything follows.
struct TaskDialogMetrics {
    int fontHeight = 0;        ///< absolute height of the text font
    int baseX = 0, baseY = 0;  ///< the system's dialog base units
    int workWidth = 0;         ///< greatest client area
    int workHeight = 0;
    int dpi = 96;  ///< fixed lengths are for 96

    int big() const;  ///< height of the heading font
    int half() const { return fontHeight / 2; }
    /// A fixed length at the dialog's resolution.
    int fixed(int pixels) const;
};

/// The height of the heading font for a text font of `height`; keeps the sign.
int TaskDialogHeadingHeight(int height);

/// Where a button goes.
struct TaskDialogPlacedButton {
    int id = 0;
    CRect rect;
    bool isLink = false;
    int command = -1;  ///< index of the command, or -1 for a common button
    int common = -1;   ///< index of the common button, or -1 for a command
};

enum TaskDialogLayoutFlag { kTaskDialogTooTall = 1, kTaskDialogManyRows = 2 };

/// A finished layout.
struct TaskDialogLayout {
    int width = 0, height = 0;
    unsigned flags = 0;  ///< TaskDialogLayoutFlag
    int textLeft = 0;
    CRect heading, body;                          ///< empty without such a text
    std::vector<TaskDialogPlacedButton> buttons;  ///< commands, then common buttons
    CRect checkBox;                               ///< empty without a verification text
    int footerTop = -1;                           ///< -1 without a footer
    int trials = 0;                               ///< layouts made to find this one
};

/// The layout at client width `width`.
TaskDialogLayout LayOutTaskDialog(const TaskDialogContents& contents, const TaskDialogMetrics& metrics,
                                  const TaskDialogMeasurer& measurer, int width);

/// The layout at the width that suits the contents: the requested one, or else one found by trial, wider by a
/// tenth each time, until texts are short, the shape is no taller than 1.1 times its width, everything fits
/// the work area and the buttons stand in one row.
TaskDialogLayout FitTaskDialog(const TaskDialogContents& contents, const TaskDialogMetrics& metrics,
                               const TaskDialogMeasurer& measurer);

/// In which order the children are made, which is their tab order, and which of them is the default.
struct TaskDialogOrder {
    static constexpr int kCheckBox = -1;
    std::vector<int> children;  ///< indices into TaskDialogLayout::buttons, or kCheckBox
    int defaultButton = -2;     ///< index into TaskDialogLayout::buttons; -2 for none
    bool defaultWasNamed = false;
};

/// `defaultId`: the id of the button that is to be the default; unknown ids take the first button.
TaskDialogOrder OrderTaskDialogChildren(const TaskDialogLayout& layout, bool linksOn, int defaultId);
