// certify.
#include "cli/certify.h"

#include "certificato/certificato.h"
#include "cli/consegna.h"
#include "cli/disegno.h"

namespace ombrelia::cli {

int Certify(int argc, char **argv) {
    Commissione disegno;
    double tolleranza = 0.1;
    enum class FormaGiudizio { Testo, Json, Html } forma = FormaGiudizio::Testo;
    std::string uscita = "-";
    for (int i = 0; i < argc; ++i) {
        const std::string a = argv[i];
        std::string errore;
        if (disegno.Prendi(argc, argv, i, errore)) {
            if (!errore.empty()) return Rifiuta("certify", errore);
        } else if (a == "--json") {
            forma = FormaGiudizio::Json;
        } else if (a == "--html") {
            forma = FormaGiudizio::Html;
        } else if (a == "--tolerance" || a == "-o" || a == "--out") {
            if (i + 1 >= argc) return Rifiuta("certify", a + " needs an argument");
            const std::string valore = argv[++i];
            if (a != "--tolerance") uscita = valore;
            else if (!Numero(valore, tolleranza) || !(tolleranza > 0 && tolleranza <= 1000))
                return Rifiuta("certify", "--tolerance " + valore + ": millimetres, above 0");
        } else {
            return Rifiuta("certify",
                           (a.starts_with("-") ? "unknown option " : "what is ") + a + "; see ombrelia certify --help");
        }
    }
    SessioneDiComando comando(disegno.carta.value_or(CARTA_A4));
    Sessione &s = comando.s;
    if (const std::string e = disegno.Applica(s); !e.empty()) return Rifiuta("certify", e);
    if (const std::string e = disegno.Esegui(s); !e.empty()) return Rifiuta("certify", e);
    DatiCertificato dati = DatiDelCertificato(s);
    const std::string &progetto = disegno.campi.progetto;
    dati.titolo = progetto.substr(progetto.find_last_of("/\\") + 1);
    dati.luogo = disegno.campi.luogo;
    const Certificato c = Certifica(dati, s.tavolo.lista(), tolleranza);
    const std::string testo = forma == FormaGiudizio::Json   ? CertificatoJson(c)
                              : forma == FormaGiudizio::Html ? CertificatoHtml(dati, c)
                                                             : CertificatoTesto(dati, c);
    if (const std::string e = Consegna(uscita, testo); !e.empty()) return Rifiuta("certify", e);
    return c.vero() ? 0 : 1;
}

}  // namespace ombrelia::cli
