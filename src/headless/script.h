// The interpreter of scripts: one answer line for each command, sent when the program is ready for the next one.
//
// A modal form nests the interpreter: the command that opened it is answered while the form is up, the following
// commands act inside it, and the one that closes it is answered after the waiting handler has run on.
#pragma once

#include "headless/show.h"
#include "headless/stage.h"

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// Where a script stopped.
struct ScriptStop {
    int Line = 0;
    std::string Command;
    std::string Answer;
};

class Script {
public:
    /// What happens at an error: a person at the other end goes on, a script stops.
    enum class AtError { GoOn, Stop };

    /// All that is given outlives the script, which takes over the run's ModalLoop.
    Script(Program& program, DrivenRun& run, Player& player, std::istream& commands, std::ostream& answers,
           AtError atError);
    ~Script();
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    /// Runs all commands, up to the end, `quit` or the error that stops the script, which is returned. The program has
    /// ended then in any case.
    std::optional<ScriptStop> Run();

private:
    struct Reply {
        bool Good = true;
        std::string Text;  ///< the whole line of the answer
        int Line = 0;
        std::string Command;
    };

    void RunCommands(const std::function<bool()>& goOn);
    void RunInside(Form& modal);
    [[nodiscard]] std::optional<std::string> NextCommand();
    [[nodiscard]] Reply Execute(const std::string& command);
    /// Throws ScriptError; returns the JSON that follows the word "ok", or nothing.
    std::string Obey(std::string_view word, ScriptLine& line);
    std::string Start(ScriptLine& line);
    std::string Quit(ScriptLine& line);
    std::string Show(ScriptLine& line);
    std::string Expect(ScriptLine& line);
    std::string Near(ScriptLine& line);
    void Give(const Reply& reply);
    void EndProgram();

    Stage stage_;
    std::istream& commands_;
    std::ostream& answers_;
    AtError atError_;
    bool over_ = false;
    int line_ = 0;
    long last_ = 0;   ///< number of the command that was read last
    long owing_ = 0;  ///< number of the command that has no answer yet; 0 where each has its own
    std::optional<Reply> pending_;
    std::optional<ScriptStop> stop_;
};

}  // namespace brindlex
