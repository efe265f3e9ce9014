// A word behind an option, of any bytes: it is read as a number, a length, an angle or a count that the solvers take
// and that keeps its bounds, or it is refused.
#include "readfuzz.h"

#include "cli/failure.h"
#include "cli/values.h"
#include "frame/text.h"

namespace {

using namespace brindlex;
using namespace brindlex::cli;

constexpr std::string_view Option = "--option";
constexpr int Least = 1;
constexpr int Most = 32767;

/// What `read` gives is a number within its sign, or a failure of usage.
template <class Read>
void CheckRead(Read&& read, Sign sign) {
    try {
        const double value = Val(read(sign));
        DemandFinite({value});
        Demand(sign == Sign::Any || (sign == Sign::Positive ? value > 0 : value >= 0));
    } catch (const Failure& failure) {
        Demand(failure.Code() == Exit::Usage);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = TextOf(data, size);
    Arguments given;
    given.Set(Option, text);
    for (const Sign sign : {Sign::Positive, Sign::NotNegative, Sign::Any}) {
        CheckRead([&](Sign s) { return NumberFrom(given, Option, s); }, sign);
        CheckRead([&](Sign s) { return AngleFrom(given, Option, s); }, sign);
        CheckRead([&](Sign s) { return LengthFrom(given, Option, Unit::Inch, s); }, sign);
        CheckRead([&](Sign s) { return LengthFrom(given, Option, Unit::Millimeter, s); }, sign);
    }
    try {
        const int count = CountFrom(given, Option, Least, Most);
        Demand(count >= Least && count <= Most);
    } catch (const Failure& failure) {
        Demand(failure.Code() == Exit::Usage);
    }
    Demand(!IsNumber(text) || text.find_first_not_of("+-.0123456789eE") == std::string_view::npos);
    return 0;
}
