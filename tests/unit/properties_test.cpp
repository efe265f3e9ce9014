// Properties by their names: what each kind of thing has, and how setting converts and refuses.
#include "headless/properties.h"
#include "headless/scripterror.h"
#include "scriptforms.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using List = std::vector<std::string>;

std::string RefusalOf(const std::function<void()>& step) {
    try {
        step();
    } catch (const ScriptError& error) {
        return error.what();
    }
    return "";
}

class PropertiesTest : public ::testing::Test {
protected:
    /// Sets and reads back.
    template <class Thing>
    static PropertyValue After(Thing& thing, const char* property, const PropertyValue& value) {
        SetProperty(thing, property, value);
        return ReadProperty(thing, property);
    }

    ScriptStand stand_;
    MainForm& form_ = stand_.Main();
};

TEST_F(PropertiesTest, WhatAllControlsHave) {
    const struct {
        const char* property;
        PropertyValue design;
        PropertyValue set;
    } rows[] = {
        {"Left", 2100.0, 1.5},
        {"Top", 120.0, 2.0},
        {"Width", 900.0, 3.0},
        {"Height", 240.0, 4.0},
        {"Visible", -1.0, 0.0},
        {"Enabled", -1.0, 0.0},
        {"ToolTipText", "", "a"},
        {"ForeColor", 0.0, 197121.0},
        {"FontBold", 0.0, -1.0},
        {"FontSize", 8.25, 10.0},
        {"FontName", "Arial", "Courier New"},
        {"TabStop", -1.0, 0.0},
        {"Container", "Form11", "Frame1"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ReadProperty(form_.Label1, row.property), row.design) << row.property;
        EXPECT_EQ(After(form_.Label1, row.property, row.set), row.set) << row.property;
    }
    // 197121 is 1 + 256 * 2 + 65536 * 3.
    EXPECT_EQ(form_.Label1.ForeColor(), (Colour{1, 2, 3}));
    EXPECT_EQ(&form_.Label1.Container(), &form_.Frame1);
    EXPECT_EQ(ReadProperty(form_.Text2, "TabIndex"), PropertyValue(1.0));
    EXPECT_EQ(After(form_.Text2, "TabIndex", 0.0), PropertyValue(0.0));
    EXPECT_EQ(ReadProperty(form_.Text1, "TabIndex"), PropertyValue(1.0));
    EXPECT_EQ(ReadProperty(form_.Text1, "Name"), PropertyValue("Text1"));
}

TEST_F(PropertiesTest, Boxes) {
    EXPECT_EQ(ReadProperty(form_.Text1, "Text"), PropertyValue("abc"));
    EXPECT_EQ(After(form_.Text1, "SelStart", 1.0), PropertyValue(1.0));
    EXPECT_EQ(After(form_.Text1, "SelLength", 9.0), PropertyValue(2.0));
    EXPECT_EQ(ReadProperty(form_.Text1, "SelText"), PropertyValue("bc"));
    EXPECT_EQ(After(form_.Text1, "Locked", -1.0), PropertyValue(-1.0));
    EXPECT_EQ(After(form_.Text1, "MaxLength", 7.0), PropertyValue(7.0));
    EXPECT_EQ(ReadProperty(form_.Text1, "MultiLine"), PropertyValue(0.0));
    EXPECT_EQ(ReadProperty(form_.Combo1, "List"), PropertyValue(List{"Inch", "Metric"}));
    EXPECT_EQ(ReadProperty(form_.Combo1, "ListCount"), PropertyValue(2.0));
    EXPECT_EQ(ReadProperty(form_.Combo1, "ListIndex"), PropertyValue(-1.0));
    EXPECT_EQ(After(form_.Combo1, "ListIndex", 1.0), PropertyValue(1.0));
    EXPECT_EQ(ReadProperty(form_.Combo1, "Text"), PropertyValue("Metric"));
    EXPECT_EQ(After(form_.Combo1, "Text", "Feet"), PropertyValue("Feet"));
    EXPECT_EQ(ReadProperty(form_.Combo1, "ListIndex"), PropertyValue(-1.0));
    EXPECT_EQ(ReadProperty(form_.Combo1, "Locked"), PropertyValue(0.0));
}

