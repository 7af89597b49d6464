// Asks for a password: on the terminal without echo, else a line of the standard input.
#pragma once

#include <QString>

#include <optional>

// Nothing where the input ends before a line.
std::optional<QString> chiediPassword(const QString &prompt);
