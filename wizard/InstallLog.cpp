#include "wizard/InstallLog.h"

#include <array>
#include <cstdio>
#include <vector>

#include "engine/LogText.h"

namespace ec {

namespace {

constexpr std::string_view kStars = "******************************************************";
constexpr std::string_view kFrame = "**                                                  **";
constexpr std::string_view kBuild = "**    Build number: 19023";

/// The platform's default text of a date: "2001-02-03 04:05:06 +0000", always in UTC.
std::string dateText(std::chrono::system_clock::time_point time) {
    const ports::CalendarTime t(time);
    std::array<char, 48> text{};
    const int length =
        std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02d:%02d:%02d +0000", t.year,
                      t.month, t.day, t.hour, t.minute, t.second);
    return {text.data(), static_cast<std::size_t>(length)};
}

std::string_view modeName(OpMode mode) {
    switch (mode) {
    case OpMode::check:
        return "mode_check";
    case OpMode::copy:
        return "mode_copy";
    case OpMode::remove:
        return "mode_remove";
    }
    return "mode_invalid";
}

std::string_view resultName(int result) {
    switch (result) {
    case -1:
        return "Disable";
    case 0:
        return "No";
    case 1:
        return "Yes";
    default:
        return "Invalid";
    }
}

} // namespace

std::string bytesAsCharacters(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        if (code < 0x80) {
            text += byte;
        } else {
            text += static_cast<char>(0xC0 | code >> 6);
            text += static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return text;
}

std::string charactersAsBytes(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const bool isPair = (lead & 0xFE) == 0xC2 && i + 1 < text.size();
        bytes += isPair ? static_cast<char>((lead & 0x03) << 6 | (text[++i] & 0x3F)) : text[i];
    }
    return bytes;
}

void InstallLog::logMessage(std::string_view message) {
    std::string line = dateText(m_needs.clock.now());
    line.reserve(line.size() + message.size() + 2);
    line += ' ';
    line += message;
    line += '\n';
    (void)m_needs.streams.append(m_needs.places.expandTilde(gLogName), line);
    if (m_needs.written)
        m_needs.written(message);
}

void InstallLog::logMessage(std::string_view text, bool succeeded) {
    logMessage(std::string(text) + ":" + (succeeded ? "Succeeded" : "Failed"));
}

void InstallLog::logInstall(std::string_view title, OpMode mode) {
    logMessage("State: " + std::string(title) + " Mode: " + std::string(modeName(mode)));
    m_needs.processingText.setText(
        formatted(m_needs.texts.lookUp("Processing: %@"), {m_needs.texts.translated(title)}));
    m_needs.processingText.display();
}

void InstallLog::logResult(int result, std::string_view text) {
    logMessage(std::string(text) + " Result= " + std::string(resultName(result)));
}

void InstallLog::logBanner(std::string_view titleLine, int emptyLines) {
    std::vector<std::string_view> lines{kStars, kStars, kFrame, titleLine};
    lines.insert(lines.end(), static_cast<std::size_t>(emptyLines), kFrame);
    lines.insert(lines.end(), {kBuild, kFrame, kStars, kStars});
    for (const std::string_view line : lines)
        logMessage(line);
}

void InstallLog::logException(std::string_view text) {
    logMessage("Exception Raised " + std::string(text));
}

void InstallLog::dumpFDToLog(int descriptor) {
    std::string line;
    line.reserve(1024);
    std::array<char, 4096> buffer;
    while (const std::size_t count = m_needs.streams.read(descriptor, buffer)) {
        std::string_view rest(buffer.data(), count);
        for (std::size_t end; (end = rest.find('\n')) != rest.npos; rest.remove_prefix(end + 1)) {
            logMessage(bytesAsCharacters(line += rest.substr(0, end)));
            line.clear();
        }
        line += rest;
    }
    if (!line.empty())
        logMessage(bytesAsCharacters(line));
}

} // namespace ec
