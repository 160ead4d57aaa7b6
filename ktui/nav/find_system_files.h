// The system's folders and drives, for a search. Private to the library.
#pragma once

#include <ktui/nav/find_listing.h>

class FindSystemFiles : public FindFileSystem {
public:
    std::unique_ptr<FindListing> List() const override;
    unsigned Drives() const override;
    /// By volume and file number; by the path in small letters where they can't be had.
    CString Identity(const CString& folder) const override;
};
