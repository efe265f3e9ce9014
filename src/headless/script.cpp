// The interpreter of scripts.
#include "headless/script.h"

#include "frame/text.h"
#include "headless/acts.h"
#include "headless/checks.h"
#include "headless/scripterror.h"
#include "headless/scriptjson.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <exception>
#include <istream>
#include <ostream>
#include <utility>

namespace brindlex {

using nlohmann::json;

namespace {

// An answer is one line of ASCII, whatever the names in it.
std::string OneLine(std::string_view text) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
    return line;
}

}  // namespace

Script::Script(Program& program, DrivenRun& run, Player& player, std::istream& commands, std::ostream& answers,
               AtError atError)
    : stage_{program, run, player}, commands_(commands), answers_(answers), atError_(atError) {
    run.ModalLoop = [this](Form& modal) { RunInside(modal); };
}

Script::~Script() {
    stage_.Run.ModalLoop = nullptr;
}

std::optional<ScriptStop> Script::Run() {
    RunCommands([this] { return !over_; });
    if (pending_) {
        Give(*std::exchange(pending_, {}));
    }
    EndProgram();
    return stop_;
}

// Lets go of all windows, and unwinds the handlers that wait for a modal form.
void Script::EndProgram() {
    over_ = true;
    if (!stage_.App.Ended()) {
        try {
            stage_.App.End();
        } catch (const ProgramEnded&) {
            return;
        }
    }
}

void Script::RunCommands(const std::function<bool()>& goOn) {
    while (goOn()) {
        const auto command = NextCommand();
        if (!command) {
            over_ = true;
            return;
        }
        const long mine = ++last_;
        owing_ = mine;
        Reply reply = Execute(*command);
        if (owing_ == mine) {
            pending_ = std::move(reply);
        }
        // Where the modal form went, the answer waits until its handler has run on.
        if (pending_ && goOn()) {
            Give(*std::exchange(pending_, {}));
        }
    }
}

void Script::RunInside(Form& modal) {
    if (over_) {
        EndProgram();
        return;
    }
    stage_.Hands.Settle();
    NoteForms(stage_);
    if (pending_) {
        Give(*std::exchange(pending_, {}));
    } else if (owing_ != 0) {
        Give({true, "ok", line_, {}});
    }
    RunCommands([&] { return !over_ && modal.Visible() && !stage_.App.Ended(); });
    if (over_) {
        EndProgram();
    }
}

std::optional<std::string> Script::NextCommand() {
    std::string text;
    while (std::getline(commands_, text)) {
        ++line_;
        const std::size_t start = text.find_first_not_of(" \t\r");
        if (start != std::string::npos && text[start] != '#') {
            return text;
        }
    }
    return std::nullopt;
}

void Script::Give(const Reply& reply) {
    owing_ = 0;
    answers_ << reply.Text << '\n' << std::flush;
    if (!reply.Good && atError_ == AtError::Stop) {
        stop_ = ScriptStop{reply.Line, reply.Command, reply.Text};
        over_ = true;
    }
}

Script::Reply Script::Execute(const std::string& command) {
    Reply reply{true, "ok", line_, command};
    try {
        ScriptLine line(command);
        const std::string word = line.Word();
        const std::string value = Obey(word, line);
        if (!value.empty()) {
            reply.Text += " " + value;
        }
    } catch (const ProgramEnded&) {
        reply.Text = "ok";
    } catch (const std::exception& failure) {
        reply.Good = false;
        reply.Text = "error " + OneLine(failure.what());
    }
    stage_.Hands.Settle();
    NoteForms(stage_);
    return reply;
}

std::string Script::Obey(std::string_view word, ScriptLine& line) {
    struct Always {
        std::string_view word;
        std::string (Script::*obey)(ScriptLine& line);
    };
    constexpr Always always[] = {
        {"show", &Script::Show}, {"expect", &Script::Expect}, {"near", &Script::Near}, {"quit", &Script::Quit}};
    for (const Always& row : always) {
        if (row.word == word) {
            return (this->*row.obey)(line);
        }
    }
    if (stage_.App.Ended()) {
        throw ScriptError("the program has ended");
    }
    if (word == "start") {
        return Start(line);
    }
    Act act = PreparationNamed(word);
    if (act == nullptr) {
        act = ActNamed(word);
        if (act == nullptr) {
            throw ScriptError("there is no command " + std::string(word));
        }
        if (!stage_.Started) {
            throw ScriptError("the program has not started");
        }
    }
    act(stage_, line);
    return {};
}

std::string Script::Start(ScriptLine& line) {
    line.End();
    if (std::exchange(stage_.Started, true)) {
        throw ScriptError("the program has started already");
    }
    stage_.App.Start();
    return {};
}

std::string Script::Quit(ScriptLine& line) {
    line.End();
    over_ = true;
    return {};
}

std::string Script::Show(ScriptLine& line) {
    const Question question = ReadQuestion(line);
    line.End();
    return Written(Tell(stage_, question));
}

std::string Script::Expect(ScriptLine& line) {
    const Question question = ReadQuestion(line);
    const json wanted = line.Value();
    const json told = Tell(stage_, question);
    if (told != wanted) {
        throw ScriptError("expected " + Written(wanted) + " but it is " + Written(told));
    }
    return Written(told);
}

std::string Script::Near(ScriptLine& line) {
    const Question question = ReadQuestion(line);
    const double wanted = line.Number();
    const double tolerance = line.Number();
    line.End();
    const json told = Tell(stage_, question);
    if (told.is_array()) {
        throw ScriptError("a list is no number");
    }
    const double number = told.is_string() ? Val(TextOf(told)) : told.get<double>();
    if (!(std::fabs(number - wanted) <= tolerance)) {
        throw ScriptError("expected " + Written(JsonOf(wanted)) + " within " + Written(JsonOf(tolerance)) +
                          " but it is " + Written(told));
    }
    return Written(told);
}

}  // namespace brindlex
