// The cases of the triangles by what is given.
#include "cli/triangles.h"

#include "frame/text.h"
#include "oblique/answer.h"
#include "righttri/answer.h"
#include "services/degrees.h"

#include <algorithm>

namespace brindlex::cli {

namespace {

/// An element of a triangle: its option, its name in an answer, and how the solver's labels call it.
struct ElementRow {
    std::string_view Option;
    std::string_view Name;
    std::string_view Label;
    bool IsAngle;
};

std::string EntryOf(const Arguments& given, const ElementRow& row, Unit unit) {
    return row.IsAngle ? AngleFrom(given, row.Option, Sign::Positive)
                       : LengthFrom(given, row.Option, unit, Sign::Positive);
}

Item ElementItem(const ElementRow& row, std::string text, bool given, const Display& display) {
    if (!row.IsAngle) {
        return {row.Name, std::move(text), WordOf(display.Measure), true, given};
    }
    return {row.Name, std::move(text), display.Minutes ? "" : "deg", !display.Minutes, given};
}

/// Nothing stands where the area is beyond the range of numbers.
Item AreaItem(const std::optional<double>& area, Unit unit) {
    return {"area", area ? Format(*area, AreaMask) : "", SquareWordOf(unit), true, false};
}

/// How many of the elements are given.
template <std::size_t Count>
std::size_t CountGiven(const std::array<ElementRow, Count>& rows, const Arguments& given) {
    return static_cast<std::size_t>(
        std::count_if(rows.begin(), rows.end(), [&](const ElementRow& row) { return given.Has(row.Option); }));
}

// Right triangles.

constexpr std::array RightRows{ElementRow{"--side-a", "side_a", "Length of side a", false},
                               ElementRow{"--side-b", "side_b", "Length of side b", false},
                               ElementRow{"--side-c", "side_c", "Length of side c", false},
                               ElementRow{"--angle-b", "angle_b", "Angle B", true},
                               ElementRow{"--angle-c", "angle_c", "Angle C", true}};
constexpr std::size_t RightKnown = 2;

const ElementRow& RightRow(std::string_view label) {
    return *std::find_if(RightRows.begin(), RightRows.end(), [&](const ElementRow& row) { return row.Label == label; });
}

righttri::CaseLabels RightCase(const Arguments& given) {
    const std::size_t count = CountGiven(RightRows, given);
    if (count == RightKnown) {
        for (const righttri::CaseLabels& labels : righttri::Cases()) {
            if (given.Has(RightRow(labels.InputLabel1).Option) && given.Has(RightRow(labels.InputLabel2).Option)) {
                return labels;
            }
        }
        throw Failure(Exit::Usage, "two angles are no triangle: a side is missing");
    }
    throw Failure(Exit::Usage, "two of the sides and angles are needed, and there are " + std::to_string(count));
}

std::array<std::string, RightRows.size()> RightTexts(const righttri::Triangle& found, const Display& display,
                                                     SharedState& shared, std::optional<double>& area) {
    const righttri::Answer shown =
        display.Minutes ? righttri::InMinutes(found, shared) : righttri::InDegrees(found, shared);
    const righttri::Triangle& rounded = shown.Rounded;
    // Sides whose area is out of range are shown without it: intended.
    Guarded([&] { area = righttri::AreaOf(rounded.SideB, rounded.SideC); });
    const auto angle = [&](righttri::Part part, double value) {
        return display.Minutes ? DegreesShown(shown.Texts[righttri::IndexOf(part)]) : Trimmed(Str(value));
    };
    return {Trimmed(Str(rounded.SideA)), Trimmed(Str(rounded.SideB)), Trimmed(Str(rounded.SideC)),
            angle(righttri::Part::AngleB, rounded.AngleB), angle(righttri::Part::AngleC, rounded.AngleC)};
}

Answer AnswerRight(const righttri::CaseLabels& labels, righttri::Entries entries, const Display& display) {
    SharedState shared = SharedFor(display);
    const righttri::Solution solution = Solved([&] { return righttri::Solve(labels.Name, entries, shared.Rad); });
    if (solution.Refused == righttri::Refusal::InvalidValues) {
        throw Failure(Exit::NoSolution, "these values make no right triangle");
    }
    if (solution.Refused != righttri::Refusal::None) {
        const bool first = solution.Refused == righttri::Refusal::Text1Missing;
        throw Failure(Exit::BadInput, std::string(first ? labels.InputLabel1 : labels.InputLabel2) + " is missing");
    }
    std::optional<double> area;
    const auto texts = Solved([&] { return RightTexts(solution.Found, display, shared, area); });
    Answer answer{"right", WordOf(display.Measure), {}, {}, {}, {}};
    answer.Items.reserve(RightRows.size() + 1);
    for (std::size_t i = 0; i < RightRows.size(); ++i) {
        const bool given = RightRows[i].Label == labels.InputLabel1 || RightRows[i].Label == labels.InputLabel2;
        answer.Items.push_back(ElementItem(RightRows[i], texts[i], given, display));
    }
    answer.Items.push_back(AreaItem(area, display.Measure));
    return answer;
}

// Oblique triangles.

constexpr std::array ObliqueRows{
    ElementRow{"--angle-a", "angle_a", "Angle A", true}, ElementRow{"--angle-b", "angle_b", "Angle B", true},
    ElementRow{"--angle-c", "angle_c", "Angle C", true}, ElementRow{"--side-a", "side_a", "Side a", false},
    ElementRow{"--side-b", "side_b", "Side b", false},   ElementRow{"--side-c", "side_c", "Side c", false}};
constexpr std::size_t ObliqueKnown = 3;

const oblique::Case& ObliqueCase(const Arguments& given) {
    const std::size_t count = CountGiven(ObliqueRows, given);
    if (count != ObliqueKnown) {
        throw Failure(Exit::Usage, "three of the sides and angles are needed, and there are " + std::to_string(count));
    }
    for (const oblique::Case& row : oblique::Cases()) {
        if (std::all_of(row.Given.begin(), row.Given.end(), [&](oblique::Element element) {
                return given.Has(ObliqueRows[oblique::Index(element)].Option);
            })) {
            return row;
        }
    }
    throw Failure(Exit::Usage, "three angles are no triangle: a side is missing");
}

using ObliqueEntries = std::array<std::string, ObliqueKnown>;

/// The triangle, solved and accepted. Throws Failure.
oblique::Triangle SolveAccepted(std::string_view entry, ObliqueEntries entries, bool second) {
    oblique::Triangle triangle;
    oblique::Refusal refusal = oblique::Refusal::None;
    try {
        DegreeReader reader;
        for (std::string& text : entries) {
            text = reader.NormalizeDmsText(text);
        }
        oblique::SolveOblique(triangle, entry, Val(entries[0]), Val(entries[1]), Val(entries[2]), second);
        refusal = oblique::AcceptOblique(triangle) ? oblique::Refusal::None : oblique::Refusal::NotPositive;
    } catch (const Fault& fault) {
        refusal = oblique::RefusalOf(fault.Number());
    }
    switch (refusal) {
        case oblique::Refusal::None:
            return triangle;
        case oblique::Refusal::NotPositive:
        case oblique::Refusal::IllegalFunctionCall:
        case oblique::Refusal::DivisionByZero:
            throw Failure(Exit::NoSolution, second ? "these values make no triangle by the second solution"
                                                   : "these values make no triangle");
        default:
            throw Failure(Exit::NoSolution, OnOneLine(oblique::RefusalText(refusal)));
    }
}

Answer AnswerOblique(const std::array<oblique::Element, ObliqueKnown>& known, const oblique::Triangle& triangle,
                     const Display& display) {
    SharedState shared = SharedFor(display);
    const oblique::Answer shown =
        Solved([&] { return display.Minutes ? InMinutes(triangle, shared) : InDegrees(triangle, shared); });
    Answer answer{"oblique", WordOf(display.Measure), {}, {}, {}, {}};
    answer.Items.reserve(ObliqueRows.size() + 1);
    for (const oblique::Element element : oblique::AllElements) {
        const std::size_t index = oblique::Index(element);
        const bool given = std::find(known.begin(), known.end(), element) != known.end();
        answer.Items.push_back(ElementItem(ObliqueRows[index],
                                           IsAngle(element) && display.Minutes
                                               ? DegreesShown(shown.Texts[index])
                                               : Trimmed(Str(shown.Shown.Working(element))),
                                           given, display));
    }
    const double area = Solved([&] { return oblique::ObliqueArea(shown.Shown.a, shown.Shown.b, shown.Shown.C); });
    answer.Items.push_back(AreaItem(area, display.Measure));
    return answer;
}

std::string TextAt(const std::vector<std::string>& lines, std::size_t at) {
    return at < lines.size() ? lines[at] : "";
}

}  // namespace

Answer SolveRight(const Arguments& given) {
    const Display display = DisplayFrom(given);
    const righttri::CaseLabels labels = RightCase(given);
    return AnswerRight(labels,
                       {EntryOf(given, RightRow(labels.InputLabel1), display.Measure),
                        EntryOf(given, RightRow(labels.InputLabel2), display.Measure)},
                       display);
}

Answer SolveOblique(const Arguments& given) {
    const Display display = DisplayFrom(given);
    const oblique::Case& row = ObliqueCase(given);
    if (given.Has("--second") && row.Kind != oblique::Family::Ambiguous) {
        throw Failure(Exit::Usage, "--second: what is given has one solution only");
    }
    ObliqueEntries entries;
    std::transform(row.Given.begin(), row.Given.end(), entries.begin(), [&](oblique::Element element) {
        return EntryOf(given, ObliqueRows[oblique::Index(element)], display.Measure);
    });
    return AnswerOblique(row.Given, SolveAccepted(row.Entry, entries, given.Has("--second")), display);
}

Answer RightFromDocument(const std::vector<std::string>& lines, const Display& display) {
    if (lines.empty() || !righttri::IsDocument(lines)) {
        throw Failure(Exit::BadInput, "this is no right triangle");
    }
    return AnswerRight(*righttri::FindCase(lines.front()), {TextAt(lines, 1), TextAt(lines, 2)}, display);
}

Answer ObliqueFromDocument(const std::vector<std::string>& lines, const Display& display) {
    const auto known = lines.empty() ? std::nullopt : oblique::EntriesOf(lines.front());
    if (!known) {
        throw Failure(Exit::BadInput, "this is no oblique triangle");
    }
    ObliqueEntries entries;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i] = TextAt(lines, i + 1);
        if (entries[i].empty()) {
            throw Failure(Exit::BadInput, std::string(oblique::LabelOf((*known)[i])) + " is missing");
        }
    }
    return AnswerOblique(*known, SolveAccepted(lines.front(), entries, false), display);
}

std::string RunRight(const Arguments& given, const StandardInput& input) {
    return RunCalculation(RightCommand, SolveRight, given, input);
}

std::string RunOblique(const Arguments& given, const StandardInput& input) {
    return RunCalculation(ObliqueCommand, SolveOblique, given, input);
}

}  // namespace brindlex::cli
