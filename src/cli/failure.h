// Why a run of brindlex-cli ends without a result, and the exit codes that tell scripts so.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace brindlex::cli {

enum class Exit : int {
    Done = 0,
    Usage = 2,     ///< the command line: an option missing, doubled, unknown, no number, out of range, of another unit
    BadInput = 3,  ///< what a file or the standard input holds is not what it should be
    NoSolution = 4,  ///< the values are fine and have no solution
    Disk = 5,        ///< a file, the standard input or the standard output that can't be read or written
};

/// Ends a run: one line that says what and where. Nothing has been printed or written then.
class Failure : public std::runtime_error {
public:
    /// `findings` is for the standard output all the same: what a check has found.
    Failure(Exit code, const std::string& what, std::string findings = {})
        : std::runtime_error(what), code_(code), findings_(std::move(findings)) {}

    [[nodiscard]] Exit Code() const noexcept { return code_; }
    [[nodiscard]] const std::string& Findings() const noexcept { return findings_; }

private:
    Exit code_;
    std::string findings_;
};

}  // namespace brindlex::cli
