// Why a command cannot be carried out.
#pragma once

#include <QString>

// A window or control is not there yet: worth waiting for.
struct NotThere
{
    QString words;
};

// Nothing that waiting would mend.
struct Wrong
{
    QString words;
};
