// Inches and millimeters.
#include "geometry/unitchange.h"

#include "frame/fault.h"
#include "frame/program.h"
#include "geometry/record.h"
#include "services/units.h"

#include <algorithm>

namespace brindlex::geometry {

namespace {

/// A fit sets the scroll bars; where they stood there already, the picture is told here.
void FollowScrollBars(Session& work) {
    PictureBox& picture = work.On.Picture1;
    const double left = work.On.HScroll1.Value();
    const double top = work.On.VScroll1.Value();
    if (work.Entities.Empty() || (picture.ScaleLeft() == left && picture.ScaleTop() == top)) {
        return;
    }
    picture.ScaleLeft(left);
    picture.ScaleTop(top);
    work.Paint();
}

}  // namespace

double FactorTo(Unit unit) {
    return unit == Unit::Inch ? 1 / MillimetersPerInch : MillimetersPerInch;
}

std::optional<std::vector<std::string>> ConvertedLines(const std::vector<std::string>& lines, Unit to) {
    if (std::any_of(lines.begin(), lines.end(), [](const std::string& line) { return line.empty(); })) {
        return std::nullopt;
    }
    std::vector<std::string> converted;
    converted.reserve(lines.size());
    for (const std::string& line : lines) {
        converted.push_back(ConvertedRecord(line, FactorTo(to)));
    }
    return converted;
}

void ChangeUnit(Session& work, Unit to) {
    if (work.Measure() == to) {
        return;
    }
    const Store live = work.Live();
    bool blank = false;
    bool written = false;
    Guarded([&] {
        if (const auto lines = live.TryLines()) {
            const auto converted = ConvertedLines(*lines, to);
            blank = !converted;
            written = converted && live.Rewrite(scratch::Convert, *converted);
        }
    });
    if (blank) {
        return;
    }
    if (!written) {
        work.Owner().BeepBox("The Drawing Could Not Be Converted!");
        return;
    }
    work.TakeUnit(to);
    work.FirstView(to);
    work.Reload();
    work.Fit();
    FollowScrollBars(work);
    Session::Run(work.Calls.FindAng);
}

}  // namespace brindlex::geometry
