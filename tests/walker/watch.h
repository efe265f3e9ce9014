// What must hold of the whole program after every act of the walker, whatever was done.
#pragma once

#include "frame/drivenrun.h"
#include "frame/program.h"

#include <string>

namespace brindlex {

class Watch {
public:
    Watch(Program& program, DrivenRun& run) : program_(program), run_(run) {}

    /// What does not hold; empty while all holds. Takes the boxes that were recorded.
    std::string Look();
    /// The same of a program that has ended.
    std::string LookAtEnd();

private:
    [[nodiscard]] std::string Boxes() const;
    [[nodiscard]] std::string Paper() const;
    /// One form stands on the screen, besides modal ones.
    [[nodiscard]] std::string Screen() const;
    /// No not-a-number and no infinity in any text or drawing.
    [[nodiscard]] std::string Texts() const;
    /// The arrays of the drawing board hold what its store holds.
    [[nodiscard]] std::string Arrays() const;
    /// A rewrite leaves no scratch file behind.
    [[nodiscard]] std::string Folder() const;

    Program& program_;
    DrivenRun& run_;
};

}  // namespace brindlex
