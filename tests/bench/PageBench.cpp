// The nutrition page as a menu entry writes it, against the bare writing of the same bytes.
#include "Ratios.h"
#include "road/RoadWorld.h"

#include "pages/PaginaHtml.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace {

class PageWorld
{
public:
    PageWorld() { m_world.modulo().mondo.folder.makeFolder(QStringLiteral("\\Documenti")); }

    void write() { mnuHTML(m_world.modulo()); }
    std::string path(const char *name) const
    {
        return m_world.modulo().mondo.folder.resolve(QStringLiteral("\\Documenti\\") + name).toStdString();
    }

private:
    mutable RoadWorld m_world;
};

void writePage(benchmark::State &state)
{
    PageWorld world;
    for ([[maybe_unused]] auto round : state)
        world.write();
}

std::string pageBytes(PageWorld &world)
{
    world.write();
    std::ifstream file(world.path("Cibra.html"), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeBytes(benchmark::State &state)
{
    PageWorld world;
    const std::string bytes = pageBytes(world);
    const std::string path = world.path("nuda.html");
    for ([[maybe_unused]] auto round : state) {
        std::FILE *const file = std::fopen(path.c_str(), "wb");
        if (!file || std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size() || std::fclose(file) != 0)
            throw std::runtime_error("the bytes could not be written");
    }
}

[[maybe_unused]] const bool kRegistered = [] {
    measurePair("the nutrition page written", 4, writePage, writeBytes);
    return true;
}();

} // namespace
