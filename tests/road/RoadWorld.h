// A household on a fresh example archive, without screens or people: what benchmarks and fault tests of the road run
// on.
#pragma once

#include "core/ModNetServer.h"

#include <memory>

class RoadWorld
{
public:
    RoadWorld(); // open
    ~RoadWorld();
    RoadWorld(const RoadWorld &) = delete;
    RoadWorld &operator=(const RoadWorld &) = delete;

    // Menus for `days` days from 01/01/2025, their daily sheets, and each day balanced for both persons.
    void planExpandBalance(int days);
    void open();
    void close();
    QString archivePath() const;
    ModNetServer &modulo();

private:
    struct Private;
    std::unique_ptr<Private> m_private;
};
