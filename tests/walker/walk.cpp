// The random walker on the headless runtime: random-walker [ACTS [SEED]].
#include "walks.h"

#include "headless/headlessplayer.h"
#include "headless/headlessruntime.h"

int main(int argc, char** argv) {
    using namespace brindlex;
    WalkParts parts;
    parts.MakeRuntime = [](DrivenRun& run) { return std::make_unique<HeadlessRuntime>(run, Size{1280, 1024}); };
    parts.MakePlayer = [](Runtime& runtime) {
        return std::make_unique<HeadlessPlayer>(dynamic_cast<HeadlessRuntime&>(runtime));
    };
    return RunWalks(argc, argv, parts);
}
