// The shared variables by name.
#include "frame/shared.h"

#include <cmath>

namespace brindlex {

namespace {

struct TextRow {
    std::string_view name;
    std::string SharedState::*member;
};
struct NumberRow {
    std::string_view name;
    double SharedState::*member;
};
struct IntegerRow {
    std::string_view name;
    std::int16_t SharedState::*member;
};

constexpr TextRow Texts[] = {
    {"VerCaption", &SharedState::VerCaption}, {"DigitsR", &SharedState::DigitsR},
    {"DigitsO", &SharedState::DigitsO},       {"DigitsB", &SharedState::DigitsB},
    {"MaskB", &SharedState::MaskB},           {"NumIn", &SharedState::NumIn},
    {"NumOut", &SharedState::NumOut},         {"DmsTextB", &SharedState::DmsTextB},
    {"DmsTextC", &SharedState::DmsTextC},     {"ActiveText", &SharedState::ActiveText},
};
constexpr NumberRow Numbers[] = {
    {"Pi", &SharedState::Pi},
    {"Rad", &SharedState::Rad},
    {"Sec1", &SharedState::Sec1},
    {"Sec2", &SharedState::Sec2},
    {"SideA", &SharedState::SideA},
    {"SideB", &SharedState::SideB},
    {"SideC", &SharedState::SideC},
    {"AngleB", &SharedState::AngleB},
    {"AngleC", &SharedState::AngleC},
    {"KeepA", &SharedState::KeepA},
    {"KeepB", &SharedState::KeepB},
    {"KeepC", &SharedState::KeepC},
    {"KeepAngleB", &SharedState::KeepAngleB},
    {"KeepAngleC", &SharedState::KeepAngleC},
};
constexpr IntegerRow Integers[] = {
    {"DigitsS", &SharedState::DigitsS},
    {"LoopI", &SharedState::LoopI},
    {"ScreenW", &SharedState::ScreenW},
    {"ScreenH", &SharedState::ScreenH},
};

}  // namespace

void WorkOutPi(SharedState& shared) {
    shared.Pi = 4 * std::atan(1.0);
    shared.Rad = shared.Pi / 180;
}

std::optional<SharedValue> SharedByName(const SharedState& shared, std::string_view name) {
    for (const TextRow& row : Texts) {
        if (row.name == name) {
            return shared.*row.member;
        }
    }
    for (const NumberRow& row : Numbers) {
        if (row.name == name) {
            return shared.*row.member;
        }
    }
    for (const IntegerRow& row : Integers) {
        if (row.name == name) {
            return static_cast<double>(shared.*row.member);
        }
    }
    return std::nullopt;
}

}  // namespace brindlex
