#include "pages/Sessione.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <optional>

namespace {

constexpr int kPatience = 120'000; // milliseconds; a start takes two seconds on an idle machine
constexpr int kStarts = 2;         // a browser that does not come up on a busy machine gets a second chance

struct Output
{
    QByteArray page;
    QString messages;
};

QByteArray driver(const QList<Passo> &passi)
{
    QJsonArray steps;
    for (const Passo &passo : passi)
        steps.append(QJsonObject{
            {"form", passo.form}, {"scrivi", passo.scrivi}, {"spunta", passo.spunta}, {"premi", passo.premi}});
    QFile file(CIBRA_SOURCE_DIR "/tests/pages/comanda.js");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray json = QJsonDocument(steps).toJson(QJsonDocument::Compact).toPercentEncoding();
    return file.readAll().replace("PASSI", json);
}

// The page with the driver behind its last line, so that all of it is there when the driver starts.
void writeDriven(const QString &path, QByteArray pagina, const QList<Passo> &passi)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(pagina.replace("</body>", "<script>" + driver(passi) + "</script></body>"));
}

std::optional<Output> browse(const QString &folder)
{
    QProcess browser;
    browser.start("chromium",
                  {"--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
                   "--disable-background-networking", "--disable-component-update", "--disable-sync",
                   "--disable-dev-shm-usage", "--enable-logging=stderr", "--user-data-dir=" + folder + "/dati",
                   "--dump-dom", "file://" + folder + "/pagina.html"});
    if (browser.waitForFinished(kPatience) && browser.exitStatus() == QProcess::NormalExit && browser.exitCode() == 0)
        return Output{browser.readAllStandardOutput(), QString::fromUtf8(browser.readAllStandardError())};
    if (browser.error() == QProcess::FailedToStart)
        ADD_FAILURE() << "chromium is not installed (packages.txt names it)";
    browser.kill();
    browser.waitForFinished();
    return {};
}

// Each page opens in a browser that knows nothing of earlier ones.
Output browsed(const QByteArray &pagina, const QList<Passo> &passi)
{
    for (int start = 1; start <= kStarts; ++start) {
        const QTemporaryDir folder;
        writeDriven(folder.filePath("pagina.html"), pagina, passi);
        if (const std::optional<Output> output = browse(folder.path()))
            return *output;
    }
    ADD_FAILURE() << "the browser gave no answer";
    return {};
}

QJsonObject answerIn(const Output &output)
{
    static const QRegularExpression kAnswer("<pre id=\"risposta\">([^<]*)</pre>");
    const QRegularExpressionMatch found = kAnswer.match(QString::fromUtf8(output.page));
    EXPECT_TRUE(found.hasMatch()) << "the steps were not played to their end: " << output.messages.toStdString();
    return QJsonDocument::fromJson(QByteArray::fromPercentEncoding(found.captured(1).toUtf8())).object();
}

QStringList consoleIn(const Output &output)
{
    static const QRegularExpression kMessage("CONSOLE[^\"]*\"(.*)\", source: ");
    QStringList messages;
    for (auto matches = kMessage.globalMatch(output.messages); matches.hasNext();)
        messages.append(matches.next().captured(1));
    return messages;
}

} // namespace

Sessione::Sessione(const QByteArray &pagina, const QList<Passo> &passi)
{
    const Output output = browsed(pagina, passi);
    m_risposta = answerIn(output);
    m_console = consoleIn(output);
    const QJsonArray answers = m_risposta["passi"].toArray();
    for (int index = 0; index < answers.size(); ++index) {
        EXPECT_FALSE(m_campi.contains(passi[index].nome)) << "two steps named " << passi[index].nome.toStdString();
        m_campi[passi[index].nome] = answers[index].toObject();
    }
}

QString Sessione::campo(const QString &passo, const QString &nome) const
{
    const QJsonValue value = m_campi.value(passo).value(nome);
    EXPECT_TRUE(value.isString()) << "no " << nome.toStdString() << " after " << passo.toStdString();
    return value.toString();
}

QStringList Sessione::elenco(const QString &nome) const
{
    QStringList texts;
    for (const QJsonValue text : m_risposta["elenchi"][nome].toArray())
        texts.append(text.toString());
    return texts;
}
