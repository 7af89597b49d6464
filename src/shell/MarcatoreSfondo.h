// The marker file "Sfondo" beside the program: its presence shows the background screen.
#pragma once

#include "platform/text/ProgramFolder.h"

bool SfondoVisibile(const ProgramFolder &folder);
void SegnaSfondo(const ProgramFolder &folder);      // makes the marker
void TogliSegnoSfondo(const ProgramFolder &folder); // deletes it