TEST_F(PropertiesTest, Buttons) {
    EXPECT_EQ(After(form_.Command1, "Caption", "&Stop"), PropertyValue("&Stop"));
    EXPECT_EQ(ReadProperty(form_.Command1, "Default"), PropertyValue(-1.0));
    EXPECT_EQ(After(form_.Command2, "Default", 1.0), PropertyValue(-1.0));
    EXPECT_EQ(ReadProperty(form_.Command1, "Default"), PropertyValue(0.0));
    EXPECT_EQ(After(form_.Command2, "Cancel", -1.0), PropertyValue(-1.0));
    EXPECT_EQ(After(form_.Command1, "Value", -1.0), PropertyValue(0.0));
    EXPECT_EQ(stand_.Heard, (Log{"Command1_Click"}));
    EXPECT_EQ(After(form_.Check1, "Value", 1.0), PropertyValue(1.0));
    EXPECT_EQ(After(form_.Check1, "Value", 0.0), PropertyValue(0.0));
    EXPECT_EQ(After(form_.Check1, "Value", -1.0), PropertyValue(1.0));
    EXPECT_EQ(After(form_.Option2, "Value", -1.0), PropertyValue(-1.0));
    EXPECT_EQ(ReadProperty(form_.Option1, "Value"), PropertyValue(0.0));
}

TEST_F(PropertiesTest, LabelsFramesAndPictures) {
    EXPECT_EQ(After(form_.Label1, "Caption", "x"), PropertyValue("x"));
    EXPECT_EQ(ReadProperty(form_.Label1, "AutoSize"), PropertyValue(0.0));
    EXPECT_EQ(After(form_.Frame1, "Caption", "y"), PropertyValue("y"));
    EXPECT_EQ(ReadProperty(form_.Text3, "Container"), PropertyValue("Frame1"));
    const struct {
        const char* property;
        double design;
        double set;
    } rows[] = {
        {"AutoRedraw", 0, -1}, {"CurrentX", 0, 1.5},     {"CurrentY", 0, 2.5},       {"DrawWidth", 1, 3},
        {"DrawStyle", 0, 2},   {"DrawMode", 13, 7},      {"ScaleMode", 1, 0},        {"ScaleLeft", 0, -10},
        {"ScaleTop", 0, 10},   {"ScaleWidth", 1500, 20}, {"ScaleHeight", 1500, -20},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ReadProperty(form_.Picture1, row.property), PropertyValue(row.design)) << row.property;
        EXPECT_EQ(After(form_.Picture1, row.property, row.set), PropertyValue(row.set)) << row.property;
    }
}

TEST_F(PropertiesTest, BarsTimersAndDialogs) {
    EXPECT_EQ(After(form_.VScroll1, "Min", 5.0), PropertyValue(5.0));
    EXPECT_EQ(After(form_.VScroll1, "Max", 50.0), PropertyValue(50.0));
    EXPECT_EQ(After(form_.VScroll1, "SmallChange", 2.0), PropertyValue(2.0));
    EXPECT_EQ(After(form_.VScroll1, "LargeChange", 10.0), PropertyValue(10.0));
    EXPECT_EQ(After(form_.VScroll1, "Value", 99.0), PropertyValue(50.0));
    EXPECT_EQ(After(form_.Timer1, "Interval", 250.0), PropertyValue(250.0));
    EXPECT_EQ(After(form_.Timer1, "Enabled", 0.0), PropertyValue(0.0));
    CommonDialog& dialog = form_.CommonDialog1;
    EXPECT_EQ(After(dialog, "CancelError", -1.0), PropertyValue(-1.0));
    EXPECT_EQ(After(dialog, "Flags", 14.0), PropertyValue(14.0));
    EXPECT_EQ(After(dialog, "Filter", "All|*"), PropertyValue("All|*"));
    EXPECT_EQ(After(dialog, "FileName", "a.rgt"), PropertyValue("a.rgt"));
    EXPECT_EQ(ReadProperty(dialog, "Copies"), PropertyValue(1.0));
    EXPECT_EQ(ReadProperty(dialog, "FromPage"), PropertyValue(0.0));
    EXPECT_EQ(ReadProperty(dialog, "ToPage"), PropertyValue(0.0));
    EXPECT_EQ(ReadProperty(dialog, "hDC"), PropertyValue(0.0));
}

