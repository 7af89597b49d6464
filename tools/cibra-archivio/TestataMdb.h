// The head of a Jet file: tells what the file is before anything of it is read.
#pragma once

#include <QByteArray>
#include <QString>

struct TestataMdb
{
    enum class Esito
    {
        Buona,
        Corta,    // not even a head
        Estranea, // no Jet file
        Recente,  // a file of a later engine (.accdb)
        Tronca    // the file ends within a page, or has too few of them
    };
    Esito esito = Esito::Estranea;
    int jet = 0;      // 3 or 4
    QString password; // of the database, empty where it has none
};

// How many bytes of the file's beginning leggiTestata wants.
constexpr qsizetype kTestataMdb = 256;

// `start` is the beginning of the file, `size` the length of the whole. Never throws.
TestataMdb leggiTestata(const QByteArray &start, qint64 size);
