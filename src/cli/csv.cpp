// The rows of CSV.
#include "cli/csv.h"

#include "cli/failure.h"

#include <algorithm>

namespace brindlex::cli {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

[[noreturn]] void RefuseText(std::size_t line, const char* why) {
    throw Failure(Exit::BadInput, "line " + std::to_string(line) + ": " + why);
}

}  // namespace

CsvReader::CsvReader(std::string_view text) : text_(text) {
    if (text_.substr(0, ByteOrderMark.size()) == ByteOrderMark) {
        at_ = ByteOrderMark.size();
    }
}

bool CsvReader::TakeLineEnd() {
    if (AtEnd() || (text_[at_] != '\r' && text_[at_] != '\n')) {
        return false;
    }
    at_ += text_.substr(at_, 2) == "\r\n" ? 2 : 1;
    ++line_;
    return true;
}

void CsvReader::TakeQuoted(std::string& field) {
    const std::size_t began = line_;
    for (++at_; !AtEnd(); ++at_) {
        const char c = text_[at_];
        if (c == '"' && text_.substr(at_, 2) != "\"\"") {
            ++at_;
            if (!AtEnd() && std::string_view(",\r\n").find(text_[at_]) == std::string_view::npos) {
                RefuseText(line_, "there is text behind a quoted one");
            }
            return;
        }
        at_ += c == '"' ? 1 : 0;
        line_ += c == '\n' ? 1 : 0;
        field += c;
    }
    RefuseText(began, "a quote is not ended");
}

void CsvReader::TakeField(std::string& field) {
    field.clear();
    if (!AtEnd() && text_[at_] == '"') {
        TakeQuoted(field);
        return;
    }
    const std::size_t end = std::min(text_.find_first_of(",\r\n", at_), text_.size());
    field = text_.substr(at_, end - at_);
    if (field.find('"') != std::string::npos) {
        RefuseText(line_, "a quote stands within a text");
    }
    at_ = end;
}

bool CsvReader::Next(std::vector<std::string>& fields) {
    while (TakeLineEnd()) {}
    if (AtEnd()) {
        return false;
    }
    rowLine_ = line_;
    std::size_t count = 0;
    bool more = true;
    while (more) {
        if (fields.size() == count) {
            fields.emplace_back();
        }
        TakeField(fields[count++]);
        more = !AtEnd() && text_[at_] == ',';
        at_ += more ? 1 : 0;
    }
    fields.resize(count);
    static_cast<void>(TakeLineEnd());
    return true;
}

}  // namespace brindlex::cli
