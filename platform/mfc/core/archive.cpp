#include "kmfc/archive.h"

#include <algorithm>
#include <cstring>
#include <unordered_map>
#include <vector>

namespace {

// Object tags, as they precede each object: null, a new class follows, or the number of something met before;
// class numbers carry the high bit. Numbers that don't fit 15 bits follow the marker in 32.
constexpr WORD kNullTag = 0;
constexpr WORD kNewClassTag = 0xFFFF;
constexpr WORD kClassBit = 0x8000;
constexpr DWORD kBigClassBit = 0x80000000;
constexpr WORD kBigObjectTag = 0x7FFF;
constexpr size_t kMostClassName = 64;

// Lengths of texts: a marker for wide characters, then the length in 1, 3 or 7 bytes.
constexpr WORD kWideMarker = 0xFFFE;

void write_length(CArchive& ar, size_t length) {
    if (length < 0xFF) {
        ar << static_cast<BYTE>(length);
    } else if (length < kWideMarker) {
        ar << static_cast<BYTE>(0xFF) << static_cast<WORD>(length);
    } else {
        ar << static_cast<BYTE>(0xFF) << static_cast<WORD>(0xFFFF) << static_cast<DWORD>(length);
    }
}

/// The length of a text that follows and whether it is wide.
size_t read_length(CArchive& ar, bool& wide) {
    wide = false;
    for (;;) {
        BYTE small;
        ar >> small;
        if (small < 0xFF) return small;
        WORD medium;
        ar >> medium;
        if (medium == kWideMarker && !wide) {
            wide = true;
            continue;
        }
        if (medium < kWideMarker) return medium;
        DWORD large;
        ar >> large;
        return large;
    }
}

/// Reads in steps, so that a length made up by a damaged file fails at the file's end and not for memory.
template <class Unit>
std::vector<Unit> read_units(CArchive& ar, size_t count) {
    constexpr size_t kStep = 16384;
    std::vector<Unit> units;
    while (units.size() < count) {
        const size_t at = units.size();
        const size_t more = std::min(count - at, kStep);
        units.resize(at + more);
        const UINT bytes = static_cast<UINT>(more * sizeof(Unit));
        if (ar.Read(units.data() + at, bytes) != bytes)
            AfxThrowArchiveException(CArchiveException::endOfFile);
    }
    return units;
}

}  // namespace

/// What was met so far; place 0 is null.
struct CArchive::Tables {
    struct Loaded {
        CObject* object;
        CRuntimeClass* runtime_class;
        UINT schema;
    };
    std::unordered_map<const void*, DWORD> stored;
    std::vector<Loaded> loaded{{nullptr, nullptr, 0}};
    DWORD stored_count = 1;
};

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize, void*)
    : m_pFile(pFile),
      m_nMode(nMode),
      m_buffer(new BYTE[static_cast<size_t>(std::max(nBufSize, 128))]),
      m_capacity(static_cast<UINT>(std::max(nBufSize, 128))) {
    if (pFile) m_strFileName = pFile->GetFilePath();
}

CArchive::~CArchive() {
    if (!m_pFile || (m_nMode & bNoFlushOnDelete)) return;
    try {
        Close();
    } catch (CException* e) {
        e->Delete();
    }
}

CArchive::Tables& CArchive::tables() {
    if (!m_tables) m_tables = std::make_unique<Tables>();
    return *m_tables;
}

UINT CArchive::GetObjectSchema() {
    const UINT schema = m_nObjectSchema;
    m_nObjectSchema = static_cast<UINT>(-1);
    return schema;
}

UINT CArchive::fill() {
    m_at = 0;
    m_end = m_pFile->Read(m_buffer.get(), m_capacity);
    return m_end;
}

UINT CArchive::Read(void* lpBuf, UINT nMax) {
    if (!IsLoading()) AfxThrowArchiveException(CArchiveException::writeOnly, m_strFileName);
    auto* to = static_cast<BYTE*>(lpBuf);
    UINT done = 0;
    while (done < nMax) {
        if (m_at == m_end && fill() == 0) break;
        const UINT count = std::min(nMax - done, m_end - m_at);
        std::memcpy(to + done, m_buffer.get() + m_at, count);
        m_at += count;
        done += count;
    }
    return done;
}

void CArchive::read_exactly(void* data, UINT size) {
    if (Read(data, size) != size) AfxThrowArchiveException(CArchiveException::endOfFile, m_strFileName);
}

void CArchive::Write(const void* lpBuf, UINT nMax) {
    if (!IsStoring()) AfxThrowArchiveException(CArchiveException::readOnly, m_strFileName);
    const auto* from = static_cast<const BYTE*>(lpBuf);
    while (nMax > 0) {
        if (m_at == m_capacity) Flush();
        const UINT count = std::min(nMax, m_capacity - m_at);
        std::memcpy(m_buffer.get() + m_at, from, count);
        m_at += count;
        from += count;
        nMax -= count;
    }
}

