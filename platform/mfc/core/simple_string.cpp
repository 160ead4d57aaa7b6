#include "kmfc/simple_string.h"

#include <algorithm>
#include <climits>
#include <functional>
#include <string>
#include <utility>

#include "kmfc/exceptions.h"

using kmfc::StringHeader;

template <class Ch>
CSimpleStringT<Ch>::CSimpleStringT() noexcept : m_pszData(text_of(kmfc::empty_string_header())) {}

template <class Ch>
CSimpleStringT<Ch>::CSimpleStringT(const CSimpleStringT& strSrc) : m_pszData(share(strSrc.header())) {}

template <class Ch>
CSimpleStringT<Ch>::CSimpleStringT(CSimpleStringT&& strSrc) noexcept : CSimpleStringT() {
    std::swap(m_pszData, strSrc.m_pszData);
}

template <class Ch>
CSimpleStringT<Ch>::CSimpleStringT(PCXSTR pszSrc) : CSimpleStringT(pszSrc, StringLength(pszSrc)) {}

template <class Ch>
CSimpleStringT<Ch>::CSimpleStringT(const XCHAR* pchSrc, int nLength) : CSimpleStringT() {
    SetString(pchSrc, nLength);
}

template <class Ch>
CSimpleStringT<Ch>::~CSimpleStringT() noexcept {
    kmfc::release_string(header());
}

template <class Ch>
CSimpleStringT<Ch>& CSimpleStringT<Ch>::operator=(const CSimpleStringT& strSrc) {
    if (m_pszData == strSrc.m_pszData) return *this;
    if (header()->owners.load(std::memory_order_relaxed) == StringHeader::kLocked) {
        SetString(strSrc.m_pszData, strSrc.GetLength());
        return *this;
    }
    Ch* shared = share(strSrc.header());
    kmfc::release_string(header());
    m_pszData = shared;
    return *this;
}

template <class Ch>
CSimpleStringT<Ch>& CSimpleStringT<Ch>::operator=(CSimpleStringT&& strSrc) noexcept {
    std::swap(m_pszData, strSrc.m_pszData);
    return *this;
}

template <class Ch>
CSimpleStringT<Ch>& CSimpleStringT<Ch>::operator=(PCXSTR pszSrc) {
    SetString(pszSrc);
    return *this;
}

template <class Ch>
CSimpleStringT<Ch>& CSimpleStringT<Ch>::operator+=(const CSimpleStringT& strSrc) {
    Append(strSrc);
    return *this;
}

template <class Ch>
CSimpleStringT<Ch>& CSimpleStringT<Ch>::operator+=(PCXSTR pszSrc) {
    Append(pszSrc);
    return *this;
}

template <class Ch>
CSimpleStringT<Ch>& CSimpleStringT<Ch>::operator+=(XCHAR ch) {
    AppendChar(ch);
    return *this;
}

template <class Ch>
Ch CSimpleStringT<Ch>::GetAt(int iChar) const {
    if (iChar < 0 || iChar > GetLength()) AfxThrowInvalidArgException();
    return m_pszData[iChar];
}

template <class Ch>
void CSimpleStringT<Ch>::SetAt(int iChar, XCHAR ch) {
    if (iChar < 0 || iChar >= GetLength()) AfxThrowInvalidArgException();
    writable(GetLength())[iChar] = ch;
}

template <class Ch>
void CSimpleStringT<Ch>::Append(PCXSTR pszSrc) {
    Append(pszSrc, StringLength(pszSrc));
}

template <class Ch>
void CSimpleStringT<Ch>::Append(PCXSTR pszSrc, int nLength) {
    if (nLength < 0) AfxThrowInvalidArgException();
    if (nLength == 0 || !pszSrc) return;
    const Ch* end = std::find(pszSrc, pszSrc + nLength, Ch());
    const int added = static_cast<int>(end - pszSrc);
    const int length = GetLength();
    if (added > INT_MAX - 1 - length) AfxThrowMemoryException();
    const bool inside = owns(pszSrc);
    const auto offset = inside ? pszSrc - m_pszData : 0;
    Ch* text = writable(length + added);
    std::char_traits<Ch>::move(text + length, inside ? text + offset : pszSrc, static_cast<size_t>(added));
    set_length(length + added);
}

template <class Ch>
void CSimpleStringT<Ch>::Append(const CSimpleStringT& strSrc) {
    const CSimpleStringT kept(strSrc);
    const int length = GetLength();
    const int added = kept.GetLength();
    if (added == 0) return;
    if (added > INT_MAX - 1 - length) AfxThrowMemoryException();
    Ch* text = writable(length + added);
    CopyChars(text + length, kept.m_pszData, added);
    set_length(length + added);
}

template <class Ch>
void CSimpleStringT<Ch>::AppendChar(XCHAR ch) {
    const int length = GetLength();
    if (length == INT_MAX - 1) AfxThrowMemoryException();
    writable(length + 1)[length] = ch;
    set_length(length + 1);
}

template <class Ch>
void CSimpleStringT<Ch>::SetString(PCXSTR pszSrc) {
    SetString(pszSrc, StringLength(pszSrc));
}

template <class Ch>
void CSimpleStringT<Ch>::SetString(PCXSTR pszSrc, int nLength) {
    if (nLength == 0) {
        Empty();
        return;
    }
    if (!pszSrc || nLength < 0) AfxThrowInvalidArgException();
    if (owns(pszSrc)) {
        const CSimpleStringT kept(*this);
        const CSimpleStringT copy(kept.m_pszData + (pszSrc - m_pszData), nLength);
        *this = copy;
        return;
    }
    Ch* text = writable(nLength);
    CopyChars(text, pszSrc, nLength);
    set_length(nLength);
}

