// Message boxes that a test answers beforehand, each of them kept whole.
#pragma once

#include "platform/environment/Dialoghi.h"

#include <deque>
#include <functional>
#include <variant>

class ScriptedDialoghi : public Dialoghi
{
public:
    ScriptedDialoghi() = default;
    ~ScriptedDialoghi() override; // an answer that nobody asked for fails the test
    ScriptedDialoghi(const ScriptedDialoghi &) = delete;
    ScriptedDialoghi &operator=(const ScriptedDialoghi &) = delete;

    // The answers to come, in order. A box with one button answers by itself and takes none. A question for which no
    // answer is left, or one of another kind, fails the test and ends it by an exception.
    void answer(MsgAnswer answer) { m_answers.emplace_back(answer); }      // to MsgBox
    void answerButton(int number) { m_answers.emplace_back(number); }      // to Msg1: 6, 7 or 2
    void answerText(const QString &text) { m_answers.emplace_back(text); } // to InputBox; "" cancels

    // Every box so far, oldest first, one text each:
    //   MsgBox 68 "Title" text
    //   Msg1 "Title" body [first|second] 256 102 picture 3
    //   InputBox "Title" prompt          (InputBox hidden "Title" prompt)
    const QStringList &boxes() const { return m_boxes; }
    QStringList takeBoxes(); // the same, and forgets them
    // Called while a box is up, after it was kept: what a test looks at behind the box.
    std::function<void(const QString &box)> whileUp;

    MsgAnswer MsgBox(const QString &text, int flags, const QString &title) override;
    int Msg1(const MsgBoxEx &fields) override;
    QString InputBox(const QString &prompt, const QString &title, bool hidden) override;

private:
    void keep(const QString &box);
    template <typename Answer>
    Answer next(const QString &box);

    std::deque<std::variant<MsgAnswer, int, QString>> m_answers;
    QStringList m_boxes;
};
