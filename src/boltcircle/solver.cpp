// The arithmetic of bolt circles.
#include "boltcircle/solver.h"

#include "frame/checked.h"
#include "frame/text.h"
#include "services/degrees.h"

namespace brindlex::boltcircle {

namespace {

// What the number reads as once it was written by the mask; zeros that trail there make no difference.
double Rounded(Checked number, std::string_view mask) {
    return Val(Format(number.Value(), mask));
}

// How many holes follow the first.
int CountFurther(Checked holes) {
    const int count = CInt((holes - 1.0).Value());
    if (count >= MostHoles) {
        // The counter could not pass its last value.
        throw Fault(FaultNumber::Overflow);
    }
    return count;
}

// The law of cosines with two equal sides, its three products in this order.
Checked Chord(Checked r, Checked angle) {
    return Sqr(r * r + r * r - (r + r) * r * Cos(angle));
}

void RoundHead(Pattern& pattern, std::string_view mask) {
    double Pattern::*const rounded[] = {&Pattern::HoleX,    &Pattern::HoleY,     &Pattern::AngleSpacing,
                                        &Pattern::Diameter, &Pattern::ChordDist, &Pattern::CenterX,
                                        &Pattern::CenterY};
    for (double Pattern::*const value : rounded) {
        pattern.*value = Rounded(pattern.*value, mask);
    }
}

// From the rounded centre, where it was rounded: intended.
void AddFurther(Pattern& pattern, Checked increment, std::string_view mask, Checked rad) {
    const int count = CountFurther(pattern.Holes);
    if (count > 0) {
        pattern.Further.reserve(static_cast<std::size_t>(count));
    }
    const Checked r = pattern.Radius;
    // The angle grows by repeated addition and not as a product: intended.
    Checked angle = 0.0;
    for (int i = 1; i <= count; ++i) {
        angle = i == 1 ? angle + increment + pattern.StartAngle : angle + increment;
        const Checked x = r * Cos(angle * rad) + pattern.CenterX;
        const Checked y = r * Sin(angle * rad) + pattern.CenterY;
        if (pattern.AnglesOnly) {
            pattern.Further.push_back({angle.Value(), x.Value(), y.Value()});
        } else {
            pattern.Further.push_back({angle.Value(), Rounded(x, mask), Rounded(y, mask)});
        }
    }
}

}  // namespace

Refusal Validate(const Entries& entries) {
    if (entries.CenterX.empty() || entries.CenterY.empty() || entries.Diameter.empty()) {
        return Refusal::NotCompleted;
    }
    if (entries.AnglesOnly) {
        return Refusal::None;
    }
    if (entries.Holes.empty()) {
        return Refusal::NotCompleted;
    }
    if (entries.Diameter == "0") {
        return Refusal::ZeroDiameter;
    }
    return entries.Holes == "0" ? Refusal::ZeroHoles : Refusal::None;
}

void Normalize(Entries& entries) {
    DegreeReader reader;
    for (std::string* const text :
         {&entries.CenterX, &entries.CenterY, &entries.Diameter, &entries.Holes, &entries.StartAngle}) {
        *text = reader.NormalizeDmsText(*text);
    }
}

Pattern SolveBoltCircle(const Entries& entries, std::string_view mask, double rad) {
    Pattern pattern;
    pattern.AnglesOnly = entries.AnglesOnly;
    pattern.CenterX = Val(entries.CenterX);
    pattern.CenterY = Val(entries.CenterY);
    pattern.Diameter = Val(entries.Diameter);
    pattern.Holes = Val(entries.Holes);
    pattern.StartAngle = Val(entries.StartAngle);

    const Checked r = Checked(pattern.Diameter) / 2.0;
    const Checked increment = Checked(FullTurn) / pattern.Holes;
    pattern.Radius = r.Value();
    pattern.AngleSpacing = increment.Value();
    pattern.ChordDist = Chord(r, increment * rad).Value();
    pattern.HoleX = pattern.CenterX;
    pattern.HoleY = pattern.CenterY;
    if (pattern.StartAngle != 0) {
        const Checked start = Checked(pattern.StartAngle) * rad;
        pattern.HoleX = (r * Cos(start) + pattern.CenterX).Value();
        pattern.HoleY = (r * Sin(start) + pattern.CenterY).Value();
    }
    if (!pattern.AnglesOnly) {
        RoundHead(pattern, mask);
    }
    AddFurther(pattern, increment, mask, rad);
    return pattern;
}

}  // namespace brindlex::boltcircle
