// What is said of a layout that fails, in the user's language. Private to the library.
#pragma once

#include <afxwin.h>

#include <ktui/docking/layout_xml.h>

namespace layouts {

enum class Problem {
    notAttached,
    badName,
    unknownLayout,  ///< the layout's name
    nameTaken,      ///< the layout's name
    notStored,
    notRead,     ///< the path
    tooLarge,    ///< the path
    notXml,      ///< line and column
    notWritten,  ///< the path
    refused,
    noBuiltIn,
    noPlace,
};

CString TextOf(Problem problem, const CString& first = CString(), const CString& second = CString());
CString TextOf(const Fault& fault);

}  // namespace layouts
