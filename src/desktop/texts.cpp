// Text conversion.
#include "desktop/texts.h"

#include "frame/textfile.h"

#include <algorithm>

namespace brindlex {

namespace {

constexpr unsigned char FirstBeyondAscii = 0x80;

}  // namespace

QString FromText(std::string_view text) {
    // Most texts, the numbers of a drawing above all, are plain ASCII.
    if (std::all_of(text.begin(), text.end(),
                    [](char c) { return static_cast<unsigned char>(c) < FirstBeyondAscii; })) {
        return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
    }
    return QString::fromStdString(Utf8FromText(text));
}

QString FromLines(std::string_view text) {
    QString lines = FromText(text);
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return lines;
}

std::string ToText(const QString& text) {
    return TextFromUtf8(text.toStdString());
}

std::optional<std::string> ToExactText(const QString& text) {
    std::string exact = ToText(text);
    if (FromText(exact) != text) {
        return std::nullopt;
    }
    return exact;
}

std::optional<int> KeyCodeOf(QChar character) {
    const auto text = ToExactText(QString(character));
    if (!text || text->size() != 1) {
        return std::nullopt;
    }
    return static_cast<unsigned char>(text->front());
}

}  // namespace brindlex
