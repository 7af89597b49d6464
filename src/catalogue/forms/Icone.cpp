#include "catalogue/forms/Icone.h"

#include "platform/ui/Disegno.h"

// The drawings are part of a static library, which nobody initialises by itself. Outside any namespace, as Qt asks.
static void initResources()
{
    Q_INIT_RESOURCE(catalogue);
}

QIcon Icone::icona(const QString &nome)
{
    initResources();
    return Disegno::icon(":/catalogue/icons/" + nome + ".svg");
}
