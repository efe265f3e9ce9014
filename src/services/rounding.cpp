// Masks, and the rounding of numbers through them.
#include "services/rounding.h"

#include "frame/text.h"

#include <algorithm>
#include <array>

namespace brindlex {

namespace {

constexpr std::string_view DefaultDigits = "4";
// The whole numbers from 1 to 15 that lie between "1" and "15" as texts. 2 to 9 do not: intended.
constexpr std::array<std::string_view, 7> AcceptedTexts = {"1", "10", "11", "12", "13", "14", "15"};

}  // namespace

std::string RoundingMask(std::string_view digits, SharedState& shared) {
    const std::int16_t last = CInt(Val(digits));
    std::string mask = ".";
    for (shared.LoopI = 1; shared.LoopI <= last; shared.LoopI = CInt(shared.LoopI + 1.0)) {
        mask += '0';
    }
    return mask;
}

std::string DropTrailingZeros(std::string text) {
    const std::size_t last = text.find_last_not_of('0');
    text.resize(last == std::string::npos ? 0 : last + 1);
    return text;
}

void RoundThroughSlots(SharedState& shared, std::string_view digits) {
    shared.NumOut.clear();
    const std::string mask = RoundingMask(digits, shared);
    shared.NumOut = DropTrailingZeros(Format(Val(shared.NumIn), mask));
}

double RoundedForDisplay(double number, SharedState& shared, std::string_view digits) {
    shared.NumIn = Str(number);
    RoundThroughSlots(shared, digits);
    return Val(shared.NumOut);
}

std::string AcceptedDigits(const std::string& stored) {
    const bool accepted = std::find(AcceptedTexts.begin(), AcceptedTexts.end(), stored) != AcceptedTexts.end();
    return std::string(accepted ? std::string_view(stored) : DefaultDigits);
}

}  // namespace brindlex
