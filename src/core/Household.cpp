#include "core/Household.h"

#include "platform/text/TextFile.h"

namespace {

const QString kFile = QStringLiteral("\\ini\\Anagrafica.txt");

// The four globals in the order of the file's lines.
std::array<QString *, 4> globals(ModNetServer &modulo)
{
    return {&modulo.NomePrimaPersona, &modulo.NomeSecondaPersona, &modulo.KcalPrimaPersona, &modulo.KcalSecondaPersona};
}

} // namespace

bool EsisteAnagrafica(const ModNetServer &modulo)
{
    return modulo.mondo.folder.fileExists(kFile);
}

void LeggiAnagrafica(ModNetServer &modulo)
{
    TextReader reader(modulo.mondo.folder.resolve(kFile));
    for (QString *global : globals(modulo))
        *global = reader.line();
}

void ScriviAnagrafica(ModNetServer &modulo, const std::array<QString, 4> &testi)
{
    TextWriter writer(modulo.mondo.folder.resolve(kFile));
    for (const QString &testo : testi)
        writer.line(testo);
    writer.close();
    const std::array<QString *, 4> targets = globals(modulo);
    for (size_t index = 0; index < targets.size(); ++index)
        *targets[index] = testi[index];
}
