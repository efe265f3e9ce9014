// Small values of the form surface: places, colours, mouse events.
// Ground floor: includes only the standard library.
#pragma once

#include <cstdint>

namespace brindlex {

/// Twips per pixel of the program's screens, and per inch.
inline constexpr double TwipsPerPixel = 15.0;
inline constexpr double TwipsPerInch = 1440.0;

/// A place in the scale of the container: twips, but inches on a form that scales itself in inches.
struct Place {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;

    friend bool operator==(const Place&, const Place&) = default;
};

/// A colour as the form runtime counts it: red + 256 green + 65536 blue.
struct Colour {
    std::uint8_t Red = 0;
    std::uint8_t Green = 0;
    std::uint8_t Blue = 0;

    [[nodiscard]] constexpr long Number() const { return Red + 256L * Green + 65536L * Blue; }
    [[nodiscard]] static constexpr Colour FromNumber(long number) {
        return {static_cast<std::uint8_t>(number & 255), static_cast<std::uint8_t>((number >> 8) & 255),
                static_cast<std::uint8_t>((number >> 16) & 255)};
    }
    friend constexpr bool operator==(const Colour&, const Colour&) = default;
};

inline constexpr Colour Black{0, 0, 0};
inline constexpr Colour White{255, 255, 255};
inline constexpr Colour Red{255, 0, 0};
inline constexpr Colour Blue{0, 0, 255};

/// What a mouse event carries: the button (0 none, 1 left, 2 right; while moving, the one held), the shift state
/// (1 shift, 2 control, 4 alt) and the position in the control's own scale.
struct Mouse {
    int Button = 0;
    int Shift = 0;
    double X = 0;
    double Y = 0;
};

inline constexpr int LeftButton = 1;
inline constexpr int RightButton = 2;

}  // namespace brindlex
