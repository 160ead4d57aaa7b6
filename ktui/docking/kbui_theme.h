// CKbUiTheme: colours and fonts of the toolkit's surfaces by element, as a placeholder.
//
// Palettes, owner-drawn buttons and group controls pass a theme on, and whoever makes one (the theme manager,
// which is no part of this library) keeps its values. Here every question is answered with 0, nothing that is
// told is kept, and no reactor is called. Nothing in the toolkit draws by a theme.
#pragma once

#include <afxwin.h>

#include <ktui/ktui_api.h>

/// Names an element of a theme. Its members are settled with the theme manager.
enum KbUiThemeElement : int;

/// Observer of a theme. Its operations are settled with the theme manager; here it is only pointed to.
class CKbUiThemeModifiedReactor;

/// Observer of the theme manager. What its operations tell is settled with the theme manager.
class KTUI_API CKbUiThemeMgrReactor {
public:
    CKbUiThemeMgrReactor() = default;
    CKbUiThemeMgrReactor(const CKbUiThemeMgrReactor&) = default;
    CKbUiThemeMgrReactor& operator=(const CKbUiThemeMgrReactor&) = default;

protected:
    ~CKbUiThemeMgrReactor() = default;

private:
    virtual void first() = 0;
    virtual void second() = 0;
    virtual void third() = 0;
};

class KTUI_API CKbUiTheme {
public:
    CKbUiTheme(const CKbUiTheme&) = delete;
    CKbUiTheme& operator=(const CKbUiTheme&) = delete;
    // Kept: copies nothing.
    CKbUiTheme& operator=(const CKbUiTheme* other);

    // Kept: each answers 0, keeps nothing and leaves its arguments alone.
    unsigned long GetColor(KbUiThemeElement element) const;
    int SetColor(KbUiThemeElement element, unsigned long color);
    int GetFont(KbUiThemeElement element, LOGFONT* font) const;
    int GetFont(KbUiThemeElement element, CFont*& font) const;
    int SetFont(KbUiThemeElement element, LOGFONT* font);
    int GetData(int element, CString& text) const;
    int GetData(int element, unsigned long& value) const;
    int RegisterReactor(CKbUiThemeModifiedReactor* reactor);
    int UnregisterReactor(CKbUiThemeModifiedReactor* reactor);

    // Kept: these do nothing.
    void SetData(int element, const CString& text);
    void SetData(int element, const unsigned long& value);
    void SendModifiedNotification() const;
    void ResumeModifiedNotifications();

    // Kept: the count only rises, since resuming does nothing.
    void SuspendModifiedNotifications();

    /// Adds 1 to the references.
    void IncrementRefCount();

private:
    friend class CKbUiThemeMgr;

    CKbUiTheme();
    virtual ~CKbUiTheme();

    // Kept: deletes nothing at zero; the owner decides.
    void DecrementRefCount();
    int RefCount() const;
    int UsesXP() const;
    // Kept: these do nothing.
    void SendThemeModifiedNotifications(KbUiThemeElement element) const;
    void CheckXP();

    int m_refCount = 0;
    CTypedPtrArray<CPtrArray, CKbUiThemeModifiedReactor*> m_reactors;  ///< not owned
    int m_suspendCount = 0;
    CMap<int, int, unsigned long, unsigned long> m_colors;  ///< by element
    CMap<int, int, CString, CString> m_data;                ///< texts by element
    int m_usesXP = 0;
};
