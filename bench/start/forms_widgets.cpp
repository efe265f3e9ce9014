// What each form costs on real widgets: to open its window, to redraw it, to press Calculate, to open a document and to
// print to a PDF file, each up to the painted window. Run it with QT_QPA_PLATFORM=offscreen.
#include "app/forms.h"
#include "desktop/desktopruntime.h"
#include "frame/buttons.h"
#include "frame/form.h"
#include "frame/menuitem.h"
#include "frame/program.h"
#include "frame/textbox.h"

#include <QApplication>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace brindlex;

constexpr int Turns = 25;
constexpr int Warmups = 3;

struct Row {
    const char* form;
    std::vector<std::pair<const char*, const char*>> entries;
    const char* other = nullptr;  ///< what the last entry is changed to for the next press
    const char* save = nullptr;
    const char* open = nullptr;
    const char* document = nullptr;
    std::vector<const char*> prints = {};
};

const Row Rows[] = {
    {"Form1", {{"Text1", "5"}, {"Text2", "4"}}, "3", "SaveFileAs", "OPenFile", "a.rgt", {"PrntWin", "PrntPic"}},
    {"Form2",
     {{"Text1", "40"}, {"Text2", "60"}, {"Text3", "10"}},
     "11",
     "SaveFileAs",
     "OPenFile",
     "a.obl",
     {"PrntWin", "PrntPic"}},
    {"Form8",
     {{"Text1", "0"}, {"Text2", "0"}, {"Text3", "10"}, {"Text4", "6"}, {"Text5", "0"}},
     "10",
     "SaveFileAs",
     "OpenFile",
     "a.bcf",
     {"EntFrm", "TextOnly", "Both"}},
    {"Form12", {{"Text1", "30"}}, "31", "SaveFileAs", "OPenFile", "a.sin", {"PrintSine"}},
    {"Form16", {{"Text1", "1"}}, "2", "SaveFileAs", "OpenFile", "a.pgf", {"Print"}},
    {"Form17",
     {{"Text1", "0"}, {"Text2", "0"}, {"Text3", "1"}},
     nullptr,
     "SaveAs",
     "OpenIt",
     "a.geo",
     {"PrntWin", "PrntPic"}},
    {"Form19", {{"Text3", "100"}, {"Text4", ".002"}, {"Text5", ".5"}, {"Text6", "4"}}, "3"},
};

// The median of some turns, in milliseconds of processor time; events run to their end within each.
double Cost(const std::function<void()>& act) {
    std::vector<double> figures;
    for (int turn = 0; turn < Turns + Warmups; ++turn) {
        const std::clock_t begun = std::clock();
        act();
        QApplication::processEvents();
        if (turn >= Warmups) {
            figures.push_back(static_cast<double>(std::clock() - begun) * 1000 / CLOCKS_PER_SEC);
        }
    }
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

void Tell(const Row& row, const char* what, double cost) {
    std::printf("%-7s %-16s %7.2f ms\n", row.form, what, cost);
}

void Measure(const Row& row, Program& program, DesktopRuntime& runtime, DrivenRun& run) {
    Form& form = program.Get(row.form);
    Tell(row, "window opens", Cost([&] {
             form.Unload();
             form.Show();
         }));
    for (const auto& [name, text] : row.entries) {
        dynamic_cast<TextBox&>(*form.FindControl(name)).Text(text);
    }
    Control& calculate = *form.FindControl("Command1");
    form.PressByPerson(calculate);
    if (row.other != nullptr) {
        const auto& [last, text] = row.entries.back();
        TextBox& box = dynamic_cast<TextBox&>(*form.FindControl(last));
        bool first = false;
        Tell(row, "Calculate", Cost([&] {
                 first = !first;
                 box.Text(first ? row.other : text);
                 form.PressByPerson(calculate);
             }));
    }
    Tell(row, "redraw", Cost([&] { runtime.WindowOf(form)->repaint(); }));
    if (row.save != nullptr) {
        run.Files.emplace_back(row.document);
        form.ChooseByPerson(*form.FindMenu(row.save));
        Tell(row, "document opens", Cost([&] {
                 run.Files.emplace_back(row.document);
                 form.ChooseByPerson(*form.FindMenu(row.open));
             }));
        if (row.other != nullptr) {
            form.PressByPerson(calculate);
        }
    }
    for (const char* const print : row.prints) {
        const std::size_t before = run.Printed.size();
        Tell(row, print, Cost([&] {
                 run.Printers.emplace_back(PrinterChoice{});
                 form.ChooseByPerson(*form.FindMenu(print));
             }));
        if (run.Printed.size() - before != Turns + Warmups) {
            std::printf("%s %s did not print\n", row.form, print);
        }
    }
    form.Hide();
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const auto folder = std::filesystem::temp_directory_path() / "brindlex-forms-bench";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    DrivenRun run;
    DesktopRuntime runtime(run, {1024, 768});
    runtime.PrintInto(QString::fromStdString(folder.string()));
    Program program(runtime, Folder(folder));
    RegisterForms(program);
    program.Start();
    for (const Row& row : Rows) {
        Measure(row, program, runtime, run);
    }
    for (const MessageBox& box : run.Boxes) {
        std::printf("a box: %s\n", box.Text.c_str());
    }
    std::fflush(stdout);
    std::filesystem::remove_all(folder);
    std::_Exit(0);
}
