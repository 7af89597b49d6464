// The memory that the whole program takes with the daily sheet open, on an archive of one year and of ten.
#include "road/RoadWorld.h"

#include "PreparaCartella.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <stdexcept>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kYear = 365; // days
constexpr double kKilobytesOfAMegabyte = 1024;

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error(qPrintable("cannot write " + path));
}

// A program folder with so many days of sheets, and a script that opens the daily sheet and ends.
void prepareFolder(const QTemporaryDir &folder, int days)
{
    preparaCartella(folder.path(), QDate(2025, 1, 1));
    RoadWorld world;
    world.planExpandBalance(days);
    world.close();
    const QString archive = folder.filePath("Archivio/famiglia.db");
    if (!QFile::remove(archive) || !QFile::copy(world.archivePath(), archive))
        throw std::runtime_error("the archive cannot be put in its place");
    writeFile(folder.filePath("INI/Anagrafica.txt"), "Ondira\r\nTesmo\r\n1100\r\n1500\r\n");
    writeFile(folder.filePath("Copie.no"), {});
    writeFile(folder.filePath("scheda.copione"), "start\n"
                                                 "menu Menu.mnucalcolaCibra\n"
                                                 "choose FrmCibra.DataCombo2 \"02/01/2025\"\n"
                                                 "key FrmCibra \"Esc\"\n"
                                                 "menu Menu.mnuesciRete\n");
}

// The player of scripts stands beside this program.
std::string player()
{
    return (std::filesystem::read_symlink("/proc/self/exe").parent_path() / "cibra-copione").string();
}

[[noreturn]] void play(const std::string &folder)
{
    const std::string script = folder + "/scheda.copione";
    const std::string program = player();
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    execl(program.c_str(), program.c_str(), "--folder", folder.c_str(), "--screen", "offscreen", "--today",
          "02/01/2025", script.c_str(), nullptr);
    _exit(127);
}

// The most that the program had in memory at once, in megabytes.
double peakMemory(int days)
{
    const QTemporaryDir folder;
    prepareFolder(folder, days);
    const std::string path = folder.path().toStdString();
    const pid_t child = fork();
    if (child == 0)
        play(path);
    int status = 0;
    rusage used = {};
    wait4(child, &status, 0, &used);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        throw std::runtime_error("cibra-copione did not play the script");
    return double(used.ru_maxrss) / kKilobytesOfAMegabyte;
}

void memoryOfTheProgram(benchmark::State &state)
{
    for ([[maybe_unused]] auto round : state) {
        const double year = peakMemory(kYear);
        const double tenYears = peakMemory(10 * kYear);
        state.counters["one_year_MB"] = year;
        state.counters["ten_years_MB"] = tenYears;
        state.counters["ratio"] = tenYears / year;
    }
}

[[maybe_unused]] const bool kRegistered = [] {
    benchmark::RegisterBenchmark("memory with the daily sheet open", memoryOfTheProgram)->Iterations(1);
    return true;
}();

} // namespace
