// CSV of any bytes: its rows are read or refused as bad input. What was read, written as the program writes CSV, reads
// as the same rows.
#include "readfuzz.h"

#include "cli/answer.h"
#include "cli/csv.h"
#include "cli/failure.h"

#include <optional>

namespace {

using namespace brindlex;
using namespace brindlex::cli;

using Rows = std::vector<std::vector<std::string>>;

/// Nothing where the text is refused.
std::optional<Rows> RowsOf(std::string_view text) {
    Rows rows;
    try {
        CsvReader reader(text);
        std::size_t before = 0;
        for (std::vector<std::string> fields; reader.Next(fields);) {
            Demand(!fields.empty() && reader.LineNumber() > before);
            before = reader.LineNumber();
            rows.push_back(fields);
        }
    } catch (const Failure& failure) {
        Demand(failure.Code() == Exit::BadInput);
        return std::nullopt;
    }
    return rows;
}

std::string Written(const Rows& rows) {
    std::string csv;
    for (const std::vector<std::string>& row : rows) {
        // A row of one empty field would be an empty line, which is none.
        csv += row.size() == 1 && row.front().empty() ? "\"\"" : CsvField(row.front());
        for (std::size_t i = 1; i < row.size(); ++i) {
            csv += ',' + CsvField(row[i]);
        }
        csv += '\n';
    }
    return csv;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto rows = RowsOf(TextOf(data, size));
    // At the very head of a text the mark of the byte order is no part of the first field.
    if (rows && !Written(*rows).starts_with("\xEF\xBB\xBF")) {
        Demand(RowsOf(Written(*rows)) == rows);
    }
    return 0;
}
