// Jet SQL, in which every statement of the program is written, to the dialect of the store.
#pragma once

#include <QString>

struct Translation
{
    enum class Kind { Select, Action };
    Kind kind = Kind::Select;
    QString statement;  // for the engine
    QString table;      // the single table of an updatable select, empty where the set is read-only
    bool hasKeyColumn = false; // the last column is the hidden key of `table`
};

// Pure: the same text always gives the same translation, and a translated text translates to itself.
// Throws Failure(Engine) for a text that cannot be read: an open literal, an impossible date literal, more than one
// statement. `statement` may be one word: a table or stored query opened by name.
Translation translateJet(const QString &statement);
