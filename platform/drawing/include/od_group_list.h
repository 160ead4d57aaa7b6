// OdGroupList, the contents of one drawing object as the sequence of its group-code values.
//
// Every object keeps its data this way, in the order of the file it came from, and its class reads and edits
// the groups it knows. So what no class knows is kept by itself. The list is packed into one block of memory
// (about the size of the same text in a file) and empty lists take no block at all.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include "od_db_types.h"
#include "od_ge.h"
#include "od_string.h"

/// What the value of a group is, decided by its code alone.
enum class OdGroupKind : std::uint8_t { kText, kReal, kInteger, kHandle };

/// The kind of the groups with this code; codes without a meaning hold text.
ODRT_API OdGroupKind odGroupKind(int code);

/// Whether groups with this code are extended data of applications.
constexpr bool odIsExtendedDataCode(int code) { return code >= 1000; }

/// One value with its code. `text` and `mended` point into the list and live until the list changes.
struct OdGroup {
    int code = 0;
    OdGroupKind kind = OdGroupKind::kText;
    double real = 0;           ///< the value if kind is kReal
    std::int64_t integer = 0;  ///< the value if kind is kInteger or kHandle
    std::string_view text;     ///< the value if kind is kText, in UTF-8
    std::string_view mended;   ///< what stood in the file where that was no value of this kind; mostly empty
    std::uint32_t begin = 0;   ///< place of this group in the list
    std::uint32_t end = 0;     ///< place of the next group

    /// The text as a wide string.
    OdString wide() const { return odWide(text); }
    /// The value as an object's number; 0 for other kinds.
    OdDbHandle handle() const { return kind == OdGroupKind::kHandle ? static_cast<OdDbHandle>(integer) : 0; }
};

/// A packed, ordered list of groups with value semantics.
class ODRT_API OdGroupList {
public:
    OdGroupList() = default;
    OdGroupList(const OdGroupList& other);
    OdGroupList(OdGroupList&& other) noexcept;
    OdGroupList& operator=(OdGroupList other) noexcept;
    ~OdGroupList();

    bool isEmpty() const { return !m_block || m_block->used == 0; }
    /// Size of the packed groups in bytes; also the place just behind the last one.
    std::uint32_t size() const { return m_block ? m_block->used : 0; }
    void clear();
    /// Empties the list but keeps its memory for what comes next.
    void restart() {
        if (m_block) m_block->used = 0;
    }
    /// Gives back memory that growing has left over.
    void shrink();
    friend bool operator==(const OdGroupList& a, const OdGroupList& b) { return a.bytes() == b.bytes(); }

    /// Reads the group at place `at`, which must be 0, an `end`, or size(); false at the end of the list.
    bool read(std::uint32_t at, OdGroup& group) const;

    /// Append one group. The code's kind must be the one of the function.
    void addText(int code, std::string_view utf8);
    void addText(int code, const wchar_t* text) { addText(code, odUtf8(text)); }
    void addReal(int code, double value);
    void addInteger(int code, std::int64_t value);
    void addHandle(int code, OdDbHandle value);
    /// Append x, y and, unless `flat`, z with the codes `code`, `code` + 10 and `code` + 20.
    void addPoint(int code, const OdGePoint3d& point, bool flat = false);
    /// Append one group of another list, or all of it.
    void add(const OdGroup& group);
    void add(const OdGroupList& other);

    /// Takes the bytes from `begin` to `end` (places of groups) out and puts `other` there.
    void replace(std::uint32_t begin, std::uint32_t end, const OdGroupList& other);

    /// The first own group with `code` at place `from` or later. The blocks of application data (102),
    /// embedded objects (101) and extended data (1000 and up) are not the object's own and are passed over.
    bool find(int code, OdGroup& group, std::uint32_t from = 0) const;
    /// The same within the part headed by the subclass marker `marker` (group 100).
    bool findIn(const char* marker, int code, OdGroup& group) const;
    /// Place behind the last own group: where embedded objects or extended data begin.
    std::uint32_t ownEnd() const;
    /// Place behind the blocks of application data at the start.
    std::uint32_t applicationDataEnd() const;
    /// Place of the first subclass marker of this name, or false.
    bool findMarker(std::string_view marker, OdGroup& group, std::uint32_t from = 0) const;

    /// Values by code, with the answer for a group that is absent.
    double real(int code, double absent = 0) const;
    std::int64_t integer(int code, std::int64_t absent = 0) const;
    OdString text(int code) const;
    OdDbHandle handle(int code) const;
    OdGePoint3d point(int code, const OdGePoint3d& absent = {}) const;

    /// The text (group 1000) number `index` of a list of extended data; empty if there are fewer.
    OdString xDataText(int index) const;

    /// Replace the first own group with `code`, or append it behind the own groups.
    void setReal(int code, double value);
    void setInteger(int code, std::int64_t value);
    void setText(int code, const wchar_t* value);
    void setHandle(int code, OdDbHandle value);
    void setPoint(int code, const OdGePoint3d& point, bool flat = false);
    /// Takes out every own group with `code`; answers whether there was one.
    bool remove(int code);

private:
    struct Block {
        std::uint32_t used;
        std::uint32_t capacity;
        /// The packed groups, right behind the block's head.
        char* data() { return reinterpret_cast<char*>(this + 1); }
    };
    std::string_view bytes() const { return m_block ? std::string_view(m_block->data(), m_block->used) : ""; }
    char* grow(std::uint32_t count);
    char* putCode(int code, std::uint32_t payload);
    void addBytes(std::string_view bytes);
    void set(int code, const OdGroupList& value);

    Block* m_block = nullptr;
};
