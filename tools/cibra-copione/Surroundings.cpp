#include "Surroundings.h"

#include <utility>

namespace {

QString kindName(ProgramKind kind)
{
    switch (kind) {
    case ProgramKind::TextViewer:
        return QStringLiteral("text");
    case ProgramKind::Page:
        return QStringLiteral("page");
    case ProgramKind::Calculator:
        return QStringLiteral("calculator");
    case ProgramKind::Mail:
        return QStringLiteral("mail");
    case ProgramKind::Files:
        return QStringLiteral("files");
    case ProgramKind::Printer:
        return QStringLiteral("printer");
    }
    return {};
}

} // namespace

void RecordedProgrammi::start(ProgramKind kind, const QString &target)
{
    m_started.append(QJsonArray{kindName(kind), target});
}

QJsonArray RecordedProgrammi::take()
{
    return std::exchange(m_started, {});
}

int CountingSchermo::take()
{
    return std::exchange(m_beeps, 0);
}
