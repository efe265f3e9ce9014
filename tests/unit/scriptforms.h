// A small program for scripts to drive: a menu form with a control of every kind, two small dialogs, a form in inches.
// Its handlers write what they hear into a log.
#pragma once

#include "frame/buttons.h"
#include "frame/combobox.h"
#include "frame/commondialog.h"
#include "frame/form.h"
#include "frame/label.h"
#include "frame/picturebox.h"
#include "frame/program.h"
#include "frame/scrollbar.h"
#include "frame/textbox.h"
#include "headless/headlessplayer.h"
#include "headless/headlessruntime.h"
#include "headless/script.h"
#include "testfolder.h"

#include <functional>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace brindlex {

using Log = std::vector<std::string>;

/// What a mouse handler heard, such as "Picture1_MouseUp 2 10 20".
inline std::string MouseWords(const std::string& event, const Mouse& mouse) {
    std::ostringstream words;
    words << event << ' ' << mouse.Button << ' ' << mouse.X << ' ' << mouse.Y;
    return words.str();
}

/// 6000 by 4500 twips, sizable.
class MainForm : public Form {
public:
    MainForm(Program& program, Log& log) : Form(program, "Form11", 6000, 4500), log_(log) {
        Caption("Main");
        Sizable(true);
        Command1.Default(true);
        Text2.Locked(true);
        Text2.TabStop(false);
        Combo1.AddItem("Inch");
        Combo1.AddItem("Metric");
        HScroll1.Min(100);
        HScroll1.Max(-100);
        Timer1.Interval(100);
        BindBoxes();
        BindButtons();
        BindMouse();
        Edit.Click.Bind([this] {
            log_.emplace_back("Edit_Click");
            Paste.Enabled(Owner().Clipboard().GetFormat(1));
        });
        for (MenuItem* const item : {&Copy, &Paste, &Deep, &Alone}) {
            item->Click.Bind([this, item] { log_.push_back(item->Name() + "_Click"); });
        }
    }

    TextBox Text1{*this, "Text1", {120, 120, 900, 300}, "abc"};
    TextBox Text2{*this, "Text2", {120, 480, 900, 300}};
    Frame Frame1{*this, "Frame1", {120, 840, 1800, 900}, "Frame"};
    TextBox Text3{Frame1, "Text3", {60, 60, 900, 300}};
    OptionButton Option1{Frame1, "Option1", {60, 360, 900, 240}, "One", true};
    OptionButton Option2{Frame1, "Option2", {60, 600, 900, 240}, "Two"};
    CheckBox Check1{*this, "Check1", {120, 1800, 900, 240}, "Check"};
    ComboBox Combo1{*this, "Combo1", {120, 2100, 900, 315}};
    CommandButton Command1{*this, "Command1", {120, 2500, 900, 375}, "&Go"};
    CommandButton Command2{*this, "Command2", {120, 2900, 900, 375}, "&Dialog"};
    CommandButton Command3{*this, "Command3", {120, 3300, 900, 375}, "&Files"};
    Label Label1{*this, "Label1", {2100, 120, 900, 240}, "Click"};
    Label Label2{*this, "Label2", {2100, 480, 900, 240}, "Still"};
    PictureBox Picture1{*this, "Picture1", {2100, 840, 1500, 1500}};
    ScrollBar VScroll1{*this, "VScroll1", {3700, 840, 255, 1500}, ScrollBar::Direction::Vertical};
    ScrollBar HScroll1{*this, "HScroll1", {2100, 2400, 1500, 255}, ScrollBar::Direction::Horizontal};
    TimerControl Timer1{*this, "Timer1"};
    Toolbar Toolbar1{*this,
                     "Toolbar1",
                     {0, 0, 6000, 400},
                     {{"Line", "Create a Line", "Line", true, true, 0},
                      {"Point", "Create a Point", "Point", true, true, 0},
                      {},
                      {"Delete", "Delete Entity", "Delete", false, false, 0}}};
    CommonDialog CommonDialog1{*this, "CommonDialog1"};
    MenuItem Edit{*this, "Edit", "&Edit"};
    MenuItem Copy{Edit, "Copy", "&Copy"};
    MenuItem Sep1{Edit, "Sep1", "-"};
    MenuItem Paste{Edit, "Paste", "&Paste"};
    MenuItem More{Edit, "More", "&More"};
    MenuItem Deep{More, "Deep", "&Deep"};
    MenuItem Alone{*this, "Alone", "&Alone"};

