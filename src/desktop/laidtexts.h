// Texts of a drawing on the screen. Where each letter stands is worked out once and kept, as that is most of what a
// text costs and a drawing that follows the pointer paints the same texts over and over.
// Units: pixels; font sizes in points.
#pragma once

#include <QFont>
#include <QStaticText>

#include <string>
#include <unordered_map>

class QPainter;

namespace brindlex {

class LaidTexts {
public:
    /// To be called for each painter: it has not been given the font yet.
    void Begin() { set_ = false; }
    /// Paints a text of the runtime's code page. Changes the painter's font, which must stay as it is until `Begin`.
    void Paint(QPainter& painter, const QPointF& corner, const std::string& text, const std::string& fontName,
               double points, bool bold);

private:
    void TakeFont(const std::string& name, double points, bool bold);

    std::string name_;
    double points_ = 0;
    bool bold_ = false;
    bool set_ = false;
    QFont font_;
    std::unordered_map<std::string, QStaticText> laid_;
};

}  // namespace brindlex
