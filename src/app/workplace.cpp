// Choice of the working directory.
#include "app/workplace.h"

#include <QStandardPaths>

#include <system_error>

#include <unistd.h>

namespace brindlex {

namespace {

bool CanBeWritten(const std::filesystem::path& folder) {
    return ::access(folder.c_str(), R_OK | W_OK | X_OK) == 0;
}

}  // namespace

std::filesystem::path Workplace() {
    std::error_code failure;
    std::filesystem::path here = std::filesystem::current_path(failure);
    if (!failure && CanBeWritten(here)) {
        return here;
    }
    std::filesystem::path own = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation).toStdString();
    std::filesystem::create_directories(own, failure);
    return own;
}

}  // namespace brindlex
