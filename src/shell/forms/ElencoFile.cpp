#include "shell/forms/ElencoFile.h"

#include <QDir>

void ElencoFile::mostra(const QString &folder)
{
    clear();
    const QStringList patterns = m_pattern.isEmpty() ? QStringList() : QStringList(m_pattern);
    addItems(QDir(folder).entryList(patterns, QDir::Files, QDir::Name | QDir::IgnoreCase));
}

void ElencoFile::seleziona(const QString &file)
{
    if (file.isEmpty())
        return;
    const QList<QListWidgetItem *> found = findItems(file, Qt::MatchFixedString);
    if (found.isEmpty())
        return;
    setCurrentItem(found.first());
    scrollToItem(found.first());
}

QString ElencoFile::fileScelto() const
{
    for (int row = 0; row < count(); ++row)
        if (item(row)->isSelected())
            return item(row)->text();
    return {};
}
