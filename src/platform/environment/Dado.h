// Uniform random values in [0, 1).
#pragma once

#include <random>

class Dado
{
public:
    virtual ~Dado() = default;
    virtual double next() = 0;
};

// Never seeded, so that each start of the program draws the same sequence; 24 bits, as a single-precision value has.
class DadoFisso : public Dado
{
public:
    double next() override { return double(m_engine() >> 8) / double(1 << 24); }

private:
    std::mt19937 m_engine;
};
