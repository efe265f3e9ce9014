// Kept layouts of toolbars.
#include "desktop/toolbarstore.h"

#include "desktop/texts.h"

#include <QSettings>
#include <QStringList>

namespace brindlex {

void KeepLayout(const Toolbar& toolbar, const std::string& key, const std::string& subkey, const std::string& value) {
    QStringList order;
    for (const ToolButton& button : toolbar.Buttons()) {
        order << FromText(button.Key);
    }
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("brindlex"),
                       QStringLiteral("toolbars"));
    settings.setValue(QStringLiteral("%1/%2/%3").arg(FromText(key), FromText(subkey), FromText(value)), order);
}

}  // namespace brindlex
