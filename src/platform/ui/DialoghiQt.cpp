#include "platform/ui/DialoghiQt.h"

#include "platform/ui/SchermoQt.h"

#include <QApplication>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr int kLinesInView = 28; // of a message; a longer one is scrolled, so that its buttons stay on the screen
constexpr int kWidestInView = 640;

struct Choice
{
    QString caption;
    int answer;
};

// The parts of a message box's flags.
constexpr int kButtonBits = 15;
constexpr int kOkCancel = 1;
constexpr int kYesNoCancel = 3;
constexpr int kYesNo = 4;
constexpr int kIconBits = 0x70;

std::vector<Choice> choicesOf(int flags)
{
    const Choice ok{QStringLiteral("OK"), int(MsgAnswer::Ok)};
    const Choice annulla{QStringLiteral("Annulla"), int(MsgAnswer::Annulla)};
    const Choice si{QStringLiteral("Sì"), int(MsgAnswer::Si)};
    const Choice no{QStringLiteral("No"), int(MsgAnswer::No)};
    switch (flags & kButtonBits) {
    case kOkCancel:
        return {ok, annulla};
    case kYesNoCancel:
        return {si, no, annulla};
    case kYesNo:
        return {si, no};
    default:
        return {ok};
    }
}

QMessageBox::Icon iconOf(int flags)
{
    switch (flags & kIconBits) {
    case MsgFlags::Critical:
        return QMessageBox::Critical;
    case MsgFlags::Question:
        return QMessageBox::Question;
    case MsgFlags::Exclamation:
        return QMessageBox::Warning;
    case MsgFlags::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

std::size_t defaultOf(int flags, std::size_t count)
{
    return std::min<std::size_t>(std::size_t(flags >> 8) & 3, count - 1);
}

QString displayed(QString text)
{
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace('\r', '\n');
}

// Shows a dialog and waits for it. False where it went away with its window instead of being answered.
bool ask(FormHost &host, QDialog *dialog)
{
    const PointerPause pause;
    const QPointer<QDialog> alive(dialog);
    QEventLoop loop;
    QObject::connect(dialog, &QDialog::finished, &loop, &QEventLoop::quit);
    QObject::connect(dialog, &QObject::destroyed, &loop, &QEventLoop::quit);
    dialog->setWindowModality(Qt::ApplicationModal);
    dialog->show();
    host.runLoop(loop);
    return !alive.isNull();
}

// A dialog belongs to the window in front, which may take it along; else it goes with its owner here.
template <class Dialog>
class Owned
{
public:
    Owned() : m_dialog(new Dialog(QApplication::activeWindow())) {}
    ~Owned() { delete m_dialog.data(); }
    Owned(const Owned &) = delete;
    Owned &operator=(const Owned &) = delete;

    Dialog *operator->() const { return m_dialog.data(); }
    Dialog *get() const { return m_dialog.data(); }

private:
    QPointer<Dialog> m_dialog;
};

// Puts the text of a long message into a view that scrolls.
void scrollLongText(QMessageBox &box)
{
    auto *text = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    auto *page = qobject_cast<QGridLayout *>(box.layout());
    if (!text || !page || text->text().count('\n') < kLinesInView)
        return;
    int row = 0, column = 0, rows = 0, columns = 0;
    page->getItemPosition(page->indexOf(text), &row, &column, &rows, &columns);
    page->removeWidget(text);
    auto *view = new QScrollArea(&box);
    view->setFrameShape(QFrame::NoFrame);
    view->setWidgetResizable(true);
    text->ensurePolished();
    text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    const int wanted = text->sizeHint().width() + view->verticalScrollBar()->sizeHint().width();
    view->setMinimumSize(std::min(wanted, kWidestInView), kLinesInView * text->fontMetrics().lineSpacing());
    view->setWidget(text);
    page->addWidget(view, row, column, rows, columns);
}

struct Box
{
    QString title;
    QString text;
    std::vector<Choice> choices;
    std::size_t defaultChoice = 0;
    int escapeAnswer = 0;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QPixmap picture;
};

int show(FormHost &host, const Box &fields)
{
    const Owned<QMessageBox> box;
    box->setWindowTitle(fields.title);
    box->setTextFormat(Qt::PlainText);
    box->setText(displayed(fields.text));
    box->setProperty("testo", fields.text); // letter by letter, for whoever reads the box by program
    box->setIcon(fields.icon);
    if (!fields.picture.isNull())
        box->setIconPixmap(fields.picture);

    std::vector<std::pair<QAbstractButton *, int>> answers;
    for (const Choice &choice : fields.choices) {
        QPushButton *button = box->addButton(choice.caption, QMessageBox::ActionRole);
        if (answers.size() == fields.defaultChoice)
            box->setDefaultButton(button);
        if (choice.answer == fields.escapeAnswer)
            box->setEscapeButton(button);
        answers.emplace_back(button, choice.answer);
    }

    scrollLongText(*box.get());
    if (ask(host, box.get())) {
        for (const auto &[button, answer] : answers) {
            if (button == box->clickedButton())
                return answer;
        }
    }
    return fields.escapeAnswer;
}

} // namespace

DialoghiQt::DialoghiQt(FormHost &host, const QString &programName) : m_host(host), m_programName(programName) {}

MsgAnswer DialoghiQt::MsgBox(const QString &text, int flags, const QString &title)
{
    Box box;
    box.title = title.isEmpty() ? m_programName : title;
    box.text = text;
    box.choices = choicesOf(flags);
    box.defaultChoice = defaultOf(flags, box.choices.size());
    box.icon = iconOf(flags);
    // Closing answers No where there is a No, else the last button.
    const bool hasNo = std::any_of(box.choices.begin(), box.choices.end(),
                                   [](const Choice &choice) { return choice.answer == int(MsgAnswer::No); });
    box.escapeAnswer = hasNo ? int(MsgAnswer::No) : box.choices.back().answer;
    return MsgAnswer(show(m_host, box));
}

int DialoghiQt::Msg1(const MsgBoxEx &fields)
{
    Box box;
    box.title = fields.title;
    box.text = fields.body;
    for (const QString &caption : fields.buttons) {
        const int answers[] = {MsgBoxEx::First, MsgBoxEx::Second, MsgBoxEx::Third};
        box.choices.push_back({caption, answers[std::min<std::size_t>(box.choices.size(), 2)]});
    }
    if (box.choices.empty())
        box.choices.push_back({QStringLiteral("OK"), MsgBoxEx::First});
    box.defaultChoice = defaultOf(fields.defaultFlag, box.choices.size());
    box.escapeAnswer = box.choices.back().answer;
    if (fields.picture == Immagine::Conferma)
        box.icon = QMessageBox::Question;
    else
        box.picture = QApplication::windowIcon().pixmap(48);
    return show(m_host, box);
}

QString DialoghiQt::InputBox(const QString &prompt, const QString &title, bool hidden)
{
    const Owned<QInputDialog> dialog;
    dialog->setWindowTitle(title.isEmpty() ? m_programName : title);
    dialog->setLabelText(displayed(prompt));
    for (QLabel *label : dialog->findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText);
    dialog->setInputMode(QInputDialog::TextInput);
    dialog->setTextEchoMode(hidden ? QLineEdit::Password : QLineEdit::Normal);
    dialog->setOkButtonText(QStringLiteral("OK"));
    dialog->setCancelButtonText(QStringLiteral("Annulla"));
    const bool answered = ask(m_host, dialog.get()) && dialog->result() == QDialog::Accepted;
    return answered ? dialog->textValue() : QString();
}
