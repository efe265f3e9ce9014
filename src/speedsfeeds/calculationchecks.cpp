// What a calculation asks for, and the ranges that its entries have to keep.
#include "speedsfeeds/calculation.h"
#include "speedsfeeds/ranges.h"

#include <iterator>
#include <span>

namespace brindlex::speedsfeeds {

namespace {

constexpr std::string_view LineEnd = "\r\n";

/// An entry and what is said where it is empty; no words where the machine does without it.
struct Question {
    Entry At;
    std::string_view Mill;
    std::string_view Lathe;

    [[nodiscard]] std::string_view For(Machine machine) const { return machine == Machine::Mill ? Mill : Lathe; }
};

constexpr std::string_view WhichTool = "What Type Of Tool? Drill etc.";
constexpr std::string_view WhichToolMaterial = "What Tool Material? High Speed, Carbide etc.";
constexpr std::string_view WhichMaterial = "What Material? Stainless-406, Tool Steel-D2 etc.";
constexpr std::string_view WhichSpeedRange = "What Suggested Range For SFM/SMM?";
constexpr std::string_view HowFast = "How Many Surface Feet?";

constexpr Question DataQuestions[] = {
    {Entry::Tool, WhichTool, WhichTool},
    {Entry::ToolMaterial, WhichToolMaterial, WhichToolMaterial},
    {Entry::WorkMaterial, WhichMaterial, WhichMaterial},
    {Entry::SpeedRange, WhichSpeedRange, WhichSpeedRange},
    {Entry::FeedRange, "What Suggested Range For Feed Per Tooth?", "What Suggested Range For Feed Per Revolution?"},
};

constexpr Question EntryQuestions[] = {
    {Entry::SurfSpeed, HowFast, HowFast},
    {Entry::Feed, "What is Feed Per Tooth?", "What is Feed Per Revolution?"},
    {Entry::Diameter, "What is the Tool Diameter?", "What is the Work Diameter?"},
    {Entry::Teeth, "How Many Teeth?", ""},
};

/// The first of the questions whose text is empty; texts and questions stand in the same order.
std::optional<Refusal> FirstMissing(std::span<const Question> questions, std::span<const std::string* const> texts,
                                    Machine machine) {
    for (std::size_t at = 0; at < questions.size(); ++at) {
        const std::string_view words = questions[at].For(machine);
        if (texts[at]->empty() && !words.empty()) {
            return Refusal{questions[at].At, std::string(words)};
        }
    }
    return std::nullopt;
}

/// A range with its chosen value, and the words about it.
struct RangeCheck {
    const std::string& Range;
    const std::string& Chosen;
    Entry RangeAt;
    Entry ChosenAt;
    std::string_view Name;
};

Refusal NotWithin(const RangeCheck& check, const std::string& range) {
    std::string message = "Chosen ";
    message += check.Name;
    message += " Is Not Within The";
    message += LineEnd;
    message += "Range of ";
    message += range;
    message += " Specified.";
    return {check.ChosenAt, std::move(message)};
}

Refusal HoldsZero(const RangeCheck& check) {
    std::string message(check.Name);
    message += " Range Contains an Illegal Value.";
    message += LineEnd;
    message += check.Name;
    message += " Range Can't Contain a Value of 0.";
    return {check.RangeAt, std::move(message)};
}

std::optional<Refusal> CheckRange(const RangeCheck& check) {
    if (check.Range.empty()) {
        return std::nullopt;
    }
    const double chosen = NumberOf(check.Chosen);
    const std::optional<RangeEnds> ends = SortedRange(check.Range);
    if (!ends) {
        return NumberOf(check.Range) == chosen ? std::nullopt : std::optional(NotWithin(check, check.Range));
    }
    if (ends->Left.Value == 0 || ends->Right.Value == 0) {
        return HoldsZero(check);
    }
    if (chosen < ends->Left.Value || chosen > ends->Right.Value) {
        return NotWithin(check, ends->Left.Text + "-" + ends->Right.Text);
    }
    return std::nullopt;
}

}  // namespace

std::optional<Refusal> MissingData(const Record& record, Machine machine) {
    const std::string* const texts[] = {&record.Tool, &record.ToolMaterial, &record.WorkMaterial, &record.SpeedRange,
                                        &record.FeedRange};
    static_assert(std::size(texts) == std::size(DataQuestions));
    return FirstMissing(DataQuestions, texts, machine);
}

std::optional<Refusal> MissingEntry(const Entries& entries, Machine machine) {
    const std::string* const texts[] = {&entries.SurfSpeed, &entries.Feed, &entries.Diameter, &entries.Teeth};
    static_assert(std::size(texts) == std::size(EntryQuestions));
    return FirstMissing(EntryQuestions, texts, machine);
}

std::optional<Refusal> OutOfRange(const Entries& entries, Machine machine) {
    const std::string_view feed = machine == Machine::Mill ? "Feed Per Tooth" : "Feed Per Revolution";
    const RangeCheck checks[] = {
        {entries.SpeedRange, entries.SurfSpeed, Entry::SpeedRange, Entry::SurfSpeed, "SFM/SMM"},
        {entries.FeedRange, entries.Feed, Entry::FeedRange, Entry::Feed, feed},
    };
    for (const RangeCheck& check : checks) {
        if (std::optional<Refusal> refusal = CheckRange(check)) {
            return refusal;
        }
    }
    return std::nullopt;
}

}  // namespace brindlex::speedsfeeds
