// How an archive with a password and one without are known by their files alone.
#pragma once

#include <QByteArray>
#include <QString>

constexpr qsizetype kInizioCifrato = 1024; // bytes of a file that pareCifrato wants, and the page of such an archive

// An encrypted archive looks like chance: each value of a byte occurs in its beginning, or nearly each.
bool pareCifrato(const QByteArray &start);
// Whether the file is an archive without a password, however damaged behind its first bytes.
bool eInChiaro(const QString &path);
