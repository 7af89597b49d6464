// The opening of an archive file, with its outcomes told apart.
#pragma once

#include "platform/store/Connection.h"
#include "platform/store/Database.h"

#include <QString>

#include <memory>

struct OpenedArchive
{
    OpenResult result;
    std::shared_ptr<Database> database; // where the outcome is Aperto
};

OpenedArchive openArchive(const QString &path, const QString &password);
