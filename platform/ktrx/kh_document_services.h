// Documents of the application, the resource module in force, and the formats a drawing can be saved in.
#pragma once

#include <windows.h>

class CKhDrawingView;
class KtApDocument;
class OdString;

class CKhDocumentServices {
public:
    /// The current document, or null if none is open.
    virtual KtApDocument* currentDocument() = 0;

    /// Makes `handle` the module that resources come from, and remembers the one before. Calls nest.
    virtual void pushResourceHandle(HINSTANCE handle) = 0;
    /// Undoes the last pushResourceHandle that has not been undone.
    virtual void popResourceHandle() = 0;

    /// Number of save formats that the host adds to the built-in ones, 0 or more.
    virtual int saveFormatCount() = 0;
    /// Describes added format `index`, 0 to saveFormatCount() - 1: its code and the text to list it by. False
    /// keeps the format out of lists.
    virtual bool saveFormatAt(int index, int& format, OdString& name) = 0;
    /// Puts the text to list added format `format` by into `name`. False leaves `name` alone.
    virtual bool saveFormatName(int format, OdString& name) = 0;

    /// The view service for documents that have none of their own, or null.
    virtual CKhDrawingView* drawingView() = 0;

protected:
    ~CKhDocumentServices() = default;
};
