// What is kept of an archive before another file takes its place.
#pragma once

#include <QDateTime>
#include <QString>

// A copy in the folder Copie, as of the moment told: one more safety copy where the archive opens with the password or
// without one and is sound, else file by file as it is with its journal, under a name that ends in ".prima". It goes
// again with its owner unless resta() was called.
class QuelloDiPrima
{
public:
    // The archive must be held. Throws Failure(PathAccess), and then nothing is left.
    QuelloDiPrima(const QString &archivio, const QString &password, const QDateTime &quando);
    ~QuelloDiPrima();
    QuelloDiPrima(const QuelloDiPrima &) = delete;
    QuelloDiPrima &operator=(const QuelloDiPrima &) = delete;

    const QString &path() const { return m_path; }
    bool eraProtetto() const { return m_protetto; } // under a password other than the one told
    void resta() { m_resta = true; }

private:
    bool diventaCopia(const QString &archivio, const QString &password, const QString &copia);
    void togli() const;

    QString m_path;
    bool m_protetto = false;
    bool m_resta = false;
};
