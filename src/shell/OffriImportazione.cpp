#include "shell/OffriImportazione.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace {

const QString kTitle = QStringLiteral("Importazione archivio");
const QString kPasswordQuestion = QStringLiteral("Inserisci la password per accedere al database");
constexpr int kDone = 0;
constexpr int kPasswordAsked = 3;    // what the tool ends with where the password lacks or is wrong
constexpr qsizetype kMostLines = 22; // of a report, on a screen of 720 points
constexpr int kBreath = 30;          // milliseconds between two signs of life

struct Esito
{
    int status = 1;
    QString rapporto; // what was read and written
    QString motivo;   // why it failed
};

// The busy pointer for as long as it lives.
class Clessidra
{
public:
    explicit Clessidra(Schermo &schermo) : m_schermo(schermo) { m_schermo.setMousePointer(MousePointer::Hourglass); }
    ~Clessidra() { m_schermo.setMousePointer(MousePointer::Default); }
    Clessidra(const Clessidra &) = delete;
    Clessidra &operator=(const Clessidra &) = delete;

private:
    Schermo &m_schermo;
};

QString nomeLibero(const QDir &folder, const QString &file)
{
    const QString base = QFileInfo(file).completeBaseName();
    QString name = base + QStringLiteral(".db");
    for (int number = 2; QFileInfo::exists(folder.filePath(name)); ++number)
        name = QStringLiteral("%1-%2.db").arg(base).arg(number);
    return name;
}

QString strumento()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("cibra-archivio"));
}

// The tool says who it is before each of its words.
QString motivoDi(const QByteArray &told)
{
    const QString words = QString::fromUtf8(told).trimmed();
    const QString name = QStringLiteral("cibra-archivio: ");
    return words.startsWith(name) ? words.mid(name.size()) : words;
}

Esito importa(ModNetServer &modulo, const QString &from, const QString &to, const QString &password)
{
    const Clessidra busy(modulo.mondo.schermo);
    QProcess tool;
    tool.start(strumento(), {QStringLiteral("importa"), from, to});
    if (!tool.waitForStarted())
        return {1, {}, QStringLiteral("Il programma \"%1\" non si può avviare").arg(strumento())};
    // The tool reads its input only where the file has a password; a line that nobody reads is no failure.
    if (!password.isEmpty())
        tool.write(password.toLocal8Bit() + '\n');
    tool.closeWriteChannel();
    while (!tool.waitForFinished(kBreath) && tool.state() != QProcess::NotRunning)
        modulo.mondo.schermo.breathe();
    if (tool.exitStatus() != QProcess::NormalExit)
        return {1, {}, QStringLiteral("L'importazione si è interrotta")};
    return {tool.exitCode(), QString::fromUtf8(tool.readAllStandardOutput()).trimmed(),
            motivoDi(tool.readAllStandardError())};
}

bool vuoleImportare(ModNetServer &modulo, const QString &file, const QString &nuovo)
{
    return modulo.mondo.dialoghi.MsgBox(
               QStringLiteral(
                   "Il file \"%1\" è un archivio del vecchio formato .mdb.\nVuoi importarlo nel nuovo archivio "
                   "\"%2\"?\nIl vecchio file resta com'è.")
                   .arg(file, nuovo),
               MsgFlags::YesNoInformation, kTitle) == MsgAnswer::Si;
}

Esito importaConPassword(ModNetServer &modulo, const QString &from, const QString &to)
{
    const Esito first = importa(modulo, from, to, {});
    if (first.status != kPasswordAsked)
        return first;
    const QString password = modulo.mondo.dialoghi.InputBox(kPasswordQuestion, kPasswordQuestion, true);
    return password.isEmpty() ? first : importa(modulo, from, to, password);
}

} // namespace

bool EArchivioJet(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(32).mid(4).startsWith("Standard Jet DB");
}

QString RapportoInBreve(const QString &rapporto)
{
    const QStringList lines = rapporto.split(u'\n');
    if (lines.size() <= kMostLines)
        return rapporto;
    const QStringList shown = lines.first(kMostLines - 1);
    return shown.join(u'\n') + QStringLiteral("\n... e altre %1 righe").arg(lines.size() - shown.size());
}

QString OffriImportazione(ModNetServer &modulo, const QString &cartella, const QString &file)
{
    const QDir folder(cartella);
    const QString name = nomeLibero(folder, file);
    if (!vuoleImportare(modulo, file, name))
        return {};
    const Esito result = importaConPassword(modulo, folder.filePath(file), folder.filePath(name));
    if (result.status != kDone) {
        modulo.mondo.dialoghi.MsgBox(result.motivo, MsgFlags::Critical, kTitle);
        return {};
    }
    modulo.mondo.dialoghi.MsgBox(
        QStringLiteral("Il nuovo archivio è \"%1\".\n\n%2").arg(name, RapportoInBreve(result.rapporto)),
        MsgFlags::Information, kTitle);
    return name;
}
