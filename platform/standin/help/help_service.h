// Opens the pages of the application's help. Internal to the module.
#pragma once

#include <functional>

#include "help/help_at_hand.h"

class HelpService {
public:
    using Opener = std::function<bool(const CString& page)>;

    /// Opens the page of `topic`; null or empty for that of what the user is at, or the start page. Says so
    /// if there is no such page, or if it can't be opened.
    void show(const wchar_t* topic);

    CString m_folder;  ///< holds a folder for each language; empty for "help" below the program's
    Opener m_opener;   ///< null for the system's
    HelpIds m_ids;

private:
    CString folder() const;
};
