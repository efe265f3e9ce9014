// Fonts and colours.
#include "desktop/looks.h"

#include "desktop/texts.h"
#include "frame/fontwidths.h"

#include <QPalette>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace brindlex {

namespace {

// What a size that is a product may lack of a whole pixel.
constexpr double Hair = 1e-6;

// Of 255.
constexpr int DarkBelow = 128;
constexpr int Lightest = 255;

// What text needs to be read by everyone: the contrast of two luminances a and b is (a + 0.05) / (b + 0.05), as the Web
// Content Accessibility Guidelines define it, who ask for 4.5.
constexpr double LeastContrast = 4.5;
constexpr double Haze = 0.05;

struct Face {
    const char* name;
    const char* families[3];
};

// Faces of the same metrics, the ones that are installed nearly everywhere first.
constexpr Face Faces[] = {
    {"Arial", {"Liberation Sans", "Arial", "Nimbus Sans"}},
    {"Times New Roman", {"Liberation Serif", "Times New Roman", "Nimbus Roman"}},
    {"Courier New", {"Liberation Mono", "Courier New", "Nimbus Mono PS"}},
};

QStringList FamiliesOf(const std::string& name) {
    const auto* const face =
        std::find_if(std::begin(Faces), std::end(Faces), [&](const Face& candidate) { return name == candidate.name; });
    if (face == std::end(Faces)) {
        return {FromText(name), QStringLiteral("Liberation Sans")};
    }
    QStringList families;
    for (const char* const family : face->families) {
        families << QString::fromLatin1(family);
    }
    return families;
}

QFont Named(const std::string& name, bool bold) {
    QFont font;
    font.setFamilies(FamiliesOf(name));
    font.setBold(bold);
    return font;
}

// Of 1; by the same guidelines.
double Luminance(const QColor& colour) {
    const auto linear = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

}  // namespace

QFont ScreenFont(const std::string& name, double points, bool bold) {
    QFont font = Named(name, bold);
    // Sharp across, but as wide at every size as the outlines say, so that what fits a box at one size fits at all.
    font.setHintingPreference(QFont::PreferVerticalHinting);
    // A point is 20 twips whatever resolution the screen claims. Letters come in whole pixels: never the next larger
    // ones, with which a text that fits its place at one size would lose its end at another.
    const double pixels = points * TwipsPerPoint / TwipsPerPixel;
    font.setPixelSize(std::max(static_cast<int>(pixels + Hair), 1));
    return font;
}

QFont TwipFont(const std::string& name, double points, bool bold) {
    QFont font = Named(name, bold);
    font.setPixelSize(std::max(static_cast<int>(std::lround(points * TwipsPerPoint)), 1));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QPalette PaperPalette(const QPalette& around) {
    constexpr int Button = 239;
    QPalette palette(QColor(Button, Button, Button));
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText}) {
        palette.setBrush(role, around.brush(role));
    }
    return palette;
}

QColor ToQt(Colour colour) {
    return {colour.Red, colour.Green, colour.Blue};
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < DarkBelow;
}

QColor InkOn(const QPalette& palette, Colour colour) {
    if (colour == Black) {
        return palette.color(QPalette::WindowText);
    }
    const QColor ink = ToQt(colour);
    if (!IsDark(palette)) {
        return ink;
    }
    const double ground = Luminance(palette.color(QPalette::Window));
    QColor lighter = ink;
    for (int light = ink.lightness(); light <= Lightest && Luminance(lighter) + Haze < LeastContrast * (ground + Haze);
         ++light) {
        lighter = QColor::fromHsl(ink.hslHue(), ink.hslSaturation(), light);
    }
    return lighter;
}

}  // namespace brindlex
