// Faults: their numbers, their words, and the guarded step.
#include "frame/fault.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace brindlex {
namespace {

TEST(Fault, NumbersAreTheRuntimes) {
    EXPECT_EQ(static_cast<int>(FaultNumber::BadArgument), 5);
    EXPECT_EQ(static_cast<int>(FaultNumber::Overflow), 6);
    EXPECT_EQ(static_cast<int>(FaultNumber::OutOfMemory), 7);
    EXPECT_EQ(static_cast<int>(FaultNumber::DivisionByZero), 11);
    EXPECT_EQ(static_cast<int>(FaultNumber::FileNotFound), 53);
    EXPECT_EQ(static_cast<int>(FaultNumber::FileIo), 57);
    EXPECT_EQ(static_cast<int>(FaultNumber::PermissionDenied), 70);
    EXPECT_EQ(static_cast<int>(FaultNumber::DialogCancelled), 32755);
}

TEST(Fault, SpeaksTheRuntimesWords) {
    const struct {
        FaultNumber number;
        std::string words;
    } cases[] = {
        {FaultNumber::BadArgument, "Invalid procedure call or argument"},
        {FaultNumber::Overflow, "Overflow"},
        {FaultNumber::OutOfMemory, "Out of memory"},
        {FaultNumber::DivisionByZero, "Division by zero"},
        {FaultNumber::FileNotFound, "File not found"},
        {FaultNumber::FileIo, "Device I/O error"},
        {FaultNumber::PermissionDenied, "Permission denied"},
        {FaultNumber::DialogCancelled, "Cancel was selected."},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FaultDescription(c.number), c.words);
        EXPECT_EQ(Fault(c.number).what(), c.words);
        EXPECT_EQ(Fault(c.number).Number(), c.number);
    }
}

TEST(Fault, WordsOfAnUnknownNumber) {
    EXPECT_EQ(FaultDescription(FaultNumber{9999}), "Application-defined or object-defined error");
}

TEST(Fault, TakesADescriptionOfItsOwn) {
    const Fault fault(FaultNumber::FileIo, "No space left on device");
    EXPECT_EQ(fault.Number(), FaultNumber::FileIo);
    EXPECT_STREQ(fault.what(), "No space left on device");
}

TEST(Guarded, RunsAStepToItsEnd) {
    double target = 1.0;
    EXPECT_TRUE(Guarded([&] { target = 2.0; }));
    EXPECT_EQ(target, 2.0);
}

TEST(Guarded, AFaultLeavesTheTargetAlone) {
    const auto fails = []() -> double { throw Fault(FaultNumber::DivisionByZero); };
    double target = 1.0;
    EXPECT_FALSE(Guarded([&] { target = fails(); }));
    EXPECT_EQ(target, 1.0);
}

TEST(Guarded, LetsOtherExceptionsPass) {
    EXPECT_THROW(Guarded([] { throw std::logic_error("a defect"); }), std::logic_error);
}

}  // namespace
}  // namespace brindlex
