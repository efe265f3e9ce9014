// Which mutant is awake, and which ones the program came by.
#include "mutant.h"

#include <cstdio>
#include <cstdlib>

namespace mutant {

int awake = 0;
bool noting = false;
unsigned char reached[65536];

namespace {

// Before any table is set up.
[[gnu::constructor(101)]] void ReadEnvironment() {
    if (const char* const number = std::getenv("BRINDLEX_MUTANT")) {
        awake = std::atoi(number);
    }
    noting = std::getenv("BRINDLEX_REACH") != nullptr;
}

[[gnu::destructor(101)]] void WriteReach() {
    const char* const name = std::getenv("BRINDLEX_REACH");
    if (name == nullptr) {
        return;
    }
    if (std::FILE* const file = std::fopen(name, "wb")) {
        std::fwrite(reached, 1, sizeof reached, file);
        std::fclose(file);
    }
}

}  // namespace

}  // namespace mutant
