#include "platform/ui/ElencoFile.h"

#include "platform/store/ArchiveSigns.h"
#include "platform/ui/Disegno.h"

#include <QDir>

namespace {

// What the engine keeps beside an archive while it is open; whoever took it for the archive would lose rows.
bool isCompanion(const QDir &folder, const QString &file)
{
    for (const QLatin1String &end : kCompanionEndings)
        if (file.endsWith(end) && folder.exists(file.chopped(end.size())))
            return true;
    return false;
}

} // namespace

ElencoFile::ElencoFile(QWidget *parent) : QListWidget(parent)
{
    setIconSize(QSize(20, 20));
}

void ElencoFile::mostra(const QString &folder)
{
    clear();
    const QStringList patterns = m_pattern.isEmpty() ? QStringList() : QStringList(m_pattern);
    const QDir directory(folder);
    const QIcon icon = Disegno::icon(":/platform/icons/file.svg");
    for (const QString &file : directory.entryList(patterns, QDir::Files, QDir::Name | QDir::IgnoreCase))
        if (!isCompanion(directory, file))
            addItem(new QListWidgetItem(icon, file));
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
