// Whether a file's name fits a mask such as "*.dwg", by the rules of the system's own listing, except that
// a file's short name doesn't count. Without any window. Private to the library; its tests link it by itself.
#pragma once

#include <afx.h>

/// A mask: `*` stands for any characters, `?` for one or, at the end of the name or before a point, for none.
/// Case doesn't count. "*.*" fits every name, "*." one without an extension.
class FindMask {
public:
    explicit FindMask(const CString& mask);
    bool Matches(const CString& name) const;

private:
    CString m_mask;           ///< in small letters, in the signs of find_mask.cpp
    bool m_isEnding = false;  ///< a `*` and nothing else that stands for something
};
