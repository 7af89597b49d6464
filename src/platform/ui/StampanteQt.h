// The system's printer: the dialog that chooses it, and the printing of a picture. Where no printer is installed the
// dialog offers a PDF file.
#pragma once

#include <QString>

#include <functional>
#include <memory>

class QImage;
class QPrinter;

class StampanteQt
{
public:
    // The print dialog; gives whether the user went on. Another one may stand in its place.
    using Chiedi = std::function<bool(QPrinter &)>;

    StampanteQt();
    explicit StampanteQt(Chiedi chiedi);
    ~StampanteQt();

    // Chooses the printer for later; throws Failure(Cancelled) where the user gives up.
    void imposta();
    // Prints the picture file on one page, as large as it fits; nothing where the user gives up. Throws
    // Failure(FileNotFound) for a picture that cannot be read and Failure(PathAccess) where nothing can be printed.
    void stampa(const QString &immagine);

private:
    QPrinter &printer(); // made at the first use: it asks the system for its printers
    void disegna(const QImage &immagine);

    Chiedi m_chiedi;
    std::unique_ptr<QPrinter> m_printer;
};
