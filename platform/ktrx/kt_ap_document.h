// A document of the application: one open drawing with its view and its variables.
#pragma once

class CKhDrawingView;
class OdDbDatabase;

/// Variables of a document that are no header variables of its drawing, such as "DXFSAVEPRECISION".
class CKhVariableStore {
public:
    /// Reads a number into `value`. False leaves `value` alone.
    virtual bool getInt(const wchar_t* name, int& value) = 0;
    /// Stores a number; false if there is no such variable.
    virtual bool setInt(const wchar_t* name, int value) = 0;
    /// Reads a switch into `value`. False leaves `value` alone.
    virtual bool getBool(const wchar_t* name, bool& value) = 0;
    /// Stores a switch; false if there is no such variable.
    virtual bool setBool(const wchar_t* name, bool value) = 0;

protected:
    ~CKhVariableStore() = default;
};

class KtApDocument {
public:
    /// Code of a file format that a drawing can be saved in. A code above 1000 is a format that the host
    /// adds; the code modulo 1000 is the format that it behaves as.
    enum SaveFormat : int {
        kUnknown = -1,
        kR12Dxf = 1,
        kR13Dwg = 4,
        kR13Dxf = 5,
        kR14Dwg = 8,
        kR14Dxf = 9,
        k2000Dwg = 12,
        k2000Dxf = 13,
        k2000Template = 14,
        k2000Standard = 15,
        k2004Dwg = 24,
        k2004Dxf = 25,
        k2004Template = 26,
        k2004Standard = 27,
        k2007Dwg = 36,
        k2007Dxf = 37,
        k2007Template = 38,
        k2007Standard = 39,
        k2010Dwg = 48,
        k2010Dxf = 49,
        k2010Template = 50,
        k2010Standard = 51,
        k2013Dwg = 60,
        k2013Dxf = 61,
        k2013Template = 62,
        k2013Standard = 63
    };

    /// The drawing; never null for an open document.
    virtual OdDbDatabase* database() = 0;
    /// This document's own view service, or null, and then that of the document services serves.
    virtual CKhDrawingView* drawingView() = 0;
    /// This document's variables; never null.
    virtual CKhVariableStore* variables() = 0;

protected:
    ~KtApDocument() = default;
};
