// The about box, and the blank form.
#include "frame/form7.h"

#include "frame/program.h"
#include "frame/text.h"

namespace brindlex {

namespace {

constexpr Colour AddressInk{0, 0, 192};
constexpr Colour PointedInk{192, 0, 0};

}  // namespace

Form7::Form7(Program& program) : Form(program, "Form7", 4680, 3090) {
    Label1.FontBold(true);
    Label1.FontSize(12);
    Command1.Click.Bind(this, &Form7::Command1_Click);
    Command1.Default(true);
    Command1.Cancel(true);
    BindAddress(Label4, "https://www.brindlex.example");
    BindAddress(Label6, "mailto:mail@brindlex.example");
    for (Control* const control : Controls()) {
        if (auto* const label = dynamic_cast<Label*>(control)) {
            label->Align(Label::Alignment::Center);
        }
    }
}

void Form7::BindAddress(Label& label, const char* address) {
    label.ForeColor(AddressInk);
    label.MouseMove.Bind([&label](const Mouse& /*mouse*/) { label.ForeColor(PointedInk); });
    label.Click.Bind([this, address] {
        Owner().ShellExecute("open", address);
        Unload();
    });
}

void Form7::Form_Load() {
    const std::string& version = Owner().Shared().VerCaption;
    Caption(version + "Contacts");
    Label2.Caption("Version " + Mid(version, 10, Len(version) - 11));
    PlaceOnScreen();
}

void Form7::Form_MouseMove(const Mouse& /*mouse*/) {
    Label4.ForeColor(AddressInk);
    Label6.ForeColor(AddressInk);
}

void Form7::Command1_Click() {
    Unload();
}

Form10::Form10(Program& program) : Form(program, "Form10", 4800, 3600) {
}

void Form10::Form_Click() {
    GoTo("Form11");
}

}  // namespace brindlex
