#include "core/Helpers.h"

#include "platform/Failure.h"
#include "platform/text/Dates.h"
#include "platform/text/TextFile.h"

#include <QDateTime>
#include <QFileInfo>

namespace {

struct Mend
{
    QString told;
    QString mended;
};

// In this order: the last line takes every apostrophe that is left.
const QList<Mend> &mends()
{
    static const QList<Mend> kMends = {
        {QStringLiteral("a'"), QStringLiteral("à")},     {QStringLiteral("e'"), QStringLiteral("è")},
        {QStringLiteral("i'"), QStringLiteral("ì")},     {QStringLiteral("o'"), QStringLiteral("ò")},
        {QStringLiteral("u'"), QStringLiteral("ù")},     {QStringLiteral("A'"), QStringLiteral("À")},
        {QStringLiteral("E'"), QStringLiteral("È")},     {QStringLiteral("I'"), QStringLiteral("Ì")},
        {QStringLiteral("O'"), QStringLiteral("Ò")},     {QStringLiteral("U'"), QStringLiteral("Ù")},
        {QStringLiteral("'"), QStringLiteral("\u2019")},
    };
    return kMends;
}

void writeNotesFile(const QString &path, const QString &Nome, QDate today)
{
    const QString rule = QString(17, u' ') + QString(34, u'-') + u' ';
    TextWriter writer(path);
    writer.line(rule);
    writer.line(QStringLiteral("..................* Procedura ") + Nome + QStringLiteral(".txt *   - ") +
                TestoData(today));
    writer.line(rule);
    writer.line({});
    writer.line(QStringLiteral(".................. devi scrivere i problemi che riscontri nella procedura, senza"));
    writer.line(QStringLiteral(".................. cancellare il contenuto dei problemi precedenti alla procedura."));
    writer.line(QStringLiteral(".................. Il Programmatore apporrà sucessivamente un visto e data sulle "));
    writer.line(QStringLiteral(".................. modifiche apportartate sulla procedura e su questo modulo"));
    writer.close();
}

// What the list of changed files says of one file and one day.
struct ListedFiles
{
    bool hasDay = false;
    bool hasFile = false; // under that day
};

ListedFiles readListedFiles(const QString &path, const QString &dayLine, const QString &File)
{
    ListedFiles listed;
    bool underDay = false;
    for (TextReader reader(path); !reader.atEnd();) {
        const QString line = reader.line();
        if (line.startsWith(u'['))
            underDay = line == dayLine;
        listed.hasDay = listed.hasDay || underDay;
        listed.hasFile = listed.hasFile || (underDay && line == File);
    }
    return listed;
}

} // namespace

QString Allinea(const QString &Testo, int Larghezza)
{
    return Testo.leftJustified(Larghezza, u' ', true);
}

QString CartellaWindows()
{
    const QString folder = qEnvironmentVariable("SystemRoot");
    return folder.isEmpty() ? QStringLiteral("/usr") : folder;
}

int PosizioneApice(const QString &Testo)
{
    return int(Testo.indexOf(u'\'')) + 1;
}

qint64 NuovoId(ModNetServer &modulo, const QString &Tabella)
{
    modulo.RsComune = std::make_shared<Recordset>();
    modulo.RsComune->Open(QStringLiteral("SELECT Max(ID) + 1 AS ID FROM ") + Tabella + u';', modulo.dati());
    const auto id = qint64(modulo.RsComune->value(QStringLiteral("Id")).number());
    modulo.RsComune->Close();
    return id;
}

QString Accenta(const QString &Testo)
{
    QString mended = Testo;
    for (const Mend &mend : mends())
        mended.replace(mend.told, mend.mended);
    return mended;
}

bool SoloNumeri(const QString &Testo)
{
    for (const QChar character : Testo) {
        const bool digit = character >= u'0' && character <= u'9';
        if (!digit && character != u'.' && character != u',')
            return false;
    }
    return true;
}

void SegnalaProblemi(ModNetServer &modulo, const QString &Nome)
{
    const ProgramFolder &folder = modulo.mondo.folder;
    if (!folder.folderExists(QStringLiteral("\\TESTI")))
        folder.makeFolder(QStringLiteral("TESTI"));
    const QString file = QStringLiteral("\\TESTI\\") + Nome + QStringLiteral(".txt");
    if (!folder.fileExists(file))
        writeNotesFile(folder.resolve(file), Nome, modulo.mondo.orologio.today());
    modulo.mondo.programmi.start(ProgramKind::TextViewer, folder.resolve(file));
}

void RegistraModifica(ModNetServer &modulo, const QString &File)
{
    const QFileInfo source(ProgramFolder::resolveAbsolute(File));
    const QDate today = modulo.mondo.orologio.today();
    if (!source.isFile() || source.lastModified().date() < today)
        return;
    const QString list = QStringLiteral("\\FileModificati.log");
    const QString path = modulo.mondo.folder.resolve(list);
    const QString dayLine = u'[' + TestoData(today) + u']';
    const ListedFiles listed =
        modulo.mondo.folder.fileExists(list) ? readListedFiles(path, dayLine, File) : ListedFiles();
    if (listed.hasFile)
        return;
    TextWriter writer(path, TextEncoding::Settings, TextWriter::Mode::Append);
    if (!listed.hasDay)
        writer.line(dayLine);
    writer.line(File);
    writer.close();
}
