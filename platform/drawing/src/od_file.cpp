#include "od_file.h"

#include <cstdio>
#include <memory>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

#ifdef _WIN32
File openFile(const std::wstring& path, const wchar_t* mode) { return File(_wfopen(path.c_str(), mode)); }
void removeFile(const std::wstring& path) { _wremove(path.c_str()); }
bool flushToDisk(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }
bool moveOver(const std::wstring& from, const std::wstring& to) {
    return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}
#else
File openFile(const std::wstring& path, const wchar_t* mode) {
    return File(std::fopen(odUtf8(path).c_str(), odUtf8(mode).c_str()));
}
void removeFile(const std::wstring& path) { std::remove(odUtf8(path).c_str()); }
bool flushToDisk(std::FILE* file) { return std::fflush(file) == 0 && fsync(fileno(file)) == 0; }
bool moveOver(const std::wstring& from, const std::wstring& to) {
    return std::rename(odUtf8(from).c_str(), odUtf8(to).c_str()) == 0;
}
#endif

int hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

}  // namespace

bool odReadFile(const wchar_t* path, std::string& bytes) {
    bytes.clear();
    if (!path || !*path) return false;
    const File file = openFile(path, L"rb");
    if (!file || std::fseek(file.get(), 0, SEEK_END) != 0) return false;
    const long size = std::ftell(file.get());
    if (size < 0 || std::fseek(file.get(), 0, SEEK_SET) != 0) return false;
    bytes.resize(static_cast<std::size_t>(size));
    return std::fread(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
}

bool odReplaceFile(const wchar_t* path, std::string_view bytes) {
    if (!path || !*path) return false;
    constexpr int kTries = 100;
    std::wstring beside;
    File file;
    for (int i = 0; i < kTries && !file; ++i) {
        beside = std::wstring(path) + L".new" + std::to_wstring(i);
        file = openFile(beside, L"wbx");
    }
    if (!file) return false;
    const bool written =
        std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() && flushToDisk(file.get());
    const bool closed = std::fclose(file.release()) == 0;
    if (written && closed && moveOver(beside, path)) return true;
    removeFile(beside);
    return false;
}

std::string odHexToBytes(const OdGroupList& groups, int code) {
    std::string bytes;
    OdGroup group;
    for (std::uint32_t at = 0; groups.read(at, group); at = group.end) {
        if (group.code != code) continue;
        for (std::size_t i = 0; i + 1 < group.text.size(); i += 2) {
            const int high = hexDigit(group.text[i]);
            const int low = hexDigit(group.text[i + 1]);
            if (high < 0 || low < 0) return bytes;
            bytes += static_cast<char>(high * 16 + low);
        }
    }
    return bytes;
}

std::string odBytesToHex(std::string_view bytes) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string digits;
    digits.reserve(bytes.size() * 2);
    for (const char one : bytes) {
        digits += kDigits[static_cast<unsigned char>(one) >> 4];
        digits += kDigits[static_cast<unsigned char>(one) & 15];
    }
    return digits;
}
