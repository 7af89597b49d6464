// Numbers as text and texts as numbers, by Italian habit whatever the machine's locale.
#pragma once

#include <QString>

// Default text form: up to 15 significant digits, no trailing zeros, decimal comma: 1480,5. Exponents as 1E+15.
QString TestoNumero(double number);
// The same with a decimal point, for statements.
QString NumeroPerIstruzione(double number);
// What a person types: decimal comma; points between well-formed groups of three are thousands (1.100 is 1100), any
// other single point is a decimal point; blanks around are dropped. Throws Failure(TypeMismatch), also for "".
double NumeroDaTesto(const QString &text);
// A box bound to a number field: comma or point is the decimal sign, no thousands. Throws Failure(TypeMismatch).
double NumeroCampo(const QString &text);
// The leading number of a free text (decimal point), 0 where there is none.
double Val(const QString &text);
