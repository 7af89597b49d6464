// The words of a statement: literals, bracketed names, numbers, words and signs, told apart so that a dish name inside
// a literal is never taken for anything else.
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

enum class JetTokenKind
{
    Text,    // 'pasta'
    Date,    // #1/2/2025#
    Bracket, // [piatti.kc100gr]
    Number,
    Word,
    Sign,
};

struct JetToken
{
    JetTokenKind kind = JetTokenKind::Sign;
    bool blankBefore = false;
    int depth = 0; // of round brackets; a bracket itself counts to its outside
    QString text;

    bool is(const char *word) const; // a word or sign, without regard to case
};

// Throws Failure(Engine) for a literal or bracket that is left open.
std::vector<JetToken> jetTokens(QStringView statement);
