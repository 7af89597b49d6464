// What logic may ask of the screen as a whole.
#pragma once

namespace MousePointer {
constexpr int Default = 0;
constexpr int Hourglass = 11;
} // namespace MousePointer

class Schermo
{
public:
    virtual ~Schermo() = default;
    virtual void setMousePointer(int pointer) = 0; // one pointer for the whole screen, not a stack
    virtual void beep() = 0;
    // Lets the window repaint during a long operation, and tells whether Esc was pressed meanwhile. No other event of
    // the user gets through.
    virtual bool breathe() = 0;
};

// Sets the pointer back at the end of a long operation, also where it fails.
class PuntatoreLibero
{
public:
    explicit PuntatoreLibero(Schermo &screen) : m_screen(screen) {}
    ~PuntatoreLibero() { m_screen.setMousePointer(MousePointer::Default); }
    PuntatoreLibero(const PuntatoreLibero &) = delete;
    PuntatoreLibero &operator=(const PuntatoreLibero &) = delete;

private:
    Schermo &m_screen;
};
