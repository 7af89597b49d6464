#include "support/ScriptedEnvironment.h"

#include "platform/Failure.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

QString nameOf(ProgramKind kind)
{
    switch (kind) {
    case ProgramKind::TextViewer:
        return QStringLiteral("TextViewer");
    case ProgramKind::Page:
        return QStringLiteral("Page");
    case ProgramKind::Calculator:
        return QStringLiteral("Calculator");
    case ProgramKind::Mail:
        return QStringLiteral("Mail");
    case ProgramKind::Files:
        return QStringLiteral("Files");
    case ProgramKind::Printer:
        return QStringLiteral("Printer");
    }
    return QStringLiteral("unknown");
}

} // namespace

void RecordingProgrammi::start(ProgramKind kind, const QString &target)
{
    started.append(target.isEmpty() ? nameOf(kind) : nameOf(kind) + u' ' + target);
    if (nothingIsInstalled)
        throw Failure::usual(FailureNumber::FileNotFound);
}

void ScriptedDado::script(std::initializer_list<double> values)
{
    m_values.insert(m_values.end(), values);
}

double ScriptedDado::next()
{
    ++thrown;
    if (m_values.empty()) {
        if (!strict)
            return m_fisso.next();
        ADD_FAILURE() << "throw " << thrown << " was not scripted";
        throw std::logic_error("an unscripted throw");
    }
    const double value = m_values.front();
    m_values.pop_front();
    return value;
}

bool RecordingSchermo::breathe()
{
    ++breaths;
    if (onBreath)
        onBreath();
    return escAtBreath > 0 && breaths >= escAtBreath;
}
