// How the program asks and tells: message boxes, the extended message box, the input box.
#pragma once

#include <QString>
#include <QStringList>

namespace MsgFlags {
constexpr int Plain = 0; // without an icon
constexpr int Critical = 16;
constexpr int Question = 32;
constexpr int Exclamation = 48;
constexpr int Information = 64;
constexpr int YesNoCritical = 20;
constexpr int YesNoQuestion = 36;
constexpr int YesNoInformation = 68;
constexpr int YesNoInformationDefaultNo = 324;
} // namespace MsgFlags

enum class MsgAnswer : int
{
    Ok = 1,
    Annulla = 2,
    Si = 6,
    No = 7
};

// Pictures of the extended message boxes, in the image list.
namespace Immagine {
constexpr int Errore = 3;
constexpr int Annullo = 5;
constexpr int Data = 7;
constexpr int Stampante = 8;
constexpr int Arresa = 10;
constexpr int LogVuoto = 18;
constexpr int Caratteri = 19;
constexpr int Conferma = 23;
constexpr int Programmatore = 27;
constexpr int Tabella = 32;
constexpr int Rifiuto = 36;
} // namespace Immagine

// The fields of the extended message box, in the order in which a call fills them. The window has as many buttons as
// there are captions, and shows a question mark for Immagine::Conferma, else the program's icon: `buttonCode` and the
// other pictures are for whoever records the boxes.
struct MsgBoxEx
{
    static constexpr int SecondIsDefault = 256;
    static constexpr int TwoButtons = 102;
    static constexpr int ThreeButtons = 103;
    // Answers: the first button, the second of two or three, the last of three.
    static constexpr int First = 6;
    static constexpr int Second = 7;
    static constexpr int Third = 2;

    QString title;
    QString body;        // CR, LF or CR LF break the line
    QStringList buttons; // one to three
    int defaultFlag = 0; // SecondIsDefault in two-button dialogs
    int buttonCode = 0;  // 0 for one button
    int picture = 0;
};

class Dialoghi
{
public:
    virtual ~Dialoghi() = default;
    // An ordinary message box; `flags` as in MsgFlags. Closing it by Esc or X answers No where there is a No. An empty
    // title stands for the program's name.
    virtual MsgAnswer MsgBox(const QString &text, int flags, const QString &title) = 0;
    // MsgBoxEx::First, Second or Third. Esc answers as the last.
    virtual int Msg1(const MsgBoxEx &fields) = 0;
    // The answer, empty where it was cancelled. `hidden` hides what is typed.
    virtual QString InputBox(const QString &prompt, const QString &title, bool hidden = false) = 0;
};
