// Speeds + Feeds: cutting data, their lists, entering and deleting them.
#include "frame/fault.h"
#include "frame/program.h"
#include "speedsfeeds/form19.h"
#include "speedsfeeds/ranges.h"
#include "speedsfeeds/record.h"

#include <string>
#include <utility>

namespace brindlex::speedsfeeds {

namespace {

constexpr std::size_t ToolLevel = 0;
constexpr std::size_t ToolMaterialLevel = 1;
constexpr std::size_t WorkMaterialLevel = 2;
constexpr std::int16_t Busy = -1;

/// A name as the first entry of its list, chosen.
void ListFirst(ComboBox& combo, const std::string& name) {
    combo.AddItem(name);
    combo.Text(name);
}

}  // namespace

Store Form19::Data() const {
    return {Owner().Files(), MachFile};
}

Record Form19::EnteredRecord() const {
    return {Text17.Text(), Text18.Text(), Text19.Text(), Text1.Text(), Text2.Text(), Text9.Text()};
}

void Form19::Combo1_Click() {
    ClearAll();
    MachFile = Combo1.Text();
    // A store that can't be used shows empty lists; saving says why.
    Guarded([&] { Data().EnsureStore(); });
    ChkMach();
    FilCmbos();
    Combo1.ToolTipText(Combo1.Text());
}

void Form19::Combo2_Click() {
    ChooseName(ToolLevel);
}

void Form19::Combo3_Click() {
    ChooseName(ToolMaterialLevel);
}

void Form19::Combo4_Click() {
    ChooseName(WorkMaterialLevel);
}

void Form19::ChooseName(std::size_t level) {
    if (keepEntries_) {
        return;
    }
    const std::string name = choices_[level]->Text();
    names_[level]->Text(name);
    names_[level]->ToolTipText(name);
    choices_[level]->ToolTipText(name);
    for (std::size_t below = level + 1; below < choices_.size(); ++below) {
        choices_[below]->Clear();
        names_[below]->Text("");
    }
    ClearRanges();
    if (FillBusy == 0) {
        FilChoices();
        FillBusy = 0;
    }
    if (level == WorkMaterialLevel && !DataOp.Checked()) {
        FlTxt();
    }
    OfferDelete();
}

void Form19::OfferDelete() {
    const Record record = EnteredRecord();
    if (DataOp.Checked() && !record.Tool.empty() && !record.ToolMaterial.empty() && !record.WorkMaterial.empty() &&
        !record.SpeedRange.empty() && !record.FeedRange.empty()) {
        DelDat.Enabled(true);
    }
}

void Form19::NameChanged(std::size_t level) {
    const std::string& name = names_[level]->Text();
    names_[level]->ToolTipText(name);
    choices_[level]->ToolTipText(name);
    ClearEntries();
}

void Form19::Text17_Change() {
    NameChanged(ToolLevel);
}

void Form19::Text18_Change() {
    NameChanged(ToolMaterialLevel);
}

void Form19::Text19_Change() {
    NameChanged(WorkMaterialLevel);
}

void Form19::FilCmbos() {
    FillBusy = Busy;
    keepEntries_ = true;
    for (std::size_t level = 0; level < choices_.size(); ++level) {
        ComboBox& combo = *choices_[level];
        const std::string shown = combo.Text();
        combo.Clear();
        if (DataOp.Checked()) {
            ListFirst(combo, names_[level]->Text());
        } else {
            combo.Text(shown);
        }
    }
    Guarded([&] { Combo2.AddItems(Data().Tools(UnitInForce(), Combo2.List())); });
    keepEntries_ = false;
    FillBusy = 0;
}

void Form19::FilChoices() {
    FillBusy = Busy;
    const std::string toolMaterial = Combo3.Text();
    const std::string workMaterial = Combo4.Text();
    Combo3.Clear();
    Combo4.Clear();
    if (!toolMaterial.empty()) {
        ListFirst(Combo3, toolMaterial);
    }
    if (!workMaterial.empty()) {
        ListFirst(Combo4, workMaterial);
    }
    Choices found;
    Guarded([&] { found = Data().WalkDown({Combo2.Text(), Combo3.Text(), Combo4.Text()}); });
    Combo3.AddItems(found.ToolMaterials);
    Combo4.AddItems(found.WorkMaterials);
    if (found.Data) {
        Text1.Text(found.Data->SpeedRange);
        Text2.Text(found.Data->FeedRange);
        if (!found.Data->PowerFactor.empty()) {
            Text9.Text(found.Data->PowerFactor);
        }
    }
}

void Form19::FlTxt() {
    Text3.Text(StartingValue(Text1.Text()));
    Text4.Text(StartingValue(Text2.Text()));
    Text5.SetFocus();
}

template <class Rewrite>
bool Form19::Rewritten(Rewrite&& rewrite) {
    const Store store = Data();
    try {
        std::forward<Rewrite>(rewrite)(store, RecordLine(UnitInForce(), EnteredRecord()));
        return true;
    } catch (const Fault& fault) {
        Owner().BeepBox("The Cutting Data Could Not Be Saved:\r\n" + store.FileName() + "\r\n" + fault.what());
        return false;
    }
}

bool Form19::AppendRecord() {
    if (!Rewritten([](const Store& store, const std::string& line) { store.AppendRecord(line); })) {
        return false;
    }
    FilCmbos();
    return true;
}

bool Form19::DeleteRecord() {
    if (!Rewritten([](const Store& store, const std::string& line) { store.DeleteRecord(line); })) {
        return false;
    }
    Guarded([&] { Combo2.RemoveItem(0); });
    ClearRanges();
    ClearNames();
    FilCmbos();
    DelDat.Enabled(false);
    return true;
}

void Form19::DelDat_Click() {
    constexpr int AskWithNo = style::Stop + style::YesNo + style::SecondDefault;
    if (Owner().MsgBox("Delete This Operations Data?", AskWithNo) == Answer::Yes) {
        static_cast<void>(DeleteRecord());
    }
}

}  // namespace brindlex::speedsfeeds
