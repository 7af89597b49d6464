#include "core/ErrorLog.h"

#include "platform/text/Dates.h"
#include "platform/text/TextFile.h"

namespace {

// A step of the logger: whatever fails in it is ignored, so that the logger can never fail itself.
template <typename Step>
void ignoringFailures(Step step)
{
    try {
        step();
    } catch (const std::exception &) {
        // Nobody is left to tell.
    }
}

void makeErrorFolder(const ProgramFolder &folder)
{
    const QString marker = QStringLiteral("Errori\\LogErr.Log");
    if (folder.fileExists(marker))
        return;
    folder.makeFolder(QStringLiteral("Errori"));
    TextWriter writer(folder.resolve(marker));
    writer.line(QStringLiteral("Log"));
    writer.close();
}

void appendEntry(const Environment &mondo, const QString &name, const QString &procedure, const QString &words)
{
    const QString rule(98, u'-');
    TextWriter writer(mondo.folder.resolve(QStringLiteral("Errori\\Err") + name + QStringLiteral(".txt")),
                      TextEncoding::Settings, TextWriter::Mode::Append);
    writer.line(rule);
    writer.line(QStringLiteral("Log errore ") + u' ' + TestoDataOra(mondo.orologio.now()));
    writer.line(rule);
    writer.line(QStringLiteral("Procedura : ") + procedure);
    writer.line(words);
    writer.line({});
    writer.close();
}

// One entry in the log of the form or module `name`, and its error on the background screen.
void logError(ModNetServer &modulo, const QString &name, const QString &procedure, const QString &words,
              const Failure &Errore)
{
    ignoringFailures([&] { makeErrorFolder(modulo.mondo.folder); });
    ignoringFailures([&] { appendEntry(modulo.mondo, name, procedure, words); });
    ignoringFailures([&] {
        modulo.schermate.erroreSuSfondo(QStringLiteral("Procedura ") + name + QStringLiteral(" - Errore:") +
                                            QString::number(int(Errore.number())),
                                        Errore.words());
    });
}

void showError(ModNetServer &modulo, const Failure &Errore)
{
    MsgBoxEx fields;
    fields.title = QStringLiteral("Errore Generico");
    fields.body = Errore.words();
    fields.buttons = {QStringLiteral("#@!? ... Errore!")};
    fields.picture = Immagine::Errore;
    modulo.mondo.dialoghi.Msg1(fields);
}

// Marks that the error dialog is up for as long as this lives.
class DialogUp
{
public:
    explicit DialogUp(bool &mark) : m_mark(mark) { m_mark = true; }
    ~DialogUp() { m_mark = false; }
    DialogUp(const DialogUp &) = delete;
    DialogUp &operator=(const DialogUp &) = delete;

private:
    bool &m_mark;
};

} // namespace

void ScriviLogErrore(ModNetServer &modulo, const QString &Procedura, const Failure &Errore)
{
    logError(modulo, QStringLiteral("ModNetServer"), Procedura, Errore.words(), Errore);
}

void ScriviLogErroreForm(ModNetServer &modulo, const QString &form, const QString &handler, const Failure &Errore)
{
    logError(modulo, form, form, form + QStringLiteral(" * ") + handler + Errore.words(), Errore);
}

void RoutineErrore(ModNetServer &modulo, const QString &form, const QString &handler, const Failure &Errore)
{
    // An error behind the dialog (a repaint, a resize) is logged alone: a second dialog would bring a third.
    if (!modulo.ErroreAVideo) {
        const DialogUp up(modulo.ErroreAVideo);
        showError(modulo, Errore);
    }
    ScriviLogErroreForm(modulo, form, handler, Errore);
}
