// Reading of CSV: fields between commas, in quotes where they hold a comma, a quote or a line end.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brindlex::cli {

/// A text that stays where it is is read row by row. A mark of the byte order at its head and empty lines are passed
/// over. Throws Failure (BadInput) with the line for a quote that nothing ends, and for text beside a quoted one.
class CsvReader {
public:
    explicit CsvReader(std::string_view text);

    /// The next row into `fields`; false at the end.
    [[nodiscard]] bool Next(std::vector<std::string>& fields);
    /// The line where the row that was read last begins, from 1.
    [[nodiscard]] std::size_t LineNumber() const noexcept { return rowLine_; }

private:
    [[nodiscard]] bool AtEnd() const noexcept { return at_ >= text_.size(); }
    [[nodiscard]] bool TakeLineEnd();
    void TakeField(std::string& field);
    void TakeQuoted(std::string& field);

    std::string_view text_;
    std::size_t at_ = 0;
    std::size_t line_ = 1;
    std::size_t rowLine_ = 0;
};

}  // namespace brindlex::cli
