// read and shadow.
#include "cli/ombre.h"

#include <unistd.h>

#include <cstdio>

#include "app/comandi.h"
#include "certificato/istante.h"
#include "certificato/percorso.h"
#include "cli/consegna.h"
#include "cli/disegno.h"
#include "cli/place.h"
#include "formati/formati.h"
#include "luoghi/fusi.h"

namespace ombrelia::cli {

namespace {

using ombra::GRADI;
using ombra::Luce;

const char *parola(Luce l) {
    switch (l) {
        case Luce::Si:
            return "yes";
        case Luce::Notte:
            return "night";
        case Luce::Dietro:
            return "behind";
        case Luce::Radente:
            return "grazing";
        case Luce::Mai:
            return "never";
    }
    return "";
}

// Fixed decimals, never "-0.000000".
std::string cifre(double v, int posti = 6) {
    char t[64];
    std::snprintf(t, sizeof t, "%.*f", posti, v);
    return t[0] == '-' && std::string_view(t).find_first_of("123456789") == std::string_view::npos ? t + 1 : t;
}
std::string cifre(const std::optional<double> &v) { return v ? cifre(*v) : "none"; }
void riga(const char *nome, const std::string &valore) { std::printf("%s=%s\n", nome, valore.c_str()); }

bool perPersone() { return isatty(STDOUT_FILENO) == 1; }

std::string sole(const ombra::SoleLetto &l) {
    return "the Sun " + cifre(std::fabs(l.altezza) * GRADI, 1) + "\xC2\xB0 " + (l.altezza < 0 ? "below the horizon" : "high") +
           ", " + cifre(std::fabs(l.azimut) * GRADI, 1) + "\xC2\xB0 " + (l.azimut < 0 ? "East" : "West") + " of South";
}

// Hours: +2, -3:30, 5.75.
bool leggiFuso(const std::string &testo, double &ore) {
    const std::size_t due = testo.find(':');
    double minuti = 0;
    if (due != std::string::npos && (!Numero(testo.substr(due + 1), minuti) || minuti < 0 || minuti >= 60)) return false;
    if (!Numero(testo.substr(0, due), ore)) return false;
    ore += testo.starts_with('-') ? -minuti / 60 : minuti / 60;
    return std::fabs(ore) <= 15;
}

// Hours of 10:40 or 10:40:30.
bool leggiOra(const std::string &testo, double &ore) {
    int h = 0, m = 0, s = 0, fine = 0;
    if (std::sscanf(testo.c_str(), "%2d:%2d%n:%2d%n", &h, &m, &fine, &s, &fine) < 2) return false;
    ore = h + m / 60.0 + s / 3600.0;
    return static_cast<std::size_t>(fine) == testo.size() && h >= 0 && h < 24 && m >= 0 && m < 60 && s >= 0 && s < 60;
}

struct ArgomentiOmbra {
    Commissione disegno;
    std::vector<std::string> altri;  // what is no option
    std::optional<ombra::Data> data;
    std::optional<double> ora, fuso;
    bool giorno = false, animato = false;
    double passo = 10;  // minutes
};

// The options of both commands; shadow tells which of its own are taken.
std::string leggi(int argc, char **argv, bool shadow, ArgomentiOmbra &r) {
    bool soloAltri = false;
    for (int i = 0; i < argc; ++i) {
        const std::string a = argv[i];
        std::string errore;
        double n = 0;
        if (soloAltri || !a.starts_with("-") || (!shadow && Numero(a, n))) {
            r.altri.push_back(a);
            continue;
        }
        if (a == "--") {
            soloAltri = true;
            continue;
        }
        if (r.disegno.Prendi(argc, argv, i, errore)) {
            if (!errore.empty()) return errore;
            continue;
        }
        if (shadow && (a == "--day" || a == "--animate" || a == "--utc")) {
            if (a == "--day") r.giorno = true;
            else if (a == "--animate") r.animato = r.giorno = true;
            else r.fuso = 0;
            continue;
        }
        if (a != "--date" && !(shadow && (a == "--time" || a == "--zone" || a == "--step")))
            return "unknown option " + a + "; see ombrelia " + (shadow ? "shadow" : "read") + " --help";
        if (i + 1 >= argc) return a + " needs an argument";
        const std::string valore = argv[++i];
        if (a == "--date") {
            r.data = ombra::leggiData(valore);
            if (!r.data) return "--date " + valore + ": no date, write it as 2026-06-21";
        } else if (a == "--time") {
            if (!leggiOra(valore, n)) return "--time " + valore + ": no time, write it as 10:40 or 10:40:30";
            r.ora = n;
        } else if (a == "--zone") {
            if (!leggiFuso(valore, n)) return "--zone " + valore + ": no zone; hours East of Greenwich, as in +2 or -3:30";
            r.fuso = n;
        } else if (!Numero(valore, r.passo) || !(r.passo >= 0.1 && r.passo <= 720)) {
            return "--step " + valore + ": minutes from 0.1 to 720";
        }
    }
    return {};
}

// Hours East of Greenwich: as asked for; else what the clock of --place shows then, with its summer time; else the zone's mean
// time.
double fusoDi(const ArgomentiOmbra &r, const Posa &posa, const ombra::Data &data, double ore) {
    if (r.fuso) return *r.fuso;
    std::string errore;
    const Campi &campi = r.disegno.campi;
    const luoghi::Luogo *l = campi.luogo.empty() ? nullptr : TrovaLuogo(campi.luogo, campi.paese, errore);
    if (!l) return posa.fuso();
    const int minuti = static_cast<int>(ore * 60);
    const luoghi::Orario o{data.anno, data.mese, data.giorno, minuti / 60, minuti % 60, 0};
    return luoghi::Fuso::LeggiOppure(l->fuso, l->base).InCivile(o).ora.scarto / 3600.0;
}

std::string controlla(const Posa &p) {
    if (!(std::fabs(p.quadrante.gnomone) > 0)) return "TxtStilo is 0: no gnomon, no shadow";
    return {};
}

void stampa(const Istante &i) {
    const bool cade = i.ombra.luce == Luce::Si;
    riga("lit", parola(i.ombra.luce));
    riga("x", cade ? cifre(i.ombra.punto.x * 1000, 5) : "none");
    riga("y", cade ? cifre(i.ombra.punto.y * 1000, 5) : "none");
    riga("altitude", cifre(i.cielo.altezza * GRADI));
    riga("azimuth", cifre(i.cielo.azimut * GRADI));
    riga("hour_angle", cifre(i.cielo.t * GRADI));
    riga("declination", cifre(i.cielo.delta * GRADI));
    riga("equation_of_time", cifre(i.sole.equazione));
    riga("true_hour", cifre(ombra::oraVera(i.cielo.t)));
}

void stampaGiorno(const std::vector<Istante> &giorno) {
    std::puts("time,lit,x,y,altitude,azimuth,hour_angle,declination,equation_of_time,true_hour");
    for (const Istante &i : giorno) {
        const bool cade = i.ombra.luce == Luce::Si;
        const std::string campi[] = {Orologio(i.ore, true),
                                     parola(i.ombra.luce),
                                     cade ? cifre(i.ombra.punto.x * 1000, 5) : "",
                                     cade ? cifre(i.ombra.punto.y * 1000, 5) : "",
                                     cifre(i.cielo.altezza * GRADI),
                                     cifre(i.cielo.azimut * GRADI),
                                     cifre(i.cielo.t * GRADI),
                                     cifre(i.cielo.delta * GRADI),
                                     cifre(i.sole.equazione),
                                     cifre(ombra::oraVera(i.cielo.t))};
        std::string t;
        for (const std::string &c : campi) t += (t.empty() ? "" : ",") + c;
        std::puts(t.c_str());
    }
}

}  // namespace

int Read(int argc, char **argv) {
    ArgomentiOmbra r;
    if (const std::string e = leggi(argc, argv, false, r); !e.empty()) return Rifiuta("read", e);
    double x = 0, y = 0;
    if (r.altri.size() != 2 || !Numero(r.altri[0], x) || !Numero(r.altri[1], y))
        return Rifiuta("read", "give a point: X and Y in mm, right and up from the gnomon's foot");
    SessioneDiComando c;
    Sessione &s = c.s;
    if (const std::string e = r.disegno.campi.Applica(s); !e.empty()) return Rifiuta("read", e);
    const Posa posa = PosaDeiCampi(s);
    if (const std::string e = controlla(posa); !e.empty()) return Rifiuta("read", e);
    const LetturaPunto l = LeggiPunto(posa, {x / 1000, y / 1000}, r.data.value_or(Oggi(posa.fuso())).anno);
    std::string date;
    for (const ombra::Data &d : l.date) date += (date.empty() ? "" : " ") + testoData(d);
    if (perPersone()) {
        const std::string quando =
            date.empty() ? "" : " on " + testoData(l.date.front()) + (l.date.size() > 1 ? " or " + testoData(l.date[1]) : "");
        std::string frase = Orologio(l.oraVera) + " true time" + quando + ", " + sole(l.sole) + ".";
        if (l.sole.luce == Luce::Notte) frase = "No shadow falls here: the Sun would be down, " + sole(l.sole) + ".";
        if (l.sole.luce == Luce::Mai)
            frase = "No shadow falls here: no Sun has the declination " + cifre(l.sole.delta * GRADI, 1) + "\xC2\xB0.";
        std::puts(frase.c_str());
    }
    riga("lit", parola(l.sole.luce));
    riga("true_hour", cifre(l.oraVera));
    riga("hour_angle", cifre(l.sole.t * GRADI));
    riga("declination", cifre(l.sole.delta * GRADI));
    riga("altitude", cifre(l.sole.altezza * GRADI));
    riga("azimuth", cifre(l.sole.azimut * GRADI));
    riga("italic", cifre(l.italica));
    riga("babylonian", cifre(l.babilonica));
    riga("temporary", cifre(l.temporaria));
    riga("dates", date.empty() ? "none" : date);
    riga("mm_per_minute", cifre(l.mmAlMinuto, 5));
    riga("mm_per_day", l.momenti.empty() ? "none" : cifre(l.mmAlGiorno, 5));
    return 0;
}

int Shadow(int argc, char **argv) {
    ArgomentiOmbra r;
    if (const std::string e = leggi(argc, argv, true, r); !e.empty()) return Rifiuta("shadow", e);
    if (!r.ora && !r.giorno) return Rifiuta("shadow", "give --time, as in --time 10:40, or --day");
    if (r.altri.size() > (r.giorno ? 1U : 0U)) return Rifiuta("shadow", "what is " + r.altri.back() + "? One .svg behind --day");
    const std::string svg = r.altri.empty() ? "" : r.altri.front();
    if (!svg.empty() && !UguaglianzaSenzaCaso(Estensione(svg), "svg") && svg != "-")
        return Rifiuta("shadow", svg + ": the day is drawn as .svg");
    if (r.animato && svg.empty()) return Rifiuta("shadow", "--animate needs an .svg file");
    SessioneDiComando c;
    Sessione &s = c.s;
    const std::string e = svg.empty() ? r.disegno.campi.Applica(s) : r.disegno.Applica(s);
    if (!e.empty()) return Rifiuta("shadow", e);
    const Posa posa = PosaDeiCampi(s);
    if (const std::string m = controlla(posa); !m.empty()) return Rifiuta("shadow", m);
    const ombra::Data data = r.data.value_or(Oggi(r.fuso.value_or(posa.fuso())));
    const double fuso = fusoDi(r, posa, data, r.ora.value_or(12));
    if (r.giorno) {
        if (svg.empty() || svg != "-") stampaGiorno(GiornataDi(posa, data, fuso, r.passo));
        if (svg.empty()) return 0;
        if (const std::string m = r.disegno.Esegui(s); !m.empty()) return Rifiuta("shadow", m);
        const double fitto = std::min(r.passo, 5.0);  // a path is drawn finer than it is listed
        const std::string errore = Consegna(svg, SvgConPercorso(s.tavolo, posa, GiornataDi(posa, data, fuso, fitto), r.animato));
        return errore.empty() ? 0 : Rifiuta("shadow", errore);
    }
    const Istante i = IstanteDi(posa, data, *r.ora, fuso);
    if (perPersone()) {
        std::string frase = "The tip's shadow falls " + cifre(std::fabs(i.ombra.punto.x) * 1000, 1) + " mm to the " +
                            (i.ombra.punto.x < 0 ? "left of" : "right of") + " the foot and " +
                            cifre(std::fabs(i.ombra.punto.y) * 1000, 1) + " mm " + (i.ombra.punto.y < 0 ? "below" : "above") +
                            " it; ";
        if (i.ombra.luce == Luce::Notte) frase = "No shadow: it is night; ";
        if (i.ombra.luce == Luce::Dietro) frase = "No shadow: the Sun is behind the plane; ";
        if (i.ombra.luce == Luce::Radente) frase = "No shadow: the Sun grazes the plane; ";
        std::puts((frase + sole(i.cielo) + ", " + Orologio(ombra::oraVera(i.cielo.t)) + " true time.").c_str());
    }
    stampa(i);
    return 0;
}

}  // namespace ombrelia::cli
