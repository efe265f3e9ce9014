// Message boxes and input boxes.
#include "desktop/boxes.h"

#include "desktop/texts.h"
#include "desktop/windowcapture.h"

#include <QCoreApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace brindlex {

namespace {

constexpr int IconBits = 112;
constexpr int ButtonBits = 7;

struct IconOf {
    int style;
    QMessageBox::Icon icon;
};
constexpr IconOf Icons[] = {{style::Plain, QMessageBox::NoIcon},
                            {style::Stop, QMessageBox::Critical},
                            {style::Question, QMessageBox::Question},
                            {style::Exclamation, QMessageBox::Warning},
                            {style::Information, QMessageBox::Information}};

struct StyleButtons {
    int style;
    QMessageBox::StandardButtons buttons;
};
constexpr StyleButtons Buttons[] = {{style::Plain, QMessageBox::Ok},
                                    {style::OkCancel, QMessageBox::Ok | QMessageBox::Cancel},
                                    {style::YesNo, QMessageBox::Yes | QMessageBox::No}};

struct ButtonOfAnswer {
    Answer answer;
    QMessageBox::StandardButton button;
};
constexpr ButtonOfAnswer Answers[] = {{Answer::Ok, QMessageBox::Ok},
                                      {Answer::Cancel, QMessageBox::Cancel},
                                      {Answer::Yes, QMessageBox::Yes},
                                      {Answer::No, QMessageBox::No}};

QMessageBox::StandardButton ButtonOf(Answer answer) {
    for (const ButtonOfAnswer& row : Answers) {
        if (row.answer == answer) {
            return row.button;
        }
    }
    return QMessageBox::Ok;
}

void Furnish(QMessageBox& shown, const MessageBox& box) {
    for (const IconOf& row : Icons) {
        if (row.style == (box.Style & IconBits)) {
            shown.setIcon(row.icon);
        }
    }
    for (const StyleButtons& row : Buttons) {
        if (row.style == (box.Style & ButtonBits)) {
            shown.setStandardButtons(row.buttons);
        }
    }
    shown.setWindowTitle(FromText(box.Caption));
    shown.setTextFormat(Qt::PlainText);
    shown.setText(FromLines(box.Text));
    shown.setDefaultButton(ButtonOf(box.DefaultAnswer()));
}

// What closes a box without a button: its refusal where it has one, else its only button.
Answer AnswerOf(const QMessageBox& shown, int result) {
    for (const ButtonOfAnswer& row : Answers) {
        if (row.button == result) {
            return row.answer;
        }
    }
    return shown.standardButtons().testFlag(QMessageBox::Cancel) ? Answer::Cancel
           : shown.standardButtons().testFlag(QMessageBox::No)   ? Answer::No
                                                                 : Answer::Ok;
}

void StandFor(QDialog& shown, const QString& picture) {
    QCoreApplication::processEvents();
    if (!picture.isEmpty()) {
        SavePicture(shown, picture);
    }
}

}  // namespace

Answer AskMessageBox(QWidget* parent, const MessageBox& box, std::optional<Answer> known, const QString& picture) {
    QMessageBox shown(parent);
    Furnish(shown, box);
    if (!known) {
        return AnswerOf(shown, shown.exec());
    }
    shown.open();
    StandFor(shown, picture);
    QAbstractButton* const button = shown.button(ButtonOf(*known));
    if (button == nullptr) {
        return *known;
    }
    button->click();
    return AnswerOf(shown, shown.result());
}

std::string AskInputBox(QWidget* parent, const InputBox& box, const std::optional<std::string>& known,
                        const QString& picture) {
    QInputDialog shown(parent);
    shown.setWindowTitle(FromText(box.Title));
    shown.setLabelText(FromLines(box.Prompt));
    shown.setTextValue(FromText(box.Default));
    if (!known) {
        return shown.exec() == QDialog::Accepted ? ToText(shown.textValue()) : std::string();
    }
    shown.open();
    StandFor(shown, picture);
    shown.setTextValue(FromText(*known));
    std::string typed = ToText(shown.textValue());
    shown.accept();
    return typed;
}

}  // namespace brindlex
