// Drives a program from outside with real keystrokes and mouse clicks, and reads what it shows.
#pragma once

#include <functional>
#include <string>

#include <windows.h>

namespace journey {

/// A running program. Every wait has a deadline; a wait that fails answers null, false or an empty text.
class Program {
public:
    /// Ends the program.
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// The main window.
    HWND frame() const { return m_frame; }
    /// Whether the program still runs.
    bool isRunning() const;
    /// What it ended with, as soon as it has ended; STILL_ACTIVE if it doesn't.
    DWORD exitCode() const;

    /// The visible dialog whose title begins with `title`, as soon as there is one.
    HWND waitForDialog(const std::wstring& title, unsigned milliseconds = 8000);
    /// The visible dialog that belongs to `owner`, whatever its title, as soon as there is one.
    HWND waitForDialogOf(HWND owner);
    /// Waits for a message box that belongs to `owner`, answers it by Enter, and answers its words; an empty
    /// text if none comes up.
    std::wstring dismissMessage(HWND owner);
    /// Whether `window` has gone, as soon as it has.
    bool waitUntilGone(HWND window);

    /// Brings `window` to the front so that it gets the keys.
    void activate(HWND window);
    void type(const std::wstring& text);
    void key(WORD virtualKey, bool control = false, bool alt = false, bool shift = false);
    /// Clicks with the left button at a client point of `window`, or at its middle.
    void click(HWND window, POINT client);
    void click(HWND window);
    /// Clicks with the middle button.
    void middleClick(HWND window, POINT client);
    /// Draws with the left button held from one client point of `window` to the other.
    void drag(HWND window, POINT from, POINT to, bool shift = false);
    /// Presses the left button at a client point of `window`, and lets it go where the pointer is.
    void press(HWND window, POINT client);
    void release();
    /// Moves the pointer to a client point of `window`.
    void hover(HWND window, POINT client);
    /// Gives the control the focus by a click and replaces its text.
    void replaceText(HWND control, const std::wstring& text);
    /// Opens the drop-down of a combo box by a click.
    void drop(HWND combo);
    /// Opens the drop-down, goes to its last entry and takes it.
    void pickLast(HWND combo);
    /// Opens the drop-down, goes to entry `index` and takes it.
    void pick(HWND combo, int index);
    /// The same by keys alone, for the control that has the focus.
    void pickByKeys(HWND combo, const std::wstring& text);
    /// Opens the drop-down and clicks the entry with this text.
    void pickByMouse(HWND combo, const std::wstring& text);
    /// Moves a top-level window as a user would, by its system menu and keys being too slow: to screen
    /// pixels.
    void place(HWND window, RECT screen);

protected:
    /// Starts `command`, and waits for the window that `isFrame`.
    Program(std::wstring command, const std::function<bool(HWND)>& isFrame);

    HWND findWindow(const std::function<bool(HWND)>& wanted) const;

private:
    /// Whether one of its windows gets the keys.
    bool hasKeys() const;
    /// Says on the output what is shown and who has the keys, for a failure that should not be.
    void tellState() const;

    PROCESS_INFORMATION m_process = {};
    HWND m_frame = nullptr;
    ULONGLONG m_lastClick = 0;  ///< tick count
};

/// Waits until `done`; false when `milliseconds` have passed first.
bool waitUntil(const std::function<bool()>& done, unsigned milliseconds = 8000);

std::wstring textOf(HWND window);
HWND item(HWND dialog, int id);
RECT rectOf(HWND window);
/// The text of the current entry of a combo box of another process.
std::wstring currentEntry(HWND combo);
int entryCount(HWND combo);
/// Index of the entry with exactly this text, or -1.
int entryOf(HWND combo, const std::wstring& text);
/// The control that has the focus in the window's thread.
HWND focusOf(HWND window);

/// Asks the surrounding script for a picture of the screen under `name` and waits for it. Without a script
/// that takes pictures (the environment variable KTUI_PICTURES names its folder) nothing happens.
void picture(const std::string& name);

/// The folder of this program, with a backslash at the end.
std::wstring programFolder();

}  // namespace journey
