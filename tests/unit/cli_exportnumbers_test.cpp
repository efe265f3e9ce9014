// Numbers of exported files.
#include "cli/exportnumbers.h"

#include "unit/cli_exportfixture.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace brindlex::cli {
namespace {

TEST(CliExportNumbers, ShortestText) {
    const struct {
        double number;
        const char* text;
    } rows[] = {
        {0, "0"},
        {-0.0, "0"},
        {0.1, "0.1"},
        {-2.5, "-2.5"},
        {100, "100"},
        {1e15, "1000000000000000"},
        {1e16, "1e+16"},
        {1e-6, "0.000001"},
        {1.5e-7, "1.5e-07"},
        {0.1 + 0.2, "0.30000000000000004"},
        {1e300, "1e+300"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ShortestText(row.number), row.text);
    }
}

TEST(CliExportNumbers, EveryDoubleReadsBackAsItself) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 20000; ++i) {
        const double number = std::bit_cast<double>(std::uint64_t{random()});
        if (std::isfinite(number)) {
            EXPECT_EQ(WholeNumberText(ShortestText(number)), number);
        }
    }
}

TEST(CliExportNumbers, NoNumberIsRefused) {
    for (const double number : {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(ExportFailureOf([&] { (void)ShortestText(number); }), "3 a value is too large to be worked with");
        EXPECT_EQ(ExportFailureOf([&] { (void)DecimalText(number, 3); }), "3 a value is too large to be worked with");
    }
}

TEST(CliExportNumbers, DecimalText) {
    const struct {
        double number;
        int places;
        const char* text;
    } rows[] = {
        {12, 4, "12.0"},      {-0.125, 4, "-0.125"}, {1.00004, 4, "1.0"},      {1.00006, 4, "1.0001"},
        {-0.00004, 4, "0.0"}, {0, 4, "0.0"},         {2.5, 0, "2.0"},          {3.7, 0, "4.0"},
        {1200, 0, "1200.0"},  {1200, 4, "1200.0"},   {99.9999999, 6, "100.0"}, {-7.25, 1, "-7.2"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(DecimalText(row.number, row.places), row.text);
    }
}

TEST(CliExportNumbers, WholeNumberText) {
    EXPECT_EQ(WholeNumberText(".5"), 0.5);
    EXPECT_EQ(WholeNumberText("-.5"), -0.5);
    EXPECT_EQ(WholeNumberText(" 12. "), 12);
    EXPECT_EQ(WholeNumberText("+3"), 3);
    EXPECT_EQ(WholeNumberText("1E-05"), 1e-5);
    for (const char* text : {"", " ", "1,5", "12x", "x", "1 2", "--1", "+-1", "inf", "nan", "1e999", "0x10", "1\t"}) {
        EXPECT_EQ(WholeNumberText(text), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace brindlex::cli
