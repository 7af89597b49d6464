// The engine's side of a connection, for the files of this folder alone.
#pragma once

#include "platform/store/Connection.h"
#include "platform/store/OpenArchive.h"

#include <memory>

struct Connection::Private
{
    QString path;
    std::shared_ptr<Database> database; // null while closed

    Database &opened() const; // throws Failure(ConnectionClosed)
    OpenResult open(const QString &archivePath, OpenedArchive archive);
};
