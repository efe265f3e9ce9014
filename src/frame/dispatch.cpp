// The names of the running handlers, for the message about a chain that is too deep.
#include "frame/dispatch.h"

namespace brindlex {

std::string Dispatcher::ChainText() const {
    std::string text;
    for (const Entry& entry : chain_) {
        if (!text.empty()) {
            text += " > ";
        }
        text.append(entry.owner).append("_").append(entry.what);
    }
    return text;
}

}  // namespace brindlex
