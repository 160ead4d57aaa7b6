#include "od_group_list.h"

#include "od_comment_code.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

namespace {

// A packed group is its code (2 bytes), then 8 bytes for a real, a variable-length integer for an integer or
// a handle, or a variable-length count and the bytes of a text. Where a file had something else than a value,
// the code is marked, and a count and the bytes of that follow.

std::size_t putVarint(char* out, std::uint64_t value) {
    std::size_t count = 0;
    for (; value >= 0x80; value >>= 7) out[count++] = static_cast<char>(value | 0x80);
    out[count++] = static_cast<char>(value);
    return count;
}

const char* takeVarint(const char* in, std::uint64_t& value) {
    value = 0;
    for (int shift = 0;; shift += 7) {
        const auto byte = static_cast<unsigned char>(*in++);
        value |= static_cast<std::uint64_t>(byte & 0x7F) << shift;
        if (byte < 0x80) return in;
    }
}

constexpr std::uint64_t zigzag(std::int64_t value) {
    return (static_cast<std::uint64_t>(value) << 1) ^ static_cast<std::uint64_t>(value >> 63);
}
constexpr std::int64_t unzigzag(std::uint64_t value) {
    return static_cast<std::int64_t>(value >> 1) ^ -static_cast<std::int64_t>(value & 1);
}

constexpr std::uint32_t kLongestNumber = 10;  // bytes of a variable-length integer
constexpr int kEmbeddedObject = 101;
constexpr int kApplicationData = 102;
constexpr int kFirstExtendedText = 1000;
/// Added to the code of a group behind whose value stands what the file had in its place.
constexpr int kMendedMark = 0x4000;

struct KindRange {
    int first, last;
    OdGroupKind kind;
};

constexpr KindRange kKinds[] = {
    {10, 59, OdGroupKind::kReal},       {60, 79, OdGroupKind::kInteger},    {90, 99, OdGroupKind::kInteger},
    {105, 105, OdGroupKind::kHandle},   {110, 149, OdGroupKind::kReal},     {160, 179, OdGroupKind::kInteger},
    {210, 239, OdGroupKind::kReal},     {270, 299, OdGroupKind::kInteger},  {320, 369, OdGroupKind::kHandle},
    {370, 389, OdGroupKind::kInteger},  {390, 399, OdGroupKind::kHandle},   {400, 409, OdGroupKind::kInteger},
    {420, 429, OdGroupKind::kInteger},  {440, 459, OdGroupKind::kInteger},  {460, 469, OdGroupKind::kReal},
    {480, 481, OdGroupKind::kHandle},   {1005, 1005, OdGroupKind::kHandle}, {1010, 1059, OdGroupKind::kReal},
    {1060, 1071, OdGroupKind::kInteger}};

struct KindTable {
    OdGroupKind kinds[1072] = {};
    constexpr KindTable() {
        for (const KindRange& range : kKinds)
            for (int code = range.first; code <= range.last; ++code) kinds[code] = range.kind;
    }
};

constexpr KindTable kKindTable;

}  // namespace

OdGroupKind odGroupKind(int code) {
    return code < 0 || code > 1071 ? OdGroupKind::kText : kKindTable.kinds[code];
}

OdGroupList::OdGroupList(const OdGroupList& other) {
    const std::string_view source = other.bytes();
    if (!source.empty())
        std::memcpy(grow(static_cast<std::uint32_t>(source.size())), source.data(), source.size());
}

OdGroupList::OdGroupList(OdGroupList&& other) noexcept : m_block(std::exchange(other.m_block, nullptr)) {}

OdGroupList& OdGroupList::operator=(OdGroupList other) noexcept {
    std::swap(m_block, other.m_block);
    return *this;
}

OdGroupList::~OdGroupList() { std::free(m_block); }

void OdGroupList::clear() {
    std::free(m_block);
    m_block = nullptr;
}

void OdGroupList::shrink() {
    if (!m_block || m_block->capacity == m_block->used) return;
    if (m_block->used == 0) {
        clear();
        return;
    }
    if (void* smaller = std::realloc(m_block, sizeof(Block) + m_block->used)) {
        m_block = static_cast<Block*>(smaller);
        m_block->capacity = m_block->used;
    }
}

char* OdGroupList::grow(std::uint32_t count) {
    const std::uint32_t used = size();
    if (!m_block || used + count > m_block->capacity) {
        const std::uint32_t capacity = m_block ? (used + count) + (used + count) / 2 : count;
        void* larger = std::realloc(m_block, sizeof(Block) + capacity);
        if (!larger) throw std::bad_alloc();
        m_block = static_cast<Block*>(larger);
        m_block->capacity = capacity;
    }
    m_block->used = used + count;
    return m_block->data() + used;
}

