// Message boxes and input boxes on the screen, with Italian buttons.
#pragma once

#include "platform/environment/Dialoghi.h"
#include "platform/ui/FormHost.h"

class DialoghiQt : public Dialoghi
{
public:
    DialoghiQt(FormHost &host, const QString &programName);
    MsgAnswer MsgBox(const QString &text, int flags, const QString &title) override;
    int Msg1(const MsgBoxEx &fields) override;
    QString InputBox(const QString &prompt, const QString &title, bool hidden) override;

private:
    FormHost &m_host;
    QString m_programName;
};
