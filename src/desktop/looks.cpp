// Fonts and colours.
#include "desktop/looks.h"

#include "desktop/texts.h"
#include "frame/fontwidths.h"

#include <QGuiApplication>
#include <QPalette>
#include <QScreen>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace brindlex {

namespace {

constexpr double PixelsPerInch = TwipsPerInch / TwipsPerPixel;

// Of 255.
constexpr int DarkBelow = 128;
constexpr int LeastLight = 165;

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

}  // namespace

QFont ScreenFont(const std::string& name, double points, bool bold) {
    QFont font = Named(name, bold);
    // A point is 20 twips whatever resolution the screen claims.
    const QScreen* const screen = QGuiApplication::primaryScreen();
    const double claimed = screen == nullptr ? PixelsPerInch : screen->logicalDotsPerInchY();
    font.setPointSizeF(std::max(points, 1.0) * PixelsPerInch / claimed);
    return font;
}

QFont TwipFont(const std::string& name, double points, bool bold) {
    QFont font = Named(name, bold);
    font.setPixelSize(std::max(static_cast<int>(std::lround(points * TwipsPerPoint)), 1));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QColor ToQt(Colour colour) {
    return {colour.Red, colour.Green, colour.Blue};
}

QColor InkOn(const QPalette& palette, Colour colour) {
    if (colour == Black) {
        return palette.color(QPalette::WindowText);
    }
    const QColor ink = ToQt(colour);
    const bool darkGround = palette.color(QPalette::Window).lightness() < DarkBelow;
    if (!darkGround || ink.lightness() >= LeastLight) {
        return ink;
    }
    return QColor::fromHsl(ink.hslHue(), ink.hslSaturation(), LeastLight);
}

}  // namespace brindlex