TEST_F(PropertiesTest, MenusToolsAndForms) {
    EXPECT_EQ(After(form_.Copy, "Caption", "C"), PropertyValue("C"));
    EXPECT_EQ(After(form_.Copy, "Checked", -1.0), PropertyValue(-1.0));
    EXPECT_EQ(After(form_.Copy, "Enabled", 0.0), PropertyValue(0.0));
    EXPECT_EQ(After(form_.Copy, "Visible", 0.0), PropertyValue(0.0));
    EXPECT_EQ(ReadProperty(form_.Copy, "Name"), PropertyValue("Copy"));
    SetProperty(form_.Toolbar1, "Line", "Value", -1.0);
    SetProperty(form_.Toolbar1, "Point", "Enabled", 0.0);
    EXPECT_EQ(ReadProperty(form_.Toolbar1, "Line", "Value"), PropertyValue(1.0));
    EXPECT_EQ(ReadProperty(form_.Toolbar1, "Line", "Key"), PropertyValue("Line"));
    EXPECT_EQ(ReadProperty(form_.Toolbar1, "Point", "Enabled"), PropertyValue(0.0));
    EXPECT_EQ(ReadProperty(form_.Toolbar1, "Point", "Caption"), PropertyValue("Point"));
    Form& form = form_;
    EXPECT_EQ(After(form, "Caption", "M"), PropertyValue("M"));
    EXPECT_EQ(After(form, "Left", 15.0), PropertyValue(15.0));
    EXPECT_EQ(After(form, "Top", 30.0), PropertyValue(30.0));
    EXPECT_EQ(After(form, "Width", 7120.0), PropertyValue(7120.0));
    EXPECT_EQ(ReadProperty(form, "ScaleWidth"), PropertyValue(7000.0));
    EXPECT_EQ(After(form, "Height", 6810.0), PropertyValue(6810.0));
    EXPECT_EQ(ReadProperty(form, "ScaleHeight"), PropertyValue(6000.0));
    EXPECT_EQ(ReadProperty(form, "hWnd"), PropertyValue(1.0));
    EXPECT_EQ(After(form, "Visible", -1.0), PropertyValue(-1.0));
    EXPECT_EQ(After(form, "Visible", 0.0), PropertyValue(0.0));
}

TEST_F(PropertiesTest, Refusals) {
    Form& form = form_;
    const struct {
        std::function<void()> step;
        const char* words;
    } rows[] = {
        {[&] { SetProperty(form_.Text1, "Text", 5.0); }, "a text is wanted"},
        {[&] { SetProperty(form_.Text1, "Left", "5"); }, "a number is wanted"},
        {[&] { SetProperty(form_.Text1, "Visible", "0"); }, "a number is wanted"},
        {[&] { SetProperty(form_.Text1, "SelStart", 1e10); }, "the number is too large"},
        {[&] { SetProperty(form_.Text1, "SelText", "a"); }, "Text1.SelText can only be read"},
        {[&] { SetProperty(form_.Text1, "ListIndex", 0.0); }, "Text1 has no property ListIndex"},
        {[&] { SetProperty(form_.Combo1, "List", "a"); }, "Combo1.List can only be read"},
        {[&] { SetProperty(form_.Label1, "Container", "Text1"); }, "there is no container Text1"},
        {[&] { SetProperty(form_.Frame1, "Container", "Frame1"); }, "a control cannot contain itself"},
        {[&] { SetProperty(form_.Copy, "Name", "a"); }, "Copy.Name can only be read"},
        {[&] { SetProperty(form_.Copy, "Text", "a"); }, "Copy has no property Text"},
        {[&] { SetProperty(form_.Toolbar1, "Line", "Key", "a"); }, "Toolbar1.Key can only be read"},
        {[&] { SetProperty(form_.Toolbar1, "None", "Value", 1.0); }, "Toolbar1 has no button None"},
        {[&] { SetProperty(form, "ScaleWidth", 1.0); }, "Form11.ScaleWidth can only be read"},
        {[&] { (void)ReadProperty(form, "Text"); }, "Form11 has no property Text"},
        {[&] { (void)ReadProperty(form_.Label1, "Value"); }, "Label1 has no property Value"},
        {[&] { (void)ReadProperty(form_.Command1, "text"); }, "Command1 has no property text"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(RefusalOf(row.step), row.words);
    }
    EXPECT_EQ(form_.Text1.Text(), "abc");
    EXPECT_TRUE(stand_.Heard.empty());
}

}  // namespace
}  // namespace brindlex
