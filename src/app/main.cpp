// The program: one run in one working directory.
#include "app/endsignals.h"
#include "app/forms.h"
#include "app/onlyone.h"
#include "app/picturetales.h"
#include "app/workplace.h"
#include "desktop/desktopruntime.h"
#include "desktop/housestyle.h"
#include "frame/form.h"
#include "frame/program.h"

#include <QApplication>
#include <QIcon>

namespace brindlex {

namespace {

// Ends as the menu's close box does: settings are kept, the live drawing goes.
void EndInOrder(Program& program) {
    program.Run("Program", "Terminate", [&] {
        if (Form* const menu = program.Find("Form11"); menu != nullptr && menu->Loaded()) {
            menu->Unload();
        }
        program.End();
    });
}

// The icon of all windows. Carried along: to look for it in the themes costs a quarter of the whole start.
QIcon OwnIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48, 128}) {
        icon.addFile(QStringLiteral(":/icon/%1x%1/apps/brindlex.png").arg(size), QSize(size, size));
    }
    return icon;
}

int RunProgram(int argc, char** argv) {
    QApplication::setApplicationName(QStringLiteral("brindlex"));
    QApplication::setDesktopFileName(QStringLiteral("brindlex"));
    const std::filesystem::path folder = Workplace();
    OnlyOne onlyOne(folder);
    if (onlyOne.CalledFirst()) {
        return 0;
    }
    EndSignals endSignals;
    const QApplication application(argc, argv);
    DressApplication();
    QApplication::setWindowIcon(OwnIcon());
    QApplication::setQuitOnLastWindowClosed(false);

    DesktopRuntime runtime;
    runtime.TellPicturesBy(TaleOf);
    runtime.StartDialogsIn(QString::fromStdString(folder.string()));
    Program program(runtime, Folder(folder));
    RegisterForms(program);
    onlyOne.WhenCalled([&] { runtime.BringForward(); });
    endSignals.WhenTold([&] { EndInOrder(program); });
    program.Start();
    return program.Ended() ? 0 : QApplication::exec();
}

}  // namespace

}  // namespace brindlex

int main(int argc, char** argv) {
    return brindlex::RunProgram(argc, argv);
}
