// Writes tokens of a Jet statement as the engine spells them: what changes token by token, wherever it stands.
#pragma once

#include "platform/store/JetClauses.h"
#include "platform/store/JetTokens.h"

#include <QString>
#include <QVarLengthArray>

class JetWriter
{
public:
    // `keyOwner` is the table whose key tells First from Last; null where the statement names none.
    JetWriter(const QString &statement, const JetTokens &tokens, const JetToken *keyOwner = nullptr);

    // Throws Failure(Engine) for a date that is none.
    void write(JetRange range);
    // Text of our own, a blank before it; nothing before it.
    void add(QStringView text);
    void append(QStringView text) { m_out.append(text); }
    // The hidden key of a table, as in " Menu.rowid".
    void addKeyOf(const JetToken &table);

    QString take() { return std::move(m_out); }

private:
    enum class Place
    {
        List,
        Condition,
        Assignment
    };
    struct Closing
    {
        int bracket;     // whose writing ends the call
        bool asksForKey; // ", T.rowid" goes before it, else the collation behind it
    };

    void addBlank();
    void enterPlace(JetWord word);
    void writeToken(int at);
    void writeWord(int at);
    void writeNumber(int at, QStringView number);
    void writeName(int at);
    void writeCall(int at);
    void writeText(const JetToken &token);
    void writeDay(const JetToken &token);
    void writeSymbol(int at);
    void closeBracket(int at);
    bool isCall(int at) const;
    bool isComparedTrim(int at) const;
    bool isTrueTest(int at) const;
    int behindQualifier(int at) const;
    void keepApart(QStringView next);

    const QString &m_statement;
    const JetTokens &m_tokens;
    const JetToken *m_keyOwner;
    QString m_out;
    Place m_place = Place::List;
    QVarLengthArray<Place, 32> m_outer; // of the open brackets; a select within one has places of its own
    QVarLengthArray<Closing, 8> m_closings;
};
