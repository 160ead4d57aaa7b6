#include "security/sealed_file.h"

#include <bcrypt.h>

#include <array>
#include <fstream>
#include <iterator>

namespace {

/// SHA-256 of bytes in hexadecimal digits; empty if the system has no such function.
std::string digestOf(const std::string& bytes) {
    BCRYPT_ALG_HANDLE algorithm = nullptr;
    if (::BCryptOpenAlgorithmProvider(&algorithm, BCRYPT_SHA256_ALGORITHM, nullptr, 0) != 0) return {};
    std::array<UCHAR, 32> hash = {};
    std::string input = bytes;
    const NTSTATUS status =
        ::BCryptHash(algorithm, nullptr, 0, reinterpret_cast<UCHAR*>(input.data()),
                     static_cast<ULONG>(input.size()), hash.data(), static_cast<ULONG>(hash.size()));
    ::BCryptCloseAlgorithmProvider(algorithm, 0);
    if (status != 0) return {};
    std::string digits;
    for (const UCHAR byte : hash) {
        digits += "0123456789abcdef"[byte >> 4];
        digits += "0123456789abcdef"[byte & 15];
    }
    return digits;
}

std::optional<std::string> bytesOf(const CString& path) {
    std::ifstream file(path.GetString(), std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

std::string dateNow() {
    SYSTEMTIME now = {};
    ::GetSystemTime(&now);
    char text[32] = {};
    std::snprintf(text, sizeof(text), "%04u-%02u-%02u %02u:%02u", now.wYear, now.wMonth, now.wDay, now.wHour,
                  now.wMinute);
    return text;
}

}  // namespace

CString SealFileOf(const CString& drawing) { return drawing + L".seal"; }

SealState CheckSeal(const CString& drawing, DrawingSeal& seal) {
    const auto file = bytesOf(drawing);
    if (!file) return SealState::kUnreadable;
    const auto text = bytesOf(SealFileOf(drawing));
    if (!text) return SealState::kNone;
    const auto found = parseSeal(*text);
    if (!found) return SealState::kDamaged;
    seal = *found;
    return digestOf(*file) == seal.digest ? SealState::kIntact : SealState::kChanged;
}

bool SealFile(const CString& drawing, const std::string& signer) {
    const auto file = bytesOf(drawing);
    if (!file) return false;
    const std::string digest = digestOf(*file);
    if (digest.empty()) return false;
    std::ofstream seal(SealFileOf(drawing).GetString(), std::ios::binary);
    seal << sealText({digest, dateNow(), signer});
    seal.close();
    return !seal.fail();
}

bool RemoveSeal(const CString& drawing) {
    const CString file = SealFileOf(drawing);
    return ::DeleteFileW(file) || ::GetFileAttributesW(file) == INVALID_FILE_ATTRIBUTES;
}
