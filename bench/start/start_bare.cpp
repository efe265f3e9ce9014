// The measure: a bare Qt window with one button. Ends once it is painted, but not with "stay".
#include "painted.h"

#include <QPushButton>
#include <QVBoxLayout>

#include <optional>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    std::optional<EndWhenPainted> end;
    if (argc == 1) {
        end.emplace(application);
    }
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(new QPushButton(QStringLiteral("One"), &window));
    window.resize(402, 277);
    window.show();
    return QApplication::exec();
}
