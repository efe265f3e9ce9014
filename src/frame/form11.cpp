// The main menu: start-up, title drawing, opening circle, the ways to the calculators, the end.
// Units: title drawing in twips, window regions in pixels.
#include "frame/form11.h"

#include "frame/program.h"
#include "frame/text.h"

#include <algorithm>
#include <string>
#include <vector>

namespace brindlex {

namespace {

constexpr int TooSmallBelow = 481;
constexpr int SmallBelow = 600;

struct TitleLetter {
    int blue;
    const char* text;
    double x;
    double y;
};

// The name runs down the left side and along the bottom, each letter in a brighter blue.
constexpr TitleLetter NameLetters[] = {
    {31, "B", 144, 525},
    {62, "R", 84, 1090},
    {93, "I", 204, 1608},
    {124, "N", 144, 2100},
    {155, " D  L  E  X", 600, 2520},
};

// The version goes down the hypotenuse.
constexpr TitleLetter VersionSteps[] = {
    {51, "", 1100, 300}, {102, ".", 1500, 540}, {153, "", 1800, 840}, {204, ".", 2100, 1080}, {255, "", 2400, 1500},
};

constexpr double VersionFontSize = 28;

void PrintLetter(PictureBox& picture, const TitleLetter& letter, const std::string& text) {
    picture.ForeColor({0, 0, static_cast<std::uint8_t>(letter.blue)});
    picture.CurrentX(letter.x);
    picture.CurrentY(letter.y);
    picture.Print(text);
}

}  // namespace

Form11::Form11(Program& program) : Form(program, "Form11", 6036, 4152) {
    Picture1.FontSize(24);
    Picture1.FontBold(true);
    Picture1.Paint.Bind(this, &Form11::Picture1_Paint);
    Command9.Click.Bind(this, &Form11::Command9_Click);
    Command5.Click.Bind(this, &Form11::Command5_Click);
    BindCalculators();
}

void Form11::BindCalculators() {
    const struct {
        CommandButton& button;
        const char* form;
    } calculators[] = {
        {Command1, "Form1"},  {Command2, "Form2"},  {Command3, "Form8"},  {Command4, "Form12"},
        {Command6, "Form16"}, {Command8, "Form17"}, {Command7, "Form19"},
    };
    for (const auto& calculator : calculators) {
        calculator.button.Enabled(Owner().Knows(calculator.form));
        calculator.button.Click.Bind([this, form = calculator.form] { GoTo(form); });
    }
}

void Form11::Form_Load() {
    SharedState& shared = Owner().Shared();
    shared.VerCaption = "Brindlex 3.0.2- ";
    Caption(shared.VerCaption + "Menu");
    const int width = Owner().GetSystemMetrics(0);
    const int height = Owner().GetSystemMetrics(1);
    if (height < TooSmallBelow) {
        Owner().BeepBox("Brindlex Will Not Function Properly\r\nIn Resolutions Less Than 800 x 600", style::Plain);
        Owner().End();
    }
    if (height < SmallBelow) {
        Owner().BeepBox("This Program Is Best Viewed\r\nIn Resolutions Greater Than 800 x 600", style::Plain);
    }
    shared.ScreenW = CInt(std::min(width, 32767));
    shared.ScreenH = CInt(std::min(height, 32767));
    PlaceOnScreen();
    TitleAnim();
    Owner().Clipboard().Clear();
    Owner().DoEvents();
}

void Form11::TitleAnim() {
    const std::string& caption = Owner().Shared().VerCaption;
    std::string version = Mid(caption, 9, Len(caption) - 10);
    version.erase(0, version.find_first_not_of(' '));
    const int first = InStr(version, ".");
    const int second = InStr(version, ".", first + 1);
    const std::string digits[] = {brindlex::Left(version, first - 1), Mid(version, first + 1, second - first - 1),
                                  Mid(version, second + 1)};

    Picture1.Line(720, 660, 720, 2460, Blue);
    Picture1.Line(2520, 2460, Blue);
    Picture1.Line(720, 660, Blue);
    for (const TitleLetter& letter : NameLetters) {
        PrintLetter(Picture1, letter, letter.text);
    }
    Picture1.FontSize(VersionFontSize);
    const std::string* digit = digits;
    for (const TitleLetter& step : VersionSteps) {
        PrintLetter(Picture1, step, *step.text != '\0' ? step.text : *digit++);
    }
}

void Form11::Picture1_Paint() {
    int left = 205;
    int top = 205;
    int right = 166;
    int bottom = 166;
    for (int step = 0; step < 5; ++step) {
        left += 128;
        top += 128;
        right -= 128;
        bottom -= 128;
        // The corners (left, bottom) and (right, top) span the ellipse; the first pair runs right and down.
        Owner().Platform().SetWindowRegion(*this, right, bottom, left, top);
        Refresh();
    }
}

void Form11::Command9_Click() {
    Owner().Get("Form7").ShowModal();
}

void Form11::Command5_Click() {
    UnloadAll();
    Owner().End();
}

void Form11::Form_Unload() {
    if (BeforeTheDrawingGoes) {
        BeforeTheDrawingGoes();
    }
    try {
        Owner().Files().Touch("geometry.dat");
        Owner().Files().Kill("geometry.dat");
    } catch (const Fault&) {
        // A folder that can't be written keeps no live drawing either.
        Owner().Files().KillIfThere("geometry.dat");
    }
    UnloadAll();
    Owner().End();
}

void Form11::UnloadAll() {
    for (Form* const form : std::vector<Form*>(Owner().Forms())) {
        form->Unload();
    }
}

}  // namespace brindlex
