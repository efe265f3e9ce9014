// The Oblique Triangles form on a fake runtime, with blank forms where its items lead.
#pragma once

#include "fakeruntime.h"
#include "frame/program.h"
#include "oblique/form2.h"
#include "services/rounddialog.h"
#include "testfolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace brindlex::oblique {

/// A form of another name, to be shown.
class NamedForm : public Form {
public:
    NamedForm(Program& program, std::string name) : Form(program, std::move(name), 600, 600) {}
};

class Form2Test : public ::testing::Test {
protected:
    Form2Test() : runtime(run), program(runtime, folder.Files()) {
        for (const std::string name : {"Form1", "Form7", "Form8", "Form11", "Form12", "Form16", "Form17", "Form19"}) {
            program.Register(name, [name](Program& owner) { return std::make_unique<NamedForm>(owner, name); });
        }
        program.Register("Form2", [](Program& owner) { return std::make_unique<Form2>(owner); });
        program.Register("Form4", [](Program& owner) { return MakeMinutesSecondsDialog(owner, "Form4"); });
        program.Register("Form6", [](Program& owner) { return MakeRoundNumbersDialog(owner, "Form6"); });
        program.Shared().VerCaption = "Brindlex 3.0.2- ";
        program.Shared().ScreenH = 768;
    }

    Form2& Shown() {
        auto& form = dynamic_cast<Form2&>(program.Get("Form2"));
        form.Show();
        return form;
    }
    static void Enter(Form2& form, const std::string& entry, const std::string& first, const std::string& second,
                      const std::string& third) {
        form.Combo1.Text(entry);
        form.Text1.Text(first);
        form.Text2.Text(second);
        form.Text3.Text(third);
    }
    static void Solve(Form2& form, const std::string& entry, const std::string& first, const std::string& second,
                      const std::string& third) {
        Enter(form, entry, first, second, third);
        form.Command1.Value(true);
    }
    /// The texts on the picture, in drawing order.
    static std::vector<std::string> Texts(const Form2& form) {
        std::vector<std::string> texts;
        for (const DrawItem& item : form.Picture1.Drawn().Items()) {
            if (item.Kind == DrawKind::Text) {
                texts.push_back(item.Text);
            }
        }
        return texts;
    }
    /// The texts of the boxes over the picture, in the order A, B, C, a, b, c.
    static std::vector<std::string> Boxes(const Form2& form) {
        return {form.Text8.Text(), form.Text4.Text(), form.Text6.Text(),
                form.Text5.Text(), form.Text7.Text(), form.Text9.Text()};
    }
    std::vector<std::string> Messages() {
        std::vector<std::string> messages;
        for (const MessageBox& box : run.Boxes) {
            messages.push_back(box.Text);
        }
        run.Boxes.clear();
        return messages;
    }

    TestFolder folder;
    DrivenRun run;
    FakeRuntime runtime;
    Program program;
};

inline const std::vector<std::string> Letters = {"A", "B", "C", "a", "b", "c"};
inline const std::string OverflowText =
    "These Values Are Not Valid For Calculating\rSolutions To An Oblique Triangle.\rError: OVERFLOW";

}  // namespace brindlex::oblique
