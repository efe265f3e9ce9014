// Speeds + Feeds: the calculation, the units, the conversion of what is on the screen.
#include "frame/fault.h"
#include "frame/program.h"
#include "speedsfeeds/captions.h"
#include "speedsfeeds/form19.h"
#include "speedsfeeds/ranges.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brindlex::speedsfeeds {

namespace {

constexpr std::int16_t Failed = -1;

/// A control or menu item of any kind that has a caption.
void ShowCaption(Form& form, std::string_view name, std::string_view caption) {
    const std::string text(caption);
    if (MenuItem* const item = form.FindMenu(name)) {
        item->Caption(text);
        return;
    }
    Control* const control = form.FindControl(name);
    if (auto* const label = dynamic_cast<Label*>(control)) {
        label->Caption(text);
    } else {
        dynamic_cast<Frame&>(*control).Caption(text);
    }
}

void TakeText(TextBox& box, const std::optional<std::string>& text) {
    if (text) {
        box.Text(*text);
    }
}

}  // namespace

Entries Form19::EnteredTexts() const {
    return {Text3.Text(), Text4.Text(),  Text5.Text(),  Text6.Text(), Text7.Text(), Text8.Text(),
            Text9.Text(), Text14.Text(), Text15.Text(), Text1.Text(), Text2.Text()};
}

bool Form19::HasEntries() const {
    return !Text3.Text().empty() || !Text4.Text().empty() || !Text5.Text().empty() || !Text6.Text().empty();
}

bool Form19::Refuse(const std::optional<Refusal>& refusal, int boxStyle) {
    if (!refusal) {
        return false;
    }
    TextBox* const boxes[] = {&Text17, &Text18, &Text19, &Text1, &Text2, &Text3, &Text4, &Text5, &Text6};
    Owner().BeepBox(refusal->Message, boxStyle);
    boxes[static_cast<std::size_t>(refusal->At)]->SetFocus();
    return true;
}

void Form19::Command1_Click() {
    const bool entering = DataOp.Checked();
    const Record record = EnteredRecord();
    if (entering && Refuse(MissingData(record, MachineInForce()), style::Stop)) {
        return;
    }
    bool done = false;
    if (!CalculateEntries(done)) {
        return;
    }
    if (entering && !Combo1.Text().empty()) {
        const bool saved = AppendRecord();
        done = done || saved;
        if (saved && !HasEntries()) {
            ClearRanges();
            ClearNames();
            Text17.SetFocus();
        }
    }
    if (done) {
        ConvDat.Enabled(true);
    }
}

bool Form19::CalculateEntries(bool& done) {
    if (!HasEntries()) {
        return true;
    }
    if (Refuse(MissingEntry(EnteredTexts(), MachineInForce()), style::Question)) {
        return false;
    }
    CheckItAll();
    if (RangeFail == Failed) {
        return false;
    }
    SharedState& shared = Owner().Shared();
    WorkOutPi(shared);
    ShowResults(Calculate(EnteredTexts(), UnitInForce(), MachineInForce(), shared.Pi, !Text12.Text().empty()));
    done = true;
    return true;
}

void Form19::CheckItAll() {
    const std::optional<Refusal> refusal = OutOfRange(EnteredTexts(), MachineInForce());
    RangeFail = refusal ? Failed : std::int16_t{0};
    static_cast<void>(Refuse(refusal, style::Stop));
}

void Form19::ShowResults(const Results& results) {
    Text10.Text(results.SpindleSpeed);
    Text11.Text(results.FeedRate);
    TakeText(Text12, results.RemovalRate);
    TakeText(Text13, results.CutTime);
    TakeText(Text9, results.PowerFactor);
    TakeText(Text16, results.Power);
}

void Form19::Text4_Change() {
    if (MachineInForce() == Machine::Lathe) {
        Text8.Text(Text4.Text());
    }
}

void Form19::ChkMach() {
    const Machine machine = MachineInForce();
    for (const CaptionRow& row : CaptionRows()) {
        ShowCaption(*this, row.Name, row.For(UnitInForce(), machine));
    }
    Label10.Enabled(machine == Machine::Mill);
    Text6.Enabled(machine == Machine::Mill);
    Text8.Locked(machine == Machine::Lathe);
}

void Form19::FlipUnits() {
    const bool inch = InchTo.Checked();
    InchTo.Checked(!inch);
    MMTo.Checked(inch);
}

void Form19::Units_Click() {
    FlipUnits();
    ChkMach();
    if (!ConvDat.Checked()) {
        ClearAll();
    }
    ConvDat.Checked(false);
    FilCmbos();
}

void Form19::ConvDat_Click() {
    ConvDat.Checked(true);
    ConvertData();
    FlipUnits();
    // What goes by the machine stays as the machine's choice left it: intended.
    for (const CaptionRow& row : CaptionRows()) {
        if (row.OfUnitAlone()) {
            ShowCaption(*this, row.Name, row.For(UnitInForce(), MachineInForce()));
        }
    }
    Label17.Caption(std::string(ConvertedFeedRateCaption(UnitInForce())));
    // Ranges that could not be converted leave the converted values to fail their check: intended.
    if (ConvTxt()) {
        FlTxt();
    }
    Command1.Value(true);
    ConvDat.Checked(false);
}

void Form19::ConvertData() {
    const struct {
        TextBox& Box;
        double Factor;
        bool Wanted;
    } rows[] = {
        {Text3, MetersPerFoot, true},
        {Text4, MillimetersPerInch, true},
        {Text5, MillimetersPerInch, true},
        {Text7, MillimetersPerInch, !Text7.Text().empty() && !Text8.Text().empty()},
        {Text8, MillimetersPerInch, !Text7.Text().empty() && !Text8.Text().empty()},
        {Text14, MillimetersPerInch, !Text14.Text().empty() && !Text15.Text().empty()},
        {Text9, KilowattFactor, !Text9.Text().empty()},
    };
    // All are worked out before any is written: on a lathe the feed is mirrored, and would be converted twice.
    std::vector<std::pair<TextBox*, std::string>> converted;
    for (const auto& row : rows) {
        if (row.Wanted) {
            Guarded([&] {
                converted.emplace_back(&row.Box, ConvertNumber(row.Box.Text(), row.Factor, Other(UnitInForce())));
            });
        }
    }
    for (const auto& [box, text] : converted) {
        box->Text(text);
    }
}

bool Form19::ConvTxt() {
    const std::optional<RangePair> ranges = ConvertRanges({Text1.Text(), Text2.Text()}, UnitInForce());
    if (!ranges) {
        return false;
    }
    Text1.Text(ranges->Speed);
    Text2.Text(ranges->Feed);
    return true;
}

}  // namespace brindlex::speedsfeeds