    std::function<void()> OnCommand1;
    std::function<void()> OnCommand3;

private:
    void BindBoxes() {
        for (TextBox* const box : {&Text1, &Text2, &Text3}) {
            box->Change.Bind([this, box] { log_.push_back(box->Name() + "_Change " + box->Text()); });
            box->GotFocus.Bind([this, box] { log_.push_back(box->Name() + "_GotFocus"); });
            box->LostFocus.Bind([this, box] { log_.push_back(box->Name() + "_LostFocus"); });
        }
        Text1.KeyPress.Bind([this](int& key) {
            log_.push_back("Text1_KeyPress " + std::to_string(key));
            if (key == 'x') {
                key = 0;
            } else if (key == '>') {
                key = 0;
                Text3.SetFocus();
            }
        });
        Combo1.Click.Bind([this] { log_.push_back("Combo1_Click " + Combo1.Text()); });
        Combo1.Change.Bind([this] { log_.push_back("Combo1_Change " + Combo1.Text()); });
    }
    void BindButtons() {
        Command1.Click.Bind([this] {
            log_.emplace_back("Command1_Click");
            if (OnCommand1) {
                OnCommand1();
            }
        });
        Command2.Click.Bind([this] {
            Owner().Get("Form2").ShowModal();
            log_.emplace_back("Command2 after Form2");
        });
        Command3.Click.Bind([this] {
            if (OnCommand3) {
                OnCommand3();
            }
        });
        Check1.Click.Bind([this] { log_.push_back("Check1_Click " + std::to_string(Check1.Value())); });
        Option2.Click.Bind([this] { log_.emplace_back("Option2_Click"); });
        Label1.Click.Bind([this] { log_.emplace_back("Label1_Click"); });
        Timer1.Timer.Bind([this] { log_.emplace_back("Timer1_Timer"); });
        VScroll1.Change.Bind([this] { log_.push_back("VScroll1_Change " + std::to_string(VScroll1.Value())); });
        HScroll1.Change.Bind([this] { log_.push_back("HScroll1_Change " + std::to_string(HScroll1.Value())); });
        Toolbar1.ButtonClick.Bind([this](const ToolButton& button) { log_.push_back("Toolbar1 " + button.Key); });
    }
    void BindMouse() {
        Picture1.MouseMove.Bind([this](const Mouse& m) { log_.push_back(MouseWords("Picture1_MouseMove", m)); });
        Picture1.MouseDown.Bind([this](const Mouse& m) { log_.push_back(MouseWords("Picture1_MouseDown", m)); });
        Picture1.MouseUp.Bind([this](const Mouse& m) {
            log_.push_back(MouseWords("Picture1_MouseUp", m));
            if (m.Button == RightButton) {
                PopupMenu(Edit);
            }
        });
        Picture1.Click.Bind([this] { log_.emplace_back("Picture1_Click"); });
        Picture1.DblClick.Bind([this] { log_.emplace_back("Picture1_DblClick"); });
    }
    void Form_Resize() override { log_.emplace_back("Form11_Resize"); }
    void Form_MouseMove(const Mouse& mouse) override { log_.push_back(MouseWords("Form11_MouseMove", mouse)); }
    void Form_MouseDown(const Mouse& mouse) override { log_.push_back(MouseWords("Form11_MouseDown", mouse)); }
    void Form_MouseUp(const Mouse& mouse) override { log_.push_back(MouseWords("Form11_MouseUp", mouse)); }
    void Form_Click() override { log_.emplace_back("Form11_Click"); }
    void Form_Unload() override { log_.emplace_back("Form11_Unload"); }

