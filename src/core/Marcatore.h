// A marker of the program folder: a file whose presence switches something on.
#pragma once

#include "platform/text/ProgramFolder.h"

#include <QString>

class Marcatore
{
public:
    // `nome` as the program tells it, "\\Sfondo".
    Marcatore(const ProgramFolder &folder, const QString &nome) : m_folder(folder), m_nome(nome) {}

    bool presente() const;
    // Makes the file, of one empty line, or deletes it where it is there. Throws Failure(PathAccess).
    void metti(bool presente) const;

private:
    ProgramFolder m_folder;
    QString m_nome;
};
