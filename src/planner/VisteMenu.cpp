#include "planner/VisteMenu.h"

#include "platform/text/Dates.h"

namespace {

const QString kVista =
    QStringLiteral("SELECT Menu.DataMenu, Menu.Colazione, Menu.Spuntino1, Menu.Pranzo, Menu.Contorno1, Menu.Spuntino2, "
                   "Menu.Cena, Menu.Contorno2, Menu.Spuntino3, Menu.dataInserimento From Menu ");

std::shared_ptr<Recordset> Apri(ModNetServer &modulo, const QString &statement)
{
    auto rs = std::make_shared<Recordset>();
    rs->Open(statement, modulo.dati(), Recordset::Access::ReadOnly);
    return rs;
}

} // namespace

std::shared_ptr<Recordset> ApriVistaMenu(ModNetServer &modulo, const QString &Text3, const QString &Text4)
{
    const QString from = DataPerIstruzione(CDate(Text3));
    const QString to = DataPerIstruzione(CDate(Text4));
    return Apri(modulo, kVista + " WHERE (((Menu.DataMenu)>=#" + from + "# And (Menu.DataMenu)<=#" + to + "#));");
}

std::shared_ptr<Recordset> ApriTuttiIMenu(ModNetServer &modulo)
{
    return Apri(modulo, kVista);
}

bool CancellaBlocco(ModNetServer &modulo, const QString &Text3, const QString &Text4)
{
    const QString from = TestoData(CDate(Text3));
    const QString to = TestoData(CDate(Text4));
    const MsgAnswer answer = modulo.mondo.dialoghi.MsgBox("Confermi la cancellazione dei record compresi \nle date" +
                                                              Text3 + " e " + Text4 + " ??",
                                                          MsgFlags::YesNoInformation, "Cancellazione Record");
    if (answer != MsgAnswer::Si)
        return false;
    modulo.dati().Execute("DELETE Menu.DataMenu From Menu WHERE (([menu].[DataMenu]>= #" + from +
                          "# And [menu].[DataMenu]<=#" + to + "#));");
    return true;
}

QString UltimoGiornoPianificato(ModNetServer &modulo)
{
    Recordset rs;
    rs.Open("Select * from Menu order by Datamenu DESC", modulo.dati(), Recordset::Access::ReadOnly);
    if (rs.RecordCount() == 0)
        return TestoData(modulo.mondo.orologio.today().addDays(7));
    return rs.value("Datamenu").text();
}
