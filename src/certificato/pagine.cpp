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
    for (const char c : DaFile(std::string(t))) {
        if (c == '&') r += "&amp;";
        else if (c == '<') r += "&lt;";
        else if (c == '>') r += "&gt;";
        else r += c;
    }
    return r;
}

std::string riempi(std::string t, std::size_t n, bool destra) {
    std::size_t lungo = 0;
    for (const char c : t) lungo += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    if (lungo >= n) return t;
    return destra ? std::string(n - lungo, ' ') + t : t + std::string(n - lungo, ' ');
}

std::string pretesa(const RigaCertificato &r, const Dizionario *d = nullptr) {
    const std::string t = d ? TestoPretesa(*d, r.specie, r.valore) : TestoPretesa(r.specie, r.valore);
    return r.doppia ? t + (d ? d->Traduci(", due volte") : ", drawn twice") : t;
}

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
    IGNOTI{"segni senza pretesa, non esaminati"_it, "records without a claim, not checked"};

}  // namespace

std::string CertificatoTesto(const DatiCertificato &dati, const Certificato &c) {
    std::string t = "latitude " + cifre(dati.posa.quadrante.latitudine * ombra::GRADI, 5) + ", plane looks to " +
                    cifre(dati.posa.quadrante.declinazione * ombra::GRADI, 4) + " from South, inclination " +
                    cifre(dati.posa.quadrante.inclinazione * ombra::GRADI, 4) + ", gnomon " +
                    cifre(dati.posa.quadrante.gnomone * 1000, 2) + " mm\n\n";
    struct Colonna {
        std::string_view nome;
        std::size_t larga;
        bool destra;
    };
    constexpr Colonna COLONNE[] = {
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
    for (const Colonna &k : COLONNE) testa.emplace_back(k.nome);
    riga({testa[0], testa[1], testa[2], testa[3], testa[4], testa[5], testa[6], testa[7], testa[8], testa[9]});
    double oltre = 0;
    for (const RigaCertificato &r : c.righe) {
        oltre += r.oltre;
        if (r.doppia) {
            riga({" ", r.strato, pretesa(r), cifre(r.disegnati, 1)});
            continue;
        }
        riga({r.vera ? " " : "!", r.strato, pretesa(r), cifre(r.disegnati, 1), json(r.massimo), naturale(r), json(r.medio),
              cifre(r.mancanti, 2), cifre(r.superflui, 2), luogo(r)});
    }
    t += "\nunchecked: " + std::to_string(c.ignoti) + " records without a claim\n";
    if (oltre > 0) t += "beyond the frame: " + cifre(oltre, 1) + " mm\n";
    // The three worst places of lines that are not true.
    std::vector<const RigaCertificato *> peggiori;
    for (const RigaCertificato &r : c.righe)
        if (!r.vera && r.massimo > c.tolleranza) peggiori.push_back(&r);
    std::sort(peggiori.begin(), peggiori.end(), [](auto *a, auto *b) { return a->massimo > b->massimo; });
    for (std::size_t i = 0; i < peggiori.size() && i < 3; ++i)
        t += "worst: " + pretesa(*peggiori[i]) + " off by " + cifre(peggiori[i]->massimo, 3) + " mm at " + luogo(*peggiori[i]) +
             "\n";
    return t + VerdettoInglese(c) + '\n';
}

std::string CertificatoJson(const Certificato &c) {
    std::string t = "{\"worst_mm\":" + json(c.peggiore) + ",\"true\":" + (c.vero() ? "true" : "false") + ",\"lines\":[";
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
    const std::string titolo = dici(d, TITOLO);
    std::string t = "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>" + html(titolo) +
                    "</title>\n<style>body{font-family:sans-serif;margin:2em}table{border-collapse:collapse;font-size:80%}"
                    "td,th{padding:.15em .6em;text-align:right;border-bottom:1px solid #ccc}td:nth-child(-n+2),th:nth-child(-n+2)"
                    "{text-align:left}.no{color:#b00020}h2{margin:.6em 0}</style></head>\n<body><h1>" +
                    html(titolo) + "</h1>\n";
    if (!dati.titolo.empty()) t += "<h2>" + html(dati.titolo) + "</h2>\n";
    const ombra::Quadrante &q = dati.posa.quadrante;
    t += "<table>\n";
    const auto dato = [&](const Parola &p, const std::string &valore) {
        t += "<tr><td>" + html(dici(d, p)) + "</td><td>" + html(valore) + "</td></tr>\n";
    };
    if (!dati.luogo.empty()) t += "<tr><td></td><td>" + html(dati.luogo) + "</td></tr>\n";
    dato(LATITUDINE, cifre(q.latitudine * ombra::GRADI, 5) + "\xC2\xB0");
    dato(LONGITUDINE, cifre(dati.posa.longitudine * ombra::GRADI, 5) + "\xC2\xB0");
    dato(PIANO, cifre(q.declinazione * ombra::GRADI, 4) + "\xC2\xB0");
    dato(INCLINAZIONE, cifre(q.inclinazione * ombra::GRADI, 4) + "\xC2\xB0");
    dato(GNOMONE, cifre(q.gnomone * 1000, 2));
    dato(TOLLERANZA, TestoNumero(c.tolleranza));
    dato(DATA, testoData(Oggi(dati.posa.fuso())));
    dato(IGNOTI, std::to_string(c.ignoti));
    t += "</table>\n<h2" + std::string(c.vero() ? "" : " class=\"no\"") + ">" + html(d ? Verdetto(*d, c) : VerdettoInglese(c)) +
         "</h2>\n<table>\n<tr>";
    for (const Parola &p : {STRATO, LINEA, DISEGNATI, MASSIMO, TEMPO, MEDIO, MANCANTI, SUPERFLUI, DOVE})
        t += "<th>" + html(dici(d, p)) + "</th>";
    t += "</tr>\n";
    for (const RigaCertificato &r : c.righe) {
        t += r.vera ? "<tr>" : "<tr class=\"no\">";
        const auto cella = [&](const std::string &s) { t += "<td>" + html(s) + "</td>"; };
        cella(r.strato);
        cella(pretesa(r, d));
        cella(cifre(r.disegnati, 1));
        if (!r.doppia) {
            cella(json(r.massimo));
            cella(naturale(r));
            cella(json(r.medio));
            cella(cifre(r.mancanti, 2));
            cella(cifre(r.superflui, 2));
            cella(luogo(r));
        }
        t += "</tr>\n";
    }
    return t + "</table>\n</body></html>\n";
}

}  // namespace ombrelia
