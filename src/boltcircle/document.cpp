// Reading of bolt-circle documents.
#include "boltcircle/document.h"

#include "frame/fault.h"
#include "frame/text.h"

namespace brindlex::boltcircle {

std::optional<int> StoredCheck(std::string_view text) {
    if (text.find_first_of("0123456789") == std::string_view::npos) {
        return std::nullopt;
    }
    int value = -1;
    Guarded([&] { value = CInt(Val(text)); });
    return value == 0 || value == 1 ? std::optional(value) : std::nullopt;
}

}  // namespace brindlex::boltcircle
