// Answers as tables, JSON and CSV; CSV read again.
#include "cli/answer.h"
#include "cli/csv.h"
#include "cli/failure.h"

#include <gtest/gtest.h>

namespace brindlex::cli {
namespace {
using Rows = std::vector<std::vector<std::string>>;

Answer Sample() {
    return {"sample",
            "in",
            {{"side_a", ".5", "in", true, true},
             {"angle_b", "30\xC2\xB0  0'", "", false, false},
             {"absent", "", "in", true, false}},
            {},
            "holes",
            {}};
}

TEST(Answers, AreAlignedByCharactersAndNotByBytes) {
    EXPECT_EQ(Written(Sample(), Style::Table),
              "side a   .5       in  given\n"
              "angle b  30\xC2\xB0  0'\n");
}

TEST(Answers, AsJsonHaveNumbersAndWords) {
    EXPECT_EQ(Written(Sample(), Style::Json),
              "{\n  \"calculation\": \"sample\",\n  \"unit\": \"in\",\n  \"side_a\": 0.5,\n"
              "  \"angle_b\": \"30\xC2\xB0  0'\",\n  \"given\": [\n    \"side_a\"\n  ]\n}\n");
}

TEST(Answers, AsCsvKeepTheColumnOfWhatIsAbsent) {
    EXPECT_EQ(Written(Sample(), Style::Csv), "side_a,angle_b,absent\n.5,30\xC2\xB0  0',\n");
}

TEST(Answers, WithLinesAreTheseInCsv) {
    Answer answer = Sample();
    answer.Lines = {{{"hole", "1", "", true, false}, {"x", "-2.5", "in", true, false}},
                    {{"hole", "10", "", true, false}, {"x", "0", "in", true, false}}};
    EXPECT_EQ(Written(answer, Style::Csv), "hole,x\n1,-2.5\n10,0\n");
    EXPECT_EQ(Written(answer, Style::Table),
              "side a   .5       in  given\n"
              "angle b  30\xC2\xB0  0'\n"
              "\n"
              "hole  x\n"
              "1     -2.5\n"
              "10    0\n");
}

TEST(Answers, OfFilesAreALineForEachValue) {
    Answer answer = Sample();
    answer.File = "a,\"b\".rgt";
    const std::vector<Answer> answers{answer};
    EXPECT_EQ(WrittenWithFiles(answers, Style::Csv),
              "file,calculation,name,number,value,unit\n"
              "\"a,\"\"b\"\".rgt\",sample,side_a,,.5,in\n"
              "\"a,\"\"b\"\".rgt\",sample,angle_b,,30\xC2\xB0  0',\n");
}

TEST(Answers, InRowsHaveOneHead) {
    RowWriter csv(Style::Csv);
    RowWriter json(Style::Json);
    Answer answer{"sample", "mm", {{"a", "1", "", true, false}}, {}, {}, {}};
    for (RowWriter* const rows : {&csv, &json}) {
        rows->Add(answer);
        rows->Add(answer);
    }
    EXPECT_EQ(csv.Text(), "a\n1\n1\n");
    EXPECT_EQ(json.Text(),
              "[\n{\"calculation\":\"sample\",\"unit\":\"mm\",\"a\":1,\"given\":[]},\n"
              "{\"calculation\":\"sample\",\"unit\":\"mm\",\"a\":1,\"given\":[]}\n]\n");
    EXPECT_EQ(RowWriter(Style::Json).Text(), "[]\n");
    EXPECT_EQ(RowWriter(Style::Csv).Text(), "");
}

Rows RowsOf(std::string_view text) {
    CsvReader reader(text);
    Rows rows;
    std::vector<std::string> fields;
    while (reader.Next(fields)) {
        rows.push_back(fields);
    }
    return rows;
}

TEST(Csv, IsReadWithItsQuotes) {
    EXPECT_EQ(RowsOf(""), Rows());
    EXPECT_EQ(RowsOf("\xEF\xBB\xBF"
                     "a,b\r\n\r\n1,\n,2"),
              (Rows{{"a", "b"}, {"1", ""}, {"", "2"}}));
    EXPECT_EQ(RowsOf("\"a,\"\"b\"\"\nc\",\"\"\rd,e\n"), (Rows{{"a,\"b\"\nc", ""}, {"d", "e"}}));
}

TEST(Csv, ComesBackAsItWent) {
    const std::vector<std::string> fields{"", "plain", "a,b", "say \"so\"", "two\r\nlines", "\"", " "};
    std::string text;
    for (const std::string& field : fields) {
        text += (text.empty() ? "x," : ",") + CsvField(field);
    }
    std::vector<std::string> expected{"x"};
    expected.insert(expected.end(), fields.begin(), fields.end());
    EXPECT_EQ(RowsOf("x," + text.substr(2)), Rows{expected});
}

TEST(Csv, TellsTheLineOfWhatItCanNotRead) {
    const auto refusal = [](std::string_view text) -> std::string {
        try {
            static_cast<void>(RowsOf(text));
            return "none";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Code(), Exit::BadInput);
            return failure.what();
        }
    };
    EXPECT_EQ(refusal("a\n\"b\nc"), "line 2: a quote is not ended");
    EXPECT_EQ(refusal("\"a\nb\"c\n"), "line 2: there is text behind a quoted one");
    EXPECT_EQ(refusal("a\nb\"c\n"), "line 2: a quote stands within a text");
}

}  // namespace
}  // namespace brindlex::cli
