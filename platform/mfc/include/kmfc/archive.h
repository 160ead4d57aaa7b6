// CArchive: binary serialization of values and object graphs to a CFile.
#pragma once

#include <memory>

#include "kmfc/file.h"

/// Reads or writes a stream of values over a file. Values are little-endian and without padding. An object is
/// written once and referred to afterwards, so that graphs and cycles survive. Failures throw
/// CArchiveException or what the file throws.
class KMFC_API CArchive {
public:
    enum Mode : UINT { store = 0, load = 1, bNoFlushOnDelete = 2 };

    /// The file stays the caller's and must outlive the archive.
    CArchive(CFile* pFile, UINT nMode, int nBufSize = 4096, void* lpBuf = nullptr);
    ~CArchive();
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const { return (m_nMode & load) != 0; }
    BOOL IsStoring() const { return !IsLoading(); }
    CFile* GetFile() const { return m_pFile; }
    /// Schema of the object whose Serialize runs, -1 when it was asked before.
    UINT GetObjectSchema();
    void SetObjectSchema(UINT nSchema) { m_nObjectSchema = nSchema; }

    UINT Read(void* lpBuf, UINT nMax);
    void Write(const void* lpBuf, UINT nMax);
    /// Writes pending bytes to the file; when loading, moves the file back to the first byte not yet used.
    void Flush();
    /// Flushes and lets go of the file.
    void Close();
    void Abort();

    /// A text without its line end; FALSE at the end of the file.
    BOOL ReadString(CString& rString);
    void WriteString(LPCTSTR lpsz);
    /// Counts in the shortest of three forms.
    DWORD_PTR ReadCount();
    void WriteCount(DWORD_PTR dwCount);

    /// Reads an object, which is a new one owned by the caller unless it was met before. Null for a null
    /// written. `pClassRefRequested`, if given, is the class it must be of or derive from.
    CObject* ReadObject(const CRuntimeClass* pClassRefRequested);
    void WriteObject(const CObject* pOb);
    void WriteClass(const CRuntimeClass* pClassRef);
    CRuntimeClass* ReadClass(const CRuntimeClass* pClassRefRequested = nullptr, UINT* pSchema = nullptr,
                             DWORD* pObTag = nullptr);
    /// Enters an object as met, when it isn't written by WriteObject.
    void MapObject(const CObject* pOb);

    CArchive& operator<<(BYTE value) { return put(value); }
    CArchive& operator<<(char value) { return put(value); }
    CArchive& operator<<(WORD value) { return put(value); }
    CArchive& operator<<(short value) { return put(value); }
    CArchive& operator<<(wchar_t value) { return put(static_cast<WORD>(value)); }
    CArchive& operator<<(int value) { return put(value); }
    CArchive& operator<<(unsigned value) { return put(value); }
    CArchive& operator<<(long value) { return put(static_cast<int>(value)); }
    CArchive& operator<<(unsigned long value) { return put(static_cast<unsigned>(value)); }
    CArchive& operator<<(long long value) { return put(value); }
    CArchive& operator<<(unsigned long long value) { return put(value); }
    CArchive& operator<<(bool value) { return put(static_cast<BYTE>(value)); }
    CArchive& operator<<(float value) { return put(value); }
    CArchive& operator<<(double value) { return put(value); }

    CArchive& operator>>(BYTE& value) { return get(value); }
    CArchive& operator>>(char& value) { return get(value); }
    CArchive& operator>>(WORD& value) { return get(value); }
    CArchive& operator>>(short& value) { return get(value); }
    CArchive& operator>>(wchar_t& value) { return get_as<WORD>(value); }
    CArchive& operator>>(int& value) { return get(value); }
    CArchive& operator>>(unsigned& value) { return get(value); }
    CArchive& operator>>(long& value) { return get_as<int>(value); }
    CArchive& operator>>(unsigned long& value) { return get_as<unsigned>(value); }
    CArchive& operator>>(long long& value) { return get(value); }
    CArchive& operator>>(unsigned long long& value) { return get(value); }
    CArchive& operator>>(bool& value) { return get_as<BYTE>(value); }
    CArchive& operator>>(float& value) { return get(value); }
    CArchive& operator>>(double& value) { return get(value); }

    CString m_strFileName;

private:
    struct Tables;

    template <class T>
    CArchive& put(T value) {
        Write(&value, sizeof value);
        return *this;
    }
    template <class T>
    CArchive& get(T& value) {
        read_exactly(&value, sizeof value);
        return *this;
    }
    template <class Stored, class T>
    CArchive& get_as(T& value) {
        Stored stored{};
        get(stored);
        value = static_cast<T>(stored);
        return *this;
    }
    void read_exactly(void* data, UINT size);
    UINT fill();
    Tables& tables();
    DWORD read_tag();
    void write_tag(DWORD tag, bool is_class);
    CRuntimeClass* class_of_tag(DWORD tag, const CRuntimeClass* requested, UINT* schema);

    CFile* m_pFile;
    UINT m_nMode;
    UINT m_nObjectSchema = static_cast<UINT>(-1);
    std::unique_ptr<BYTE[]> m_buffer;
    UINT m_capacity;
    UINT m_at = 0;   ///< next byte in the buffer
    UINT m_end = 0;  ///< bytes in the buffer when loading
    std::unique_ptr<Tables> m_tables;
};

/// Objects are read and written by reference through their class.
inline CArchive& operator<<(CArchive& ar, const CObject* pOb) {
    ar.WriteObject(pOb);
    return ar;
}
inline CArchive& operator>>(CArchive& ar, CObject*& pOb) {
    pOb = ar.ReadObject(nullptr);
    return ar;
}

/// Texts carry their width and length, so that either kind of string reads them.
KMFC_API CArchive& AFXAPI operator<<(CArchive& ar, const CStringW& text);
KMFC_API CArchive& AFXAPI operator<<(CArchive& ar, const CStringA& text);
KMFC_API CArchive& AFXAPI operator>>(CArchive& ar, CStringW& text);
KMFC_API CArchive& AFXAPI operator>>(CArchive& ar, CStringA& text);

/// Plain structures as they lie in memory.
template <class T>
requires std::is_same_v<T, POINT> || std::is_same_v<T, SIZE> || std::is_same_v<T, RECT> CArchive& operator<<(
    CArchive& ar, const T& value) {
    ar.Write(&value, sizeof value);
    return ar;
}
template <class T>
requires std::is_same_v<T, POINT> || std::is_same_v<T, SIZE> || std::is_same_v<T, RECT> CArchive& operator>>(
    CArchive& ar, T& value) {
    if (ar.Read(&value, sizeof value) != sizeof value) AfxThrowArchiveException(CArchiveException::endOfFile);
    return ar;
}
