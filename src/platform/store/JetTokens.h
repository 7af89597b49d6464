// A Jet statement cut into its tokens. Blanks are no tokens; each token knows whether one stands before it.
#pragma once

#include <QStringView>
#include <QVarLengthArray>

enum class JetKind : quint8
{
    Word, // a keyword or a plain name
    Name, // a name between square brackets; its text is what stands between them
    Number,
    Text,   // a text literal with its quotes, single or double
    Day,    // a date literal; its text is what stands between the # signs
    Symbol, // one sign, or a comparison of two
    End,    // behind the last token
};

enum class JetWord : quint8
{
    None,
    And,
    As,
    Asc,
    Avg,
    Between,
    By,
    Collate,
    Count,
    Create,
    Cross,
    Delete,
    Desc,
    Distinct,
    Except,
    False,
    First,
    From,
    Full,
    Group,
    Having,
    In,
    Inner,
    Intersect,
    Is,
    JetFirst,
    JetLast,
    Join,
    Last,
    Left,
    Like,
    Limit,
    LTrim,
    Max,
    Min,
    Natural,
    Not,
    Null,
    On,
    Or,
    Order,
    Outer,
    Right,
    RTrim,
    Select,
    Set,
    Sum,
    Trim,
    True,
    Union,
    Update,
    Using,
    View,
    Where,
};

struct JetToken
{
    QStringView text;
    int match = -1; // of a round bracket: where its partner stands
    JetKind kind = JetKind::End;
    JetWord word = JetWord::None; // never of a word beside a point: that is the name of a table or a column
    bool blankBefore = false;

    bool is(JetWord what) const { return word == what; }
    bool is(char16_t sign) const { return kind == JetKind::Symbol && text.size() == 1 && text.front() == sign; }
    bool isName() const { return kind == JetKind::Name || (kind == JetKind::Word && word == JetWord::None); }
};

// The last one is of kind End. The texts point into the statement.
using JetTokens = QVarLengthArray<JetToken, 192>;

// What a word means where no point stands beside it.
JetWord jetWordOf(QStringView text);

// A point inside square brackets parts table and column: [piatti.quantita] gives [piatti] . [quantita].
// The first semicolon ends the statement and is no token. Throws Failure(Engine): an open literal or bracket, a sign
// that no statement holds, text behind the semicolon.
JetTokens readJetTokens(const QString &statement);
