#include "platform/ui/Scritte.h"

#include <QTextDocument>

QString Scritte::senzaTasto(QString text)
{
    return text.replace('&', QStringLiteral("&&"));
}

QString Scritte::comeSiLegge(QString caption)
{
    return caption.replace(QStringLiteral("&&"), QStringLiteral("&"));
}

QString Scritte::suggerimento(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}
