// CKtUiPaletteLayouts: named layouts of the panes and palette sets of a main window.
//
// A layout says where every pane with a control id stands: docked, in tabs, in floating frames, hidden,
// hidden at an edge; which tab and which palette of a set is active. Layouts are kept for each user, and go
// from one to another as XML files. Nothing changes in a program that makes no such object.
//
//     layouts.Attach(frame);                          // once its panes have been placed
//     layouts.KeepBuiltIn();                          // what Reset comes back to
//     layouts.Save(L"Drafting");
//     if (!layouts.Apply(L"Review")) KtUiMessageBox(nullptr, layouts.GetProblem(), MB_ICONWARNING);
//
// Applying is all or nothing: a layout with any fault leaves everything as it is, and GetProblem tells the
// element that is wrong. A layout knows panes by their control ids, 1 to 65534. Panes that it doesn't know
// keep their places; of panes that aren't there it remembers the place for their return (see PlacePane).
#pragma once

#include <afxcontrolbars.h>

#include <memory>

#include <ktui/ktui_api.h>

class KTUI_API CKtUiPaletteLayouts {
public:
    static constexpr int kLongestName = 64;  ///< characters

    CKtUiPaletteLayouts();
    /// Detaches. The layouts stay stored.
    ~CKtUiPaletteLayouts();
    CKtUiPaletteLayouts(const CKtUiPaletteLayouts&) = delete;
    CKtUiPaletteLayouts& operator=(const CKtUiPaletteLayouts&) = delete;

    /// Takes a main window, which the caller owns and which must have its window. When that goes, the object
    /// is detached by itself. `storeName` names the key of the layouts below the dialogs' data of the user,
    /// so that two kinds of main windows keep two lists. FALSE without a window.
    BOOL Attach(CMDIFrameWndEx& frame, const wchar_t* storeName = L"PaletteLayouts");
    BOOL Attach(CFrameWndEx& frame, const wchar_t* storeName = L"PaletteLayouts");
    void Detach();
    BOOL IsAttached() const;

    // All that follows answers FALSE, and changes nothing, when it fails; GetProblem says why.

    /// Notes the present layout as the built-in one, for as long as this object is attached.
    BOOL KeepBuiltIn();
    /// Applies the built-in layout.
    BOOL Reset();

    /// Stores the present layout under a name, in place of one that has it. Names differ by more than case;
    /// spaces around them are left out. They have 1 to kLongestName characters, none below the space.
    BOOL Save(const wchar_t* name);
    BOOL Apply(const wchar_t* name);
    /// FALSE as well when another layout has the new name; the same name in other case is fine.
    BOOL Rename(const wchar_t* name, const wchar_t* newName);
    BOOL Delete(const wchar_t* name);
    /// The names of all stored layouts, in the order of the user's alphabet.
    void GetNames(CStringArray& names) const;
    BOOL Has(const wchar_t* name) const;

    /// Writes a layout, or all of them for a null name, as an XML file. A file that is there is replaced once
    /// the new one is complete.
    BOOL Export(const wchar_t* path, const wchar_t* name = nullptr);
    /// Stores all layouts of a file, in place of those of the same names, and adds their names to `names`,
    /// which may be null. None is stored when one of them has a fault. None is applied.
    BOOL Import(const wchar_t* path, CStringArray* names = nullptr);

    /// Puts a pane that was made after a layout was applied to the place that it has in that layout, beside
    /// the panes that stand near it there. FALSE when the layout doesn't know the pane, and when it stands
    /// somewhere already.
    BOOL PlacePane(CDockablePane& pane);

    /// With TRUE no floating frame, and not the main window either, ends where its caption can't be grabbed:
    /// one of which less than 80 pixels of the caption lie on a screen goes to the nearest place where all of
    /// it does; its size stays. Looked at now, when screens, their work areas or the resolution change, after
    /// a layout was applied, and whenever the program is idle, but not while the user drags. FALSE, as at
    /// first, ends that. It lasts until the object is detached. FALSE when there is no main window.
    BOOL SetKeepReachable(BOOL keep);
    BOOL KeepsReachable() const;

    /// Why the last call failed, in the user's language, with the element that is wrong; empty after success.
    const CString& GetProblem() const;

private:
    struct Data;
    static LRESULT CALLBACK HearFrame(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR object);
    BOOL attach(CFrameWnd* frame, CDockingManager* manager, const wchar_t* storeName);

    std::shared_ptr<Data> m_data;  ///< outlives the object while a message of the frame is handled
};
