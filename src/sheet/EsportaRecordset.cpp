#include "sheet/EsportaRecordset.h"

#include "core/Locations.h"
#include "platform/text/TextFile.h"

namespace {

const QString kTesto = QStringLiteral("\\Testo.txt");
const QString kRisultato = QStringLiteral("\\InteroRecordSet.txt");

MsgBoxEx questionOfFormat()
{
    MsgBoxEx fields;
    fields.title = "Esportazione Tabella in Files Testo...";
    fields.body = "Vuoi Esportare la tabella in un formato\rTesto o in formato Excell?";
    fields.buttons = {"Testo", "Excell"};
    fields.defaultFlag = MsgBoxEx::SecondIsDefault;
    fields.buttonCode = MsgBoxEx::TwoButtons;
    return fields;
}

void report(ModNetServer &modulo, const QString &file, const QString &hint)
{
    MsgBoxEx fields;
    fields.title = "File creato con successo";
    fields.body = "Creazione file di Testo \r" + modulo.mondo.folder.path() + file + hint;
    fields.buttons = {"OK!"};
    modulo.mondo.dialoghi.Msg1(fields);
}

// A second way into the archive; into an encrypted one only the connection that was given the password leads.
Connection &openAgain(ModNetServer &modulo, Connection &archive)
{
    const OpenResult result = archive.Open(PercorsoNativo(modulo, modulo.PercorsoDbDati));
    if (result.outcome == OpenOutcome::Errore)
        throw Failure(FailureNumber(result.number), result.words);
    return result ? archive : modulo.dati();
}

// Naming the statement and taking the name away again may fail without a word: the report comes all the same.
void nameAndForget(Connection &archive, const QString &istruzione)
{
    try {
        archive.Execute("CREATE VIEW NuovoQueryDef AS " + istruzione);
    } catch (const Failure &) {
        // Told to be ignored.
    }
    try {
        archive.Execute("DROP VIEW NuovoQueryDef");
    } catch (const Failure &) {
        // Told to be ignored.
    }
}

void exportToSpreadsheet(ModNetServer &modulo, const QString &istruzione)
{
    Connection archive;
    nameAndForget(openAgain(modulo, archive), istruzione);
    archive.Close();
    report(modulo, "\\Altro.xls", "\rPer visualizzare il file apri Excell");
}

// One line a row, as the set gives them: its rows end by CR.
void writeRows(ModNetServer &modulo, Recordset &rows)
{
    QString text = rows.GetString();
    text.chop(1);
    TextWriter file(modulo.mondo.folder.resolve(kTesto));
    file.line(text.replace('\r', "\r\n"));
    file.close();
}

void writeHead(ModNetServer &modulo, TextWriter &result, const Recordset &rows)
{
    const QString rule = ' ' + QString(70, '*');
    result.line(rule);
    result.line(" Testo da importare in ExCell per Incolonnarlo o elaborarlo.");
    result.line(" Prima di Aprire Excell, Cancella queste prime 5 righe. ");
    result.line(rule);
    modulo.RigaLetta.clear();
    for (int field = 0; field < rows.fieldCount(); ++field)
        modulo.RigaLetta += rows.field(field).name + "; ";
    result.line(modulo.RigaLetta);
    result.line(" ");
}

void copyLines(ModNetServer &modulo, TextWriter &result)
{
    for (TextReader lines(modulo.mondo.folder.resolve(kTesto)); !lines.atEnd();) {
        modulo.RigaLetta = lines.line();
        result.line(modulo.RigaLetta);
    }
}

// The viewer is asked for a file that is not there; one that shows nothing then ends nothing here.
void openViewer(ModNetServer &modulo)
{
    try {
        modulo.mondo.programmi.start(ProgramKind::TextViewer, modulo.mondo.folder.resolve("\\InteroRecordSet.xls"));
    } catch (const Failure &failure) {
        if (failure.number() != FailureNumber::FileNotFound)
            throw;
    }
}

void exportToText(ModNetServer &modulo, const QString &istruzione)
{
    Recordset rows;
    rows.Open(istruzione, modulo.dati());
    writeRows(modulo, rows);
    TextWriter result(modulo.mondo.folder.resolve(kRisultato));
    writeHead(modulo, result, rows);
    copyLines(modulo, result);
    result.close();
    modulo.mondo.folder.deleteFile(kTesto);
    openViewer(modulo);
    report(modulo, "\\Soci.xls", {});
}

} // namespace

void MnuFileTesto(ModNetServer &modulo, const Recordset &elenco, const QString &istruzione)
{
    if (elenco.RecordCount() == 0) {
        modulo.mondo.dialoghi.MsgBox("Non ci sono record da visualizzare e stampare", MsgFlags::Information,
                                     "Nessun Record presente");
        return;
    }
    if (modulo.mondo.dialoghi.Msg1(questionOfFormat()) == MsgBoxEx::First)
        exportToText(modulo, istruzione);
    else
        exportToSpreadsheet(modulo, istruzione);
}