void CArchive::Flush() {
    if (IsLoading()) {
        if (m_end != m_at) m_pFile->Seek(-static_cast<LONGLONG>(m_end - m_at), CFile::current);
        m_at = m_end = 0;
        return;
    }
    const UINT pending = m_at;
    m_at = 0;
    if (pending > 0) m_pFile->Write(m_buffer.get(), pending);
}

void CArchive::Close() {
    if (m_pFile) Flush();
    m_pFile = nullptr;
}

void CArchive::Abort() { m_pFile = nullptr; }

BOOL CArchive::ReadString(CString& rString) {
    rString.Empty();
    WORD unit;
    bool any = false;
    while (Read(&unit, sizeof unit) == sizeof unit) {
        any = true;
        if (unit == L'\n') break;
        rString.AppendChar(static_cast<wchar_t>(unit));
    }
    if (!rString.IsEmpty() && rString[rString.GetLength() - 1] == L'\r')
        rString.Truncate(rString.GetLength() - 1);
    return any;
}

void CArchive::WriteString(LPCTSTR lpsz) {
    for (; lpsz && *lpsz; ++lpsz) *this << *lpsz;
}

DWORD_PTR CArchive::ReadCount() {
    WORD small;
    *this >> small;
    if (small != 0xFFFF) return small;
    DWORD medium;
    *this >> medium;
    if (medium != 0xFFFFFFFF) return medium;
    unsigned long long large;
    *this >> large;
    return static_cast<DWORD_PTR>(large);
}

void CArchive::WriteCount(DWORD_PTR dwCount) {
    if (dwCount < 0xFFFF) {
        *this << static_cast<WORD>(dwCount);
    } else if (dwCount < 0xFFFFFFFF) {
        *this << static_cast<WORD>(0xFFFF) << static_cast<DWORD>(dwCount);
    } else {
        *this << static_cast<WORD>(0xFFFF) << static_cast<DWORD>(0xFFFFFFFF)
              << static_cast<unsigned long long>(dwCount);
    }
}

void CArchive::MapObject(const CObject* pOb) {
    if (IsStoring()) {
        tables().stored.emplace(pOb, tables().stored_count++);
    } else {
        tables().loaded.push_back({const_cast<CObject*>(pOb), nullptr, 0});
    }
}

void CArchive::write_tag(DWORD tag, bool is_class) {
    if (tag < kBigObjectTag) {
        *this << static_cast<WORD>(is_class ? kClassBit | tag : tag);
    } else {
        *this << kBigObjectTag << static_cast<DWORD>(is_class ? kBigClassBit | tag : tag);
    }
}

void CArchive::WriteClass(const CRuntimeClass* pClassRef) {
    if (pClassRef->m_wSchema == 0xFFFF) AfxThrowNotSupportedException();
    const auto found = tables().stored.find(pClassRef);
    if (found != tables().stored.end()) {
        write_tag(found->second, true);
        return;
    }
    *this << kNewClassTag;
    pClassRef->Store(*this);
    tables().stored.emplace(pClassRef, tables().stored_count++);
}

void CArchive::WriteObject(const CObject* pOb) {
    if (!pOb) {
        *this << kNullTag;
        return;
    }
    const auto found = tables().stored.find(pOb);
    if (found != tables().stored.end()) {
        write_tag(found->second, false);
        return;
    }
    WriteClass(pOb->GetRuntimeClass());
    tables().stored.emplace(pOb, tables().stored_count++);
    const_cast<CObject*>(pOb)->Serialize(*this);
}

/// The next tag with class numbers marked by the high bit of 32.
DWORD CArchive::read_tag() {
    WORD tag;
    *this >> tag;
    if (tag == kNewClassTag) return 0xFFFFFFFF;
    if (tag == kBigObjectTag) {
        DWORD large;
        *this >> large;
        return large;
    }
    return tag & kClassBit ? kBigClassBit | (tag & ~kClassBit & 0xFFFF) : tag;
}

