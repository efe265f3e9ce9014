// The four Minutes and Seconds dialogs: one class, a row each.
// Units: degrees, minutes and seconds.
#pragma once

#include "frame/buttons.h"
#include "frame/form.h"
#include "frame/label.h"
#include "frame/textbox.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// An angle box of a calculator, with the check box that opens the dialog for it and the angle's name there.
struct AngleField {
    CheckBox* Check = nullptr;
    TextBox* Box = nullptr;
    std::string Name;
};

/// A form whose angles can be given in minutes and seconds.
class AngleOwner {
public:
    virtual ~AngleOwner() = default;
    AngleOwner(const AngleOwner&) = delete;
    AngleOwner& operator=(const AngleOwner&) = delete;
    /// Its angle boxes; the dialog serves the one whose check box is checked.
    [[nodiscard]] virtual std::vector<AngleField> AngleFields() = 0;

protected:
    AngleOwner() = default;
};

struct MinutesRow;  // what tells one dialog from the others

class MinutesSecondsDialog : public Form {
public:
    MinutesSecondsDialog(Program& program, const MinutesRow& row);

    Label Label1{*this, "Label1", {240, 240, 1335, 255}};
    Label Label2{*this, "Label2", {1665, 240, 1335, 255}, "Minutes"};
    Label Label3{*this, "Label3", {3090, 240, 1335, 255}, "Seconds"};
    TextBox Text1{*this, "Text1", {240, 525, 1335, 315}};
    TextBox Text2{*this, "Text2", {1665, 525, 1335, 315}};
    TextBox Text3{*this, "Text3", {3090, 525, 1335, 315}};
    CommandButton Command1{*this, "Command1", {1005, 1080, 1215, 375}, "&OK"};
    CommandButton Command2{*this, "Command2", {2445, 1080, 1215, 375}, "&Cancel"};

protected:
    void Form_Load() override;
    void CloseBox() override;

private:
    void Command1_Click();
    void Command2_Click();
    [[nodiscard]] AngleOwner& Angles() const;
    [[nodiscard]] AngleField Field() const;

    const MinutesRow& row_;
};

/// Makes Form3, Form4, Form13 or Form15. Throws BadArgument for another name.
[[nodiscard]] std::unique_ptr<Form> MakeMinutesSecondsDialog(Program& program, std::string_view name);

}  // namespace brindlex
