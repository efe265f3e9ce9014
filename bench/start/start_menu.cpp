// The program as it starts, up to its painted menu.
#include "painted.h"

#include "app/endsignals.h"
#include "app/forms.h"
#include "app/onlyone.h"
#include "app/workplace.h"
#include "desktop/desktopruntime.h"
#include "frame/program.h"

using namespace brindlex;

int main(int argc, char** argv) {
    const std::filesystem::path folder = Workplace();
    OnlyOne onlyOne(folder);
    EndSignals endSignals;
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);
    const EndWhenPainted end(application);
    DesktopRuntime runtime;
    Program program(runtime, Folder(folder));
    RegisterForms(program);
    program.Start();
    return QApplication::exec();
}
