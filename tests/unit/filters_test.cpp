// The seven families of key filters, on forms that have nothing but their members.
#include "services/filters.h"

#include "faultof.h"
#include "frame/combobox.h"
#include "frame/textbox.h"
#include "testprogram.h"

#include <gtest/gtest.h>

#include <list>
#include <map>
#include <set>

namespace brindlex {
namespace {

/// A form of a given name with the boxes that the program's own form of this name has.
class MemberForm : public Form {
public:
    MemberForm(Program& program, const std::string& name, const std::vector<std::string>& boxes)
        : Form(program, name, 6000, 6000) {
        for (const std::string& box : boxes) {
            if (box.substr(0, 5) == "Combo") {
                combos_.emplace_back(*this, box, Place{0, 0, 900, 300});
            } else {
                texts_.emplace_back(*this, box, Place{0, 0, 900, 300});
            }
        }
        Inches.Enabled(false);
        Millimeters.Enabled(false);
        BindFilters(*this);
    }

    EditControl& Box(const std::string& name) { return dynamic_cast<EditControl&>(*FindControl(name)); }

    MenuItem Units{*this, "Units", "&Units"};
    MenuItem Inches{Units, "Inches", "Inches To"};
    MenuItem Millimeters{Units, "Millimeters", "Millimeters To"};
    MenuItem Break10{Units, "break10", "-"};

private:
    std::list<TextBox> texts_;
    std::list<ComboBox> combos_;
};

std::vector<std::string> TextBoxes(int first, int last) {
    std::vector<std::string> names;
    for (int number = first; number <= last; ++number) {
        names.push_back("Text" + std::to_string(number));
    }
    return names;
}

std::vector<std::string> With(std::vector<std::string> names, const std::string& name) {
    names.push_back(name);
    return names;
}

// Every box and combo that the forms have.
const std::map<std::string, std::vector<std::string>>& AllForms() {
    static const std::map<std::string, std::vector<std::string>> forms = {
        {"Form1", With(TextBoxes(1, 8), "Combo1")},
        {"Form2", With(TextBoxes(1, 9), "Combo1")},
        {"Form3", TextBoxes(1, 3)},
        {"Form4", TextBoxes(1, 3)},
        {"Form5", {"Combo1"}},
        {"Form6", {"Combo1"}},
        {"Form8", TextBoxes(1, 6)},
        {"Form9", {"Combo1"}},
        {"Form12", With(TextBoxes(1, 4), "Combo1")},
        {"Form13", TextBoxes(1, 3)},
        {"Form14", {"Combo1"}},
        {"Form15", TextBoxes(1, 3)},
        {"Form16", With(TextBoxes(1, 2), "Combo1")},
        {"Form17", With(TextBoxes(1, 17), "Combo1")},
        {"Form19", With(TextBoxes(1, 19), "Combo1")},
    };
    return forms;
}

class Filters : public ::testing::Test {
protected:
    Filters() {
        for (const auto& [name, boxes] : AllForms()) {
            program.Register<MemberForm>(name, name, boxes);
        }
    }

    MemberForm& Form(const std::string& name) {
        auto& form = program.Get<MemberForm>(name);
        form.Show();
        return form;
    }

    static void SetText(EditControl& box, const std::string& text) {
        if (auto* const textBox = dynamic_cast<TextBox*>(&box)) {
            textBox->Text(text);
        } else {
            dynamic_cast<ComboBox&>(box).Text(text);
        }
    }

    struct Before {
        std::string text;
        int selStart = 0;
        int selLength = 0;
    };

    /// Presses one key in a box; tells the text afterwards, then what was heard and seen: "b" for a beep,
    /// "[style caption: text]" for a box.
    std::string Press(const std::string& form, const std::string& box, const Before& before, int key) {
        MemberForm& owner = Form(form);
        EditControl& edit = owner.Box(box);
        SetText(edit, before.text);
        owner.FocusByPerson(edit);
        edit.SelectByPerson(before.selStart, before.selLength);
        program.Run.Beeps = 0;
        program.Run.Boxes.clear();
        owner.TypeByPerson(edit, key);
        std::string seen = edit.Text() + "|" + std::string(static_cast<std::size_t>(program.Run.Beeps), 'b');
        for (const MessageBox& shown : program.Run.Boxes) {
            seen += "[" + std::to_string(shown.Style) + " " + shown.Caption + ": " + shown.Text + "]";
        }
        return seen;
    }

