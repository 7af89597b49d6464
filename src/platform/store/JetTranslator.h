// Jet SQL, in which every statement of the program is written, to the dialect of the store.
//
// What a text means stays; what the engine needs said is added: rows come in key order where a statement names no
// order, and ties are broken by key; the rows of one table bring their hidden key along, so that they can be written;
// conditions on grouped columns stand in WHERE, where an index serves them. tests/dialect shows every statement of the
// program beside its translation.
#pragma once

#include <QString>

struct Translation
{
    enum class Kind
    {
        Select,
        Action
    };
    Kind kind = Kind::Select;
    QString statement;         // for the engine
    QString table;             // the single table of an updatable select, empty where the set is read-only
    bool hasKeyColumn = false; // the last column is the hidden key of `table`

    friend bool operator==(const Translation &, const Translation &) = default;
};

// Pure: the same text always gives the same translation, and a translated text translates to itself.
// `statement` may be one word, a table or stored query opened by name: it becomes SELECT * FROM [word], with the word
// as `table` and no key column, since a stored query has no key.
// Throws Failure(Engine) for a text that cannot be read: an open literal or bracket, an impossible date literal, more
// than one statement, none at all.
Translation translateJet(const QString &statement);
