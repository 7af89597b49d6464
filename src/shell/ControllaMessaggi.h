// The administrator's messages in the system archive.
#pragma once

#include "core/ModNetServer.h"

// Looks at the last row of Messaggi: kinds 0 and 1 of today are shown, kind 2 is shown whatever its day and ends the
// program. Callers ask only while NetProc is true. Failures are ignored.
void ControllaMessaggi(ModNetServer &modulo);
