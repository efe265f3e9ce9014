// Degree text of any bytes: it is read as a number or refused as a bad argument or an overflow, and nothing else.
// What the program writes as degree text reads back as the same angle.
#include "readfuzz.h"

#include "frame/fault.h"
#include "frame/text.h"
#include "services/degrees.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

namespace {

using namespace brindlex;

void ReadAny(DegreeReader& reader, const std::string& text) {
    try {
        const std::string number = reader.NormalizeDmsText(text);
        if (InStr(text, std::string(1, DegreeSign)) == 0) {
            Demand(number == text);
            return;
        }
        Demand(InStr(number, std::string(1, DegreeSign)) == 0);
        Demand(Str(Val(number)) == number);
    } catch (const Fault& fault) {
        Demand(fault.Number() == FaultNumber::BadArgument || fault.Number() == FaultNumber::Overflow);
    }
}

void WriteAndReadBack(double degrees) {
    try {
        const std::string text = DegreeText(SplitDegrees(degrees));
        DegreeReader reader;
        const double back = Val(reader.NormalizeDmsText(text));
        Demand(std::fabs(back - degrees) < 1e-9);
    } catch (const Fault& fault) {
        Demand(fault.Number() == FaultNumber::Overflow);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string all(data, data + size);
    DegreeReader reader;
    // Fields of one calculation, one a line.
    std::size_t start = 0;
    while (start <= all.size()) {
        const std::size_t end = std::min(all.find('\n', start), all.size());
        const std::string field = all.substr(start, end - start);
        ReadAny(reader, field);
        try {
            // Minutes and seconds are written without a place for a sign, so only angles from 0 on read back.
            const double degrees = Val(field);
            if (degrees >= 0) {
                WriteAndReadBack(degrees);
            }
        } catch (const Fault& fault) {
            Demand(fault.Number() == FaultNumber::Overflow);
        }
        start = end + 1;
    }
    return 0;
}