template <class Ch>
void CSimpleStringT<Ch>::Empty() noexcept {
    if (header()->owners.load(std::memory_order_relaxed) == StringHeader::kLocked) {
        set_length(0);
        return;
    }
    kmfc::release_string(header());
    m_pszData = text_of(kmfc::empty_string_header());
}

template <class Ch>
void CSimpleStringT<Ch>::FreeExtra() {
    const int length = GetLength();
    if (GetAllocLength() == length || header()->owners.load() == StringHeader::kLocked) return;
    if (length == 0) {
        Empty();
        return;
    }
    const CSimpleStringT exact(m_pszData, length);
    *this = exact;
}

template <class Ch>
void CSimpleStringT<Ch>::Preallocate(int nLength) {
    if (nLength < 0) AfxThrowInvalidArgException();
    if (nLength > GetAllocLength()) writable(nLength);
}

template <class Ch>
void CSimpleStringT<Ch>::Truncate(int nNewLength) {
    if (nNewLength < 0 || nNewLength > GetLength()) AfxThrowInvalidArgException();
    GetBuffer(nNewLength);
    ReleaseBufferSetLength(nNewLength);
}

template <class Ch>
Ch* CSimpleStringT<Ch>::GetBuffer() {
    return writable(GetLength());
}

template <class Ch>
Ch* CSimpleStringT<Ch>::GetBuffer(int nMinBufferLength) {
    if (nMinBufferLength < 0) AfxThrowInvalidArgException();
    return writable(std::max(nMinBufferLength, GetLength()));
}

template <class Ch>
Ch* CSimpleStringT<Ch>::GetBufferSetLength(int nLength) {
    Ch* text = GetBuffer(nLength);
    set_length(nLength);
    return text;
}

template <class Ch>
void CSimpleStringT<Ch>::ReleaseBuffer(int nNewLength) {
    if (nNewLength == -1) {
        const int capacity = GetAllocLength();
        nNewLength = static_cast<int>(std::find(m_pszData, m_pszData + capacity, Ch()) - m_pszData);
    }
    ReleaseBufferSetLength(nNewLength);
}

template <class Ch>
void CSimpleStringT<Ch>::ReleaseBufferSetLength(int nNewLength) {
    if (nNewLength < 0 || nNewLength > GetAllocLength()) AfxThrowInvalidArgException();
    set_length(nNewLength);
}

template <class Ch>
Ch* CSimpleStringT<Ch>::LockBuffer() {
    Ch* text = writable(std::max(GetLength(), 1));
    header()->owners.store(StringHeader::kLocked, std::memory_order_relaxed);
    return text;
}

template <class Ch>
void CSimpleStringT<Ch>::UnlockBuffer() noexcept {
    if (header()->owners.load(std::memory_order_relaxed) == StringHeader::kLocked) {
        header()->owners.store(1, std::memory_order_relaxed);
    }
}

template <class Ch>
void CSimpleStringT<Ch>::CopyChars(XCHAR* pchDest, const XCHAR* pchSrc, int nChars) noexcept {
    if (nChars > 0) std::char_traits<Ch>::copy(pchDest, pchSrc, static_cast<size_t>(nChars));
}

template <class Ch>
int CSimpleStringT<Ch>::StringLength(const XCHAR* psz) noexcept {
    return psz ? static_cast<int>(std::char_traits<Ch>::length(psz)) : 0;
}

template <class Ch>
bool CSimpleStringT<Ch>::owns(PCXSTR text) const noexcept {
    const std::less_equal<const Ch*> before;
    return before(m_pszData, text) && before(text, m_pszData + GetAllocLength()) && GetAllocLength() != 0;
}

/// The characters for one owner more, or a copy of them when the block is locked.
template <class Ch>
Ch* CSimpleStringT<Ch>::share(StringHeader* block) {
    if (block->capacity == 0) return text_of(block);
    if (block->owners.load(std::memory_order_relaxed) != StringHeader::kLocked) {
        block->owners.fetch_add(1, std::memory_order_relaxed);
        return text_of(block);
    }
    if (block->length == 0) return text_of(kmfc::empty_string_header());
    StringHeader* copy = kmfc::allocate_string(block->length, sizeof(Ch));
    CopyChars(text_of(copy), text_of(block), block->length + 1);
    copy->length = block->length;
    return text_of(copy);
}

/// The characters with one owner and room for `capacity`, the content kept. Grows by half, so that appending
/// one by one stays cheap.
template <class Ch>
Ch* CSimpleStringT<Ch>::writable(int capacity) {
    StringHeader* block = header();
    const bool shared = block->owners.load(std::memory_order_acquire) > 1;
    if (!shared && capacity <= block->capacity) return m_pszData;
    int room = std::max(capacity, 1);
    if (block->length > 0 && capacity > block->length) {
        room =
            std::max<int>(room, block->length < INT_MAX / 3 * 2 ? block->length + block->length / 2 : room);
    }
    if (shared || block->capacity == 0) {
        StringHeader* copy = kmfc::allocate_string(room, sizeof(Ch));
        const int kept = std::min(block->length, room);
        CopyChars(text_of(copy), m_pszData, kept);
        text_of(copy)[kept] = Ch();
        copy->length = kept;
        kmfc::release_string(block);
        m_pszData = text_of(copy);
    } else {
        m_pszData = text_of(kmfc::reallocate_string(block, room, sizeof(Ch)));
    }
    return m_pszData;
}

template <class Ch>
void CSimpleStringT<Ch>::set_length(int length) {
    if (header()->capacity == 0) return;
    header()->length = length;
    m_pszData[length] = Ch();
}

template class CSimpleStringT<wchar_t>;
template class CSimpleStringT<char>;
