// One start of the real browser, in which a test plays its steps on a written page.
#pragma once

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

struct Passo
{
    QString nome;
    int form = 0;
    QJsonObject scrivi; // text into a box, or the food to pick from a list
    QJsonObject spunta; // which button of a group
    QString premi;      // caption of the button to press; none where empty
};

class Sessione
{
public:
    // Plays the steps in order on one loaded page.
    Sessione(const QByteArray &pagina, const QList<Passo> &passi);

    // What the box held after the step; for a group of buttons the value of the checked one.
    QString campo(const QString &passo, const QString &nome) const;
    double numero(const QString &passo, const QString &nome) const { return campo(passo, nome).toDouble(); }
    QString codifica() const { return m_risposta["codifica"].toString(); }
    QStringList elenco(const QString &nome) const; // the texts of a list's options
    // Every message of the browser's console; the last one is always kFineProva.
    const QStringList &console() const { return m_console; }

    static inline const QString kFineProva = QStringLiteral("fine della prova");

private:
    QJsonObject m_risposta;
    QHash<QString, QJsonObject> m_campi;
    QStringList m_console;
};
