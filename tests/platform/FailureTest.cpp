// What a failure tells the user.
#include "platform/StoreTest.h"

namespace {

TEST(FailureTest, EveryNumberHasItsItalianWords)
{
    struct Case
    {
        FailureNumber number;
        int value;
        QString words;
    };
    const std::vector<Case> cases = {
        {FailureNumber::TypeMismatch, 13, u"Tipo non corrispondente"_s},
        {FailureNumber::FileNotFound, 53, u"File non trovato"_s},
        {FailureNumber::InputPastEnd, 62, u"Lettura oltre la fine del file"_s},
        {FailureNumber::PathAccess, 75, u"Non si può scrivere il file o la cartella"_s},
        {FailureNumber::PathNotFound, 76, u"Cartella non trovata"_s},
        {FailureNumber::InvalidNull, 94, u"Manca un valore (valore nullo non valido)"_s},
        {FailureNumber::NoCurrentRow, 3021, u"Non c'è nessun record corrente"_s},
        {FailureNumber::NotPermitted, 3251, u"Questo elenco è di sola lettura"_s},
        {FailureNumber::NoSuchField, 3265, u"Il campo richiesto non esiste"_s},
        {FailureNumber::ObjectClosed, 3704, u"Operazione non consentita su un elenco chiuso"_s},
        {FailureNumber::ObjectOpen, 3705, u"Operazione non consentita su un elenco già aperto"_s},
        {FailureNumber::ConnectionClosed, 3709, u"Il collegamento al database non è aperto"_s},
    };
    for (const Case &known : cases) {
        EXPECT_EQ(int(known.number), known.value);
        EXPECT_EQ(Failure::usual(known.number).words(), known.words);
    }
    EXPECT_EQ(int(FailureNumber::LoginRefused), int(0x80040E4D));
    EXPECT_EQ(Failure::usual(FailureNumber::NoSuchField, u"Nominativo"_s).words(),
              u"Il campo richiesto non esiste: Nominativo"_s);
}

} // namespace
