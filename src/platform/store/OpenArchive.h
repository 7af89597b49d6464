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

enum class OpenFor
{
    Use,
    Inspection, // nothing of the file is changed, not even the way its journal is kept
};

// Throws no Failure: whatever hinders it is told in the result, and the database is null then.
OpenedArchive openArchive(const QString &path, const QString &password, OpenFor purpose = OpenFor::Use);
