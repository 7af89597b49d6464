// The clauses of a select: where they stand, the tables they read, the expressions they hold.
#pragma once

#include "platform/store/JetTokens.h"

#include <QVarLengthArray>

// A run of tokens, `to` not included.
struct JetRange
{
    int from = 0;
    int to = 0;

    bool isEmpty() const { return from >= to; }
};

using JetRanges = QVarLengthArray<JetRange, 8>;
using JetTables = QVarLengthArray<const JetToken *, 4>;

// Each range begins with the clause's own word; an empty one is a clause that is not there.
struct JetClauses
{
    JetRange list, from, where, group, having, order, rest;
    bool isPlain = false; // one select, its clauses in their order, nothing united with it, not DISTINCT
};

// Of the select whose first token is `at`, which goes to the end of the tokens.
JetClauses readClauses(const JetTokens &tokens, int at);

// The names by which the statement calls its tables, in their order. None where FROM holds more than names, joined.
JetTables readTables(const JetTokens &tokens, JetRange from);

// What stands behind GROUP BY or ORDER BY, cut at its commas; direction words are left out.
JetRanges readTerms(const JetTokens &tokens, JetRange clause);

// Whether two expressions are one: case, square brackets and the table before a column do not matter.
bool sameExpression(const JetTokens &tokens, JetRange one, JetRange other);

// Whether a HAVING compares nothing but columns that are among `keys`, so that it may stand before the grouping.
bool comparesOnly(const JetTokens &tokens, JetRange having, const JetRanges &keys);

// Whether a list asks for sums, counts and the like; whether for First or Last.
bool callsAggregate(const JetTokens &tokens, JetRange range);
bool picksRows(const JetTokens &tokens, JetRange range);
