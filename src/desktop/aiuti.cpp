// The controls in their maker's words.
#include "desktop/aiuti.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QWhatsThis>
#include <vector>

#include "controlli/nomi.h"
#include "desktop/comandi.h"
#include "desktop/dialoghi.h"

namespace ombrelia::desktop {

namespace {

constexpr Aiuto TAVOLA[] = {
    {"txtLAT", {}, "Latitudine del posto in gradi: Nord positiva, Sud negativa"_it, Grandezza::Latitudine},
    {"txtLonG",
     {},
     "Longitudine del posto in gradi: Ovest positiva, Est negativa. Mette al suo posto la lemniscata"_it,
     Grandezza::Longitudine},
    {"txtMeridiano",
     {},
     "Il meridiano dal quale conta l'orologio: -15 per l'Europa centrale, 0 per Londra"_it,
     Grandezza::Longitudine},
    {"ck_Etna", "Ore del fuso, non del posto"_it,
     "Le ore disegnate sono quelle vere del meridiano del fuso, spostate della differenza di longitudine"_it,
     Grandezza::Longitudine},
    {"txtDec",
     {},
     "Dove guarda la parete: l'angolo fra la sua perpendicolare e il Sud, positivo verso Ovest"_it,
     Grandezza::Declinazione},
    {"txtInc", {}, "Di quanto il piano pende dalla verticale: 0 una parete, 90 un piano orizzontale"_it, Grandezza::Inclinazione},
    {"CkUNI",
     {},
     "Su una parete disegna col motore dei quadranti verticali; Sottostilo allunga lo stilo polare"_it,
     Grandezza::Stilo},
    {"TxtStilo", {}, "Lunghezza dell'ortostilo: quanto la punta dista dal piano, misurato a squadra"_it, Grandezza::Ortostilo},
    {"ChCentimetro", {}, "Tutte le lunghezze si scrivono in millimetri invece che in metri"_it},
    {"ck_Sustilare", {}, "La linea sopra la quale sta lo stilo polare"_it, Grandezza::Stilo},
    {"ck_Triangolo", {}, "Il triangolo dello stilo polare, ribaltato sul piano"_it, Grandezza::Stilo},
    {"txtSUBSTYLE", {}, "Di quanto lo stilo polare si prolunga, misurato dal piede"_it, Grandezza::Stilo},
    {"lblX0", "Bordo sinistro, x0"_it, {}},
    {"lblY0", "Bordo alto, y0"_it, {}},
    {"lblX1", "Bordo destro, x1"_it, {}},
    {"lblY1", "Bordo basso, y1"_it, {}},
    {"txtX0",
     {},
     "Dove finisce la cornice a sinistra, dal piede dell'ortostilo; verso sinistra è negativo"_it,
     Grandezza::Cornice},
    {"txtY0", {}, "Dove finisce la cornice in alto, dal piede dell'ortostilo; verso l'alto è positivo"_it, Grandezza::Cornice},
    {"txtX1", {}, "Dove finisce la cornice a destra, dal piede dell'ortostilo; verso destra è positivo"_it, Grandezza::Cornice},
    {"txtY1", {}, "Dove finisce la cornice in basso, dal piede dell'ortostilo; verso il basso è negativo"_it, Grandezza::Cornice},
    {"txtEqx", {}, "Ascissa scelta sulla linea equinoziale: la tabella dei dati ne dà l'ordinata"_it, Grandezza::Cornice},
    {"txtEqy", {}, "Ordinata scelta sulla linea equinoziale: la tabella dei dati ne dà l'ascissa"_it, Grandezza::Cornice},
    {"txtSusx", {}, "Ascissa scelta sulla sustilare: la tabella dei dati ne dà l'ordinata"_it, Grandezza::Cornice},
    {"txtSusy", {}, "Ordinata scelta sulla sustilare: la tabella dei dati ne dà l'ascissa"_it, Grandezza::Cornice},
    {"txtOriz", {}, "Altezza della linea dell'orizzonte sul piano; un'esecuzione la riscrive"_it, Grandezza::Cornice},
    {"chkOreAstronomiche", {}, "Le linee delle ore vere, contate da mezzanotte"_it, Grandezza::Ore},
    {"ck_Lemniscate",
     {},
     "La figura a otto che l'ombra della punta segna nell'anno alla stessa ora d'orologio"_it,
     Grandezza::Ore},
    {"ck_Italiche", {}, "Ore contate dal tramonto: dicono quanto manca alla sera"_it, Grandezza::Ore},
    {"ck_babiloniche", {}, "Ore contate dal sorgere del Sole"_it, Grandezza::Ore},
    {"ckTemp", {}, "Dodicesimi del giorno, dall'alba al tramonto"_it, Grandezza::Ore},
    {"TxtFraz", {}, "Quante linee in un'ora: 1 le ore, 2 le mezze, 4 i quarti"_it, Grandezza::Ore},
    {"TxtInizio", {}, "La prima ora disegnata, nel conto delle ore scelte"_it, Grandezza::Ore},
    {"TxtFine", {}, "L'ultima ora disegnata, nel conto delle ore scelte"_it, Grandezza::Ore},
    {"Ck_DayLightCurves",
     {},
     "Le curve che l'ombra della punta percorre in certi giorni: i solstizi e quelli scelti"_it,
     Grandezza::Giorno},
    {"ck_Equinoziale", {}, "La retta che l'ombra della punta percorre agli equinozi"_it, Grandezza::Giorno},
    {"ckAlt", {}, "Linee di uguale altezza del Sole"_it, Grandezza::Inclinazione},
    {"ckAz", {}, "Linee di uguale direzione del Sole"_it, Grandezza::Declinazione},
    {"ck_Orizzonte", {}, "La linea dove cade l'ombra quando il Sole è all'orizzonte"_it, Grandezza::Giorno},
    {"ckAssi", {}, "I due assi dal piede dell'ortostilo, per misurare"_it, Grandezza::Cornice},
    {"ckCorretta", {}, "Disegna le linee vere, punto per punto, dall'ombra calcolata per vettori"_it},
    {"lblDelta", "Declinazione di una linea in più"_it, {}},
    {"txtDelta", {}, "Declinazione del Sole, in gradi, della linea diurna a scelta"_it, Grandezza::Giorno},
    {"ckRomani", {}, "Numeri romani alle linee orarie di una parete"_it, Grandezza::Carattere},
    {"txtNumbersize", {}, "Altezza dei numeri romani"_it, Grandezza::Carattere},
    {"ckArabi", {}, "Numeri arabi alle linee orarie di una parete"_it, Grandezza::Carattere},
    {"txtArabi", {}, "Altezza dei numeri arabi"_it, Grandezza::Carattere},
    {"ckZodiac", {}, "I segni dello zodiaco alle linee diurne di una parete"_it, Grandezza::Carattere},
    {"txtZodiacsize", {}, "Altezza dei segni dello zodiaco"_it, Grandezza::Carattere},
    {"ckEtichette", {}, "Scrive su ogni linea il suo numero, la data o i gradi"_it, Grandezza::Carattere},
    {"txtAltezzaEtichette", {}, "Altezza delle scritte sulle linee, in millimetri"_it, Grandezza::Carattere},
    {"ckEtichetteRomane", {}, "Le ore si scrivono in numeri romani"_it, Grandezza::Carattere},
    {"ckEtichetteLungo", {}, "Le scritte seguono la linea invece di stare diritte"_it, Grandezza::Carattere},
    {"ckEtichetteSegni", {}, "Sulle linee diurne i segni dello zodiaco al posto delle date"_it, Grandezza::Carattere},
    {"ckCartiglio", {}, "Scrive sotto la cornice, o accanto, luogo, piano, gnomone, motto e anno"_it, Grandezza::Cornice},
    {"txtLuogo", {}, "Il nome del luogo che il cartiglio porta"_it},
    {"txtMotto", {}, "Il motto che il cartiglio porta"_it},
    {"txtAnnoCartiglio", {}, "L'anno che il cartiglio porta"_it},
    {"txtLetture", {}, "Le letture della parete, come la tavola degli strumenti le tiene"_it},
    {"optHorae", {}, "Tabella delle ore vere: dove passano le linee, coi loro punti"_it},
    {"OptIta", {}, "Tabella dei punti delle ore italiche"_it},
    {"OptBab", {}, "Tabella dei punti delle ore babiloniche"_it},
    {"OptTEMP", {}, "Tabella dei punti delle ore temporarie"_it},
    {"OptInter", {}, "Tabella degli incroci fra linee orarie e linee diurne"_it},
    {"Option1", {}, "Tabella dei punti delle linee diurne di una parete"_it},
    {"lblMinus", "Linee diurne da"_it, {}},
    {"lblMax", "Linee diurne fino a"_it, {}},
    {"txtMinus", {}, "Ascissa dalla quale le linee diurne si tracciano"_it, Grandezza::Giorno},
    {"txtMax", {}, "Ascissa fino alla quale le linee diurne si tracciano"_it, Grandezza::Giorno},
    {"lbl_Definizione", "Passo fra i punti"_it, {}},
    {"txtDensity", {}, "Passo con cui si tracciano le curve: più è piccolo più sono fitti i punti, e lenta l'esecuzione"_it},
    {"txtAO", {}, "Angolo orario in gradi che la tavola degli strumenti lascia qui: Est negativo"_it, Grandezza::Giorno},
    {"txtAnno", {}, "Anno del Sole che la lemniscata vera segue; vuoto: l'anno in corso"_it},
    {"ckFunzione", "Linee intermedie (F)"_it,
     "Aggiunge le linee diurne fra solstizi ed equinozi, e altre varianti: ore del campanile, incroci per geometria analitica"_it,
     Grandezza::Giorno},
    {"ckAsr", {}, "La linea della preghiera del pomeriggio"_it},
    {"CkQibla", {}, "La linea che indica quando il Sole sta nella direzione della Mecca"_it},
    {"txtQlat", {}, "Latitudine della Mecca"_it, Grandezza::Latitudine},
    {"txtQlon", {}, "Longitudine della Mecca: Est negativa"_it, Grandezza::Longitudine},
    {"LabelCombo", "Paese"_it, {}},
    {"cmbStati", {}, "Il paese i cui confini si disegnano sul quadrante"_it},
    {"cmdStati", "Carica"_it, "Legge i confini dei paesi"_it},
    {"cmdPlot", "Traccia"_it, "Disegna sul quadrante il mondo, dove il Sole sta allo zenit, e i confini del paese scelto"_it},
    {"ck_inv", {}, "La mappa si disegna rovesciata"_it},
    {"Filtertxt", {}, "Distanza sotto la quale i punti della mappa si tralasciano"_it},
    {"txtEAST", {}, "Limite Est delle città disegnate"_it, Grandezza::Longitudine},
    {"txtWest", {}, "Limite Ovest delle città disegnate"_it, Grandezza::Longitudine},
    {"punto", {}, "Disegna il punto d'ombra della declinazione e dell'angolo orario scritti sotto"_it, Grandezza::Giorno},
    {"Option_P", {}, "Il punto d'ombra del Sole o della Luna"_it, Grandezza::Giorno},
    {"Label2", "Declinazione, angolo orario"_it, {}},
    {"textDelta", {}, "Declinazione del punto, in gradi"_it, Grandezza::Giorno},
    {"txtH", {}, "Angolo orario del punto, in gradi"_it, Grandezza::Giorno},
    {"cmdRun", {}, "Disegna ciò che è spuntato, coi valori dei campi"_it},
    {"cmdEqui", {}, "Disegna una parete per geometria analitica: un secondo metodo, per confronto"_it},
    {"cmdTrasforma", "Verticale equivalente"_it,
     "Cambia il piano inclinato nella parete di un altro luogo dove il disegno è lo stesso"_it, Grandezza::Inclinazione},
    {"cmdData", {}, "La tabella di ciò che il quadrante è: angoli, distanze, punti, da tenere sul ponteggio"_it},
    {"cmdSave", "Tieni come partenza"_it, "I valori che stanno nei campi saranno quelli di ogni nuovo quadrante"_it},
    {"Tavolo1.cmdStampa", "Stampa"_it, "Stampa il foglio in grandezza vera, intero o a pagine"_it},
    {"Tavolo1.cmdAssi", "Origine"_it, "Dove sta sul foglio il piede dell'ortostilo"_it, Grandezza::Cornice},
    {"Tavolo1.CmdGriglia", "Pagine"_it, "Mostra come il foglio si divide in pagine da stampare; un clic ne sceglie una"_it},
    {"Tavolo1.cmdPulisci", "Pulisci"_it, "Toglie il disegno dal foglio"_it},
    {"Tavolo1.cmdDim", "Foglio"_it, "Larghezza e altezza del foglio"_it, Grandezza::Cornice},
    {"Tavolo1.cmdSave", "Immagine"_it, "Salva il foglio come immagine"_it},
    {"Tavolo1.cmdDxf", {}, "Salva le linee per un programma di disegno tecnico"_it},
    {"Tavolo1.cmdInvX", "Specchia X"_it, "Scambia destra e sinistra: così si monta un quadrante australe"_it},
    {"Tavolo1.cmdInvY", "Specchia Y"_it, "Scambia alto e basso"_it},
    {"Tavolo1.cmbScala", {}, "Scala del foglio: 1:1 è la grandezza vera"_it},
    {"Tavolo1.PicAssi", "Origine (metri)"_it, {}},
    {"Tavolo1.picDimensioni", "Foglio (metri)"_it, {}},
    {"Tavolo1.picPrint", "Che cosa stampare"_it, {}},
    {"Tavolo1.txtX", {}, "Quanto il piede dell'ortostilo dista dal bordo sinistro del foglio"_it, Grandezza::Cornice},
    {"Tavolo1.txtY", {}, "Quanto il piede dell'ortostilo dista dal bordo alto del foglio"_it, Grandezza::Cornice},
    {"Tavolo1.txtQL", {}, "Larghezza del foglio in metri"_it, Grandezza::Cornice},
    {"Tavolo1.txtQH", {}, "Altezza del foglio in metri"_it, Grandezza::Cornice},
    {"Tavolo1.cmdAssiAgg", "Applica"_it, "Sposta l'origine del foglio"_it},
    {"Tavolo1.cmdAssiChiudi", "Chiudi"_it, "Chiude il riquadro"_it},
    {"Tavolo1.cmdQAggiorna", "Applica"_it, "Cambia la misura del foglio"_it},
    {"Tavolo1.cmdQAnnulla", "Chiudi"_it, "Chiude il riquadro"_it},
    {"Tavolo1.optAll", "Tutto il foglio"_it, "Il foglio intero su una pagina sola"_it},
    {"Tavolo1.optSelected", "Le pagine scelte"_it, "Le pagine scelte sul foglio, una per volta, da unire"_it},
    {"Tavolo1.cmdPOk", "Stampa"_it, "Apre la stampa"_it},
    {"Tavolo1.cmdPCancel", "Chiudi"_it, "Chiude il riquadro"_it},
    {"frmDeclin.optModoDec", {}, "Angoli in gradi decimali"_it},
    {"frmDeclin.OptModoSess", {}, "Angoli in gradi, primi e secondi"_it},
    {"frmDeclin.txtLAT", {}, "Latitudine del posto, gradi: Nord positiva"_it, Grandezza::Latitudine},
    {"frmDeclin.txtLON", {}, "Longitudine del posto, gradi: Ovest positiva"_it, Grandezza::Longitudine},
    {"frmDeclin.cmdSign(0)", {}, "Cambia Nord e Sud"_it, Grandezza::Latitudine},
    {"frmDeclin.cmdSign(1)", {}, "Cambia Ovest ed Est"_it, Grandezza::Longitudine},
    {"frmDeclin.txtLatG", {}, "Gradi interi della latitudine"_it, Grandezza::Latitudine},
    {"frmDeclin.txtLatP", {}, "Primi della latitudine"_it, Grandezza::Latitudine},
    {"frmDeclin.txtLATS", {}, "Secondi della latitudine"_it, Grandezza::Latitudine},
    {"frmDeclin.txtLonG", {}, "Gradi interi della longitudine"_it, Grandezza::Longitudine},
    {"frmDeclin.txtLonP", {}, "Primi della longitudine"_it, Grandezza::Longitudine},
    {"frmDeclin.txtLonS", {}, "Secondi della longitudine"_it, Grandezza::Longitudine},
    {"frmDeclin.cmdTrans", {}, "Porta luogo e longitudine nella finestra principale"_it},
    {"frmDeclin.txtDay", {}, "Giorno della misura"_it},
    {"frmDeclin.txtMonth", {}, "Mese della misura"_it},
    {"frmDeclin.txtYear", {}, "Anno della misura"_it},
    {"frmDeclin.txtHH", {}, "Ora della misura in tempo universale"_it},
    {"frmDeclin.txtMM", {}, "Minuti della misura"_it},
    {"frmDeclin.txtSS", {}, "Secondi della misura"_it},
    {"frmDeclin.txtAngle",
     {},
     "Angolo fra la perpendicolare alla parete e l'ombra del filo a piombo, in gradi"_it,
     Grandezza::Declinazione},
    {"frmDeclin.TxtFuso", {}, "Fuso orario in ore: Ovest positivo, -1 per l'Italia"_it, Grandezza::Longitudine},
    {"frmDeclin.ckDst", {}, "L'orologio è un'ora avanti"_it},
    {"frmDeclin.cmdCalcola", {}, "Calcola la declinazione della parete e il Sole di quel momento"_it, Grandezza::Declinazione},
    {"frmDeclin.cmdInfo", {}, "Come si misura l'angolo"_it, Grandezza::Declinazione},
    {"frmDeclin.cmdExit", {}, "Chiude la tavola"_it},
    {"frmDeclin.txtResult", {}, "Il risultato, riga per riga"_it},
};

// Answers in a widget's place.
class Guida final : public QObject {
public:
    Guida(Sessione &s, IdControllo id, QWidget *w) : QObject(w), s_(s), id_(id) {
        w->setProperty("spiegato", true);
        w->installEventFilter(this);
    }
    bool eventFilter(QObject *w, QEvent *e) override {
        if (e->type() == QEvent::QueryWhatsThis) return e->accept(), true;
        if (e->type() != QEvent::WhatsThis) return false;
        QWhatsThis::showText(static_cast<QHelpEvent *>(e)->globalPos(), CheCosE(s_, id_), qobject_cast<QWidget *>(w));
        return true;
    }

private:
    Sessione &s_;
    IdControllo id_;
};

}  // namespace

const Aiuto *TrovaAiuto(IdControllo id) {
    static const std::vector<const Aiuto *> tavola = [] {
        std::vector<const Aiuto *> t(TavolaControlli().size());
        for (const Aiuto &a : TAVOLA) t[static_cast<std::size_t>(IdControllo(a.controllo))] = &a;
        return t;
    }();
    return id == NESSUN_CONTROLLO ? nullptr : tavola[static_cast<std::size_t>(id)];
}

QString Suggerimento(Sessione &s, IdControllo id) {
    const Aiuto *a = TrovaAiuto(id);
    QString t = Q(s.stato(id).toolTip).trimmed();
    if (t.isEmpty() && a && !a->testo.empty()) t = Q(s.Traduci(a->testo));
    t += TastiDi(TrovaComando(id));
    if (a && !a->umano.empty())
        t += (t.isEmpty() ? QString() : QStringLiteral("\n")) + QStringLiteral("«%1»").arg(Q(s.stato(id).caption).simplified());
    return SoloTesto(t.trimmed());
}

QString CheCosE(Sessione &s, IdControllo id) {
    const Aiuto *a = TrovaAiuto(id);
    const QString sistema = Q(s.stato(id).toolTip).simplified();
    const QString detto = a && !a->testo.empty() ? Q(s.Traduci(a->testo)) : sistema;
    if (detto.isEmpty()) return {};
    const auto p = [](const QString &t) { return QStringLiteral("<p>") + t.toHtmlEscaped() + QStringLiteral("</p>"); };
    QString html = p(detto);
    if (!sistema.isEmpty() && sistema != detto)
        html += QStringLiteral("<p><i>") + sistema.toHtmlEscaped() + QStringLiteral("</i></p>");
    if (a && a->disegno != Grandezza::Nessuno) {
        const QImage i = DisegnoAiuto(a->disegno);
        QByteArray png;
        QBuffer b(&png);
        i.save(&b, "PNG");
        html += QStringLiteral("<p><img width=\"%1\" height=\"%2\" src=\"data:image/png;base64,%3\"></p>")
                    .arg(i.width())
                    .arg(i.height())
                    .arg(QString::fromLatin1(png.toBase64()));
    }
    return html;
}

void Spiega(Sessione &s, IdControllo id, QWidget *w) {
    if (!CheCosE(s, id).isEmpty()) new Guida(s, id, w);
}

bool MostraSpiegazione(QWidget *w) {
    if (!w || !w->property("spiegato").toBool()) return false;
    const QPoint sotto(w->width() / 2, w->height());
    QHelpEvent e(QEvent::WhatsThis, sotto, w->mapToGlobal(sotto));
    QCoreApplication::sendEvent(w, &e);
    return true;
}

}  // namespace ombrelia::desktop
