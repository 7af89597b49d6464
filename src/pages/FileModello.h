// The files of src/pages/modello, which travel inside the program.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

// One of them in windows-1252, its last line without an end. Throws Failure(FileNotFound) where there is none.
QByteArray TestoModello(const char *file);

// Calls `work` with each line of such a file, a QByteArrayView.
template <typename Work>
void perOgniRiga(const QByteArray &text, Work work)
{
    QByteArrayView rest(text);
    for (qsizetype end = rest.indexOf('\n'); end >= 0; end = rest.indexOf('\n')) {
        work(rest.first(end));
        rest = rest.sliced(end + 1);
    }
    work(rest);
}
