// The safety copy of a year's archive, checked and named, against the plain copy of its file.
#include "Ratios.h"

#include "core/CopieDiSicurezza.h"
#include "platform/store/ArchiveFile.h"
#include "road/RoadWorld.h"

#include <QFile>

#include <stdexcept>

namespace {

constexpr int kYear = 365; // days

RoadWorld &aYear()
{
    static RoadWorld world;
    [[maybe_unused]] static const bool planned = [] {
        world.planExpandBalance(kYear);
        world.close(); // so that the journal goes into the archive
        world.open();
        return true;
    }();
    return world;
}

// The same archive under a password.
Connection &aProtectedYear()
{
    static Connection opened;
    [[maybe_unused]] static const bool made = [] {
        RoadWorld &plain = aYear();
        const QString path = plain.archivePath() + ".protetto";
        const QString password = QStringLiteral("segreta");
        copyEncrypted(plain.archivePath(), path, password);
        if (!opened.Open(path, password))
            throw std::runtime_error("the protected archive does not open");
        return true;
    }();
    return opened;
}

void copyAgainAndAgain(benchmark::State &state, Connection &archive, QString (*copy)(Connection &))
{
    for ([[maybe_unused]] auto round : state) {
        const QString made = copy(archive);
        state.PauseTiming();
        if (!QFile::remove(made))
            throw std::runtime_error("no copy was made");
        state.ResumeTiming();
    }
}

QString copyChecked(Connection &archive)
{
    return FaiCopia(archive, QDateTime(QDate(2025, 1, 1), QTime(8, 0)));
}

QString copyFile(Connection &archive)
{
    const QString to = archive.path() + ".copia";
    QFile from(archive.path());
    QFile file(to);
    if (!from.open(QIODevice::ReadOnly) || !file.open(QIODevice::WriteOnly) || file.write(from.readAll()) < 0)
        throw std::runtime_error("the archive cannot be copied");
    return to;
}

template <QString (*Copy)(Connection &)>
void plain(benchmark::State &state)
{
    copyAgainAndAgain(state, aYear().modulo().dati(), Copy);
}

template <QString (*Copy)(Connection &)>
void closed(benchmark::State &state)
{
    copyAgainAndAgain(state, aProtectedYear(), Copy);
}

[[maybe_unused]] const bool kRegistered = [] {
    measurePair("the safety copy of a year's archive", 40, plain<copyChecked>, plain<copyFile>);
    measurePair("the safety copy of a protected year", 400, closed<copyChecked>, closed<copyFile>);
    return true;
}();

} // namespace
