// A pointer move over a full drawing board on real widgets, side by side with the same primitives painted straight with
// QPainter by a bare widget of the same size: pointer_widgets [moves|straight]. With a name only that side runs, for a
// profiler. Run it with QT_QPA_PLATFORM=offscreen.
#include "app/forms.h"
#include "desktop/desktopruntime.h"
#include "desktop/looks.h"
#include "desktop/peer.h"
#include "desktop/texts.h"
#include "frame/program.h"
#include "geometry/form17.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <functional>
#include <string_view>
#include <vector>

using namespace brindlex;
using geometry::Form17;

namespace {

constexpr int Rounds = 41;
constexpr int MovesARound = 50;

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

// What is painted straight: places, pens and texts as the target takes them, worked out beforehand.
struct Primitive {
    DrawKind kind = DrawKind::Line;
    QPen pen;
    bool smooth = false;
    QPointF from;
    QPointF to;
    double radius = 0;
    QString text;
};

Primitive Straight(const DrawItem& item, QSize size, double ascent) {
    const double acrossX = size.width() / item.Scale.Width;
    const double acrossY = size.height() / item.Scale.Height;
    const auto place = [&](double x, double y) {
        return QPointF((x - item.Scale.Left) * acrossX, (y - item.Scale.Top) * acrossY);
    };
    Primitive primitive{item.Kind,
                        QPen(ToQt(item.Ink), 1),
                        false,
                        place(item.X1, item.Y1),
                        place(item.X2, item.Y2),
                        item.Radius * acrossX,
                        FromText(item.Text)};
    primitive.pen.setStyle(item.DrawStyle == 4 ? Qt::DashDotDotLine : Qt::SolidLine);
    primitive.pen.setCapStyle(Qt::FlatCap);
    primitive.smooth = item.Kind == DrawKind::Circle || (item.X1 != item.X2 && item.Y1 != item.Y2);
    if (item.Kind == DrawKind::Text) {
        primitive.from.ry() += ascent;
    }
    return primitive;
}

// The same primitives with a painter and nothing else.
class StraightArea : public QWidget {
public:
    StraightArea(QWidget* parent, const Drawing& drawing, QSize size)
        : QWidget(parent), font_(ScreenFont("Arial", drawing.Items().back().FontSize, false)) {
        setAttribute(Qt::WA_OpaquePaintEvent);
        resize(size);
        for (const DrawItem& item : drawing.Items()) {
            primitives_.push_back(Straight(item, size, QFontMetricsF(font_).ascent()));
        }
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        // The widget's clip once more: with a clip of its own the painter takes its fastest way.
        painter.setClipRect(rect());
        painter.setFont(font_);
        for (const Primitive& primitive : primitives_) {
            painter.setPen(primitive.pen);
            if (primitive.kind == DrawKind::Text) {
                painter.drawText(primitive.from, primitive.text);
                continue;
            }
            painter.setRenderHint(QPainter::Antialiasing, primitive.smooth);
            if (primitive.kind == DrawKind::Circle) {
                painter.drawEllipse(primitive.from, primitive.radius, primitive.radius);
            } else {
                painter.drawLine(primitive.from, primitive.to);
            }
        }
    }

private:
    QFont font_;
    std::vector<Primitive> primitives_;
};

// Of the whole process, its painting threads included.
double ProcessorMilliseconds() {
    return static_cast<double>(std::clock()) * 1000 / CLOCKS_PER_SEC;
}

double Median(std::vector<double> figures) {
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

// The sides by turns, so that both meet the same machine.
void Compare(const std::function<void(int)>& move, const std::function<void(int)>& straight, std::string_view only) {
    std::vector<double> moves;
    std::vector<double> straights;
    std::vector<double> ratios;
    for (int round = 0; round < Rounds; ++round) {
        const auto side = [&](std::string_view name, const std::function<void(int)>& act) {
            const double begun = ProcessorMilliseconds();
            for (int turn = 0; turn < MovesARound && (only.empty() || only == name); ++turn) {
                act(turn);
            }
            return (ProcessorMilliseconds() - begun) / MovesARound;
        };
        moves.push_back(side("moves", move));
        straights.push_back(side("straight", straight));
        ratios.push_back(moves.back() / straights.back());
    }
    std::printf("pointer move %.3f ms, straight %.3f ms, ratio %.2f (processor time, medians of %d rounds)\n",
                Median(moves), Median(straights), Median(ratios), Rounds);
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

    const auto move = [&](int turn) {
        const QPoint place(widget->width() * turn / MovesARound, widget->height() / 2);
        QMouseEvent event(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
        QApplication::sendPostedEvents();
    };
    move(0);
    QWidget window;
    window.resize(runtime.WindowOf(board)->size());
    StraightArea area(&window, board.Picture1.Drawn(), widget->size());
    area.move(widget->mapTo(widget->window(), QPoint(0, 0)));
    window.show();
    QApplication::processEvents();
    std::printf("%zu primitives on %d x %d\n", board.Picture1.Drawn().Items().size(), widget->width(),
                widget->height());
    Compare(
        move, [&](int) { area.repaint(); }, argc > 1 ? argv[1] : "");
    std::fflush(stdout);
    std::_Exit(0);
}
