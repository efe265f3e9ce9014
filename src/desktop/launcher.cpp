// Starting of other programs.
#include "desktop/launcher.h"

#include "desktop/texts.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <csignal>

namespace brindlex {

namespace {

struct Counterpart {
    const char* name;
    const char* program;
};

// In the order in which they are looked for.
constexpr Counterpart Counterparts[] = {
    {"CALC.EXE", "gnome-calculator"},
    {"CALC.EXE", "kcalc"},
    {"CALC.EXE", "mate-calc"},
    {"CALC.EXE", "galculator"},
    {"CALC.EXE", "qalculate-gtk"},
    {"CALC.EXE", "qalculate-qt"},
    {"CALC.EXE", "speedcrunch"},
    {"CALC.EXE", "deepin-calculator"},
    {"CALC.EXE", "elementary-calculator"},
    {"CALC.EXE", "lxqt-calculator"},
    {"CALC.EXE", "xcalc"},
};

// Programs that are started inherit what signals are blocked, and this program blocks those that end it, to end in
// order. While this lives, nothing is blocked.
class Unblocked {
public:
    Unblocked() {
        sigset_t none;
        sigemptyset(&none);
        pthread_sigmask(SIG_SETMASK, &none, &before_);
    }
    ~Unblocked() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    Unblocked(const Unblocked&) = delete;
    Unblocked& operator=(const Unblocked&) = delete;

private:
    sigset_t before_{};
};

}  // namespace

bool StartCounterpart(const std::string& name) {
    const Unblocked unblocked;
    for (const Counterpart& counterpart : Counterparts) {
        if (name == counterpart.name) {
            const QString path = QStandardPaths::findExecutable(QString::fromLatin1(counterpart.program));
            if (!path.isEmpty() && QProcess::startDetached(path, {})) {
                return true;
            }
        }
    }
    return false;
}

bool OpenInUsersProgram(const std::string& address) {
    const Unblocked unblocked;
    return QDesktopServices::openUrl(QUrl(FromText(address)));
}

}  // namespace brindlex
