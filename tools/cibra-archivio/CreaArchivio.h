// Makes archives. A file that is there already is never touched, and nothing half-made stays behind: the archive is
// built under another name beside its place and renamed when it is whole.
#pragma once

#include <QDate>
#include <QString>

// The statements that make the tables of a household's archive, and of the system's.
QString scriptSchema();
QString scriptSchemaSistema();

// An archive with all tables and no rows. All three throw Failure where `path` exists or cannot be written.
void creaArchivioNuovo(const QString &path);
// An archive with the example catalogue, entered on `day`.
void creaArchivioEsempio(const QString &path, QDate day);
// The system archive, without orders.
void creaArchivioSistema(const QString &path);
