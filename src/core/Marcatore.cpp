#include "core/Marcatore.h"

#include "platform/text/TextFile.h"

bool Marcatore::presente() const
{
    return m_folder.fileExists(m_nome);
}

void Marcatore::metti(bool presente) const
{
    if (presente) {
        TextWriter file(m_folder.resolve(m_nome));
        file.line({});
        file.close();
    } else if (m_folder.fileExists(m_nome)) {
        m_folder.deleteFile(m_nome);
    }
}
