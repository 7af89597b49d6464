// The single-byte code page of the program's files, windows-1252.
#pragma once

#include <QByteArray>
#include <QString>

QByteArray toWindows1252(const QString &text); // '?' for every character that the code page lacks
QString fromWindows1252(const QByteArray &bytes);
bool fitsWindows1252(const QString &text);
