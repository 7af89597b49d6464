#include "platform/ui/ElencoDischi.h"

#include <QDir>
#include <QSignalBlocker>
#include <QStorageInfo>

ElencoDischi::ElencoDischi(QWidget *parent) : QComboBox(parent)
{
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        const bool isPlace = volume.isRoot() || QString::fromUtf8(volume.device()).startsWith("/dev/");
        if (volume.isValid() && volume.isReady() && isPlace && QDir(volume.rootPath()).exists())
            addItem(QDir::toNativeSeparators(volume.rootPath()));
    }
    setHidden(count() < 2);
}

void ElencoDischi::mostraDiscoDi(const QString &folder)
{
    const QSignalBlocker quiet(this);
    setCurrentIndex(findText(QDir::toNativeSeparators(QStorageInfo(folder).rootPath())));
}
