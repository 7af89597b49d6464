// Message boxes and input boxes, read and answered. All throw NotThere where no such box is in front.
#pragma once

#include "Names.h"
#include "Script.h"

// {"title", "text", "icon", "buttons", "default"} as one line of JSON.
QString describeBox(const WindowOrder &windows);
// yes, no, ok, cancel, a number from 1, or a caption.
void answerBox(const WindowOrder &windows, const Argument &answer);
void answerInput(const WindowOrder &windows, const QString &text);
void cancelInput(const WindowOrder &windows);
