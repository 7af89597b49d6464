// The calories of a portion typed by hand.
#pragma once

#include <QString>

#include <optional>

// What the total's box gets for the texts of the boxes "kcal in 100 g" and "portion" (grams): KC100gr / 100 * portion,
// unrounded, with a decimal point; "0" for a portion of 0; null for a negative one, which leaves the box as it is.
// Throws Failure(TypeMismatch) for a text that is no number, an empty one too.
std::optional<QString> TotaleRiga(const QString &kc100gr, const QString &quantita);
