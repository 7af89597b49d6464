#include "pages/PaginaHtml.h"

#include "pages/Modello.h"
#include "platform/text/TextFile.h"

namespace {

void writeAndOpen(ModNetServer &modulo, Pagina pagina)
{
    const QString file = modulo.mondo.folder.resolve(QStringLiteral("\\Documenti\\Cibra.html"));
    TextWriter writer(file, TextEncoding::CodePage);
    writer.encodedLines(TestoPagina(pagina));
    writer.close();
    modulo.mondo.programmi.start(ProgramKind::Page, file);
}

} // namespace

void mnuHTML(ModNetServer &modulo)
{
    writeAndOpen(modulo, Pagina::Intera);
}

void MnukcCalcolo(ModNetServer &modulo)
{
    writeAndOpen(modulo, Pagina::Breve);
}
