// Text in runs, each with its own colour and weight: what the core says about looks, without a
// toolkit.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace controls {

/// Red, green, blue and opacity, each 0 to 1.
struct Colour {
    double red = 0, green = 0, blue = 0, alpha = 1;
    bool operator==(const Colour&) const = default;
    static constexpr Colour black() { return {}; }
};

struct TextRun {
    std::string text;
    std::optional<Colour> colour; ///< none: the appearance's own text colour
    bool bold = false;
    bool operator==(const TextRun&) const = default;
};

struct StyledText {
    std::vector<TextRun> runs;
    double paragraphSpacing = 0; ///< points after each paragraph
    bool operator==(const StyledText&) const = default;

    static StyledText plain(std::string text) { return {{{std::move(text), {}, false}}, 0}; }
    static StyledText coloured(std::string text, Colour colour) {
        return {{{std::move(text), colour, false}}, 0};
    }
    std::string text() const {
        std::string all;
        for (const TextRun& run : runs)
            all += run.text;
        return all;
    }
};

} // namespace controls