CRuntimeClass* CArchive::class_of_tag(DWORD tag, const CRuntimeClass* requested, UINT* schema) {
    UINT found_schema = 0;
    CRuntimeClass* found = nullptr;
    if (tag == 0xFFFFFFFF) {
        found = CRuntimeClass::Load(*this, &found_schema);
        if (!found) AfxThrowArchiveException(CArchiveException::badClass, m_strFileName);
        if ((found->m_wSchema & ~VERSIONABLE_SCHEMA) != found_schema &&
            !(found->m_wSchema & VERSIONABLE_SCHEMA)) {
            AfxThrowArchiveException(CArchiveException::badSchema, m_strFileName);
        }
        tables().loaded.push_back({nullptr, found, found_schema});
    } else {
        const DWORD index = tag & ~kBigClassBit;
        if (index >= tables().loaded.size() || !tables().loaded[index].runtime_class) {
            AfxThrowArchiveException(CArchiveException::badIndex, m_strFileName);
        }
        found = tables().loaded[index].runtime_class;
        found_schema = tables().loaded[index].schema;
    }
    if (requested && !found->IsDerivedFrom(requested)) {
        AfxThrowArchiveException(CArchiveException::badClass, m_strFileName);
    }
    if (schema) *schema = found_schema;
    return found;
}

CRuntimeClass* CArchive::ReadClass(const CRuntimeClass* pClassRefRequested, UINT* pSchema, DWORD* pObTag) {
    const DWORD tag = read_tag();
    if (!(tag & kBigClassBit)) {
        if (!pObTag) AfxThrowArchiveException(CArchiveException::badIndex, m_strFileName);
        *pObTag = tag;
        return nullptr;
    }
    UINT schema = 0;
    CRuntimeClass* found = class_of_tag(tag, pClassRefRequested, &schema);
    if (pSchema) {
        *pSchema = schema;
    } else {
        m_nObjectSchema = schema;
    }
    if (pObTag) *pObTag = tag;
    return found;
}

CObject* CArchive::ReadObject(const CRuntimeClass* pClassRefRequested) {
    UINT schema = 0;
    DWORD tag = 0;
    CRuntimeClass* runtime_class = ReadClass(pClassRefRequested, &schema, &tag);
    if (!runtime_class) {
        if (tag >= tables().loaded.size() || (tag != 0 && !tables().loaded[tag].object)) {
            AfxThrowArchiveException(CArchiveException::badIndex, m_strFileName);
        }
        CObject* known = tables().loaded[tag].object;
        if (known && pClassRefRequested && !known->IsKindOf(pClassRefRequested)) {
            AfxThrowArchiveException(CArchiveException::badClass, m_strFileName);
        }
        return known;
    }
    std::unique_ptr<CObject> object(runtime_class->CreateObject());
    if (!object) AfxThrowMemoryException();
    const size_t place = tables().loaded.size();
    MapObject(object.get());
    const UINT outer_schema = m_nObjectSchema;
    m_nObjectSchema = schema;
    try {
        object->Serialize(*this);
    } catch (...) {
        tables().loaded[place].object = nullptr;
        throw;
    }
    m_nObjectSchema = outer_schema;
    return object.release();
}

void CRuntimeClass::Store(CArchive& ar) const {
    const WORD length = static_cast<WORD>(std::strlen(m_lpszClassName));
    ar << static_cast<WORD>(m_wSchema) << length;
    ar.Write(m_lpszClassName, length);
}

CRuntimeClass* PASCAL CRuntimeClass::Load(CArchive& ar, UINT* pwSchemaNum) {
    WORD schema, length;
    ar >> schema >> length;
    if (pwSchemaNum) *pwSchemaNum = schema;
    char name[kMostClassName];
    if (length >= kMostClassName || ar.Read(name, length) != length) return nullptr;
    name[length] = '\0';
    CRuntimeClass* found = FromName(name);
    return found && found->m_wSchema != 0xFFFF ? found : nullptr;
}

CArchive& AFXAPI operator<<(CArchive& ar, const CStringW& text) {
    ar << static_cast<BYTE>(0xFF) << kWideMarker;
    write_length(ar, static_cast<size_t>(text.GetLength()));
    for (int i = 0; i < text.GetLength(); ++i) ar << text.GetString()[i];
    return ar;
}

CArchive& AFXAPI operator<<(CArchive& ar, const CStringA& text) {
    write_length(ar, static_cast<size_t>(text.GetLength()));
    ar.Write(text.GetString(), static_cast<UINT>(text.GetLength()));
    return ar;
}

namespace {

template <class Ch>
CArchive& read_text(CArchive& ar, CStringT<Ch>& text) {
    bool wide;
    const size_t length = read_length(ar, wide);
    if (wide) {
        const auto units = read_units<WORD>(ar, length);
        text = CStringW(std::wstring(units.begin(), units.end()).data(), static_cast<int>(units.size()));
    } else {
        const auto units = read_units<char>(ar, length);
        text = CStringA(units.data(), static_cast<int>(units.size()));
    }
    return ar;
}

}  // namespace

CArchive& AFXAPI operator>>(CArchive& ar, CStringW& text) { return read_text(ar, text); }
CArchive& AFXAPI operator>>(CArchive& ar, CStringA& text) { return read_text(ar, text); }
