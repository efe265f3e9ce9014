// The random walker on the real windows, of any platform: random-walker-desktop [ACTS [SEED]]. It looks too that the
// windows are those of the forms on the screen and no other.
#include "walks.h"

#include "desktop/desktopplayer.h"
#include "desktop/desktopruntime.h"

#include <QApplication>
#include <QWidget>

#include <cstdio>
#include <set>

namespace brindlex {

namespace {

void TellWarnings(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& words) {
    if (!words.startsWith(QStringLiteral("This plugin does not support"))) {
        std::fprintf(stderr, "%s\n", qPrintable(words));
    }
}

/// The windows on the screen are those of the visible forms.
std::string LookAtWindows(Program& program, Runtime& runtime) {
    auto& desktop = dynamic_cast<DesktopRuntime&>(runtime);
    std::set<const QWidget*> wanted;
    for (const Form* const form : program.Forms()) {
        if (!form->Visible() || program.Ended()) {
            continue;
        }
        const FormWindow* const window = desktop.WindowOf(*form);
        if (window == nullptr || !window->isVisible()) {
            return form->Name() + " has no window on the screen";
        }
        wanted.insert(window);
    }
    for (const QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && wanted.count(widget) == 0) {
            return "a window is left on the screen: " + widget->windowTitle().toStdString() + " (" +
                   widget->metaObject()->className() + ")";
        }
    }
    return {};
}

/// No window at all outlives its program.
std::string LookAfterwards() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto left = QApplication::topLevelWidgets();
    return left.isEmpty() ? std::string() : std::to_string(left.size()) + " windows outlive their program";
}

int Walk(int argc, char** argv) {
    qInstallMessageHandler(TellWarnings);
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    WalkParts parts;
    parts.MakeRuntime = [](DrivenRun& run) { return std::make_unique<DesktopRuntime>(run, Size{1280, 1024}); };
    parts.MakePlayer = [](Runtime& runtime) {
        return std::make_unique<DesktopPlayer>(dynamic_cast<DesktopRuntime&>(runtime));
    };
    // The window system keeps fonts, styles and pictures for itself.
    parts.Slack = std::size_t{4} << 20U;
    parts.LookAtWindows = LookAtWindows;
    parts.LookAfterwards = LookAfterwards;
    return RunWalks(argc, argv, parts);
}

}  // namespace

}  // namespace brindlex

int main(int argc, char** argv) {
    return brindlex::Walk(argc, argv);
}
