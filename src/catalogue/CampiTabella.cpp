#include "catalogue/CampiTabella.h"

#include <algorithm>

namespace {

constexpr int kNameAt = 14; // where the statement has its table's name, and the characters taken of it
constexpr int kNameLength = 20;

} // namespace

QString TipoCampo(int tipo)
{
    static const struct
    {
        int number;
        const char *code;
    } codes[] = {{1, "BO"}, {2, "NB"},  {3, "NI"},  {4, "NL"},  {5, "NC"},  {6, "NS"},  {7, "ND"},
                 {8, "DD"}, {10, "TT"}, {11, "LL"}, {12, "MM"}, {15, "GG"}, {202, "TT"}};
    for (const auto &one : codes) {
        if (one.number == tipo)
            return QLatin1String(one.code);
    }
    return QStringLiteral("ZZ");
}

int DimensioneDefinita(const FieldInfo &campo)
{
    switch (campo.type) {
    case ColumnType::Text:
        return campo.definedSize;
    case ColumnType::Memo:
        return kDimensioneMemo;
    case ColumnType::Long:
        return 4;
    case ColumnType::Boolean:
        return 2;
    case ColumnType::Number:
    case ColumnType::Date:
        return 8;
    }
    return campo.definedSize;
}

const ColonnaTabella *CampiTabella::colonna(const QString &nome) const
{
    const auto found =
        std::find_if(colonne.begin(), colonne.end(), [&](const ColonnaTabella &one) { return one.nome == nome; });
    return found == colonne.end() ? nullptr : &*found;
}

QString CampiTabella::mancanti() const
{
    QString lines;
    if (!colonna(QStringLiteral("ID")))
        lines += QStringLiteral("Manca campo ID - tipo LONG\r");
    if (!colonna(QStringLiteral("DATAINSERIMENTO")))
        lines += QStringLiteral("Manca campo  DATAINSERIMENTO - tipo DATE\r");
    if (!colonna(QStringLiteral("PREDEFINITO")))
        lines += QStringLiteral("Manca campo  PREDEFINITO - tipo BOOLEAN");
    return lines;
}

CampiTabella LeggiCampiTabella(ModNetServer &modulo)
{
    Recordset table;
    table.Open(QStringLiteral("select * from Amministratori"), modulo.dati());
    CampiTabella campi;
    campi.tabella = table.Source().mid(kNameAt, kNameLength);
    for (int i = 0; i < table.fieldCount(); ++i) {
        const FieldInfo &field = table.field(i);
        campi.colonne.push_back({field.name.toUpper(), TipoCampo(int(field.type)), false, DimensioneDefinita(field)});
    }
    table.Close();
    return campi;
}

MsgBoxEx TabellaNonConforme(const QString &tabella, const QString &mancanti)
{
    MsgBoxEx box;
    box.title = QStringLiteral("Tabella non conforme!!");
    box.body = QStringLiteral("La tabella  ") + tabella + QStringLiteral(" non contiene\r") +
               QStringLiteral("uno o pi\u00EF\u00BF\u00BD campi obligatori:\r") +
               QStringLiteral("____________________________________________\r\r\r") + mancanti;
    box.buttons = {QStringLiteral("OK")};
    box.picture = Immagine::Tabella;
    return box;
}
