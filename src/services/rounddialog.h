// The four Round Numbers dialogs: one class, a row each.
#pragma once

#include "frame/buttons.h"
#include "frame/combobox.h"
#include "frame/form.h"
#include "frame/label.h"

#include <memory>
#include <string_view>

namespace brindlex {

struct RoundRow;  // what tells one dialog from the others

class RoundNumbersDialog : public Form {
public:
    RoundNumbersDialog(Program& program, const RoundRow& row);

    Label Label1{*this, "Label1", {240, 300, 1500, 255}};
    ComboBox Combo1{*this, "Combo1", {1845, 240, 840, 315}};
    Label Label2{*this, "Label2", {2790, 300, 1335, 255}, "Decimal Places"};
    CommandButton Command1{*this, "Command1", {855, 840, 1215, 375}, "&OK"};
    CommandButton Command2{*this, "Command2", {2295, 840, 1215, 375}, "&Cancel"};

protected:
    void Form_Load() override;
    void CloseBox() override;

private:
    void Command1_Click();
    void Command2_Click();

    const RoundRow& row_;
};

/// Makes Form5, Form6, Form9 or Form14. Throws BadArgument for another name.
[[nodiscard]] std::unique_ptr<Form> MakeRoundNumbersDialog(Program& program, std::string_view name);

}  // namespace brindlex
