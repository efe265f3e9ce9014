// The forms of the program, by name. A calculator that stands here has its menu button and navigation items enabled.
#include "app/forms.h"

#include "boltcircle/form8.h"
#include "frame/form11.h"
#include "frame/form7.h"
#include "frame/program.h"
#include "geometry/form17.h"
#include "geometry/form18.h"
#include "geometry/geofile.h"
#include "oblique/form2.h"
#include "polygon/form16.h"
#include "righttri/form1.h"
#include "services/minutesdialog.h"
#include "services/rounddialog.h"
#include "sineplate/form12.h"
#include "speedsfeeds/form19.h"

#include <memory>

namespace brindlex {

namespace {

template <class FormType>
void Add(Program& program, const char* name) {
    program.Register(name, [](Program& owner) { return std::make_unique<FormType>(owner); });
}

/// Saves what an earlier run left on the board, where this one never opened it. Says nothing: the system may be ending
/// the run.
void KeepUnseenDrawing(const Program& program) {
    if (program.Find("Form17") == nullptr) {
        static_cast<void>(geometry::RecoverLeftOver(program.Files()));
    }
}

}  // namespace

void RegisterForms(Program& program) {
    program.Register("Form11", [](Program& owner) {
        auto menu = std::make_unique<Form11>(owner);
        menu->BeforeTheDrawingGoes = [&owner] { KeepUnseenDrawing(owner); };
        return menu;
    });
    Add<Form7>(program, "Form7");
    Add<Form10>(program, "Form10");
    Add<righttri::Form1>(program, "Form1");
    Add<oblique::Form2>(program, "Form2");
    Add<boltcircle::Form8>(program, "Form8");
    Add<sineplate::Form12>(program, "Form12");
    Add<polygon::Form16>(program, "Form16");
    Add<geometry::Form17>(program, "Form17");
    Add<geometry::Form18>(program, "Form18");
    Add<speedsfeeds::Form19>(program, "Form19");
    for (const char* const name : {"Form5", "Form6", "Form9", "Form14"}) {
        program.Register(name, [name](Program& owner) { return MakeRoundNumbersDialog(owner, name); });
    }
    for (const char* const name : {"Form3", "Form4", "Form13", "Form15"}) {
        program.Register(name, [name](Program& owner) { return MakeMinutesSecondsDialog(owner, name); });
    }
}

}  // namespace brindlex
