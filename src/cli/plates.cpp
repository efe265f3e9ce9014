// Sine plates and polygons.
#include "cli/plates.h"

#include "frame/text.h"
#include "polygon/document.h"
#include "polygon/solver.h"
#include "services/degrees.h"
#include "services/rounding.h"
#include "services/units.h"
#include "sineplate/document.h"
#include "sineplate/solver.h"

namespace brindlex::cli {

namespace {

std::string MaskFor(const Display& display, SharedState& shared) {
    return RoundingMask(std::to_string(display.Places), shared);
}

// Sine plates.

struct PlateNames {
    std::string_view First;
    std::string_view Second;
};
constexpr PlateNames RegularNames{"angle", ""};
constexpr PlateNames CompoundNames{"bottom_angle", "top_angle"};

void RefuseOrPass(const sineplate::PlateEntries& entries) {
    using sineplate::PlateRefusal;
    switch (sineplate::CheckPlate(entries)) {
        case PlateRefusal::FirstAngleMissing:
        case PlateRefusal::SecondAngleMissing:
            throw Failure(Exit::BadInput, "an angle is missing, or 0");
        case PlateRefusal::SpacingMissing:
            throw Failure(Exit::BadInput, "the center spacing is missing");
        case PlateRefusal::FirstAngleTooLarge:
        case PlateRefusal::SecondAngleTooLarge:
            throw Failure(Exit::NoSolution, "an angle must be 90 degrees or less");
        case PlateRefusal::None:
            break;
    }
}

/// An angle in degrees, minutes and seconds, these rounded.
std::string MinutesOf(double angle, SharedState& shared) {
    const auto round = [&](double seconds) { return RoundedForDisplay(seconds, shared, shared.DigitsR); };
    return DegreesShown(DegreeText(SplitDegrees(angle, round)));
}

/// Where both types stand in one table, the names of the other one are there too, without values.
Answer AnswerSine(sineplate::PlateEntries entries, const Display& display) {
    RefuseOrPass(entries);
    SharedState shared = SharedFor(display);
    DegreeReader reader;
    entries.FirstAngle = reader.NormalizeDmsText(entries.FirstAngle);
    entries.SecondAngle = reader.NormalizeDmsText(entries.SecondAngle);
    const double first = Val(entries.FirstAngle);
    const double second = Val(entries.SecondAngle);
    const double spacing = Val(entries.Spacing);
    const double unit = display.Measure == Unit::Inch ? 1 : MillimetersPerInch;
    const bool compound = entries.SecondShown;
    const sineplate::Buildup stack = compound ? sineplate::SolveCompound(second, first, spacing, unit, shared.Rad)
                                              : sineplate::SolveRegular(first, spacing, unit, shared.Rad);
    const std::string mask = MaskFor(display, shared);
    const std::string bottom = Format(stack.Bottom, mask);
    const auto angle = [&](std::string_view name, bool shown, double value) -> Item {
        const std::string text = display.Minutes ? MinutesOf(value, shared) : Trimmed(Str(value));
        return {name, shown ? text : "", display.Minutes ? "" : "deg", !display.Minutes, true};
    };
    const std::string_view word = WordOf(display.Measure);
    return {"sine",
            word,
            {angle(RegularNames.First, !compound, first),
             angle(CompoundNames.First, compound, first),
             angle(CompoundNames.Second, compound, second),
             {"spacing", Trimmed(Str(spacing)), "in", true, true},
             {"buildup", compound ? "" : bottom, word, true, false},
             {"bottom_buildup", compound ? bottom : "", word, true, false},
             {"top_buildup", compound ? Format(stack.Top, mask) : "", word, true, false}},
            {},
            {},
            {}};
}

// Polygons.

struct DimensionRow {
    polygon::DimensionType Type;
    std::string_view Option;
    std::string_view Name;
};
constexpr DimensionRow Dimensions[] = {{polygon::DimensionType::AcrossFlats, "--across-flats", "across_flats"},
                                       {polygon::DimensionType::FlatToCorner, "--flat-to-corner", "flat_to_corner"},
                                       {polygon::DimensionType::OneFlat, "--one-flat", "one_flat"}};

Answer AnswerPolygon(const polygon::PolygonCase& wanted, const Display& display) {
    SharedState shared = SharedFor(display);
    const polygon::PolygonSolution solution = polygon::SolvePolygon(wanted, shared.Rad);
    const std::string_view word = WordOf(display.Measure);
    Answer answer{"polygon", word, {}, {}, {}, {}};
    answer.Items.push_back({"sides", std::to_string(wanted.Sides), "", true, true});
    for (const DimensionRow& row : Dimensions) {
        answer.Items.push_back(
            {row.Name, row.Type == wanted.Type ? Trimmed(Str(wanted.Dimension)) : "", word, true, true});
    }
    answer.Items.push_back({"circle", wanted.Inscribed ? "around" : "within", "", false, true});
    answer.Items.push_back({"diameter", Format(solution.Diameter, MaskFor(display, shared)), word, true, false});
    answer.Items.push_back({"area", Format(solution.Area, AreaMask), SquareWordOf(display.Measure), true, false});
    return answer;
}

polygon::PolygonCase CaseOf(int sides, double dimension, bool inscribed, polygon::DimensionType type) {
    const bool odd = polygon::IsOdd(sides);
    return {sides, dimension, inscribed, type, !odd, odd};
}

}  // namespace

Answer SolveSine(const Arguments& given) {
    const Display display = DisplayFrom(given);
    static constexpr std::string_view Types[] = {"--angle", "--bottom-angle"};
    sineplate::PlateEntries entries;
    const std::string_view first = OnlyOneOf(given, Types);
    entries.FirstAngle = AngleFrom(given, first, Sign::Positive);
    entries.SecondShown = first != Types[0];
    if (entries.SecondShown) {
        entries.SecondAngle = AngleFrom(given, "--top-angle", Sign::Positive);
    } else if (given.Has("--top-angle")) {
        throw Failure(Exit::Usage, "--top-angle goes with --bottom-angle");
    }
    entries.Spacing =
        given.Has("--spacing") ? LengthFrom(given, "--spacing", Unit::Inch, Sign::Positive) : std::string("5");
    return Solved([&] { return AnswerSine(entries, display); });
}

Answer SinePlateFromDocument(const std::vector<std::string>& lines, const Display& display) {
    const auto document = sineplate::ReadDocument(lines);
    if (!document || !sineplate::IsDocument(lines)) {
        throw Failure(Exit::BadInput, "this is no sine plate");
    }
    return Solved([&] {
        return AnswerSine({document->Angles[0], document->Angles[1], document->IsCompound(), document->Spacing},
                          display);
    });
}

Answer SolvePolygonOf(const Arguments& given) {
    const Display display = DisplayFrom(given);
    if (given.Has("--inscribed") && given.Has("--circumscribed")) {
        throw Failure(Exit::Usage, "--inscribed and --circumscribed exclude each other");
    }
    const int sides = CountFrom(given, "--sides", polygon::FewestSides, polygon::MostSides);
    static constexpr std::string_view Options[] = {Dimensions[0].Option, Dimensions[1].Option, Dimensions[2].Option};
    const std::string_view option = OnlyOneOf(given, Options);
    const double dimension = Val(LengthFrom(given, option, display.Measure, Sign::Positive));
    auto type = polygon::DimensionType::AcrossFlats;
    for (const DimensionRow& row : Dimensions) {
        type = row.Option == option ? row.Type : type;
    }
    const bool odd = polygon::IsOdd(sides);
    if (type == polygon::DimensionType::AcrossFlats && odd) {
        throw Failure(Exit::Usage, "--across-flats needs an even number of sides");
    }
    if (type == polygon::DimensionType::FlatToCorner && !odd) {
        throw Failure(Exit::Usage, "--flat-to-corner needs an odd number of sides");
    }
    return Solved(
        [&] { return AnswerPolygon(CaseOf(sides, dimension, !given.Has("--circumscribed"), type), display); });
}

Answer PolygonFromDocument(const std::vector<std::string>& lines, const Display& display) {
    const auto document = polygon::ReadDocument(lines);
    if (!document || !polygon::IsDocument(lines)) {
        throw Failure(Exit::BadInput, "this is no polygon");
    }
    const int sides = polygon::SidesOf(document->Sides);
    if (sides < polygon::FewestSides || polygon::SidesTyped(document->Sides) > polygon::MostSides) {
        throw Failure(Exit::BadInput, "the number of sides must be from 3 to 36");
    }
    if (!document->Dimension || document->Dimension->empty()) {
        throw Failure(Exit::BadInput, "the dimension is missing");
    }
    // What does not go with the number of sides is put right.
    const auto type = document->IsOneFlat()   ? polygon::DimensionType::OneFlat
                      : polygon::IsOdd(sides) ? polygon::DimensionType::FlatToCorner
                                              : polygon::DimensionType::AcrossFlats;
    return Solved([&] {
        return AnswerPolygon(CaseOf(sides, Val(*document->Dimension), document->IsInscribed(), type), display);
    });
}

std::string RunSine(const Arguments& given, const StandardInput& input) {
    return RunCalculation(SineCommand, SolveSine, given, input);
}

std::string RunPolygon(const Arguments& given, const StandardInput& input) {
    return RunCalculation(PolygonCommand, SolvePolygonOf, given, input);
}

}  // namespace brindlex::cli
