#include "Boxes.h"

#include "Hands.h"
#include "Properties.h"

#include <QDialogButtonBox>
#include <QInputDialog>
#include <QJsonArray>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace {

template <class Dialog>
Dialog *inFront(const WindowOrder &windows, const char *kind)
{
    const auto shown = windows.shown();
    auto *dialog = shown.empty() ? nullptr : qobject_cast<Dialog *>(shown.front().widget);
    if (!dialog)
        throw NotThere{QStringLiteral("no ") + QLatin1String(kind) + QStringLiteral(" is in front")};
    return dialog;
}

QMessageBox *messageBox(const WindowOrder &windows)
{
    return inFront<QMessageBox>(windows, "message box");
}

QInputDialog *inputBox(const WindowOrder &windows)
{
    return inFront<QInputDialog>(windows, "input box");
}

QString iconName(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Information:
        return QStringLiteral("information");
    case QMessageBox::Question:
        return QStringLiteral("question");
    case QMessageBox::Warning:
        return QStringLiteral("exclamation");
    case QMessageBox::Critical:
        return QStringLiteral("critical");
    default:
        return QStringLiteral("none");
    }
}

// The text letter by letter, line breaks included, where the box tells it; else as it is shown.
QString wholeText(const QMessageBox &box)
{
    const QVariant told = box.property("testo");
    return told.isValid() ? told.toString() : box.text();
}

QJsonArray captions(const QMessageBox &box)
{
    QJsonArray all;
    for (const QAbstractButton *button : box.buttons())
        all.append(button->text());
    return all;
}

QString captionOf(const Argument &answer)
{
    if (answer.quoted)
        return answer.text;
    if (answer.text == QStringLiteral("yes"))
        return QStringLiteral("Sì");
    if (answer.text == QStringLiteral("no"))
        return QStringLiteral("No");
    if (answer.text == QStringLiteral("ok"))
        return QStringLiteral("OK");
    return answer.text == QStringLiteral("cancel") ? QStringLiteral("Annulla") : answer.text;
}

QAbstractButton *buttonFor(const QMessageBox &box, const Argument &answer)
{
    bool isNumber = false;
    const int number = answer.text.toInt(&isNumber);
    const QList<QAbstractButton *> buttons = box.buttons();
    if (isNumber && !answer.quoted && number >= 1 && number <= buttons.size())
        return buttons[number - 1];
    for (QAbstractButton *button : buttons) {
        if (button->text() == captionOf(answer))
            return button;
    }
    throw Wrong{QStringLiteral("there is no button %1; there are %2").arg(answer.text, jsonText(captions(box)))};
}

void press(QInputDialog *dialog, QDialogButtonBox::StandardButton which)
{
    auto *buttons = dialog->findChild<QDialogButtonBox *>();
    QPushButton *const button = buttons ? buttons->button(which) : nullptr;
    if (!button)
        throw Wrong{QStringLiteral("the input box has no such button")};
    clickWidget(button);
}

} // namespace

QString describeBox(const WindowOrder &windows)
{
    const QMessageBox &box = *messageBox(windows);
    const QPushButton *const usual = box.defaultButton();
    return QStringLiteral(R"({"title":%1,"text":%2,"icon":%3,"buttons":%4,"default":%5})")
        .arg(jsonText(box.windowTitle()), jsonText(wholeText(box)), jsonText(iconName(box.icon())),
             jsonText(captions(box)), jsonText(usual ? usual->text() : QString()));
}

void answerBox(const WindowOrder &windows, const Argument &answer)
{
    clickWidget(buttonFor(*messageBox(windows), answer));
}

void answerInput(const WindowOrder &windows, const QString &text)
{
    QInputDialog *const dialog = inputBox(windows);
    auto *edit = dialog->findChild<QLineEdit *>();
    if (!edit)
        throw Wrong{QStringLiteral("the input box has no line to type into")};
    edit->setFocus(Qt::MouseFocusReason);
    edit->selectAll();
    typeText(edit, text);
    press(dialog, QDialogButtonBox::Ok);
}

void cancelInput(const WindowOrder &windows)
{
    press(inputBox(windows), QDialogButtonBox::Cancel);
}
