// Texts that are laid out once.
#include "desktop/laidtexts.h"

#include "desktop/looks.h"
#include "desktop/texts.h"

#include <QPainter>

namespace brindlex {

namespace {

// More than a drawing has; numbers that change all day must not pile up.
constexpr std::size_t MostTexts = 500;

}  // namespace

void LaidTexts::TakeFont(const std::string& name, double points, bool bold) {
    if (name == name_ && points == points_ && bold == bold_) {
        return;
    }
    name_ = name;
    points_ = points;
    bold_ = bold;
    font_ = ScreenFont(name, points, bold);
    set_ = false;
    laid_.clear();
}

void LaidTexts::Paint(QPainter& painter, const QPointF& corner, const std::string& text, const std::string& fontName,
                      double points, bool bold) {
    TakeFont(fontName, points, bold);
    if (!set_) {
        painter.setFont(font_);
        set_ = true;
    }
    if (laid_.size() >= MostTexts) {
        laid_.clear();
    }
    const auto [entry, isNew] = laid_.try_emplace(text);
    if (isNew) {
        entry->second.setTextFormat(Qt::PlainText);
        entry->second.setText(FromText(text));
    }
    painter.drawStaticText(corner, entry->second);
}

}  // namespace brindlex
