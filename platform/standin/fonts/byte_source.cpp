#include "byte_source.h"

#include <od_string.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

#ifdef _WIN32
std::FILE* openFile(const wchar_t* path) { return _wfopen(path, L"rb"); }
bool seek(std::FILE* file, std::int64_t offset, int origin) { return _fseeki64(file, offset, origin) == 0; }
std::int64_t tell(std::FILE* file) { return _ftelli64(file); }
#else
std::FILE* openFile(const wchar_t* path) { return std::fopen(odUtf8(path).c_str(), "rb"); }
bool seek(std::FILE* file, std::int64_t offset, int origin) { return fseeko(file, offset, origin) == 0; }
std::int64_t tell(std::FILE* file) { return ftello(file); }
#endif

// A folder opens like a file on some systems, and then claims to be as large as can be.
constexpr std::int64_t kLargestFile = std::int64_t{1} << 40;

constexpr std::size_t kBlock = 4096;  // bytes

}  // namespace

bool ByteSource::contains(std::uint64_t offset, std::uint64_t count) const {
    return offset <= size() && count <= size() - offset;
}

bool ByteSource::readBig16(std::uint64_t offset, std::uint16_t& value) {
    std::uint8_t b[2];
    if (!read(offset, b, sizeof b)) return false;
    value = static_cast<std::uint16_t>(b[0] << 8 | b[1]);
    return true;
}

bool ByteSource::readBig32(std::uint64_t offset, std::uint32_t& value) {
    std::uint8_t b[4];
    if (!read(offset, b, sizeof b)) return false;
    value = std::uint32_t{b[0]} << 24 | std::uint32_t{b[1]} << 16 | std::uint32_t{b[2]} << 8 | b[3];
    return true;
}

bool ByteSource::readLittle16(std::uint64_t offset, std::uint16_t& value) {
    std::uint8_t b[2];
    if (!read(offset, b, sizeof b)) return false;
    value = static_cast<std::uint16_t>(b[1] << 8 | b[0]);
    return true;
}

bool MemorySource::read(std::uint64_t offset, void* buffer, std::size_t count) {
    if (!contains(offset, count)) return false;
    if (count > 0) std::memcpy(buffer, m_bytes.data() + offset, count);
    return true;
}

FileSource::FileSource(const wchar_t* path) {
    if (!path || !*path) return;
    m_file.reset(openFile(path));
    if (!m_file) {
        m_state = errno == ENOENT || errno == ENOTDIR ? State::kMissing : State::kUnreadable;
        return;
    }
    m_state = State::kUnreadable;
    std::setvbuf(m_file.get(), nullptr, _IONBF, 0);
    if (!seek(m_file.get(), 0, SEEK_END)) return;
    const std::int64_t size = tell(m_file.get());
    if (size < 0 || size > kLargestFile) return;
    m_size = static_cast<std::uint64_t>(size);
    m_state = State::kOpen;
}

bool FileSource::read(std::uint64_t offset, void* buffer, std::size_t count) {
    if (m_state != State::kOpen || !contains(offset, count)) return false;
    auto* to = static_cast<char*>(buffer);
    while (count > 0) {
        if (offset < m_blockStart || offset >= m_blockStart + m_block.size()) {
            if (!fill(offset)) return false;
        }
        const auto within = static_cast<std::size_t>(offset - m_blockStart);
        const std::size_t part = std::min(count, m_block.size() - within);
        std::memcpy(to, m_block.data() + within, part);
        to += part;
        offset += part;
        count -= part;
    }
    return true;
}

/// Reads the block that begins at `offset`; false if not a byte of it can be had.
bool FileSource::fill(std::uint64_t offset) {
    m_block.resize(kBlock);
    m_blockStart = offset;
    const bool found = seek(m_file.get(), static_cast<std::int64_t>(offset), SEEK_SET);
    m_block.resize(found ? std::fread(m_block.data(), 1, kBlock, m_file.get()) : 0);
    return !m_block.empty();
}
