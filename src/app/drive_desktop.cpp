// The script driver on the real windows, of any platform that the window system knows.
#include "app/forms.h"
#include "desktop/desktopplayer.h"
#include "desktop/desktopruntime.h"
#include "desktop/housestyle.h"
#include "headless/driver.h"

#include <QApplication>

#include <cstdio>
#include <memory>

namespace brindlex {

namespace {

// The platforms without a screen say of each window what they cannot do with it, which no script asks for.
void TellWarnings(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& words) {
    if (!words.startsWith(QStringLiteral("This plugin does not support"))) {
        std::fprintf(stderr, "%s\n", qPrintable(words));
    }
}

int RunScripted(int argc, char** argv) {
    qInstallMessageHandler(TellWarnings);
    const QApplication application(argc, argv);
    DressApplication();
    QApplication::setQuitOnLastWindowClosed(false);
    DriverParts parts;
    parts.MakeRuntime = [](DrivenRun& run, Size screen) -> std::unique_ptr<Runtime> {
        auto runtime = std::make_unique<DesktopRuntime>(run, screen);
        // Where somebody wants to see them, the pages that a script prints are kept as files.
        runtime->PrintInto(qEnvironmentVariable("BRINDLEX_PRINTS"));
        // So are pictures of the boxes that come up on the way.
        runtime->PictureBoxesAs(qEnvironmentVariable("BRINDLEX_BOXES"));
        return runtime;
    };
    parts.MakePlayer = [](Runtime& runtime, DrivenRun& /*run*/) -> std::unique_ptr<Player> {
        return std::make_unique<DesktopPlayer>(dynamic_cast<DesktopRuntime&>(runtime));
    };
    parts.RegisterForms = RegisterForms;
    return RunDriver(argc, argv, parts);
}

}  // namespace

}  // namespace brindlex

int main(int argc, char** argv) {
    return brindlex::RunScripted(argc, argv);
}
