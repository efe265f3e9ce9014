// The program as it starts, up to its painted menu, where it ends: for a profiler.
#include "painted.h"

#include "app/endsignals.h"
#include "app/forms.h"
#include "app/onlyone.h"
#include "app/workplace.h"
#include "desktop/desktopruntime.h"
#include "desktop/housestyle.h"
#include "frame/program.h"

using namespace brindlex;

int main(int argc, char** argv) {
    const std::filesystem::path folder = Workplace();
    OnlyOne onlyOne(folder);
    EndSignals endSignals;
    QApplication application(argc, argv);
    DressApplication();
    const EndWhenPainted end(application);
    DesktopRuntime runtime;
    Program program(runtime, Folder(folder));
    RegisterForms(program);
    program.Start();
    return QApplication::exec();
}
