// Damage done to an archive on purpose.
#pragma once

#include <QByteArray>
#include <QString>

// Overwrites the first page of that index or table with `piece`, again and again; with zeros unless told.
void damageIndex(const QString &archive, const QString &name, const QString &password = {},
                 const QByteArray &piece = QByteArray(1, '\0'));
