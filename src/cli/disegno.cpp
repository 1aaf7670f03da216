// The options of a drawing.
#include "cli/disegno.h"

#include "app/comandi.h"

namespace ombrelia::cli {

bool Numero(const std::string &testo, double &n) {
    const std::size_t cifra = testo.find_first_of("0123456789");
    const Valore v = Val(testo);
    n = v.v;
    return v.esiste() && cifra != std::string::npos && testo.find_first_not_of("+-.0123456789eE") == std::string::npos;
}

bool Disegno::Prendi(int argc, char **argv, int &i, std::string &errore) {
    const std::string a = argv[i];
    if (!Campi::Opzione(a) && a != "--engine" && a != "--sheet") return false;
    const int argomenti = a == "--sheet" ? 4 : 1;
    if (i + argomenti >= argc) {
        errore = a + " needs " + (argomenti == 4 ? "four numbers: L H X Y" : "an argument");
        return true;
    }
    const std::string valore = argv[++i];
    if (Campi::Opzione(a)) {
        errore = campi.Prendi(a, valore);
    } else if (a == "--engine") {
        if (valore != "auto" && valore != "direct" && valore != "vertical" && valore != "analytic")
            errore = "unknown engine " + valore + ": it is auto, direct, vertical or analytic";
        motore = valore;
    } else {
        for (int k = 0; k < 4 && errore.empty(); ++k) {
            double n = 0;
            if (!Numero(argv[i + k], n)) errore = std::string("--sheet: no number: ") + argv[i + k];
            foglio.push_back(n);
        }
        i += 3;
    }
    return true;
}

std::string Disegno::Applica(Sessione &s) const {
    s.originaleFresco = true;
    if (std::string e = campi.Applica(s); !e.empty()) return e;
    if (motore == "vertical") s.in.CkUNI = 1;
    if (motore == "direct") s.in.CkUNI = 0;
    if (foglio.size() == 4) {
        s.tavolo.QuadranteL(foglio[0]);
        s.tavolo.QuadranteH(foglio[1]);
        s.tavolo.ShiftX(foglio[2]);
        s.tavolo.ShiftY(foglio[3]);
    } else if (campi.progetto.empty() && !app::Adatta(s)) {
        return "the frame " + s.in.txtX0 + ".." + s.in.txtX1 + " by " + s.in.txtY1 + ".." + s.in.txtY0 +
               " fits no sheet: txtX0 < txtX1, txtY1 < txtY0, within 15 m";
    }
    return {};
}

std::string Disegno::Esegui(Sessione &s) const {
    const std::string bottone = motore == "analytic" ? "cmdEqui" : "cmdRun";
    if (motore == "vertical" && Val(s.in.txtInc) != 0)
        return "txtInc reads " + s.in.txtInc + ": the vertical engine draws walls only";
    if (motore == "analytic" && Val(s.in.txtInc) != 0)
        return "txtInc reads " + s.in.txtInc + ": the analytic engine draws walls only; use cmdTrasforma first";
    const bool australe = Val(s.in.txtLAT) < 0;
    const app::Esito esito = app::Premi(s, TrovaControllo(bottone));
    if (esito == app::Esito::Disabilitato) return bottone + " is disabled: it works on walls only (txtInc must read 0)";
    if (esito == app::Esito::Impossibile) return bottone + " can't take that";
    if (s.tavolo.lista().Ordine.empty()) return "nothing was drawn, and nothing is written";
    // A southern dial is drawn as its mirror image; a user at the window would now press the same button.
    if (australe) s.tavolo.cmdInvX();
    return {};
}

}  // namespace ombrelia::cli
