#include "sheet/SostituisciPiatto.h"

void SostituisciPiatto(ModNetServer &modulo, const PostoNellaScheda &posto, const QString &sostituto,
                       const QString &nome)
{
    Recordset cibi;
    cibi.Open(IstruzioneCibiDelPiatto(sostituto), modulo.dati(), Recordset::Access::ReadOnly);
    GruppoScritture gruppo(modulo.dati());
    CancellaGruppoSenzaConferma(modulo, posto);
    AggiungiCibi(modulo, cibi, {posto.giorno, posto.pasto, nome});
    gruppo.close();
}