    /// The key goes in at the end of the text.
    std::string PressAtEnd(const std::string& form, const std::string& box, const std::string& text, int key) {
        return Press(form, box, {text, static_cast<int>(text.size()), 0}, key);
    }

    TestProgram program;
};

std::string SecondPoint(int style) {
    return "b[" + std::to_string(style) + " Brindlex: Only one instance of \".\" allowed]";
}

std::string SecondMinus(int style) {
    return "b[" + std::to_string(style) + " Brindlex: Only one instance of \"-\" allowed]";
}

struct Member {
    const char* form;
    const char* box;
    int style = 0;
};

constexpr Member DigitBoxes[] = {
    {"Form3", "Text1"},   {"Form3", "Text2"},   {"Form4", "Text1"},   {"Form4", "Text2"},   {"Form13", "Text1"},
    {"Form13", "Text2"},  {"Form15", "Text1"},  {"Form15", "Text2"},  {"Form16", "Combo1"}, {"Form17", "Text12"},
    {"Form17", "Text13"}, {"Form17", "Text14"}, {"Form17", "Text15"}, {"Form17", "Text16"}, {"Form17", "Text17"},
    {"Form19", "Text3"},  {"Form19", "Text6"},  {"Form8", "Text4"},
};
constexpr Member PointBoxes[] = {
    {"Form3", "Text3"},      {"Form4", "Text3"},       {"Form13", "Text3"},      {"Form12", "Text1"},
    {"Form12", "Text2"},     {"Form16", "Text1"},      {"Form17", "Text3"},      {"Form17", "Text4"},
    {"Form19", "Text4", 48}, {"Form19", "Text5", 48},  {"Form19", "Text7", 48},  {"Form19", "Text8", 48},
    {"Form19", "Text9", 48}, {"Form19", "Text14", 48}, {"Form19", "Text15", 48}, {"Form8", "Text3"},
    {"Form8", "Text5"},
};
constexpr Member PointsBoxes[] = {{"Form15", "Text3"}, {"Form12", "Combo1"}};
constexpr Member PasteBoxes[] = {
    {"Form1", "Text1", 48}, {"Form1", "Text2", 48}, {"Form2", "Text1"}, {"Form2", "Text2"}, {"Form2", "Text3"},
};
constexpr Member SignedBoxes[] = {
    {"Form8", "Text1"},  {"Form8", "Text2"},  {"Form17", "Text1", 48}, {"Form17", "Text2"},  {"Form17", "Text6"},
    {"Form17", "Text7"}, {"Form17", "Text8"}, {"Form17", "Text9"},     {"Form17", "Text10"}, {"Form17", "Text11"},
};
constexpr Member RangeBoxes[] = {{"Form19", "Text1", 48}, {"Form19", "Text2", 48}};
constexpr Member SilentCombos[] = {
    {"Form1", "Combo1"}, {"Form2", "Combo1"}, {"Form6", "Combo1"},
    {"Form9", "Combo1"}, {"Form5", "Combo1"}, {"Form14", "Combo1"},
};

TEST_F(Filters, DigitsTakeDigitsAndBackspace) {
    for (const Member& m : DigitBoxes) {
        SCOPED_TRACE(std::string(m.form) + "." + m.box);
        for (const int key : std::initializer_list<int>{'0', '5', '9'}) {
            EXPECT_EQ(PressAtEnd(m.form, m.box, "12", key), std::string("12") + static_cast<char>(key) + "|");
        }
        EXPECT_EQ(PressAtEnd(m.form, m.box, "12", 8), "1|");
        for (const int key :
             std::initializer_list<int>{'.', '-', '/', ':', 'a', ' ', 1, 3, 22, 24, 26, 127, 176, 255}) {
            EXPECT_EQ(PressAtEnd(m.form, m.box, "12", key), "12|b") << key;
        }
    }
}

TEST_F(Filters, OnePointTakesOnePoint) {
    for (const Member& m : PointBoxes) {
        SCOPED_TRACE(std::string(m.form) + "." + m.box);
        EXPECT_EQ(PressAtEnd(m.form, m.box, "12", '.'), "12.|");
        EXPECT_EQ(PressAtEnd(m.form, m.box, "", '.'), ".|");
        EXPECT_EQ(PressAtEnd(m.form, m.box, "12.5", '.'), "12.5|" + SecondPoint(m.style));
        EXPECT_EQ(Press(m.form, m.box, {"12.5", 0, 4}, '.'), ".|");
        EXPECT_EQ(Press(m.form, m.box, {"12.5", 3, 1}, '.'), "12.5|" + SecondPoint(m.style));
        // A selection of the point alone does not help.
        EXPECT_EQ(Press(m.form, m.box, {"12.5", 2, 1}, '.'), "12.5|" + SecondPoint(m.style));
        EXPECT_EQ(PressAtEnd(m.form, m.box, "12.5", '7'), "12.57|");
        EXPECT_EQ(PressAtEnd(m.form, m.box, "12.5", 8), "12.|");
        for (const int key : std::initializer_list<int>{'-', '/', ':', 'a', ' ', 3, 22}) {
            EXPECT_EQ(PressAtEnd(m.form, m.box, "12.5", key), "12.5|b") << key;
        }
    }
}

TEST_F(Filters, PointsTakeAnyNumberOfPoints) {
    for (const Member& m : PointsBoxes) {
        SCOPED_TRACE(std::string(m.form) + "." + m.box);
        EXPECT_EQ(PressAtEnd(m.form, m.box, "1.2", '.'), "1.2.|");
        EXPECT_EQ(PressAtEnd(m.form, m.box, "1.2.", '3'), "1.2.3|");
        EXPECT_EQ(PressAtEnd(m.form, m.box, "1.2.", 8), "1.2|");
        for (const int key : std::initializer_list<int>{'-', ':', 'a', ' ', 22}) {
            EXPECT_EQ(PressAtEnd(m.form, m.box, "1.2", key), "1.2|b") << key;
        }
    }
}

TEST_F(Filters, ARejectedKeyPastesOverTheMainBoxes) {
    for (const Member& m : PasteBoxes) {
        SCOPED_TRACE(std::string(m.form) + "." + m.box);
        EXPECT_EQ(PressAtEnd(m.form, m.box, "12", '5'), "125|");
        EXPECT_EQ(PressAtEnd(m.form, m.box, "12", 8), "1|");
        EXPECT_EQ(PressAtEnd(m.form, m.box, "12", '.'), "12.|");
        EXPECT_EQ(PressAtEnd(m.form, m.box, "12.5", '.'), "12.5|" + SecondPoint(m.style));
        EXPECT_EQ(Press(m.form, m.box, {"12.5", 0, 4}, '.'), ".|");
        for (const int key : std::initializer_list<int>{'a', '-', ' ', 22, 3, 24, 27, 1, 200}) {
            program.Runtime.Clipboard = "3.5";
            EXPECT_EQ(PressAtEnd(m.form, m.box, "12", key), "3.5|b") << key;
            EXPECT_EQ(program.Runtime.Clipboard, "3.5");
            program.Runtime.Clipboard.reset();
            EXPECT_EQ(PressAtEnd(m.form, m.box, "12", key), "|b") << key;
        }
        program.Runtime.Clipboard = "some words";
        EXPECT_EQ(PressAtEnd(m.form, m.box, "12", 22), "some words|b");
    }
}

TEST_F(Filters, AMinusGoesToTheFrontWithABeep) {
    for (const Member& m : SignedBoxes) {
        SCOPED_TRACE(std::string(m.form) + "." + m.box);
        EXPECT_EQ(Press(m.form, m.box, {"12", 1, 0}, '-'), "-12|b");
        EXPECT_EQ(Form(m.form).Box(m.box).SelStart(), 3);
        EXPECT_EQ(PressAtEnd(m.form, m.box, "12", '-'), "-12|b");
        EXPECT_EQ(Press(m.form, m.box, {"12", 0, 1}, '-'), "-12|b");
        EXPECT_EQ(PressAtEnd(m.form, m.box, "-12", '-'), "-12|" + SecondMinus(m.style));
        EXPECT_EQ(Press(m.form, m.box, {"-12", 0, 1}, '-'), "-12|" + SecondMinus(m.style));
        // Into an empty box and over a full selection it goes as typed.
        EXPECT_EQ(PressAtEnd(m.form, m.box, "", '-'), "-|");
        EXPECT_EQ(Press(m.form, m.box, {"12", 0, 2}, '-'), "-|");
        EXPECT_EQ(Press(m.form, m.box, {"-12", 0, 3}, '-'), "-|");
        EXPECT_EQ(PressAtEnd(m.form, m.box, "-1.5", '.'), "-1.5|" + SecondPoint(m.style));
        EXPECT_EQ(PressAtEnd(m.form, m.box, "-15", '.'), "-15.|");
        EXPECT_EQ(PressAtEnd(m.form, m.box, "-1.5", 8), "-1.|");
        for (const int key : std::initializer_list<int>{'/', ':', 'a', ' ', 22, ',', '+'}) {
            EXPECT_EQ(PressAtEnd(m.form, m.box, "-1.5", key), "-1.5|b") << key;
        }
    }
}

TEST_F(Filters, RangesTakeOneMinusWhileUnlocked) {
    for (const Member& m : RangeBoxes) {
        SCOPED_TRACE(std::string(m.form) + "." + m.box);
        EXPECT_EQ(PressAtEnd(m.form, m.box, "100", '-'), "100-|");
        EXPECT_EQ(PressAtEnd(m.form, m.box, "100-200", '-'), "100-200|" + SecondMinus(48));
        EXPECT_EQ(Press(m.form, m.box, {"100-200", 3, 1}, '-'), "100-200|" + SecondMinus(48));
        EXPECT_EQ(Press(m.form, m.box, {"100-200", 0, 7}, '-'), "-|");
        EXPECT_EQ(PressAtEnd(m.form, m.box, "100-200", 8), "100-20|");
        for (const int key : std::initializer_list<int>{'/', ':', 'a', ' ', 22}) {
            EXPECT_EQ(PressAtEnd(m.form, m.box, "100", key), "100|b") << key;
        }
        Form(m.form).Box(m.box).Locked(true);
        for (const int key : std::initializer_list<int>{'5', '-', '.', 'a', 8, 22}) {
            EXPECT_EQ(PressAtEnd(m.form, m.box, "1-2", key), "1-2|") << key;
        }
    }
    EXPECT_EQ(PressAtEnd("Form19", "Text1", "1-2", '.'), "1-2|");  // locked still
    Form("Form19").Box("Text1").Locked(false);
    EXPECT_EQ(PressAtEnd("Form19", "Text1", "1-2", '.'), "1-2|b");
}

TEST_F(Filters, AFeedRangeTakesAPointOnEachSide) {
    struct Case {
        const char* text;
        int selStart;
        int selLength;
        const char* after;  ///< null where the message comes
    };
    const Case cases[] = {
        {"", 0, 0, "."},
        {"002", 0, 0, ".002"},
        {".002", 4, 0, nullptr},
        {".002-", 5, 0, ".002-."},
        {".002-.004", 9, 0, nullptr},
        {".002-.004", 2, 0, nullptr},
        {"002-.004", 0, 0, ".002-.004"},
        {"002-.004", 3, 0, "002.-.004"},
        {"002-.004", 4, 0, nullptr},
        {".002-004", 5, 0, ".002-.004"},
        {"2.-3", 4, 0, "2.-3."},
        // Over all of the text; over the point alone; over the minus, which joins the two sides.
        {".002-.004", 0, 9, "."},
        {".002-.004", 0, 1, nullptr},
        {"002-.004", 3, 1, nullptr},
        {"1-2", 1, 1, "1.2"},
        {".002-004", 5, 2, ".002-.4"},
    };
    for (const Case& c : cases) {
        const std::string expected =
            c.after != nullptr ? std::string(c.after) + "|" : std::string(c.text) + "|" + SecondPoint(48);
        EXPECT_EQ(Press("Form19", "Text2", {c.text, c.selStart, c.selLength}, '.'), expected)
            << c.text << " " << c.selStart << " " << c.selLength;
    }
}

TEST_F(Filters, CombosWithoutTypingSwallowEveryKey) {
    for (const Member& m : SilentCombos) {
        SCOPED_TRACE(std::string(m.form) + "." + m.box);
        for (const int key : std::initializer_list<int>{'5', 'a', '.', 8, 22, 27, 1, 255}) {
            EXPECT_EQ(PressAtEnd(m.form, m.box, "4", key), "4|b") << key;
        }
    }
    for (const char* const form : {"Form1", "Form2", "Form6", "Form9"}) {
        EXPECT_EQ(PressAtEnd(form, "Combo1", "4", 0), "4|b") << form;
    }
    for (const char* const form : {"Form5", "Form14"}) {
        EXPECT_EQ(PressAtEnd(form, "Combo1", "4", 0), "4|") << form;
    }
}

TEST_F(Filters, AllOtherBoxesTakeAnyKey) {
    std::set<std::string> members;
    const auto note = [&](const auto& family) {
        for (const Member& m : family) {
            members.insert(std::string(m.form) + "." + m.box);
        }
    };
    note(DigitBoxes);
    note(PointBoxes);
    note(PointsBoxes);
    note(PasteBoxes);
    note(SignedBoxes);
    note(RangeBoxes);
    note(SilentCombos);
    EXPECT_EQ(members.size(), 60U);
    for (const auto& [form, boxes] : AllForms()) {
        for (const std::string& box : boxes) {
            if (members.count(form + "." + box) == 0) {
                EXPECT_EQ(PressAtEnd(form, box, "1", 'a'), "1a|") << form << "." << box;
            }
        }
    }
}

TEST_F(Filters, UnitItemsComeOnAfterEveryKeyThatReachesThem) {
    struct Case {
        const char* form;
        const char* box;
        const char* text;
        int key;
        bool on;
    };
    const Case cases[] = {
        {"Form1", "Text1", "1", '5', true},    {"Form1", "Text2", "1", 'a', true},
        {"Form1", "Text1", "1", 8, true},      {"Form1", "Text1", "1.5", '.', false},
        {"Form2", "Text3", "1", 'x', true},    {"Form2", "Text1", "1", '.', true},
        {"Form2", "Text2", "1.5", '.', false}, {"Form8", "Text4", "1", '5', true},
        {"Form8", "Text4", "1", '.', true},    {"Form8", "Text3", "1", '5', true},
        {"Form8", "Text5", "1", '-', true},    {"Form8", "Text3", "1.5", '.', false},
        {"Form8", "Text1", "1", '-', true},    {"Form8", "Text2", "1", 'a', true},
        {"Form8", "Text1", "-1", '-', false},  {"Form8", "Text1", "1.5", '.', false},
        {"Form16", "Text1", "1", '5', false},  {"Form16", "Combo1", "1", '5', false},
        {"Form12", "Text1", "1", '5', false},  {"Form17", "Text1", "1", '5', false},
        {"Form1", "Combo1", "1", '5', false},  {"Form1", "Text3", "1", '5', false},
    };
    for (const Case& c : cases) {
        MemberForm& form = Form(c.form);
        form.Inches.Enabled(false);
        form.Millimeters.Enabled(false);
        form.Break10.Visible(true);
        (void)PressAtEnd(c.form, c.box, c.text, c.key);
        SCOPED_TRACE(std::string(c.form) + "." + c.box + " " + c.text + " " + std::to_string(c.key));
        EXPECT_EQ(form.Inches.Enabled(), c.on);
        EXPECT_EQ(form.Millimeters.Enabled(), c.on);
        EXPECT_EQ(form.Break10.Visible(), !(c.on && form.Name() == "Form1"));
    }
}

TEST_F(Filters, AKeyThatIsSwallowedBecomesZero) {
    const struct {
        const char* form;
        const char* box;
        const char* text;
        int key;
    } cases[] = {
        {"Form16", "Combo1", "1", 'x'}, {"Form12", "Text1", "1.5", '.'}, {"Form1", "Text1", "1", 'x'},
        {"Form8", "Text1", "5", '-'},   {"Form1", "Combo1", "1", 'x'},   {"Form5", "Combo1", "1", 'x'},
    };
    for (const auto& c : cases) {
        EditControl& box = Form(c.form).Box(c.box);
        SetText(box, c.text);
        int key = c.key;
        box.Fire(box.KeyPress, "KeyPress", key);
        EXPECT_EQ(key, 0) << c.form << '.' << c.box;
    }
}

TEST_F(Filters, AFormWithoutItsMembersIsAnError) {
    EXPECT_EQ(FaultOf([&] { const MemberForm form(program.Owner, "Form8", TextBoxes(1, 4)); }),
              FaultNumber::BadArgument);
    EXPECT_EQ(WordsOf([&] { const MemberForm form(program.Owner, "Form8", TextBoxes(1, 4)); }),
              "Form8 has no box Text5");
    EXPECT_EQ(FaultOf([&] { const MemberForm form(program.Owner, "Form99", {}); }), std::nullopt);
}

}  // namespace
}  // namespace brindlex
