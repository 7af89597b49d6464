#include "support/ScriptedDialoghi.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

namespace {

// Yes/no boxes carry 4 in the lowest bits of their flags; no other box of the program has a choice.
bool asksYesOrNo(int flags)
{
    return (flags & 7) == 4;
}

} // namespace

ScriptedDialoghi::~ScriptedDialoghi()
{
    EXPECT_TRUE(m_answers.empty()) << m_answers.size() << " scripted answers were never asked for; the boxes were:\n"
                                   << m_boxes.join(u'\n').toStdString();
}

QStringList ScriptedDialoghi::takeBoxes()
{
    return std::exchange(m_boxes, {});
}

MsgAnswer ScriptedDialoghi::MsgBox(const QString &text, int flags, const QString &title)
{
    const QString box = QStringLiteral("MsgBox %1 \"%2\" %3").arg(QString::number(flags), title, text);
    keep(box);
    return asksYesOrNo(flags) ? next<MsgAnswer>(box) : MsgAnswer::Ok;
}

int ScriptedDialoghi::Msg1(const MsgBoxEx &fields)
{
    const QString box =
        QStringLiteral("Msg1 \"%1\" %2 [%3] %4 %5 picture %6")
            .arg(fields.title, fields.body, fields.buttons.join(u'|'), QString::number(fields.defaultFlag),
                 QString::number(fields.buttonCode), QString::number(fields.picture));
    keep(box);
    return fields.buttons.size() > 1 ? next<int>(box) : 6;
}

QString ScriptedDialoghi::InputBox(const QString &prompt, const QString &title, bool hidden)
{
    const QString box =
        QStringLiteral("InputBox %1\"%2\" %3").arg(hidden ? QStringLiteral("hidden ") : QString(), title, prompt);
    keep(box);
    return next<QString>(box);
}

void ScriptedDialoghi::keep(const QString &box)
{
    m_boxes.append(box);
    if (whileUp)
        whileUp(box);
}

template <typename Answer>
Answer ScriptedDialoghi::next(const QString &box)
{
    if (m_answers.empty()) {
        ADD_FAILURE() << "no answer was scripted for: " << box.toStdString();
        throw std::logic_error("a box without a scripted answer");
    }
    const auto answer = m_answers.front();
    m_answers.pop_front();
    if (!std::holds_alternative<Answer>(answer)) {
        ADD_FAILURE() << "the answer scripted for this box is one of another kind: " << box.toStdString();
        throw std::logic_error("an answer of another kind");
    }
    return std::get<Answer>(answer);
}
