// What a mutated source is compiled with: every mutant stands in the one program, and BRINDLEX_MUTANT names the one
// that is awake. With BRINDLEX_REACH=FILE the program notes which mutants it came by, and writes one byte for each into
// the file as it ends.
#pragma once

#include <functional>
#include <type_traits>

namespace mutant {

extern int awake;
extern bool noting;
extern unsigned char reached[65536];

/// Whether this mutant is awake.
inline bool Is(int number) {
    if (noting) {
        reached[number] = 1;
    }
    return awake == number;
}

/// The same inside a constexpr function; asleep while compiling.
constexpr bool IsC(int number) {
    return !std::is_constant_evaluated() && Is(number);
}

/// Two operands under an operator, another one while the mutant is awake, and a third while the one behind it is.
template <class First, class Second, class Third, class A, class B>
constexpr decltype(auto) Pick(int number, A&& a, B&& b) {
    if constexpr (!std::is_void_v<Third>) {
        if (IsC(number + 1)) {
            return static_cast<decltype(First()(a, b))>(Third()(a, b));
        }
    }
    return IsC(number) ? static_cast<decltype(First()(a, b))>(Second()(a, b)) : First()(a, b);
}

struct AddTo {
    constexpr decltype(auto) operator()(auto& a, auto& b) const { return a += b; }
};
struct SubTo {
    constexpr decltype(auto) operator()(auto& a, auto& b) const { return a -= b; }
};
struct MulTo {
    constexpr decltype(auto) operator()(auto& a, auto& b) const { return a *= b; }
};
struct DivTo {
    constexpr decltype(auto) operator()(auto& a, auto& b) const { return a /= b; }
};

}  // namespace mutant