char* OdGroupList::putCode(int code, std::uint32_t payload) {
    char* at = grow(2 + payload);
    const auto small = static_cast<std::int16_t>(code);
    std::memcpy(at, &small, 2);
    return at + 2;
}

bool OdGroupList::read(std::uint32_t at, OdGroup& group) const {
    if (at >= size()) return false;
    const char* in = m_block->data() + at;
    std::int16_t code;
    std::memcpy(&code, in, 2);
    in += 2;
    const bool isMended = code >= kMendedMark;
    group.code = isMended ? code - kMendedMark : code;
    group.kind = odGroupKind(group.code);
    group.begin = at;
    std::uint64_t number = 0;
    switch (group.kind) {
        case OdGroupKind::kReal:
            std::memcpy(&group.real, in, sizeof(double));
            in += sizeof(double);
            break;
        case OdGroupKind::kText:
            in = takeVarint(in, number);
            group.text = std::string_view(in, number);
            in += number;
            break;
        default:
            in = takeVarint(in, number);
            group.integer =
                group.kind == OdGroupKind::kInteger ? unzigzag(number) : static_cast<std::int64_t>(number);
            break;
    }
    group.mended = {};
    if (isMended) {
        in = takeVarint(in, number);
        group.mended = std::string_view(in, number);
        in += number;
    }
    group.end = static_cast<std::uint32_t>(in - m_block->data());
    return true;
}

void OdGroupList::addText(int code, std::string_view utf8) {
    putCode(code, 0);
    addBytes(utf8);
}

/// Appends bytes with their count before them.
void OdGroupList::addBytes(std::string_view bytes) {
    char number[kLongestNumber];
    const std::size_t count = putVarint(number, bytes.size());
    char* at = grow(static_cast<std::uint32_t>(count + bytes.size()));
    std::memcpy(at, number, count);
    if (!bytes.empty()) std::memcpy(at + count, bytes.data(), bytes.size());
}

void OdGroupList::addReal(int code, double value) {
    std::memcpy(putCode(code, sizeof value), &value, sizeof value);
}

void OdGroupList::addInteger(int code, std::int64_t value) {
    char number[kLongestNumber];
    const std::size_t count = putVarint(number, zigzag(value));
    std::memcpy(putCode(code, static_cast<std::uint32_t>(count)), number, count);
}

void OdGroupList::addHandle(int code, OdDbHandle value) {
    char number[kLongestNumber];
    const std::size_t count = putVarint(number, value);
    std::memcpy(putCode(code, static_cast<std::uint32_t>(count)), number, count);
}

void OdGroupList::addPoint(int code, const OdGePoint3d& point, bool flat) {
    addReal(code, point.x);
    addReal(code + 10, point.y);
    if (!flat) addReal(code + 20, point.z);
}

void OdGroupList::add(const OdGroup& group) {
    const int code = group.mended.empty() ? group.code : group.code + kMendedMark;
    switch (group.kind) {
        case OdGroupKind::kReal: addReal(code, group.real); break;
        case OdGroupKind::kText: addText(code, group.text); break;
        case OdGroupKind::kInteger: addInteger(code, group.integer); break;
        case OdGroupKind::kHandle: addHandle(code, group.handle()); break;
    }
    if (!group.mended.empty()) addBytes(group.mended);
}

void OdGroupList::add(const OdGroupList& other) {
    const std::string_view source = other.bytes();
    if (!source.empty())
        std::memcpy(grow(static_cast<std::uint32_t>(source.size())), source.data(), source.size());
}

void OdGroupList::replace(std::uint32_t begin, std::uint32_t end, const OdGroupList& other) {
    const std::string_view added = other.bytes();
    const std::uint32_t tail = size() - end;
    const auto count = static_cast<std::uint32_t>(added.size());
    if (count > end - begin) grow(count - (end - begin));
    if (!m_block) return;
    if (tail) std::memmove(m_block->data() + begin + count, m_block->data() + end, tail);
    if (count) std::memcpy(m_block->data() + begin, added.data(), count);
    m_block->used = begin + count + tail;
}

