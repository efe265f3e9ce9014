// The Geometry form on a fake runtime, with a blank form where it leads.
#pragma once

#include "fakeruntime.h"
#include "frame/program.h"
#include "geometry/form17.h"
#include "testfolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace brindlex::geometry {

class Form17Test : public ::testing::Test {
protected:
    explicit Form17Test(Size screen = {1024, 768}) : runtime(run, screen), program(runtime, folder.Files()) {
        for (const std::string name : {"Form1", "Form11"}) {
            program.Register(name, [name](Program& owner) { return std::make_unique<Form>(owner, name, 600, 600); });
        }
        program.Register("Form17", [](Program& owner) { return std::make_unique<Form17>(owner); });
        program.Shared().VerCaption = "Brindlex 3.0.2- ";
        program.Shared().ScreenH = 768;
        form = &dynamic_cast<Form17&>(program.Get("Form17"));
        form->Show();
    }

    void PlaceCircle(const std::string& x, const std::string& y, const std::string& diameter) {
        form->Frame1.Text1.Text(x);
        form->Frame1.Text2.Text(y);
        form->Frame1.Text3.Text(diameter);
        form->Command1.Value(true);
    }
    void PlaceLine(const std::string& x1, const std::string& y1, const std::string& x2, const std::string& y2) {
        form->Frame2.Text6.Text(x1);
        form->Frame2.Text7.Text(y1);
        form->Frame2.Text8.Text(x2);
        form->Frame2.Text9.Text(y2);
        form->Command1.Value(true);
    }
    void PlacePoint(const std::string& x, const std::string& y) {
        form->Frame3.Text10.Text(x);
        form->Frame3.Text11.Text(y);
        form->Command1.Value(true);
    }
    void Tool(const std::string& key) { form->Toolbar1.PressByPerson(key); }
    /// In drawing coordinates.
    void Move(double x, double y, int button = 0) {
        form->Picture1.Fire(form->Picture1.MouseMove, "MouseMove", OnPicture(x, y, button));
    }
    void Down(double x, double y, int button = LeftButton) {
        form->Picture1.Fire(form->Picture1.MouseDown, "MouseDown", OnPicture(x, y, button));
    }
    void Up(double x, double y, int button = LeftButton) {
        form->Picture1.Fire(form->Picture1.MouseUp, "MouseUp", OnPicture(x, y, button));
        form->Picture1.Fire(form->Picture1.Click, "Click");
    }
    [[nodiscard]] Mouse OnPicture(double x, double y, int button) const {
        return {button, 0, x + form->Picture1.ScaleWidth() / 2, y + form->Picture1.ScaleHeight() / 2};
    }
    [[nodiscard]] std::vector<std::string> Messages() {
        std::vector<std::string> messages;
        for (const MessageBox& box : std::exchange(run.Boxes, {})) {
            messages.push_back(box.Text);
        }
        return messages;
    }
    /// How many items of a kind stand on the picture in a colour.
    [[nodiscard]] int Count(DrawKind kind, Colour colour) const {
        int count = 0;
        for (const DrawItem& item : form->Picture1.Drawn().Items()) {
            count += item.Kind == kind && item.Ink == colour ? 1 : 0;
        }
        return count;
    }

    TestFolder folder;
    DrivenRun run;
    FakeRuntime runtime;
    Program program;
    Form17* form = nullptr;
};

}  // namespace brindlex::geometry
