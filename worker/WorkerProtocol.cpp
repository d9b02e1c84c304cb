#include "WorkerProtocol.h"

namespace worker {
namespace {
int hexValue(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}
} // namespace

std::string Message::field(const std::string& key) const {
    const auto found = fields.find(key);
    return found == fields.end() ? std::string() : found->second;
}

std::string percentEncode(const std::string& value) {
    static const char digits[] = "0123456789ABCDEF";
    std::string encoded;
    encoded.reserve(value.size());
    for (const char c : value) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7f || c == '%') {
            encoded += '%';
            encoded += digits[byte >> 4];
            encoded += digits[byte & 0xf];
        } else {
            encoded += c;
        }
    }
    return encoded;
}

std::string percentDecode(const std::string& value) {
    std::string decoded;
    decoded.reserve(value.size());
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '%' && i + 2 < value.size() && hexValue(value[i + 1]) >= 0 &&
            hexValue(value[i + 2]) >= 0) {
            decoded += static_cast<char>(hexValue(value[i + 1]) * 16 + hexValue(value[i + 2]));
            i += 2;
        } else {
            decoded += value[i];
        }
    }
    return decoded;
}

Message parseLine(const std::string& line) {
    Message message;
    std::size_t start = 0;
    bool first = true;
    while (start <= line.size()) {
        std::size_t end = line.find('\t', start);
        if (end == std::string::npos)
            end = line.size();
        const std::string part = line.substr(start, end - start);
        if (first) {
            message.word = part;
            first = false;
        } else if (const std::size_t equals = part.find('='); equals != std::string::npos) {
            message.fields[part.substr(0, equals)] = percentDecode(part.substr(equals + 1));
        }
        start = end + 1;
    }
    return message;
}

std::string formatLine(const Message& message) {
    std::string line = message.word;
    for (const auto& [key, value] : message.fields)
        line += '\t' + key + '=' + percentEncode(value);
    return line + '\n';
}

} // namespace worker
