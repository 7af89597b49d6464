#include "ProcessoLettore.h"

#include "platform/Failure.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>

namespace {

// A bit of the file (a yes/no value, a null) makes up to four bytes of the stream.
constexpr qint64 kMostPerByte = 64;
constexpr qint64 kMostBesides = qint64(1024) * 1024;

[[noreturn]] void guasto(const QString &words)
{
    throw Failure(FailureNumber::Engine, words);
}

class Lettura
{
public:
    Lettura(const Lettore &reader, const QString &path)
        : m_wait(int(reader.attesa.count())), m_most(QFileInfo(path).size() * kMostPerByte + kMostBesides)
    {
        m_process.setStandardInputFile(QProcess::nullDevice());
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start(reader.programma, reader.argomenti + QStringList(path));
        if (!m_process.waitForStarted(m_wait))
            throw Failure::usual(FailureNumber::FileNotFound, reader.programma);
    }
    ~Lettura()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.kill();
        m_process.waitForFinished();
    }
    Lettura(const Lettura &) = delete;
    Lettura &operator=(const Lettura &) = delete;

    ContenutoMdb run()
    {
        QElapsedTimer silent;
        silent.start();
        while (m_process.waitForReadyRead(m_wait)) {
            take();
            silent.start();
        }
        // A reading that ends its output may take the rest of the time to end itself.
        const int rest = std::max(0, m_wait - int(silent.elapsed()));
        if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(rest))
            guasto(QStringLiteral("la lettura non finisce"));
        take();
        if (m_process.exitStatus() != QProcess::NormalExit || m_process.exitCode() != 0 || !m_stream.finito())
            guasto(QStringLiteral("la lettura si interrompe"));
        return m_stream.prendi();
    }

private:
    void take()
    {
        const QByteArray bytes = m_process.readAllStandardOutput();
        m_taken += bytes.size();
        if (m_taken > m_most)
            guasto(QStringLiteral("la lettura non finisce"));
        m_stream.aggiungi(bytes);
    }

    int m_wait;
    qint64 m_most;
    qint64 m_taken = 0;
    QProcess m_process;
    LettoreFlusso m_stream;
};

} // namespace

ContenutoMdb leggiInProcesso(const Lettore &reader, const QString &path)
{
    return Lettura(reader, path).run();
}
