// The tables of reasons and of messages.
#include "desktop/parole.h"

#include "core/testo.h"
#include "desktop/dialoghi.h"

namespace ombrelia::desktop {

namespace {

constexpr std::pair<std::string_view, std::string_view> MOTIVI[] = {
    {"nothing is drawn", "Non c'è nessun disegno: premi prima Esegui"_it},
    {"the tolerance must be above 0", "La tolleranza dev'essere maggiore di 0"_it},
    {"texts as strokes take the Hershey alphabet (libhersheyfont), which is not here",
     "Le scritte come tratti vogliono l'alfabeto di Hershey, che qui manca"_it},
    {"nothing lies inside the frame", "Dentro la cornice non c'è niente"_it},
    {"nothing lies on the sheet", "Sul foglio non c'è niente"_it},
    {"the sheet is empty", "Il foglio è vuoto: altezza o larghezza 0"_it},
    {"no PDF can be made of this sheet", "Di questo foglio non si può fare un PDF"_it},
    {"not enough memory for this picture", "La memoria non basta per questa immagine"_it},
    {"no page of this sheet holds a line", "Nessuna pagina di questo foglio ha linee"_it},
};

// What engines and map tell of themselves in the status line: said alike in every language.
constexpr std::pair<std::string_view, std::string_view> DETTI[] = {
    {"I_Graf_diretta per ogni tipo di os comunque orientato ", "Disegnato: un piano qualsiasi"_it},
    {"Piana _Esegui: Vertical dial by spherical trigonometry ", "Disegnata: una parete, per trigonometria sferica"_it},
    {"Piede Esegui: algoritmo che usa prevalentemente la Geometria Analitica ",
     "Disegnata: una parete, per geometria analitica"_it},
    {"Grafica Analitica non è abilitata a lavorare a latitudini australi ",
     "La grafica analitica non disegna a latitudini australi"_it},
};

}  // namespace

QString Detto(const Ponte &ponte, std::string_view messaggio) {
    for (const auto &[motore, nostro] : DETTI)
        if (messaggio == motore) return ponte.Traduci(nostro);
    return Q(messaggio);
}

QString Motivo(const Ponte &ponte, std::string_view errore) {
    for (const auto &[inglese, nostro] : MOTIVI)
        if (errore == inglese) return ponte.Traduci(nostro);
    return Q(errore);
}

QString Iniziale(QString testo) {
    if (!testo.isEmpty()) testo.replace(0, 1, testo.at(0).toUpper());
    return testo;
}

}  // namespace ombrelia::desktop
