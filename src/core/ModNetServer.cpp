#include "core/ModNetServer.h"

#include "platform/Failure.h"

Connection &ModNetServer::dati()
{
    if (!ConnessioneDati)
        throw Failure::usual(FailureNumber::ConnectionClosed);
    return *ConnessioneDati;
}

void TerminaProgramma()
{
    throw ProgramEnd();
}
