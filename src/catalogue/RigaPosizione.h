// The position line of the record forms: what stands before position, "\" and count, and in place of them where there
// is no record. Which command writes which is part of the forms' habits.
#pragma once

#include "platform/store/Recordset.h"

#include <QString>

struct RigaPosizione
{
    QString conRecord, senzaRecord;

    QString testo(const Recordset &recordset) const;
};

namespace Posizione {
inline const RigaPosizione AlPrimo{{}, QStringLiteral(" RecordSet Vuoto!!")};
inline const RigaPosizione Navigazione{{}, QStringLiteral("RecordSet Vuoto!!")};
inline const RigaPosizione Record{QStringLiteral("Record: "), QStringLiteral("RecordSet Vuoto!!")};
inline const RigaPosizione Salvata{QStringLiteral("F1 Help     *    Record: "),
                                   QStringLiteral("F1 Help     *    RecordSet Vuoto!!")};
inline const RigaPosizione Annullata{QStringLiteral("Record: "), QStringLiteral("F1 Help     *    RecordSet Vuoto!!")};
} // namespace Posizione
