// What a calculation answers, and how it is written: an aligned table, JSON, CSV.
// Texts are UTF-8.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::cli {

/// A value with its name, as "side_a". Names and units are literals.
struct Item {
    std::string_view Name;
    std::string Text;
    std::string_view Unit;  ///< "in", "deg" and the like; empty where there is none
    bool Number = true;     ///< the text is a number; else a word, or degrees with minutes and seconds
    bool Given = false;     ///< it was known beforehand
};

/// What stands below the values, as the holes of a pattern: a line of items for each, all with the same names.
using Line = std::vector<Item>;

struct Answer {
    std::string_view Calculation;  ///< "right"
    std::string_view Unit;         ///< of its lengths, "in" or "mm"
    std::vector<Item> Items;
    std::vector<Line> Lines;
    std::string_view LinesName;  ///< "holes"
    std::string File;            ///< the document that it comes from; empty for the command line
};

enum class Style { Table, Json, Csv };

/// One answer by itself. As CSV it is a head and a line of values, or the lines where the answer has such.
[[nodiscard]] std::string Written(const Answer& answer, Style style);
/// The answers of several documents: blocks of a table, an array, or as CSV a line for each value.
[[nodiscard]] std::string WrittenWithFiles(std::span<const Answer> answers, Style style);
/// The answers of one calculation for many lines of input, one after the other: CSV with one head, or an array with an
/// object a line. Nothing is kept but the text.
class RowWriter {
public:
    explicit RowWriter(Style style) : style_(style) {}

    void Add(const Answer& answer);
    /// The whole text; once, at the end.
    [[nodiscard]] std::string Text();

private:
    Style style_;
    std::string text_;
};

/// A name as a person reads it: "side a".
[[nodiscard]] std::string Spoken(std::string_view name);
/// A field of CSV, in quotes where it needs them.
[[nodiscard]] std::string CsvField(std::string_view text);

}  // namespace brindlex::cli
