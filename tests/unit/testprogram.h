// A program on a fake runtime and in a folder of its own, for tests of forms.
#pragma once

#include "fakeruntime.h"
#include "frame/program.h"
#include "testfolder.h"

#include <memory>
#include <string>

namespace brindlex {

struct TestProgram {
    DrivenRun Run;
    FakeRuntime Runtime{Run};
    TestFolder Directory;
    Program Owner{Runtime, Directory.Files()};

    /// Registers a form type whose constructor takes the program and further arguments.
    template <class FormType, class... Arguments>
    void Register(const std::string& name, Arguments... arguments) {
        Owner.Register(name, [=](Program& program) { return std::make_unique<FormType>(program, arguments...); });
    }
    /// The form of a name, as the type that it was registered with.
    template <class FormType>
    FormType& Get(const std::string& name) {
        return dynamic_cast<FormType&>(Owner.Get(name));
    }
};

}  // namespace brindlex