bool OdGroupList::find(int code, OdGroup& group, std::uint32_t from) const {
    int depth = 0;
    for (std::uint32_t at = from; read(at, group); at = group.end) {
        if (group.code == kEmbeddedObject || odIsExtendedDataCode(group.code)) return false;
        if (group.code == kApplicationData) {
            depth = !group.text.empty() && group.text[0] == '{' ? 1 : 0;
            continue;
        }
        if (depth == 0 && group.code == code) return true;
    }
    return false;
}

bool OdGroupList::findMarker(std::string_view marker, OdGroup& group, std::uint32_t from) const {
    for (; find(100, group, from); from = group.end)
        if (group.text == marker) return true;
    return false;
}

bool OdGroupList::findIn(const char* marker, int code, OdGroup& group) const {
    OdGroup head, next;
    if (!findMarker(marker, head)) return false;
    if (!find(code, group, head.end)) return false;
    return !find(100, next, head.end) || next.begin >= group.begin;
}

std::uint32_t OdGroupList::ownEnd() const {
    OdGroup group;
    std::uint32_t at = 0;
    while (read(at, group) && group.code != kEmbeddedObject && group.code != kOdComment &&
           !odIsExtendedDataCode(group.code))
        at = group.end;
    return at;
}

std::uint32_t OdGroupList::applicationDataEnd() const {
    OdGroup group;
    std::uint32_t end = 0;
    bool inside = false;
    for (std::uint32_t at = 0; read(at, group) && (inside || group.code == kApplicationData); at = group.end)
        if (group.code == kApplicationData) {
            inside = !group.text.empty() && group.text[0] == '{';
            if (!inside) end = group.end;
        }
    return end;
}

double OdGroupList::real(int code, double absent) const {
    OdGroup group;
    return find(code, group) && group.kind == OdGroupKind::kReal ? group.real : absent;
}

std::int64_t OdGroupList::integer(int code, std::int64_t absent) const {
    OdGroup group;
    return find(code, group) && group.kind == OdGroupKind::kInteger ? group.integer : absent;
}

OdString OdGroupList::text(int code) const {
    OdGroup group;
    return find(code, group) && group.kind == OdGroupKind::kText ? group.wide() : OdString();
}

OdDbHandle OdGroupList::handle(int code) const {
    OdGroup group;
    return find(code, group) ? group.handle() : 0;
}

OdGePoint3d OdGroupList::point(int code, const OdGePoint3d& absent) const {
    OdGroup group;
    if (!find(code, group)) return absent;
    OdGePoint3d point{group.real, 0, 0};
    OdGroup part;
    if (read(group.end, part) && part.code == code + 10) {
        point.y = part.real;
        if (read(part.end, part) && part.code == code + 20) point.z = part.real;
        return point;
    }
    point.y = real(code + 10);
    point.z = real(code + 20);
    return point;
}

OdString OdGroupList::xDataText(int index) const {
    OdGroup group;
    for (std::uint32_t at = 0; read(at, group); at = group.end)
        if (group.code == kFirstExtendedText && index-- == 0) return group.wide();
    return {};
}

void OdGroupList::set(int code, const OdGroupList& value) {
    OdGroup group;
    if (find(code, group)) {
        replace(group.begin, group.end, value);
    } else {
        const std::uint32_t end = ownEnd();
        replace(end, end, value);
    }
}

void OdGroupList::setReal(int code, double value) {
    OdGroupList one;
    one.addReal(code, value);
    set(code, one);
}

void OdGroupList::setInteger(int code, std::int64_t value) {
    OdGroupList one;
    one.addInteger(code, value);
    set(code, one);
}

void OdGroupList::setText(int code, const wchar_t* value) {
    OdGroupList one;
    one.addText(code, value ? value : L"");
    set(code, one);
}

void OdGroupList::setHandle(int code, OdDbHandle value) {
    OdGroupList one;
    one.addHandle(code, value);
    set(code, one);
}

void OdGroupList::setPoint(int code, const OdGePoint3d& point, bool flat) {
    const bool hadZ = [&] {
        OdGroup group;
        return find(code + 20, group);
    }();
    if (OdGroup group; find(code, group)) {
        setReal(code, point.x);
        setReal(code + 10, point.y);
        if (hadZ || !flat) setReal(code + 20, point.z);
        return;
    }
    OdGroupList whole;
    whole.addPoint(code, point, flat);
    const std::uint32_t end = ownEnd();
    replace(end, end, whole);
}

bool OdGroupList::remove(int code) {
    bool found = false;
    OdGroup group;
    for (std::uint32_t at = 0; find(code, group, at); at = group.begin) {
        replace(group.begin, group.end, OdGroupList());
        found = true;
    }
    return found;
}
