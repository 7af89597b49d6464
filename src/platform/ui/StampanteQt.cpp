#include "platform/ui/StampanteQt.h"

#include "platform/Failure.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

namespace {

bool askByDialog(QPrinter &printer)
{
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    dialog.setWindowTitle(QStringLiteral("Stampa"));
    return dialog.exec() == QDialog::Accepted;
}

// The name that the dialog proposes for a page that goes to a file.
QString proposedFile()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return (folder.exists() ? folder : QDir::home()).filePath(QStringLiteral("stampa.pdf"));
}

} // namespace

StampanteQt::StampanteQt() : StampanteQt(askByDialog) {}

StampanteQt::StampanteQt(Chiedi chiedi) : m_chiedi(std::move(chiedi)) {}

StampanteQt::~StampanteQt() = default;

QPrinter &StampanteQt::printer()
{
    if (!m_printer) {
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        if (QPrinterInfo::availablePrinters().isEmpty())
            m_printer->setOutputFileName(proposedFile());
    }
    return *m_printer;
}

void StampanteQt::imposta()
{
    if (!m_chiedi(printer()))
        throw Failure::usual(FailureNumber::Cancelled);
}

void StampanteQt::stampa(const QString &immagine)
{
    const QImage picture(immagine);
    if (picture.isNull())
        throw Failure::usual(FailureNumber::FileNotFound, immagine);
    printer().setPageOrientation(picture.width() > picture.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
    if (m_chiedi(printer()))
        disegna(picture);
}

void StampanteQt::disegna(const QImage &immagine)
{
    QPainter painter;
    if (!painter.begin(&printer()))
        throw Failure::usual(FailureNumber::PathAccess, printer().outputFileName());
    const QRect page = painter.viewport();
    const QSize size = immagine.size().scaled(page.size(), Qt::KeepAspectRatio);
    painter.drawImage(QRect({(page.width() - size.width()) / 2, 0}, size), immagine);
    if (!painter.end())
        throw Failure::usual(FailureNumber::PathAccess, printer().outputFileName());
}
