// A pointer move over a full drawing board on real widgets, side by side with the same primitives painted straight with
// QPainter. Run it with QT_QPA_PLATFORM=offscreen.
#include "app/forms.h"
#include "desktop/desktopruntime.h"
#include "desktop/peer.h"
#include "frame/program.h"
#include "geometry/form17.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

using namespace brindlex;
using geometry::Form17;

namespace {

constexpr int Moves = 1000;

// 12 circles, 14 lines, 14 points.
void Fill(Form17& board) {
    for (int i = 0; i < 12; ++i) {
        board.Frame1.Text1.Text(std::to_string(0.15 * i - 1));
        board.Frame1.Text2.Text("0");
        board.Frame1.Text3.Text(".5");
        board.Command1.Value(true);
    }
    board.Toolbar1.PressByPerson("Line");
    for (int i = 0; i < 14; ++i) {
        board.Frame2.Text6.Text(std::to_string(0.2 * i - 1));
        board.Frame2.Text7.Text("-1");
        board.Frame2.Text8.Text(std::to_string(0.1 * i));
        board.Frame2.Text9.Text("1");
        board.Command1.Value(true);
    }
    board.Toolbar1.PressByPerson("Point");
    for (int i = 0; i < 14; ++i) {
        board.Frame3.Text10.Text(std::to_string(0.2 * i - 1));
        board.Frame3.Text11.Text(".5");
        board.Command1.Value(true);
    }
}

// The same primitives with a painter and nothing else: places are worked out beforehand.
void PaintStraight(QPainter& painter, const Drawing& drawing, QSize size) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const DrawItem& item : drawing.Items()) {
        const double acrossX = size.width() / item.Scale.Width;
        const double acrossY = size.height() / item.Scale.Height;
        const QPointF from((item.X1 - item.Scale.Left) * acrossX, (item.Y1 - item.Scale.Top) * acrossY);
        painter.setPen(QPen(QColor(item.Ink.Red, item.Ink.Green, item.Ink.Blue), 1,
                            item.DrawStyle == 4 ? Qt::DashDotDotLine : Qt::SolidLine));
        switch (item.Kind) {
            case DrawKind::Line:
                painter.drawLine(from,
                                 QPointF((item.X2 - item.Scale.Left) * acrossX, (item.Y2 - item.Scale.Top) * acrossY));
                break;
            case DrawKind::Circle:
                painter.drawEllipse(from, item.Radius * acrossX, item.Radius * acrossX);
                break;
            case DrawKind::Text:
                painter.drawText(from + QPointF(0, 10), QString::fromLatin1(item.Text.c_str()));
                break;
            case DrawKind::Box:
                break;
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const auto folder = std::filesystem::temp_directory_path() / "brindlex-pointer-bench";
    std::filesystem::create_directories(folder);
    DrivenRun run;
    DesktopRuntime runtime(run, {1024, 768});
    Program program(runtime, Folder(folder));
    RegisterForms(program);
    program.Start();
    auto& board = dynamic_cast<Form17&>(program.Get("Form17"));
    board.Show();
    Fill(board);
    QApplication::processEvents();
    QWidget* const widget = runtime.WindowOf(board)->PeerOf(board.Picture1)->Widget();

    QElapsedTimer timer;
    timer.start();
    for (int move = 0; move < Moves; ++move) {
        board.Picture1.Fire(board.Picture1.MouseMove, "MouseMove", Mouse{0, 0, 4.4 * move / Moves, -1.2});
        widget->repaint();
    }
    const double moved = static_cast<double>(timer.nsecsElapsed()) / Moves / 1e6;

    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    timer.restart();
    for (int move = 0; move < Moves; ++move) {
        image.fill(Qt::white);
        QPainter painter(&image);
        PaintStraight(painter, board.Picture1.Drawn(), image.size());
    }
    const double straight = static_cast<double>(timer.nsecsElapsed()) / Moves / 1e6;
    std::printf("pointer move %.3f ms, straight %.3f ms, ratio %.2f, items %zu\n", moved, straight, moved / straight,
                board.Picture1.Drawn().Items().size());
    std::fflush(stdout);
    std::_Exit(0);
}
