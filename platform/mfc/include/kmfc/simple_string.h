// CSimpleStringT: a counted, copy-on-write string of wide or narrow characters; storage and buffers.
//
// CStringT adds searching, editing and formatting. Both are made for wchar_t and char in this module. They
// are not declared "extern template": a compiler would then take the inline members from the module too,
// which exports none of them.
#pragma once

#include <type_traits>

#include "kmfc/string_storage.h"

/// The storage side of a string. Copies share their characters until one of them is changed. Two threads may
/// own copies of one string, but one object belongs to one thread at a time. Lengths are in characters.
/// Functions that need memory throw CMemoryException; an index out of range throws CInvalidArgException.
template <class Ch>
class KMFC_API CSimpleStringT {
public:
    using XCHAR = Ch;
    using YCHAR = std::conditional_t<std::is_same_v<Ch, wchar_t>, char, wchar_t>;
    using PXSTR = Ch*;
    using PCXSTR = const Ch*;
    using PYSTR = YCHAR*;
    using PCYSTR = const YCHAR*;

    CSimpleStringT() noexcept;
    CSimpleStringT(const CSimpleStringT& strSrc);
    CSimpleStringT(CSimpleStringT&& strSrc) noexcept;
    /// A copy of a zero-terminated text; null makes an empty string.
    CSimpleStringT(PCXSTR pszSrc);
    /// A copy of `nLength` characters, zeros among them included.
    CSimpleStringT(const XCHAR* pchSrc, int nLength);
    ~CSimpleStringT() noexcept;

    CSimpleStringT& operator=(const CSimpleStringT& strSrc);
    CSimpleStringT& operator=(CSimpleStringT&& strSrc) noexcept;
    CSimpleStringT& operator=(PCXSTR pszSrc);
    CSimpleStringT& operator+=(const CSimpleStringT& strSrc);
    CSimpleStringT& operator+=(PCXSTR pszSrc);
    CSimpleStringT& operator+=(XCHAR ch);

    /// The character at `iChar`, which may be GetLength() for the closing zero.
    XCHAR GetAt(int iChar) const;
    XCHAR operator[](int iChar) const { return GetAt(iChar); }
    /// Replaces the character at `iChar`, which must be below GetLength().
    void SetAt(int iChar, XCHAR ch);

    operator PCXSTR() const noexcept { return m_pszData; }
    /// The characters, closed by a zero. Valid until the string is changed or destroyed.
    PCXSTR GetString() const noexcept { return m_pszData; }
    int GetLength() const noexcept { return header()->length; }
    bool IsEmpty() const noexcept { return header()->length == 0; }
    /// Characters there is room for without another allocation.
    int GetAllocLength() const noexcept { return header()->capacity; }

    void Append(PCXSTR pszSrc);
    /// Appends up to `nLength` characters: a zero before that ends the text.
    void Append(PCXSTR pszSrc, int nLength);
    void Append(const CSimpleStringT& strSrc);
    void AppendChar(XCHAR ch);
    void SetString(PCXSTR pszSrc);
    /// Takes exactly `nLength` characters; `pszSrc` may point into this string.
    void SetString(PCXSTR pszSrc, int nLength);
    /// Makes the string empty and frees its block.
    void Empty() noexcept;
    /// Gives back the room beyond the present length.
    void FreeExtra();
    /// Makes room for `nLength` characters.
    void Preallocate(int nLength);
    /// Cuts the string to `nNewLength` characters, which must not exceed GetLength().
    void Truncate(int nNewLength);

    /// The characters for writing, no longer shared. Call ReleaseBuffer afterwards, before anything else.
    PXSTR GetBuffer();
    /// The same with room for at least `nMinBufferLength` characters and the closing zero.
    PXSTR GetBuffer(int nMinBufferLength);
    /// GetBuffer with the length set to `nLength` and a zero after it.
    PXSTR GetBufferSetLength(int nLength);
    /// Ends writing: the length becomes `nNewLength`, or is counted up to the first zero when -1.
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength);
    /// Takes the buffer out of sharing: later copies of the string get characters of their own.
    PXSTR LockBuffer();
    void UnlockBuffer() noexcept;

    static void CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept;
    /// The length of a zero-terminated text; 0 for null.
    static int StringLength(const XCHAR* psz) noexcept;

protected:
    kmfc::StringHeader* header() const noexcept {
        return reinterpret_cast<kmfc::StringHeader*>(const_cast<Ch*>(m_pszData)) - 1;
    }
    /// Whether `text` points into this string's own block.
    bool owns(PCXSTR text) const noexcept;

private:
    static Ch* text_of(kmfc::StringHeader* block) noexcept { return reinterpret_cast<Ch*>(block + 1); }
    static Ch* share(kmfc::StringHeader* block);
    PXSTR writable(int capacity);
    void set_length(int length);

    Ch* m_pszData;
};
