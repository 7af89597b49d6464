// How the program asks and tells: message boxes, the extended message box, the input box.
#pragma once

#include <QString>
#include <QStringList>

namespace MsgFlags {
constexpr int Critical = 16;
constexpr int Exclamation = 48;
constexpr int Information = 64;
constexpr int YesNoCritical = 20;
constexpr int YesNoInformation = 68;
constexpr int YesNoInformationDefaultNo = 324;
}

enum class MsgAnswer : int { Ok = 1, Annulla = 2, Si = 6, No = 7 };

// The fields of the extended message box, in the order in which a call fills them.
struct MsgBoxEx
{
    QString title;
    QString body;         // CR, LF or CR LF break the line
    QStringList buttons;  // one to three
    int defaultFlag = 0;  // 256 in two-button dialogs
    int buttonCode = 0;   // 102 two buttons, 103 three, 0 one
    int picture = 0;      // number in the image list
};

class Dialoghi
{
public:
    virtual ~Dialoghi() = default;
    // An ordinary message box; `flags` as in MsgFlags. Closing it by Esc or X answers No where there is a No. An empty
    // title stands for the program's name.
    virtual MsgAnswer MsgBox(const QString &text, int flags, const QString &title) = 0;
    // 6 for the first button, 7 for the second of two (and of three), 2 for the last of three. Esc answers as the last.
    virtual int Msg1(const MsgBoxEx &fields) = 0;
    // The answer, empty where it was cancelled. `hidden` hides what is typed.
    virtual QString InputBox(const QString &prompt, const QString &title, bool hidden = false) = 0;
};
