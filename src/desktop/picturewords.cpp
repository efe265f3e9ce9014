// Words for pictures.
#include "desktop/picturewords.h"

#include "desktop/texts.h"
#include "frame/picturebox.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <utility>
#include <vector>

namespace brindlex {

namespace {

struct NamedColour {
    const char* name;  ///< empty where it goes without saying
    Colour colour;
};

constexpr NamedColour Colours[] = {
    {"", {0, 0, 0}},           {"blue", {0, 0, 255}},     {"blue", {0, 0, 128}},     {"red", {255, 0, 0}},
    {"red", {255, 128, 128}},  {"green", {0, 160, 0}},    {"green", {0, 255, 0}},    {"orange", {255, 128, 0}},
    {"grey", {128, 128, 128}}, {"grey", {192, 192, 192}}, {"yellow", {255, 255, 0}}, {"white", {255, 255, 255}},
};

// In the order of DrawKind, texts left out.
constexpr std::array<const char*, 3> Shapes = {"line", "box", "circle"};

int Distance(Colour a, Colour b) {
    const auto square = [](int side) { return side * side; };
    return square(a.Red - b.Red) + square(a.Green - b.Green) + square(a.Blue - b.Blue);
}

QString NameOf(Colour colour) {
    const auto* const nearest =
        std::min_element(std::begin(Colours), std::end(Colours), [&](const NamedColour& a, const NamedColour& b) {
            return Distance(a.colour, colour) < Distance(b.colour, colour);
        });
    return QString::fromLatin1(nearest->name);
}

// What belongs together, in the order in which its first came.
template <class Thing>
class Groups {
public:
    Thing& Of(const QString& key) {
        const auto found =
            std::find_if(groups_.begin(), groups_.end(), [&](const auto& group) { return group.first == key; });
        return found == groups_.end() ? groups_.emplace_back(key, Thing()).second : found->second;
    }
    [[nodiscard]] const std::vector<std::pair<QString, Thing>>& All() const { return groups_; }

private:
    std::vector<std::pair<QString, Thing>> groups_;
};

// "B, c; red: a"
QString ByColour(const Groups<QStringList>& groups) {
    QStringList parts;
    for (const auto& [colour, things] : groups.All()) {
        parts << (colour.isEmpty() ? QString() : colour + QStringLiteral(": ")) + things.join(QStringLiteral(", "));
    }
    return parts.join(QStringLiteral("; "));
}

bool IsNumber(const DrawItem& item) {
    bool number = false;
    static_cast<void>(item.Kind == DrawKind::Text && FromText(item.Text).simplified().toInt(&number) > 0);
    return number;
}

// Two lines of one colour that halve each other.
bool AreCross(const DrawItem& a, const DrawItem& b) {
    constexpr double Near = 1e-6;
    const auto same = [](double one, double other) { return std::fabs(one - other) <= Near * (1 + std::fabs(one)); };
    return a.Kind == DrawKind::Line && b.Kind == DrawKind::Line && a.Ink == b.Ink && a.Scale == b.Scale &&
           same(a.X1 + a.X2, b.X1 + b.X2) && same(a.Y1 + a.Y2, b.Y1 + b.Y2);
}

class Shown {
public:
    explicit Shown(const Drawing& drawing) {
        const auto end = drawing.Items().end();
        for (auto item = drawing.Items().begin(); item != end; ++item) {
            if (item->Kind == DrawKind::Text) {
                TakeText(*item);
                continue;
            }
            QString shape = QString::fromLatin1(Shapes[static_cast<std::size_t>(item->Kind)]);
            if (const auto next = std::next(item); next != end && AreCross(*item, *next)) {
                shape = QStringLiteral("cross");
                item = next;
            }
            // A number right behind a shape is its own.
            if (const auto next = std::next(item); next != end && IsNumber(*next)) {
                numbered_.Of(NameOf(item->Ink)) << shape + u' ' + FromText(next->Text).simplified();
                item = next;
            } else {
                ++counted_.Of((NameOf(item->Ink) + u' ' + shape).trimmed());
            }
        }
    }

    [[nodiscard]] QString Words() const {
        QStringList shapes;
        for (const auto& [shape, count] : counted_.All()) {
            const bool hisses = shape.endsWith(u'x') || shape.endsWith(u's');
            const QString ending = count == 1 ? QString() : QString::fromLatin1(hisses ? "es" : "s");
            shapes << QStringLiteral("%1 %2%3").arg(QString::number(count), shape, ending);
        }
        QStringList sentences;
        const std::pair<const char*, QString> parts[] = {{"Texts", ByColour(texts_)},
                                                         {"Shapes", shapes.join(QStringLiteral(", "))},
                                                         {"Numbered", ByColour(numbered_)}};
        for (const auto& [title, words] : parts) {
            if (!words.isEmpty()) {
                sentences << QStringLiteral("%1: %2.").arg(QString::fromLatin1(title), words);
            }
        }
        return sentences.join(u' ');
    }

private:
    void TakeText(const DrawItem& item) {
        if (const QString text = FromText(item.Text).simplified(); !text.isEmpty()) {
            texts_.Of(NameOf(item.Ink)) << text;
        }
    }

    Groups<QStringList> texts_;
    Groups<int> counted_;
    Groups<QStringList> numbered_;
};

}  // namespace

QString WordsOf(const PictureBox& picture, const std::string& tale) {
    QString words = Shown(picture.Drawn()).Words();
    if (!tale.empty()) {
        words += u'\n' + FromLines(tale).trimmed();
    }
    return words;
}

}  // namespace brindlex
