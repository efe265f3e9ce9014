// The variables that live outside any one form. All start as 0 or empty and keep their value for the whole run.
// Units: angles in decimal degrees, lengths in whatever unit the form shows.
// Ground floor: includes only the standard library.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace brindlex {

struct SharedState {
    std::string VerCaption;  ///< put in front of each calculator's title text

    std::string DigitsR;       ///< decimal places of Right Triangles, as text
    std::string DigitsO;       ///< of Oblique Triangles
    std::string DigitsB;       ///< of Bolt Circles
    std::int16_t DigitsS = 0;  ///< of Sine Plates
    std::string MaskB;         ///< the mask of Bolt Circles

    double Pi = 0;
    double Rad = 0;  ///< radians per degree

    std::string NumIn;  ///< how the rounding procedures take a number in and give it back
    std::string NumOut;
    double Sec1 = 0;  ///< seconds of the first and second angle while degree text is built
    double Sec2 = 0;
    std::string DmsTextB;  ///< finished degree text of the first and second angle
    std::string DmsTextC;
    std::int16_t LoopI = 0;

    std::int16_t ScreenW = 0;  ///< screen size in pixels, taken once at start
    std::int16_t ScreenH = 0;
    std::string ActiveText;  ///< name of the text box that last took the focus on the current calculator

    double SideA = 0;  ///< the right triangle as displayed
    double SideB = 0;
    double SideC = 0;
    double AngleB = 0;
    double AngleC = 0;
    double KeepA = 0;  ///< the right triangle as computed
    double KeepB = 0;
    double KeepC = 0;
    double KeepAngleB = 0;
    double KeepAngleC = 0;
};

/// Pi as 4 times the arc tangent of 1, and Rad with it, as at the start of each calculation.
void WorkOutPi(SharedState& shared);

using SharedValue = std::variant<std::string, double>;
/// A shared variable by its name; nothing where there is none.
[[nodiscard]] std::optional<SharedValue> SharedByName(const SharedState& shared, std::string_view name);

}  // namespace brindlex
