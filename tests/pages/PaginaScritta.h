// The two pages as the commands write them.
#pragma once

#include <QByteArray>
#include <QStringList>

QByteArray paginaIntera();
QByteArray paginaBreve();

// The lines without their ends, which must all be `end` and CR LF.
QStringList lines(const QByteArray &page, const QString &end);
