// Speeds and feeds.
#include "cli/speeds.h"

#include "cli/files.h"
#include "frame/textfile.h"
#include "services/rounding.h"
#include "speedsfeeds/calculation.h"
#include "speedsfeeds/ranges.h"
#include "speedsfeeds/store.h"

#include <algorithm>
#include <limits>

namespace brindlex::cli {

namespace {

using speedsfeeds::Entries;
using speedsfeeds::Machine;
using DataUnit = speedsfeeds::Unit;

/// What is worked with.
struct Setup {
    DataUnit Data = DataUnit::Inch;
    Unit Lengths = Unit::Inch;
    Machine On = Machine::Mill;

    [[nodiscard]] bool Metric() const { return Data == DataUnit::Metric; }
};

enum class Reads { Number, Length, Count, Range };

/// An entry by its option.
struct EntryRow {
    std::string_view Option;
    std::string_view Name;
    std::string Entries::*Text;
    Reads As;
    std::string_view InchUnit;
    std::string_view MetricUnit;
};
constexpr EntryRow Rows[] = {
    {"--surface-speed", "surface_speed", &Entries::SurfSpeed, Reads::Number, "ft/min", "m/min"},
    {"--feed", "feed", &Entries::Feed, Reads::Length, "in", "mm"},
    {"--diameter", "diameter", &Entries::Diameter, Reads::Length, "in", "mm"},
    {"--teeth", "teeth", &Entries::Teeth, Reads::Count, "", ""},
    {"--depth", "depth", &Entries::CutDepth, Reads::Length, "in", "mm"},
    {"--width", "width", &Entries::CutWidth, Reads::Length, "in", "mm"},
    {"--power-factor", "power_factor", &Entries::PowerFactor, Reads::Number, "", ""},
    {"--length", "length", &Entries::CutLength, Reads::Length, "in", "mm"},
    {"--cuts", "cuts", &Entries::CutCount, Reads::Count, "", ""},
    {"--speed-range", "speed_range", &Entries::SpeedRange, Reads::Range, "ft/min", "m/min"},
    {"--feed-range", "feed_range", &Entries::FeedRange, Reads::Range, "in", "mm"}};

Setup SetupFrom(const Arguments& given) {
    const std::string_view machine = given.Text("--machine").value_or("mill");
    if (machine != "mill" && machine != "lathe") {
        throw Failure(Exit::Usage, "--machine " + std::string(machine) + ": this must be mill or lathe");
    }
    const Unit unit = DisplayFrom(given).Measure;
    return {unit == Unit::Inch ? DataUnit::Inch : DataUnit::Metric, unit,
            machine == "mill" ? Machine::Mill : Machine::Lathe};
}

std::string RangeFrom(const Arguments& given, std::string_view option) {
    std::string range = Trimmed(*given.Text(option));
    if (!IsRange(range)) {
        throw Failure(Exit::Usage, std::string(option) + " " + range + ": this is no range above 0");
    }
    return range;
}

std::string EntryFrom(const Arguments& given, const EntryRow& row, Unit unit) {
    switch (row.As) {
        case Reads::Length:
            return LengthFrom(given, row.Option, unit, Sign::Positive);
        case Reads::Count:
            return std::to_string(CountFrom(given, row.Option, 1, std::numeric_limits<std::int16_t>::max()));
        case Reads::Range:
            return RangeFrom(given, row.Option);
        case Reads::Number:
            break;
    }
    return NumberFrom(given, row.Option, Sign::Positive);
}

/// The data of the unit behind the whole path that the options name.
speedsfeeds::CuttingData DataFrom(const Arguments& given, DataUnit unit) {
    for (const std::string_view option : {"--tool", "--tool-material", "--work-material"}) {
        Require(given, option);
    }
    speedsfeeds::Walk walk({TextFromUtf8(*given.Text("--tool")), TextFromUtf8(*given.Text("--tool-material")),
                            TextFromUtf8(*given.Text("--work-material"))});
    const std::string file(*given.Text("--data"));
    for (const std::string& line : LinesOf(file)) {
        if (speedsfeeds::IsOfUnit(line, unit)) {
            walk.Take(line);
        }
    }
    const speedsfeeds::Choices found = walk.Found();
    if (!found.Data) {
        throw Failure(Exit::BadInput, file + ": there are no data in this unit for this tool and these materials");
    }
    return *found.Data;
}

void SetWhereEmpty(std::string& entry, const std::string& text) {
    if (entry.empty()) {
        entry = text;
    }
}

/// What was not given, as choosing the data on the form gives it.
void TakeData(Entries& entries, const speedsfeeds::CuttingData& data) {
    SetWhereEmpty(entries.SpeedRange, data.SpeedRange);
    SetWhereEmpty(entries.FeedRange, data.FeedRange);
    SetWhereEmpty(entries.PowerFactor, data.PowerFactor);
    SetWhereEmpty(entries.SurfSpeed, speedsfeeds::StartingValue(data.SpeedRange));
    SetWhereEmpty(entries.Feed, speedsfeeds::StartingValue(data.FeedRange));
}

Entries EntriesFrom(const Arguments& given, const Setup& setup) {
    Entries entries;
    for (const EntryRow& row : Rows) {
        if (given.Has(row.Option)) {
            entries.*row.Text = EntryFrom(given, row, setup.Lengths);
        }
    }
    if (given.Has("--data")) {
        TakeData(entries, DataFrom(given, setup.Data));
    } else if (given.Has("--tool") || given.Has("--tool-material") || given.Has("--work-material")) {
        throw Failure(Exit::Usage, "--tool, --tool-material and --work-material go with --data");
    }
    if (setup.On == Machine::Lathe) {
        if (given.Has("--teeth") || given.Has("--width")) {
            throw Failure(Exit::Usage, "--teeth and --width are for a mill");
        }
        entries.CutWidth = entries.Feed;
    }
    return entries;
}

/// Sections that would be left out for one entry of two are refused: half a section is a mistake.
void CheckSections(const Arguments& given, const Setup& setup) {
    const bool mill = setup.On == Machine::Mill;
    Require(given, "--diameter");
    if (mill) {
        Require(given, "--teeth");
        if (given.Has("--depth") != given.Has("--width")) {
            throw Failure(Exit::Usage, "--depth and --width go together");
        }
    }
    if (given.Has("--length") != given.Has("--cuts")) {
        throw Failure(Exit::Usage, "--length and --cuts go together");
    }
    if (given.Has("--power-factor") && !given.Has("--depth")) {
        throw Failure(Exit::Usage, "--power-factor needs --depth");
    }
    if (!given.Has("--data")) {
        Require(given, "--surface-speed");
        Require(given, "--feed");
    }
}

std::string_view FeedRateUnit(const Setup& setup) {
    if (setup.Metric()) {
        return "m/min";
    }
    return setup.On == Machine::Mill ? "in/min" : "ft/min";
}

/// One decimal as on the form, or as many as are wanted.
std::string MaskFrom(const Arguments& given, SharedState& shared) {
    return given.Has("--places") ? RoundingMask(std::to_string(DisplayFrom(given).Places), shared)
                                 : std::string(speedsfeeds::ResultMask);
}

/// What stands in cutting data need not be a number, and the calculator takes it for 0 then.
void RefuseUnlessNumbers(const Entries& entries) {
    for (const EntryRow& row : Rows) {
        const std::string& text = entries.*row.Text;
        if (row.As != Reads::Range && !text.empty() && !IsPositive(Trimmed(text))) {
            std::string name(row.Option.substr(2));
            std::replace(name.begin(), name.end(), '-', ' ');
            throw Failure(Exit::BadInput, "the " + name + " of these data is no number above 0: " + Utf8FromText(text));
        }
    }
}

Answer AnswerSpeeds(Entries entries, const Setup& setup, const Arguments& given) {
    if (const auto refusal = speedsfeeds::OutOfRange(entries, setup.On)) {
        throw Failure(Exit::NoSolution, OnOneLine(Utf8FromText(refusal->Message)));
    }
    RefuseUnlessNumbers(entries);
    SharedState shared;
    WorkOutPi(shared);
    const speedsfeeds::Results results =
        speedsfeeds::Calculate(entries, setup.Data, setup.On, shared.Pi, /*rateOnShow=*/false, MaskFrom(given, shared));
    if (results.Skipped) {
        throw Failure(Exit::NoSolution, "a result is beyond the range of numbers");
    }
    // The power is worked out with the factor in four decimals: that one is told.
    entries.PowerFactor = results.PowerFactor.value_or(entries.PowerFactor);
    Answer answer{"speeds", WordOf(setup.Lengths), {}, {}, {}, {}};
    answer.Items.push_back({"machine", setup.On == Machine::Mill ? "mill" : "lathe", "", false, true});
    for (const EntryRow& row : Rows) {
        answer.Items.push_back({row.Name, Utf8FromText(Trimmed(entries.*row.Text)),
                                setup.Metric() ? row.MetricUnit : row.InchUnit, row.As != Reads::Range, true});
    }
    answer.Items.push_back({"spindle_speed", results.SpindleSpeed, "rpm", true, false});
    answer.Items.push_back({"feed_rate", results.FeedRate, FeedRateUnit(setup), true, false});
    answer.Items.push_back(
        {"removal_rate", results.RemovalRate.value_or(""), setup.Metric() ? "cu cm/s" : "cu in/min", true, false});
    answer.Items.push_back({"power", results.Power.value_or(""), setup.Metric() ? "kW" : "hp", true, false});
    answer.Items.push_back({"time_in_cut", Trimmed(results.CutTime.value_or("")), "", false, false});
    return answer;
}

}  // namespace

bool IsPositive(std::string_view text) {
    return IsNumber(text) && speedsfeeds::NumberOf(text) > 0;
}

bool IsRange(std::string_view range) {
    const auto ends = speedsfeeds::SplitRange(range);
    return ends ? IsPositive(ends->Left.Text) && IsPositive(ends->Right.Text) : IsPositive(range);
}

Answer SolveSpeeds(const Arguments& given) {
    const Setup setup = SetupFrom(given);
    CheckSections(given, setup);
    const Entries entries = EntriesFrom(given, setup);
    return Solved([&] { return AnswerSpeeds(entries, setup, given); });
}

std::string RunSpeeds(const Arguments& given, const StandardInput& input) {
    return RunCalculation(SpeedsCommand, SolveSpeeds, given, input);
}

}  // namespace brindlex::cli
