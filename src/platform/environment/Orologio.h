// Today and now.
#pragma once

#include <QDateTime>

class Orologio
{
public:
    virtual ~Orologio() = default;
    virtual QDateTime now() const = 0;
    QDate today() const { return now().date(); }
};

class OrologioDiSistema : public Orologio
{
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};

// A clock that stands still: for tests and for --today.
class OrologioFermo : public Orologio
{
public:
    explicit OrologioFermo(const QDateTime &when) : m_when(when) {}
    QDateTime now() const override { return m_when; }

private:
    QDateTime m_when;
};
