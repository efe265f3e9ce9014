// The about box: version, and where updates are found.
#pragma once

#include "frame/buttons.h"
#include "frame/form.h"
#include "frame/label.h"

namespace brindlex {

class Form7 : public Form {
public:
    explicit Form7(Program& program);

    Label Label1{*this, "Label1", {360, 300, 3960, 255}, "Brindlex"};
    Label Label2{*this, "Label2", {360, 660, 3960, 255}};
    Label Label3{*this, "Label3", {360, 1020, 3960, 255}, "Updates are found at"};
    Label Label4{*this, "Label4", {360, 1290, 3960, 255}, "www.brindlex.example"};
    Label Label5{*this, "Label5", {360, 1650, 3960, 255}, "Questions and ideas are welcome at"};
    Label Label6{*this, "Label6", {360, 1920, 3960, 255}, "mail@brindlex.example"};
    CommandButton Command1{*this, "Command1", {1732, 2460, 1215, 375}, "&OK"};

protected:
    void Form_Load() override;
    void Form_MouseMove(const Mouse& mouse) override;

private:
    void Command1_Click();
    void BindAddress(Label& label, const char* address);
};

/// A blank form: a click on it leads to the menu.
class Form10 : public Form {
public:
    explicit Form10(Program& program);

protected:
    void Form_Click() override;
};

}  // namespace brindlex
