// The certificate as text, JSON and a page to print.
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "certificato/certificato.h"
#include "certificato/istante.h"
#include "core/testo.h"

namespace ombrelia {

namespace {

std::string cifre(double v, int posti) {
    char t[64];
    std::snprintf(t, sizeof t, "%.*f", posti, v);
    return t[0] == '-' && std::string_view(t).find_first_of("123456789") == std::string_view::npos ? t + 1 : t;
}

std::string naturale(const RigaCertificato &r) { return cifre(r.naturale, r.naturale < 10 ? 1 : 0) + (r.tempo ? " s" : "'"); }
std::string luogo(const RigaCertificato &r) { return cifre(r.xPeggiore, 1) + ", " + cifre(r.yPeggiore, 1); }

// Four decimals of a millimetre; a line that is nowhere near is not written in twenty digits.
std::string json(double v) { return cifre(std::min(std::max(v, -1e9), 1e9), 4); }

std::string citato(std::string_view t) {
    std::string r = "\"";
    for (const char c : DaFile(std::string(t))) {
        if (c == '"' || c == '\\') r += '\\', r += c;
        else if (static_cast<unsigned char>(c) < ' ') r += ' ';
        else r += c;
    }
    return r + '"';
}

std::string html(std::string_view t) {
    std::string r;
    for (const char c : DaFile(std::string(t))) AggiungiXml(r, c);
    return r;
}

std::string riempi(std::string t, std::size_t n, bool destra) {
    std::size_t lungo = 0;
    for (const char c : t) lungo += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    if (lungo >= n) return t;
    return destra ? std::string(n - lungo, ' ') + t : t + std::string(n - lungo, ' ');
}

std::string pretesa(const RigaCertificato &r, const Dizionario *d = nullptr) { return d ? TestoRiga(*d, r) : TestoRiga(r); }

struct Parola {
    std::string_view italiano, inglese;
};
std::string dici(const Dizionario *d, const Parola &p) { return d ? d->Traduci(p.italiano) : std::string(p.inglese); }

constexpr Parola TITOLO{"Certificato del quadrante"_it, "Certificate of the dial"}, STRATO{"strato"_it, "layer"},
    LINEA{"linea"_it, "line"}, DISEGNATI{"disegnati mm"_it, "drawn mm"}, MASSIMO{"scarto massimo mm"_it, "largest mm"},
    MEDIO{"scarto medio mm"_it, "mean mm"}, TEMPO{"tempo, angolo"_it, "time, angle"}, MANCANTI{"mancanti mm"_it, "missing mm"},
    SUPERFLUI{"superflui mm"_it, "superfluous mm"}, DOVE{"punto peggiore mm"_it, "worst at mm"},
    LATITUDINE{"latitudine Nord"_it, "latitude North"}, LONGITUDINE{"longitudine Ovest"_it, "longitude West"},
    PIANO{"azimut del piano da Sud"_it, "plane looks to, from South"},
    INCLINAZIONE{"inclinazione del piano"_it, "inclination from the vertical"}, GNOMONE{"ortostilo in mm"_it, "gnomon in mm"},
    DATA{"data del certificato"_it, "date of the certificate"}, TOLLERANZA{"tolleranza in mm"_it, "tolerance in mm"},
    IGNOTI{"segni senza pretesa, non esaminati"_it, "records without a claim, not checked"}, SITO{"luogo"_it, "place"},
    CORNICE{"cornice in mm"_it, "frame in mm"}, ORE{"le ore contano"_it, "the hours count"},
    DEL_LUOGO{"dal meridiano del luogo"_it, "from the meridian of the site"},
    DEL_FUSO{"dal meridiano del fuso, Ovest "_it, "from the zone's meridian, West "},
    RILETTI{"linee, corde e punti riletti"_it, "lines, chords and dots read back"},
    OLTRE{"oltre la cornice mm"_it, "beyond the frame mm"},
    METODO{
        "Ogni corda è riletta ai due capi e nel mezzo: dal punto al Sole che vi porta l'ombra, coi soli vettori, senza le "
        "formule che l'hanno tracciata. Una linea è vera quando tutta sta entro la tolleranza, al più lo 0,5 % cade dove non "
        "arriva mai l'ombra e al più il 2 % di ciò che si vedrebbe nella cornice manca. Le coordinate vanno a destra e in "
        "alto dal piede dell'ortostilo, sul quadrante come è montato."_it,
        "Each chord is read back at both ends and its middle: from the point to the Sun that throws the shadow there, by "
        "vectors alone, without the formulas that drew it. A line is true when all of it lies within the tolerance, at most "
        "0.5 % where no shadow ever falls, and at most 2 % of what would be seen inside the frame is missing. Places go right "
        "and up from the foot of the gnomon, on the dial as it is mounted."};

// The worst places of the lines that are not true, the worst first.
std::vector<const RigaCertificato *> peggiori(const Certificato &c, std::size_t quanti) {
    std::vector<const RigaCertificato *> p;
    for (const RigaCertificato &r : c.righe)
        if (!r.vera && r.misurata() && r.massimo > c.tolleranza) p.push_back(&r);
    std::stable_sort(p.begin(), p.end(), [](auto *a, auto *b) { return a->massimo > b->massimo; });
    p.resize(std::min(p.size(), quanti));
    return p;
}

// The page's markup. Attributes rather than styles where a simple reader of such pages, as a printer of the window's, knows
// only these.
class PaginaCertificato {
public:
    PaginaCertificato(const Dizionario *d, std::string titolo) : d_(d) {
        testo_ = "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>" + html(titolo) +
                 "</title>\n<style>@page{size:A4;margin:15mm}body{font-family:sans-serif;font-size:10pt;color:#222;"
                 "max-width:190mm;margin:auto}h1{font-size:18pt;margin:0 0 2mm}h2{font-size:12pt;font-weight:normal;margin:0 0 "
                 "3mm}.dati{font-size:9pt}"
                 "p{margin:2mm 0}table{border-collapse:collapse;width:100%}th{font-weight:600;border-bottom:1px solid #222}"
                 "tr{page-break-inside:avoid}.righe{font-size:8pt}.righe "
                 "td{white-space:nowrap}.verdetto{font-size:14pt}.metodo{font-size:8pt;color:#555}"
                 "</style></head>\n<body>\n<h1>" +
                 html(titolo) + "</h1>\n";
    }
    void capo(const std::string &t) { testo_ += "<h2>" + html(t) + "</h2>\n"; }
    void paragrafo(std::string_view classe, const std::string &t) {
        testo_ += "<p class=\"" + std::string(classe) + "\">" + html(t) + "</p>\n";
    }
    void riquadro(std::string_view colore, const std::string &t) {
        testo_ += "<p></p>\n<table width=\"100%\" cellpadding=\"8\"><tr><td class=\"verdetto\" bgcolor=\"" + std::string(colore) +
                  "\"><b>" + html(t) + "</b></td></tr></table>\n";
    }
    void apri(std::string_view classe) {
        testo_ += "<table class=\"" + std::string(classe) + "\" width=\"100%\" cellspacing=\"0\" cellpadding=\"2\">\n";
    }
    void chiudi() { testo_ += "</table>\n"; }
    void riga(std::string_view attributi = {}) { testo_ += "<tr" + std::string(attributi) + ">"; }
    void fineRiga() { testo_ += "</tr>\n"; }
    void cella(const std::string &t, bool destra, const char *nome = "td") {
        testo_ += std::string("<") + nome + (destra ? " align=\"right\">" : " align=\"left\">") + html(t) + "</" + nome + ">";
    }
    [[nodiscard]] std::string dici(const Parola &p) const { return ombrelia::dici(d_, p); }
    void marca(std::string_view t) { testo_ += t; }
    [[nodiscard]] std::string fine() && { return std::move(testo_) + "</body></html>\n"; }

private:
    const Dizionario *d_;
    std::string testo_;
};

}  // namespace

std::string CertificatoTesto(const DatiCertificato &dati, const Certificato &c) {
    std::string t = "latitude " + cifre(dati.posa.quadrante.latitudine * ombra::GRADI, 5) + ", plane looks to " +
                    cifre(dati.posa.quadrante.declinazione * ombra::GRADI, 4) + " from South, inclination " +
                    cifre(dati.posa.quadrante.inclinazione * ombra::GRADI, 4) + ", gnomon " +
                    cifre(dati.posa.quadrante.gnomone * 1000, 2) + " mm\n\n";
    struct ColonnaCertificato {
        std::string_view nome;
        std::size_t larga;
        bool destra;
    };
    constexpr ColonnaCertificato COLONNE[] = {
        {"", 2, false}, {"layer", 18, false}, {"claim", 24, false},     {"drawn mm", 10, true},    {"largest mm", 12, true},
        {"", 9, true},  {"mean mm", 9, true}, {"missing mm", 11, true}, {"superfluous", 12, true}, {"worst at mm", 20, true}};
    const auto riga = [&](std::initializer_list<std::string> celle) {
        std::size_t i = 0;
        std::string r;
        for (const std::string &s : celle) r += riempi(s, COLONNE[i].larga, COLONNE[i].destra), ++i;
        while (r.ends_with(' ')) r.pop_back();
        t += r + '\n';
    };
    std::vector<std::string> testa;
    for (const ColonnaCertificato &k : COLONNE) testa.emplace_back(k.nome);
    riga({testa[0], testa[1], testa[2], testa[3], testa[4], testa[5], testa[6], testa[7], testa[8], testa[9]});
    double oltre = 0;
    for (const RigaCertificato &r : c.righe) {
        oltre += r.oltre;
        if (!r.misurata()) {
            riga({r.vera ? " " : "!", r.strato, pretesa(r), r.doppia ? cifre(r.disegnati, 1) : ""});
            continue;
        }
        riga({r.vera ? " " : "!", r.strato, pretesa(r), cifre(r.disegnati, 1), json(r.massimo), naturale(r), json(r.medio),
              cifre(r.mancanti, 2), cifre(r.superflui, 2), luogo(r)});
    }
    t += "\nunchecked: " + std::to_string(c.ignoti) + " records without a claim\n";
    if (oltre > 0) t += "beyond the frame: " + cifre(oltre, 1) + " mm\n";
    for (const RigaCertificato *r : peggiori(c, 3))
        t += "worst: " + pretesa(*r) + " off by " + cifre(r->massimo, 3) + " mm at " + luogo(*r) + "\n";
    return t + VerdettoInglese(c) + '\n';
}

std::string CertificatoJson(const Certificato &c) {
    std::string t = "{\"worst_mm\":" + json(c.peggiore) + ",\"true\":" +
                    (!c.esaminate() ? "null"
                     : c.vero()     ? "true"
                                    : "false") +
                    ",\"lines\":[";
    bool primo = true;
    for (const RigaCertificato &r : c.righe) {
        t += primo ? "\n" : ",\n";
        primo = false;
        t += "{\"layer\":" + citato(r.strato) + ",\"claim\":" + citato(pretesa(r)) + ",\"drawn_mm\":" + json(r.disegnati) +
             ",\"max_mm\":" + json(r.massimo) + ",\"mean_mm\":" + json(r.medio) + ",\"missing_mm\":" + json(r.mancanti) +
             ",\"superfluous_mm\":" + json(r.superflui) + ",\"worst_at\":[" + json(r.xPeggiore) + "," + json(r.yPeggiore) + "]}";
    }
    return t + "]}\n";
}

std::string CertificatoHtml(const DatiCertificato &dati, const Certificato &c, const Dizionario *d) {
    PaginaCertificato p(d, dici(d, TITOLO));
    if (!dati.titolo.empty()) p.capo(dati.titolo);
    const ombra::QuadranteMontato &q = dati.posa.quadrante;
    const auto gradi = [](double radianti, int posti) { return cifre(radianti * ombra::GRADI, posti) + "\xC2\xB0"; };
    const auto mm = [](double metri) { return cifre(metri * 1000, 1); };
    std::size_t linee = 0, corde = 0, punti = 0;
    double oltre = 0;
    for (const RigaCertificato &r : c.righe) linee += r.misurata(), corde += r.corde, punti += r.punti, oltre += r.oltre;

    // The dial's data, two to a line.
    std::vector<std::pair<std::string, std::string>> voci;
    const auto dato = [&](const Parola &nome, const std::string &valore) { voci.emplace_back(p.dici(nome), valore); };
    if (!dati.luogo.empty()) dato(SITO, dati.luogo);
    dato(LATITUDINE, gradi(q.latitudine, 5));
    dato(LONGITUDINE, gradi(dati.posa.longitudine, 5));
    if (std::fabs(std::cos(q.inclinazione)) > 1e-9) dato(PIANO, gradi(q.declinazione, 4));
    dato(INCLINAZIONE, gradi(q.inclinazione, 4));
    dato(GNOMONE, cifre(q.gnomone * 1000, 2));
    dato(CORNICE, mm(dati.xMin) + ".." + mm(dati.xMax) + ", " + mm(dati.yMin) + ".." + mm(dati.yMax));
    dato(ORE, dati.delFuso ? p.dici(DEL_FUSO) + gradi(dati.posa.meridiano, 2) : p.dici(DEL_LUOGO));
    dato(RILETTI, std::to_string(linee) + ", " + std::to_string(corde) + ", " + std::to_string(punti));
    dato(IGNOTI, std::to_string(c.ignoti));
    if (oltre > 0) dato(OLTRE, cifre(oltre, 1));
    dato(TOLLERANZA, TestoNumero(c.tolleranza));
    dato(DATA, testoData(Oggi(dati.posa.fuso())));
    p.apri("dati");
    for (std::size_t i = 0; i < voci.size(); i += 2) {
        p.riga();
        for (std::size_t k = i; k < i + 2 && k < voci.size(); ++k) {
            p.marca("<td><font color=\"#666666\">" + html(voci[k].first) + "</font></td>");
            p.cella(voci[k].second, false);
        }
        p.fineRiga();
    }
    p.chiudi();
    p.riquadro(!c.esaminate() ? "#eeeeee" : c.vero() ? "#e3f4e6" : "#fbe3e0", d ? Verdetto(*d, c) : VerdettoInglese(c));
    for (const RigaCertificato *r : peggiori(c, 5))
        p.paragrafo("peggiore", pretesa(*r, d) + ": " + cifre(r->massimo, 3) + " mm, " + p.dici(DOVE) + ' ' + luogo(*r));

    p.apri("righe");
    p.marca("<thead>");
    p.riga();
    bool destra = false;
    std::size_t colonne = 0;
    for (const Parola &nome : {LINEA, STRATO, DISEGNATI, MASSIMO, TEMPO, MEDIO, MANCANTI, SUPERFLUI, DOVE}) {
        destra = colonne++ > 1;
        p.cella(p.dici(nome), destra, "th");
    }
    p.fineRiga();
    p.marca("</thead>\n");
    bool pari = false;
    for (const RigaCertificato &r : c.righe) {
        p.riga(!r.vera ? " bgcolor=\"#fbe3e0\"" : pari ? " bgcolor=\"#f4f4f2\"" : "");
        pari = !pari;
        p.cella(pretesa(r, d), false);
        p.cella(r.strato, false);
        std::vector<std::string> celle(7);
        if (!r.originale) celle[0] = cifre(r.disegnati, 1);
        if (r.misurata())
            celle = {celle[0], json(r.massimo), naturale(r), json(r.medio), cifre(r.mancanti, 2), cifre(r.superflui, 2),
                     luogo(r)};
        for (const std::string &t : celle) p.cella(t, true);
        p.fineRiga();
    }
    p.chiudi();
    p.paragrafo("metodo", p.dici(METODO));
    return std::move(p).fine();
}

}  // namespace ombrelia
