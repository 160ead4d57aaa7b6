// Elements of layouts as XML text and files, by the system's XML library. Private to the library.
#pragma once

#include <afxwin.h>

#include <ktui/docking/layout_element.h>

namespace layouts {

constexpr ULONGLONG kLargestFile = 4 * 1024 * 1024;  ///< bytes of a file of layouts

/// The XML text of an element; false without the library.
bool TextOfElement(const Element& root, CString& text);
/// False, with `root` untouched and `problem` told, for what isn't well-formed, has a document type, or nests
/// too deep.
bool ElementOfText(const CString& text, Element& root, CString& problem);

/// Writes a file in UTF-8, in the place of one that is there once it is complete. False, with that file
/// whole, where it can't be written.
bool WriteElement(const CString& path, const Element& root, CString& problem);
bool ReadElement(const CString& path, Element& root, CString& problem);

}  // namespace layouts
