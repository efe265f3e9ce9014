// File dialogs.
#include "desktop/filedialog.h"

#include "desktop/texts.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace brindlex {

namespace {

constexpr int AsksBeforeReplacing = 2;

bool MayReplace(QWidget* parent, const QString& path) {
    const QString question =
        QStringLiteral("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(path).fileName());
    return QMessageBox::warning(parent, QStringLiteral("Brindlex"), question, QMessageBox::Yes | QMessageBox::No,
                                QMessageBox::No) == QMessageBox::Yes;
}

void RefuseName(QWidget* parent, const QString& path) {
    const QString words = QStringLiteral(
                              "The name %1 has characters that this program can't keep.\n"
                              "Please choose a name and a folder of Latin letters, figures and signs.")
                              .arg(QFileInfo(path).fileName());
    QMessageBox::warning(parent, QStringLiteral("Brindlex"), words);
}

}  // namespace

QStringList NameFilters(const std::string& filter) {
    const QStringList parts = FromText(filter).split(u'|');
    QStringList filters;
    for (qsizetype pair = 0; pair + 1 < parts.size(); pair += 2) {
        // The pattern is told once, as the window system writes it.
        QString words = parts[pair];
        if (const qsizetype bracket = words.lastIndexOf(u'('); bracket >= 0) {
            words.truncate(bracket);
        }
        QString pattern = parts[pair + 1];
        filters << QStringLiteral("%1 (%2)").arg(words.trimmed(), pattern.replace(u';', u' '));
    }
    return filters;
}

QString WithEnding(const QString& name, const QString& nameFilter) {
    if (!QFileInfo(name).suffix().isEmpty()) {
        return name;
    }
    const qsizetype star = nameFilter.lastIndexOf(QStringLiteral("*."));
    if (star < 0) {
        return name;
    }
    QString ending;
    for (qsizetype at = star + 1; at < nameFilter.size() && !QStringLiteral(" )*").contains(nameFilter[at]); ++at) {
        ending += nameFilter[at];
    }
    if (ending.size() < 2) {
        return name;
    }
    return name.endsWith(u'.') ? name + ending.mid(1) : name + ending;
}

QString FileAsker::Choose(QWidget* parent, const DialogRequest& request, const QString& offered) {
    const bool saves = request.Kind == DialogKind::Save;
    QFileDialog dialog(parent, saves ? QStringLiteral("Save As") : QStringLiteral("Open"), folder_);
    dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    // The name gets its ending first; the question comes afterwards.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters(NameFilters(request.Filter));
    if (!offered.isEmpty()) {
        dialog.selectFile(offered);
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return {};
    }
    const QString chosen = dialog.selectedFiles().constFirst();
    folder_ = QFileInfo(chosen).absolutePath();
    return saves ? WithEnding(chosen, dialog.selectedNameFilter()) : chosen;
}

std::optional<std::string> FileAsker::Ask(QWidget* parent, const DialogRequest& request) {
    const bool asks = request.Kind == DialogKind::Save && (request.Flags & AsksBeforeReplacing) != 0;
    QString path = FromText(request.FileName);
    do {
        path = Choose(parent, request, path);
        if (path.isEmpty()) {
            return std::nullopt;
        }
    } while (asks && QFileInfo::exists(path) && !MayReplace(parent, path));
    auto name = ToExactText(path);
    if (!name) {
        RefuseName(parent, path);
    }
    return name;
}

}  // namespace brindlex
