// Files, fonts and folders of the running application.
#pragma once

class CKhFontList;
class OdDbDatabase;
class OdString;

/// Length in characters, terminator included, of every path that crosses the host's interface.
constexpr int kKhPathLength = 260;

class CKhRuntimeHost {
public:
    /// Looks `name` up in the application's search folders. `path` receives the full path, or the empty
    /// string if there is no such file. `drawing` is a drawing whose own folder is searched too, null for
    /// none; `hint` says what kind of file is wanted, 0 for any.
    virtual void findFile(OdString& path, const wchar_t* name, const OdDbDatabase* drawing, int hint) = 0;

    /// The fonts, or null if the application has no font list yet; font pickers then stay empty. Owned by the
    /// host.
    virtual CKhFontList* shxFontList() = 0;

    /// The folders in which support files are searched. With null and 0 only answers how many there are;
    /// otherwise fills at most `count` rows of `buffer` and answers how many were filled.
    virtual int supportDirectories(wchar_t (*buffer)[kKhPathLength], int count) = 0;

protected:
    ~CKhRuntimeHost() = default;
};
