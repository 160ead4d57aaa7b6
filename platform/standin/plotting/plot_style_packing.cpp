#include "plotting/plot_style_packing.h"

#include <zlib.h>

#include <cstdint>

namespace {

constexpr std::string_view kSignature = "PIAFILEVERSION_";
constexpr std::string_view kPacked = ",compress";
constexpr std::string_view kCodec = "pmzlibcodec";
constexpr std::size_t kLongestFirstLine = 100;
constexpr std::size_t kLengthsSize = 12;

std::uint32_t numberAt(std::string_view bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

void appendNumber(std::string& bytes, std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(value >> shift & 0xFF);
}

/// Whether `part` is the beginning of `whole`, or the other way round.
bool agree(std::string_view whole, std::string_view part) {
    const std::size_t size = std::min(whole.size(), part.size());
    return whole.substr(0, size) == part.substr(0, size);
}

/// Unpacks what follows the codec's name.
PlotStyleFault inflate(std::string_view bytes, std::string& text) {
    if (bytes.size() < kLengthsSize) return PlotStyleFault::kTruncated;
    // The checksum in front is not looked at: programs fill it in differently. That of zlib at the end of the
    // packed text tells damage.
    const std::size_t plainSize = numberAt(bytes, 4), packedSize = numberAt(bytes, 8);
    if (plainSize > kMostPlotStyleText) return PlotStyleFault::kTooLarge;
    bytes.remove_prefix(kLengthsSize);
    if (packedSize > bytes.size()) return PlotStyleFault::kTruncated;
    std::string plain(plainSize, '\0');
    uLongf written = static_cast<uLongf>(plainSize);
    uLong taken = static_cast<uLong>(packedSize);
    const int result = uncompress2(reinterpret_cast<Bytef*>(plain.data()), &written,
                                   reinterpret_cast<const Bytef*>(bytes.data()), &taken);
    if (result != Z_OK || written != plainSize || taken != packedSize) return PlotStyleFault::kDamaged;
    text = std::move(plain);
    return PlotStyleFault::kNone;
}

}  // namespace

PlotStyleFault UnpackPlotStyleText(std::string_view bytes, std::string& text) {
    if (bytes.empty()) return PlotStyleFault::kNotATable;
    if (!bytes.starts_with(kSignature)) {
        if (agree(kSignature, bytes)) return PlotStyleFault::kTruncated;
        if (bytes.size() > kMostPlotStyleText) return PlotStyleFault::kTooLarge;
        text = bytes;
        return PlotStyleFault::kNone;
    }
    const std::size_t end = bytes.substr(0, kLongestFirstLine).find('\n');
    if (end == std::string_view::npos)
        return bytes.size() < kLongestFirstLine ? PlotStyleFault::kTruncated : PlotStyleFault::kNotATable;
    const std::string_view firstLine = bytes.substr(0, end), rest = bytes.substr(end + 1);
    if (firstLine.find("CTBVER") == std::string_view::npos &&
        firstLine.find("STBVER") == std::string_view::npos)
        return PlotStyleFault::kNotATable;
    if (firstLine.find(kPacked) == std::string_view::npos) {
        if (rest.size() > kMostPlotStyleText) return PlotStyleFault::kTooLarge;
        text = rest;
        return PlotStyleFault::kNone;
    }
    if (!rest.starts_with(kCodec))
        return agree(kCodec, rest) ? PlotStyleFault::kTruncated : PlotStyleFault::kDamaged;
    return inflate(rest.substr(kCodec.size()), text);
}

std::string PackPlotStyleText(std::string_view text, bool isColorDependent) {
    const auto* plain = reinterpret_cast<const Bytef*>(text.data());
    uLongf size = compressBound(static_cast<uLong>(text.size()));
    std::string packed(size, '\0');
    compress2(reinterpret_cast<Bytef*>(packed.data()), &size, plain, static_cast<uLong>(text.size()),
              Z_BEST_COMPRESSION);
    packed.resize(size);
    std::string bytes(kSignature);
    bytes.append("2.0,").append(isColorDependent ? "CTBVER1" : "STBVER1").append(kPacked).append("\r\n");
    bytes += kCodec;
    appendNumber(bytes, static_cast<std::uint32_t>(adler32(1, plain, static_cast<uInt>(text.size()))));
    appendNumber(bytes, static_cast<std::uint32_t>(text.size()));
    appendNumber(bytes, static_cast<std::uint32_t>(packed.size()));
    return bytes + packed;
}
