// The display list: each item once, at its latest place.
#include "frame/drawing.h"

#include <functional>
#include <utility>

namespace brindlex {

Drawing::Drawing(const Drawing& other) {
    *this = other;
}

Drawing& Drawing::operator=(const Drawing& other) {
    if (this != &other) {
        Clear();
        for (const DrawItem& item : other.items_) {
            Add(item);
        }
    }
    return *this;
}

void Drawing::Add(DrawItem item) {
    items_.push_back(std::move(item));
    const auto added = std::prev(items_.end());
    const auto [standing, isNew] = index_.insert(added);
    if (!isNew) {
        items_.pop_back();
        items_.splice(items_.end(), items_, *standing);
    }
}

void Drawing::Clear() {
    index_.clear();
    items_.clear();
}

std::size_t Drawing::ItemHash::operator()(const std::list<DrawItem>::iterator& item) const {
    auto hash = static_cast<std::size_t>(item->Kind);
    const auto mix = [&hash](std::size_t value) { hash = (hash ^ value) * 0x9E3779B97F4A7C15ULL; };
    for (const double value : {item->X1, item->Y1, item->X2, item->Y2, item->Radius}) {
        mix(std::hash<double>()(value));
    }
    mix(static_cast<std::size_t>(item->Ink.Number()));
    if (!item->Text.empty()) {
        mix(std::hash<std::string>()(item->Text));
    }
    return hash;
}

}  // namespace brindlex
