// The commands that lay out the world beforehand.
#include "headless/acts.h"
#include "headless/scripterror.h"

#include <fstream>

namespace brindlex {

namespace {

constexpr std::string_view CancelWord = "cancel";

struct AnswerWord {
    std::string_view word;
    Answer answer;
};
constexpr AnswerWord AnswerWords[] = {
    {"ok", Answer::Ok}, {"cancel", Answer::Cancel}, {"yes", Answer::Yes}, {"no", Answer::No}};

void ClipboardAct(Stage& stage, ScriptLine& line) {
    const std::string text = line.Text();
    line.End();
    if (text.empty()) {
        stage.App.Platform().ClearClipboard();
    } else {
        stage.App.Platform().ClipboardText(text);
    }
}

void AnswerAct(Stage& stage, ScriptLine& line) {
    const std::string word = line.Word();
    line.End();
    for (const AnswerWord& row : AnswerWords) {
        if (row.word == word) {
            stage.Run.Answers.push_back(row.answer);
            return;
        }
    }
    throw ScriptError("ok, cancel, yes or no is wanted");
}

void InputAct(Stage& stage, ScriptLine& line) {
    std::string text = line.Text();
    line.End();
    stage.Run.Inputs.push_back(std::move(text));
}

// The word, which means Cancel, or nothing where something else comes.
bool TakesCancel(ScriptLine& line) {
    if (line.AtText()) {
        return false;
    }
    ScriptLine ahead = line;
    if (ahead.Word() != CancelWord) {
        return false;
    }
    line = ahead;
    return true;
}

void DialogAct(Stage& stage, ScriptLine& line) {
    std::optional<std::string> path;
    if (!TakesCancel(line)) {
        path = line.Text();
    }
    line.End();
    stage.Run.Files.push_back(std::move(path));
}

void PrinterAct(Stage& stage, ScriptLine& line) {
    std::optional<PrinterChoice> choice;
    if (!TakesCancel(line)) {
        choice.emplace().Copies = line.Whole();
    }
    line.End();
    if (choice && choice->Copies < 0) {
        throw ScriptError("a number of copies is wanted");
    }
    stage.Run.Printers.push_back(choice);
}

void WriteAct(Stage& stage, ScriptLine& line) {
    const std::string name = line.Text();
    const std::string content = line.Text();
    line.End();
    std::ofstream file(stage.App.Files().PathOf(name), std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    if (!file) {
        throw ScriptError("the file can't be written");
    }
}

struct PreparationRow {
    std::string_view word;
    Act act;
};
constexpr PreparationRow Preparations[] = {
    {"clipboard", ClipboardAct}, {"answer", AnswerAct},   {"input", InputAct},
    {"dialog", DialogAct},       {"printer", PrinterAct}, {"write", WriteAct},
};

}  // namespace

Act PreparationNamed(std::string_view word) {
    for (const PreparationRow& row : Preparations) {
        if (row.word == word) {
            return row.act;
        }
    }
    return nullptr;
}

}  // namespace brindlex
