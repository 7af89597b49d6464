// Runs the reading process and takes what it sends.
#pragma once

#include "FlussoMdb.h"

#include <QString>
#include <QStringList>

#include <chrono>

struct Lettore
{
    QString programma;                                           // this very tool
    QStringList argomenti;                                       // before the file's path
    std::chrono::milliseconds attesa = std::chrono::seconds(60); // for the next sign of life
};

// The content of the Jet file `path`, whole. Throws Failure(Engine) where the reading crashes, stays silent for longer
// than `attesa`, sends more than such a file can hold, or tells a damage; Failure(FileNotFound) where the reading
// process cannot be started.
ContenutoMdb leggiInProcesso(const Lettore &reader, const QString &path);
