// File dialogs as a person uses them.
#pragma once

#include "frame/runtime.h"

#include <QString>

#include <optional>
#include <string>

class QWidget;

namespace brindlex {

class FileAsker {
public:
    /// The folder in which the first dialog opens.
    void StartIn(const QString& folder) { folder_ = folder; }
    /// The chosen file; nothing on Cancel. A name that the program's texts cannot hold is told and counts as Cancel.
    [[nodiscard]] std::optional<std::string> Ask(QWidget* parent, const DialogRequest& request);

private:
    [[nodiscard]] QString Choose(QWidget* parent, const DialogRequest& request, const QString& offered);

    QString folder_;
};

/// Pairs of description and pattern, separated by "|", as the window system's filters.
[[nodiscard]] QStringList NameFilters(const std::string& filter);
/// The name with the ending of a window system's filter where it has none of its own.
[[nodiscard]] QString WithEnding(const QString& name, const QString& nameFilter);

}  // namespace brindlex
