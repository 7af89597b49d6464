#include "ChiediPassword.h"

#include <cstdio>
#include <iostream>
#include <string>

#include <termios.h>
#include <unistd.h>

namespace {

// Keeps the terminal from showing what is typed, for as long as it lives.
class SenzaEco
{
public:
    SenzaEco()
    {
        m_active = tcgetattr(STDIN_FILENO, &m_before) == 0;
        if (!m_active)
            return;
        termios hidden = m_before;
        hidden.c_lflag &= ~tcflag_t(ECHO);
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    }
    ~SenzaEco()
    {
        if (m_active)
            tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_before);
    }
    SenzaEco(const SenzaEco &) = delete;
    SenzaEco &operator=(const SenzaEco &) = delete;

private:
    termios m_before{};
    bool m_active = false;
};

std::optional<QString> leggiRiga()
{
    std::string line;
    if (!std::getline(std::cin, line))
        return std::nullopt;
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return QString::fromLocal8Bit(QByteArray::fromStdString(line));
}

} // namespace

std::optional<QString> chiediPassword(const QString &prompt)
{
    if (!isatty(STDIN_FILENO))
        return leggiRiga();
    std::fputs(qPrintable(prompt), stderr);
    const SenzaEco hidden;
    const std::optional<QString> answer = leggiRiga();
    std::fputs("\n", stderr);
    return answer;
}
