// Writing a report line by line.
#include "reports/tabulato.h"

#include <cstdio>

namespace ombrelia::reports {

namespace {

Elemento voce(Valore x, std::string testo) {
    Elemento v(std::move(testo));
    v.esiste = x.esiste();
    if (v.esiste) v.numero = x.v;
    return v;
}

// An item of no text that only carries a separator: joined to the item before it.
Elemento separatore(Separatore quale, int blank) {
    Elemento v("");
    v.dopo = quale;
    v.blank = blank;
    return v;
}

// Separators go to the item they follow.
void raccogli(std::vector<Elemento> &voci, const Elemento &nuova) {
    const bool solo = nuova.testo.empty() && nuova.dopo != Separatore::Nessuno;
    if (solo && !voci.empty() && voci.back().dopo == Separatore::Nessuno) {
        voci.back().dopo = nuova.dopo;
        voci.back().blank = nuova.blank;
    } else {
        voci.push_back(nuova);
    }
}

}  // namespace

Elemento Unito(Valore x) { return voce(x, x.esiste() ? TestoNumero(x.v) : std::string()); }

Elemento Numero(Valore x) {
    Elemento v = Unito(x);
    if (!v.testo.starts_with('-')) v.testo.insert(0, 1, ' ');
    v.testo += ' ';
    return v;
}

Elemento Fmt(Valore x, std::string_view maschera) { return voce(x, Formato(x, maschera)); }
Elemento Taglio4(Valore x) { return Numero(Int(x * 10000) / 10000).vero(x); }
Elemento Arrotonda5(Valore x) { return Numero(Round(x, 5)).vero(x); }

Elemento Ornamento(std::string_view testo) {
    Elemento v(testo);
    v.ornamento = true;
    return v;
}

Elemento Zona() { return separatore(Separatore::Zona, 0); }
Elemento Spc(int n) { return separatore(Separatore::Blank, n); }

Tabulato::Tabulato(Sessione &s, std::string_view modulo, Uscita uscita)
    : s_(s), uscita_(uscita), r_(uscita == Uscita::Schermo ? s.rapporti.aperto : s.rapporti.stampato) {
    r_ = {};
    r_.modulo = modulo;
    r_.caption = s.titolo(modulo);
}

void Tabulato::aggiungi(std::vector<Elemento> voci, GenereRiga genere) {
    const int tabella = genere == GenereRiga::Testo ? -1 : static_cast<int>(r_.tabelle.size()) - 1;
    std::vector<Elemento> raccolte;
    raccolte.reserve(voci.size());
    for (const Elemento &v : voci) {
        if (!v.esiste) break;
        raccogli(raccolte, v);
    }
    r_.righe.push_back({std::move(raccolte), colore_, genere, tabella});
}

void Tabulato::riga(std::initializer_list<Elemento> voci) {
    if (voci.size() > 0 && !voci.begin()->esiste) return;
    aggiungi(voci, GenereRiga::Testo);
}

void Tabulato::rigaUnita(std::initializer_list<Elemento> voci) {
    for (const Elemento &v : voci)
        if (!v.esiste) return;
    aggiungi(voci, GenereRiga::Testo);
}

void Tabulato::tabella(const std::string &titolo, std::vector<std::string> colonne) {
    r_.tabelle.push_back({titolo, std::move(colonne)});
}

void Tabulato::titoli(const Trilingue &righe) {
    for (const std::string &t : righe)
        if (!t.empty()) aggiungi({t}, GenereRiga::Titolo);
}

void Tabulato::intestazioni(const Trilingue &righe) {
    for (const std::string &t : righe)
        if (!t.empty()) aggiungi({t}, GenereRiga::Intestazione);
}

void Tabulato::legenda() {
    riga({tr("Legenda : G piede e origine coordinate, "_it), tr("C centro, P incontro sustilare equinoziale, "_it)});
    riga({tr("M incontro linea meridiana equinoziale,"_it), tr("S incontro sustilare con retta orizzontale da M."_it)});
    riga({tr("Metodo delle lunghezze d'ombra :"_it), tr(" se distanza C solstizio e,"_it),
          tr(" si C solstizio i, se-si distanza tra solstizi, "_it)});
    riga(
        {tr("ce distanza C equinoziale,"_it), tr(" se-ce solstizio e equinoziale,"_it), tr(" si-se solstizio i equinoziale"_it)});
}

void Tabulato::chiudi(std::string_view ultima) {
    const std::tm t = s_.rapporti.orologio();
    char data[64], ora[64];
    std::snprintf(data, sizeof data, "%02d-%02d-%04d", t.tm_mon + 1, t.tm_mday, t.tm_year + 1900);
    std::snprintf(ora, sizeof ora, "%02d:%02d:%02d", t.tm_hour, t.tm_min, t.tm_sec);
    riga({std::string(INDIRIZZO), Zona(), data, Zona(), " m,d,y"});
    riga({ora});
    if (!ultima.empty()) riga({ultima});
    consegna();
}

void Tabulato::consegna() {
    const auto &avvisa = schermo() ? s_.rapporti.suApertura : s_.rapporti.suStampa;
    if (avvisa) avvisa(r_);
}

std::size_t Lingua(const Sessione &s) {
    const std::string ora = s.Traduci("ora");
    return UguaglianzaSenzaCaso(ora, "heure") ? 1 : UguaglianzaSenzaCaso(ora, "hour") ? 2 : 0;
}

std::vector<std::string> Colonne(const Sessione &s, const Trilingue &intestazioni) {
    std::vector<std::string> nomi;
    const std::size_t lingua = Lingua(s);
    for (std::size_t k = 0; k <= lingua; ++k) {
        std::string_view t = intestazioni[k];
        for (std::size_t i = 0; !t.empty(); ++i) {
            const std::size_t fine = std::min(t.find("  "), t.size());
            std::string nome = SenzaBlanks(t.substr(0, fine));
            t.remove_prefix(fine);
            t.remove_prefix(std::min(t.find_first_not_of(' '), t.size()));
            if (nome.empty()) {
                --i;
                continue;
            }
            if (i < nomi.size()) nomi[i] = std::move(nome);
            else nomi.push_back(std::move(nome));
        }
    }
    return nomi;
}

bool TroppeRighe(Sessione &s, Valore da, Valore a, Valore frazione, double righePerPasso) {
    return TroppoFitto(s, {GiroOre(s, da, a, frazione, righePerPasso * PUNTI_MASSIMI / RIGHE_MASSIME)});
}

}  // namespace ombrelia::reports
