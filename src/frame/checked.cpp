// The faults of checked arithmetic.
#include "frame/checked.h"

namespace brindlex {

void Checked::ThrowOverflow() {
    throw Fault(FaultNumber::Overflow);
}

void Checked::ThrowQuotient(double dividend, double divisor) {
    throw Fault(divisor == 0.0 && dividend != 0.0 ? FaultNumber::DivisionByZero : FaultNumber::Overflow);
}

void ThrowRoot() {
    throw Fault(FaultNumber::BadArgument);
}

}  // namespace brindlex
