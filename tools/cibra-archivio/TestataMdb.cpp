#include "TestataMdb.h"

#include "platform/store/ArchiveSigns.h"
#include "platform/text/CodePage.h"

#include <QtEndian>

#include <array>
#include <cmath>
#include <cstring>
#include <utility>

namespace {

constexpr qsizetype kName = 4; // where the engine's name stands
constexpr qsizetype kVersion = 0x14;
constexpr qsizetype kCoded = 0x18; // from here on the head is enciphered
constexpr qsizetype kCodedJet3 = 126;
constexpr qsizetype kCodedJet4 = 128;
constexpr qsizetype kPassword = 0x42;
constexpr qsizetype kPasswordJet3 = 20;
constexpr qsizetype kPasswordJet4 = 40;
constexpr qsizetype kCreated = 0x72; // the day of making, whose whole part masks the password of Jet 4
constexpr qint64 kPageJet3 = 2048;
constexpr qint64 kPageJet4 = 4096;
constexpr qint64 kFewestPages = 4; // head, free pages, the catalogue and a page of its rows
constexpr std::array<unsigned char, 4> kKey = {0xC7, 0xDA, 0x39, 0x6B};

// The stream cipher of the head: its own inverse.
class Cipher
{
public:
    Cipher()
    {
        for (std::size_t i = 0; i < m_state.size(); ++i)
            m_state[i] = static_cast<unsigned char>(i);
        unsigned j = 0;
        for (unsigned i = 0; i < m_state.size(); ++i) {
            j = (j + m_state[i] + kKey[i % kKey.size()]) & 0xff;
            std::swap(m_state[i], m_state[j]);
        }
    }
    void run(QByteArray &bytes, qsizetype from, qsizetype length)
    {
        for (qsizetype k = from; k < from + length && k < bytes.size(); ++k)
            bytes[k] = char(static_cast<unsigned char>(bytes[k]) ^ next());
    }

private:
    unsigned char next()
    {
        m_i = (m_i + 1) & 0xff;
        m_j = (m_j + m_state[m_i]) & 0xff;
        std::swap(m_state[m_i], m_state[m_j]);
        return m_state[(m_state[m_i] + m_state[m_j]) & 0xff];
    }

    std::array<unsigned char, 256> m_state{};
    unsigned m_i = 0;
    unsigned m_j = 0;
};

QString passwordJet3(const QByteArray &head)
{
    const QByteArray bytes = head.mid(kPassword, kPasswordJet3);
    return fromWindows1252(bytes.left(qsizetype(qstrnlen(bytes.constData(), size_t(bytes.size())))));
}

std::array<unsigned char, 4> maskOf(const QByteArray &head)
{
    quint64 bits = qFromLittleEndian<quint64>(head.constData() + kCreated);
    double day = 0;
    std::memcpy(&day, &bits, sizeof day);
    std::array<unsigned char, 4> mask{};
    if (std::isfinite(day) && std::abs(day) < 2147483647.0)
        qToLittleEndian<qint32>(qint32(day), mask.data());
    return mask;
}

QString passwordJet4(const QByteArray &head)
{
    const std::array<unsigned char, 4> mask = maskOf(head);
    QString password;
    for (qsizetype i = 0; i + 1 < kPasswordJet4; i += 2) {
        const auto byte = [&](qsizetype k) {
            return static_cast<unsigned char>(head[kPassword + k]) ^ mask[size_t(k) % mask.size()];
        };
        const auto unit = char16_t(byte(i) | (byte(i + 1) << 8));
        if (unit == 0)
            break;
        password += QChar(unit);
    }
    return password;
}

} // namespace

TestataMdb leggiTestata(const QByteArray &start, qint64 size)
{
    TestataMdb head;
    if (start.mid(kName, 15) == "Standard ACE DB") {
        head.esito = TestataMdb::Esito::Recente;
        return head;
    }
    if (!isJetFile(start))
        return head;
    if (start.size() < kTestataMdb || size < kTestataMdb) {
        head.esito = TestataMdb::Esito::Corta;
        return head;
    }
    const auto version = static_cast<unsigned char>(start[kVersion]);
    if (version > 1) {
        head.esito = TestataMdb::Esito::Recente;
        return head;
    }
    head.jet = version == 0 ? 3 : 4;
    const qint64 page = head.jet == 3 ? kPageJet3 : kPageJet4;
    head.esito = size % page == 0 && size >= kFewestPages * page ? TestataMdb::Esito::Buona : TestataMdb::Esito::Tronca;

    QByteArray clear = start;
    Cipher().run(clear, kCoded, head.jet == 3 ? kCodedJet3 : kCodedJet4);
    head.password = head.jet == 3 ? passwordJet3(clear) : passwordJet4(clear);
    return head;
}
