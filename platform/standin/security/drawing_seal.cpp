#include "security/drawing_seal.h"

#include <algorithm>
#include <sstream>

namespace {

constexpr const char* kHeading = "ktui seal 1";
constexpr std::size_t kDigestLength = 64;

bool isDigest(const std::string& text) {
    return text.size() == kDigestLength && text.find_first_not_of("0123456789abcdef") == std::string::npos;
}

bool readLine(std::istream& from, std::string& line) {
    if (!std::getline(from, line)) return false;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return true;
}

/// The rest of a line that begins with `key` and a blank; nothing of another line.
std::optional<std::string> valueOf(std::istream& from, const std::string& key) {
    std::string line;
    if (!readLine(from, line) || line.rfind(key, 0) != 0 || line[key.size()] != ' ') return std::nullopt;
    return line.substr(key.size() + 1);
}

}  // namespace

std::string sealText(const DrawingSeal& seal) {
    std::ostringstream text;
    text << kHeading << "\r\nsha256 " << seal.digest << "\r\ndate " << seal.date << "\r\nsigner "
         << seal.signer << "\r\n";
    return text.str();
}

std::optional<DrawingSeal> parseSeal(const std::string& text) {
    std::istringstream from(text);
    std::string heading;
    if (!readLine(from, heading) || heading != kHeading) return std::nullopt;
    const auto digest = valueOf(from, "sha256");
    const auto date = valueOf(from, "date");
    const auto signer = valueOf(from, "signer");
    if (!digest || !isDigest(*digest) || !date || !signer || signer->empty()) return std::nullopt;
    return DrawingSeal{*digest, *date, *signer};
}

std::string signerName(const std::string& name) {
    std::string plain = name;
    std::replace_if(
        plain.begin(), plain.end(), [](unsigned char each) { return each < ' ' || each == 0x7F; }, ' ');
    const std::size_t first = plain.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return plain.substr(first, plain.find_last_not_of(' ') - first + 1);
}
