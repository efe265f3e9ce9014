// brindlex-cli: the calculators without a form. What it prints is whole, or nothing.
#include "cli/commandline.h"
#include "cli/commands.h"
#include "cli/failure.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <string>
#include <vector>

namespace {

using brindlex::cli::Exit;

constexpr const char* CannotWrite = "brindlex-cli: the standard output can't be written: ";

std::string AllOfStandardInput() {
    std::string all;
    constexpr std::size_t Block = 65536;
    std::size_t read = 0;
    do {
        all.resize(all.size() + Block);
        read = std::fread(all.data() + all.size() - Block, 1, Block, stdin);
        all.resize(all.size() - Block + read);
    } while (read == Block);
    if (std::ferror(stdin) != 0) {
        throw brindlex::cli::Failure(Exit::Disk, "the standard input can't be read");
    }
    return all;
}

bool Write(const std::string& text, std::FILE* stream) {
    return std::fwrite(text.data(), 1, text.size(), stream) == text.size() && std::fflush(stream) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const auto outcome = brindlex::cli::RunWords(
            brindlex::cli::Commands(), std::vector<std::string>(argv + 1, argv + argc), AllOfStandardInput);
        if (!Write(outcome.Out, stdout)) {
            const std::string why = std::strerror(errno);  // NOLINT(concurrency-mt-unsafe): one thread
            Write(CannotWrite + why + "\n", stderr);
            return static_cast<int>(Exit::Disk);
        }
        Write(outcome.Err, stderr);
        return outcome.Code;
    } catch (const std::exception& failure) {
        Write(std::string("brindlex-cli: ") + failure.what() + "\n", stderr);
        return 1;
    }
}
