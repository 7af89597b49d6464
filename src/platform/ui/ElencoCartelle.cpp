#include "platform/ui/ElencoCartelle.h"

#include "platform/ui/Disegno.h"

#include <QDir>
#include <QKeyEvent>

ElencoCartelle::ElencoCartelle(QWidget *parent) : QListWidget(parent)
{
    setIconSize(QSize(20, 20));
    connect(this, &QListWidget::itemDoubleClicked, this, &ElencoCartelle::enter);
    setCartella(QDir::currentPath());
}

void ElencoCartelle::setCartella(const QString &path)
{
    const QString folder = QDir::cleanPath(QDir(path).absolutePath());
    if (path.isEmpty() || folder == m_cartella || !QDir(folder).exists())
        return;
    m_cartella = folder;
    fill();
    emit cartellaCambiata();
}

void ElencoCartelle::fill()
{
    clear();
    const QDir folder(m_cartella);
    const QIcon icon = Disegno::icon(":/platform/icons/cartella.svg");
    if (!folder.isRoot())
        addItem(new QListWidgetItem(Disegno::icon(":/platform/icons/su.svg"), ".."));
    const QStringList names = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QString &name : names)
        addItem(new QListWidgetItem(icon, name));
}

void ElencoCartelle::enter(const QListWidgetItem *item)
{
    if (item)
        setCartella(QDir(m_cartella).filePath(item->text()));
}

void ElencoCartelle::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        enter(currentItem());
        if (count() > 0)
            setCurrentRow(0);
        event->accept();
        return;
    }
    QListWidget::keyPressEvent(event);
}
