// hold_archive FILE: writes to an archive without committing until its standard input ends, and says when it has begun.
// It stands for the other program in scenarios of a locked archive.
#include <sqlcipher/sqlite3.h>

#include <cstdio>

int main(int argc, char **argv)
{
    sqlite3 *archive = nullptr;
    if (argc != 2 || sqlite3_open_v2(argv[1], &archive, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK ||
        sqlite3_exec(archive, "PRAGMA journal_mode = WAL; BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK) {
        std::fprintf(stderr, "hold_archive: %s\n", archive ? sqlite3_errmsg(archive) : "FILE is missing");
        return 1;
    }
    std::puts("held");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return sqlite3_close(archive) == SQLITE_OK ? 0 : 1;
}
