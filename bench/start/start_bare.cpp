// The measure: a bare Qt window with one button.
#include "painted.h"

#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const EndWhenPainted end(application);
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(new QPushButton(QStringLiteral("One"), &window));
    window.resize(402, 277);
    window.show();
    return QApplication::exec();
}
