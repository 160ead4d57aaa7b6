// CKbUiPathname: the text of a path, its last component and its separators.
//
// The operations on the text are real. Those that would parse a path, look at the file system or open a file
// answer an agreed value and change nothing, whatever they are given. A subclass sets the text and the
// separator before it uses the operations on the text:
//
//     class CHostPath : public CKbUiPathname {
//     public:
//         explicit CHostPath(CString& text) { m_path = &text; m_separator = L'\\'; }
//     };
#pragma once

#include <afx.h>

#include <ktui/ktui_api.h>

class CFile;
class CKbUiVolumeDescriptor;

/// What an editing operation answers.
enum PathErr : int {
    kPathOk = 0,
    kPathBad = 3  ///< the text doesn't allow it
};

/// The kind of a path. 0 is empty; 1 to 4 are kinds of paths.
using path_type = int;
/// The kind of a file system.
using FS_TYPE = int;

class KTUI_API CKbUiPathname {
public:
    // Kept: no constructor sets a field, save that a copy has neither volume nor text.
    CKbUiPathname();
    CKbUiPathname(const CKbUiPathname& other);
    CKbUiPathname& operator=(const CKbUiPathname& other);

    // Kept: both do nothing.
    virtual PathErr Parse(const wchar_t* text, int flags);
    virtual void AssignCopy(const CKbUiPathname& other);

    int IsEmpty() const { return m_pathType == 0; }
    int IsPath() const { return m_pathType >= 1 && m_pathType <= 4; }
    int WasAbsolute() const { return m_origin == 0 || m_origin == 1; }
    int WasRoot() const { return m_origin == 2; }
    int HadPrefix() const { return m_hadPrefix; }
    wchar_t GetSeparator() const { return m_separator; }
    path_type GetPathType() const { return m_pathType; }
    const CKbUiVolumeDescriptor* GetVolumeDescriptor() const { return m_volume; }

    /// Empties the text.
    void Empty();

    // The last component is what follows the last separator, or the whole text without one.
    /// The last component; empty for an empty text.
    void GetBasename(CString& out) const;
    // Kept: empty, not the component, without a dot.
    /// The last component up to its last dot.
    void GetFilename(CString& out) const;
    /// What follows the last dot of the last component; empty without one.
    void GetExtension(CString& out) const;
    // Kept: `out` stays as it was.
    void GetParent(CString& out) const;

    /// Cuts the text behind its last separator; kPathBad without one, or if nothing stands behind it.
    PathErr Trim();
    /// Takes separators off both ends of a text that ends in one; kPathBad if it doesn't, or if nothing would
    /// be left.
    PathErr TrimSlash();
    /// Cuts the text in front of its last separator; kPathBad without one, or if nothing would be left.
    PathErr TrimComponent();
    /// Adds `text`; always kPathOk.
    PathErr Append(const wchar_t* text);
    /// Adds a separator unless the text ends in one; kPathBad for an empty text.
    PathErr AppendSlash();
    // Kept: the argument isn't used; Append adds the component.
    /// Adds a separator; kPathBad for an empty text.
    PathErr AppendComponent(const wchar_t* text);
    // Kept: the editors of extensions go by the first dot of the whole text, the readers by the last one of
    // the last component.
    /// Puts `text` in the place of what stands behind the first dot, or at the end without a dot; kPathBad
    /// for an empty text.
    PathErr ReplaceExtensionAlways(const wchar_t* text);
    /// Cuts the text at the first dot.
    void RemoveExtensionAlways();
    /// The text becomes its last component in small or capital letters.
    void BaseToLower();
    void BaseToUpper();
    /// The text becomes what GetFilename gives, without blanks at its ends.
    void RemoveSpaces();

    // Kept: everything below answers 0 or null and changes nothing.
    PathErr ParseRelative(const wchar_t* text, const CKbUiPathname& base, int flags);
    PathErr ParseAndOSFind(const wchar_t* text, int flags);
    PathErr AddExtensionAlways(const wchar_t* text);
    PathErr AddExtensionIfNoMatch(const wchar_t* text, const wchar_t* list);
    PathErr ReplaceExtensionIfNoMatch(const wchar_t* text, const wchar_t* list);
    int RemoveExtensionIfMatch(const wchar_t* list);
    int Exists(int flags = 0) const;
    int GetFullPath(CString& out) const;
    int GetFullPath(wchar_t* out, int size) const;
    int GetFullUNCPath(CString& out) const;
    int GetDisplayName(CString& out) const;
    int GetUniqueName(const wchar_t* prefix);
    const wchar_t* GetPathString() const;
    int PathMatch(const CKbUiPathname& other) const;
    int PathMatch(const wchar_t* other) const;
    int VerifyExtension(const wchar_t* list) const;
    CFile* Open(unsigned flags);
    CFile* Open(unsigned flags, CString& problem);
    CFile* OpenReadOnly();
    CFile* OpenWriteOnly();
    int Remove();
    int Rename(const wchar_t* name);
    FS_TYPE GetFileSystem(const wchar_t* volume) const;
    const CKbUiVolumeDescriptor* FindVolumeDescriptor(const wchar_t* volume) const;
    const CKbUiVolumeDescriptor* NewVolDescriptor(const wchar_t* volume, FS_TYPE kind) const;
    int IsDeviceName(const wchar_t* name) const;
    wchar_t GetLastCharacter() const;
    DWORD GetAttributes() const;
    int GetFirstExtInList(const wchar_t* list, CString& out) const;
    int StripSpaces(CString& text) const;
    int lstrncpy_x(wchar_t* out, const wchar_t* text, int size) const;
    int Unquote(CString& text) const;

protected:
    path_type m_pathType;
    const CKbUiVolumeDescriptor* m_volume;  ///< not owned
    CString* m_path;                        ///< the text; not owned
    int m_origin;                           ///< 0 and 1 absolute, 2 root
    wchar_t m_separator;
    int m_hadPrefix;
};
