// Bytes that are read piece by piece at any place, so that a font of many megabytes costs a few small reads.
//
// Every read is checked against the end. A reader of a file format says where its number stands and hears
// whether it is there; it can't be led outside.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string_view>
#include <vector>

#include "../standin_api.h"

class STANDIN_API ByteSource {
public:
    virtual ~ByteSource() = default;

    /// Count of all bytes.
    virtual std::uint64_t size() const = 0;
    /// Puts the `count` bytes at `offset` into `buffer`; false, with `buffer` undefined, if they aren't all
    /// there or can't be read.
    virtual bool read(std::uint64_t offset, void* buffer, std::size_t count) = 0;

    /// Whether `count` bytes at `offset` lie within the source, whatever the sum of the two.
    bool contains(std::uint64_t offset, std::uint64_t count) const;

    // The number of 16 or 32 bits at `offset`, with the high byte first (Big) or last (Little); false if it
    // isn't there.
    bool readBig16(std::uint64_t offset, std::uint16_t& value);
    bool readBig32(std::uint64_t offset, std::uint32_t& value);
    bool readLittle16(std::uint64_t offset, std::uint16_t& value);
};

/// Bytes in memory, which are not copied.
class STANDIN_API MemorySource final : public ByteSource {
public:
    explicit MemorySource(std::string_view bytes) : m_bytes(bytes) {}
    std::uint64_t size() const override { return m_bytes.size(); }
    bool read(std::uint64_t offset, void* buffer, std::size_t count) override;

private:
    std::string_view m_bytes;
};

/// A file, open for reading as long as the object lives. It reads in blocks, so that many small numbers that
/// stand together cost one access.
class STANDIN_API FileSource final : public ByteSource {
public:
    enum class State { kOpen, kMissing, kUnreadable };

    explicit FileSource(const wchar_t* path);
    FileSource(const FileSource&) = delete;
    FileSource& operator=(const FileSource&) = delete;

    /// kMissing if there is no such file, kUnreadable if it exists and can't be opened.
    State state() const { return m_state; }
    std::uint64_t size() const override { return m_size; }
    bool read(std::uint64_t offset, void* buffer, std::size_t count) override;

private:
    bool fill(std::uint64_t offset);

    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, CloseFile> m_file;
    std::uint64_t m_size = 0;
    State m_state = State::kMissing;
    std::vector<char> m_block;  // the bytes read last
    std::uint64_t m_blockStart = 0;
};