    Log& log_;
};

/// A modal dialog that can open the second one.
class DialogForm : public Form {
public:
    DialogForm(Program& program, const std::string& name, Log& log) : Form(program, name, 3000, 1500), log_(log) {
        Command1.Click.Bind([this] { Hide(); });
        Command2.Click.Bind([this] {
            Owner().Get("Form3").ShowModal();
            log_.push_back(Name() + " after Form3");
        });
        Command3.Click.Bind([this] {
            Owner().Get("Form3").ShowModal();
            log_.push_back(Name() + " hides");
            Hide();
        });
        Command4.Click.Bind([this] { Owner().End(); });
    }

    TextBox Text1{*this, "Text1", {120, 120, 900, 300}};
    CommandButton Command1{*this, "Command1", {120, 480, 900, 375}, "OK"};
    CommandButton Command2{*this, "Command2", {120, 900, 900, 375}, "More"};
    CommandButton Command3{*this, "Command3", {1200, 480, 900, 375}, "More and OK"};
    CommandButton Command4{*this, "Command4", {1200, 900, 900, 375}, "End"};

private:
    void Form_Unload() override { log_.push_back(Name() + "_Unload"); }

    Log& log_;
};

/// 4 by 3 inches, of a fixed size.
class InchForm : public Form {
public:
    explicit InchForm(Program& program) : Form(program, "Form4", 5760, 4320) { ScaleMode(5); }

    TextBox Text1{*this, "Text1", {0.5, 0.25, 1, 0.25}};
};

/// The program with its runtime, ready for scripts.
class ScriptStand {
public:
    explicit ScriptStand(Size screenPixels = {1024, 768})
        : runtime_(run_, screenPixels), player_(runtime_), program_(runtime_, folder_.Files()) {
        program_.Register("Form11", [this](Program& p) { return std::make_unique<MainForm>(p, Heard); });
        for (const char* const name : {"Form2", "Form3"}) {
            program_.Register(name, [this, name](Program& p) { return std::make_unique<DialogForm>(p, name, Heard); });
        }
        program_.Register("Form4", [](Program& p) { return std::make_unique<InchForm>(p); });
    }

    /// Runs a whole script and returns the lines of its answers. The program has ended afterwards.
    Log Answers(const std::string& commands, Script::AtError atError = Script::AtError::GoOn) {
        std::istringstream in(commands);
        std::ostringstream out;
        Script script(program_, run_, player_, in, out, atError);
        Stop = script.Run();
        Log lines;
        std::istringstream written(out.str());
        for (std::string line; std::getline(written, line);) {
            lines.push_back(line);
        }
        return lines;
    }
    /// Starts the program, runs the commands and returns their answers, that of the start left out.
    Log AfterStart(const std::string& commands) {
        Log lines = Answers("start\n" + commands);
        lines.erase(lines.begin());
        return lines;
    }
    /// The answer to one command after the start.
    std::string AnswerTo(const std::string& command) { return AfterStart(command + "\n").at(0); }
    /// The main form, made now where it was not used yet, so that a test can lay out what its handlers do.
    MainForm& Main() { return dynamic_cast<MainForm&>(program_.Get("Form11")); }
    [[nodiscard]] Program& App() { return program_; }
    [[nodiscard]] DrivenRun& Run() { return run_; }
    [[nodiscard]] HeadlessRuntime& World() { return runtime_; }
    [[nodiscard]] HeadlessPlayer& Hands() { return player_; }
    [[nodiscard]] const TestFolder& Files() const { return folder_; }

    Log Heard;
    std::optional<ScriptStop> Stop;

private:
    TestFolder folder_;
    DrivenRun run_;
    HeadlessRuntime runtime_;
    HeadlessPlayer player_;
    Program program_;
};

/// What the handlers heard behind the start.
inline Log HeardOf(const ScriptStand& stand) {
    return {stand.Heard.begin() + 2, stand.Heard.end()};
}

}  // namespace brindlex
