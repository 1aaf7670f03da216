// The main window: how it is put together and what follows each action.
#include "desktop/finestra.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScreen>
#include <QSettings>
#include <QTabBar>
#include <QTimer>
#include <filesystem>

#include "app/plausibile.h"
#include "app/progetto.h"
#include "controlli/nomi.h"
#include "desktop/aggiunte.h"
#include "desktop/gruppi.h"
#include "desktop/lingua_finestra.h"
#include "desktop/note_campi.h"
#include "desktop/stile.h"
#include "officina/tratti.h"
#include "paint/file_disegno.h"
#include "sessione/limiti.h"

namespace ombrelia::desktop {

namespace {

// A field whose change another run would show.
bool campo(IdControllo id) {
    return id != NESSUN_CONTROLLO && RigaDi(id).modulo == "MDIForm1" &&
           (RigaDi(id).classe == Classe::Testo || RigaDi(id).classe == Classe::Casella);
}

// Of the fields: what the live dial goes by.
std::string impronta(const Sessione &s) {
    std::string t;
    for (const Controllo &c : TavolaControlli()) {
        if (c.testo) t += s.in.*c.testo;
        else if (c.casella && c.classe == Classe::Casella) t += static_cast<char>('0' + s.in.*c.casella);
        t += '\n';
    }
    return t;
}

// The boxes of the dial that are set but don't answer: they draw nothing. Gives what to put back.
std::vector<std::pair<int DialInputs::*, int>> MascheraSpente(Sessione &s) {
    std::vector<std::pair<int DialInputs::*, int>> tolte;
    for (const Controllo &c : ControlliDi("MDIForm1"))
        if (c.classe == Classe::Casella && c.casella && !s.stato(IdDi(c)).abilitato && s.in.*c.casella != 0)
            tolte.emplace_back(c.casella, std::exchange(s.in.*c.casella, 0));
    return tolte;
}

constexpr NomeControllo FIGURE[] = {"Picture2", "Picture3"};
constexpr auto VIVO = "disegnaMentreScrivi", GEOMETRIA = "geometria", STATO = "stato";

}  // namespace

Finestra::Finestra(Dialoghi &dialoghi) : dialoghi_(dialoghi), utente_(dialoghi), s_(utente_), ponte_(s_) {
    setObjectName(QStringLiteral("MDIForm1"));
    utente_.sopra = this;
    std::error_code nonImporta;
    std::filesystem::create_directories(app::CartellaDisegni(), nonImporta);
    app::Avvia(s_);
    s_.originaleFresco = s_.australeMontato = true;
    s_.tavolo.recordMassimi = RecordInMemoria();
    LinguaRicordata(s_);

    costruisciMoli();
    moduli_ = std::make_unique<Moduli>(ponte_, dialoghi_, this);
    costruisciMenu();
    collega();
    vivo_ = std::make_unique<Vivo>(this, s_.dizionario, [this](Vivo::ProvaViva &e) { disegnoVivo(e); });

    note_ = new NoteCampi(ponte_, this);
    new Aggiunte(*this, dialoghi_);
    nomina();
    ritrovaPosto();
    salvato_ = improntaProgetto();
    improntaCampi_ = impronta(s_);
    ponte_.sincronizza();
    quadro_->aggiorna();
    passi_->aggiorna(false);
    titolo();
    pazienza_ = new QTimer(this);
    pazienza_->setSingleShot(true);
    connect(pazienza_, &QTimer::timeout, this, [this] { lungoVivo(true); });
    auto *minuto = new QTimer(this);
    constexpr int OGNI = 60000;
    connect(minuto, &QTimer::timeout, this, [this] { tieniRipresa(); });
    minuto->start(OGNI);
    ponte_.widget("txtLAT")->setFocus(Qt::OtherFocusReason);
}

// What sheet, session and forms tell of what happens in them.
void Finestra::collega() {
    quadro_->suLinea = [this](const std::optional<Linea> &linea) {
        strati_->scegli(linea);
        if (!linea) return;
        for (const Linea &l : LineeDi(s_.tavolo))
            if (l.strato == linea->strato && l.valore == linea->valore)
                messaggio(QStringLiteral("%1 (%2): %3 mm")
                              .arg(NomeLinea(s_, l.strato, l.valore), NomeStrato(s_, l.strato))
                              .arg(l.metri * 1000, 0, 'f', 0));
    };
    quadro_->suMenu = [this](const QPoint &dove) { strati_->menu(dove); };
    utente_.suModulo = [this](std::string_view nome, bool aperto) { moduli_->apri(nome, aperto); };
    s_.rapporti.suApertura = [this](const Rapporto &r) { moduli_->mostra(r); };
    s_.rapporti.suStampa = [this](const Rapporto &r) { moduli_->stampa(r); };
    s_.tavolo.specchiaArchi = s_.tavolo.piastrelleAScelta = true;
    s_.suStampa = [this](Sessione &, bool aree) { stampa(aree); };
    s_.suImmagine = [](Sessione &s) {
        std::string errore;
        return paint::Bmp(s.tavolo, errore);
    };
    quadro_->suAdatta = [this] { adatta(); };
    ponte_.prima = [this](IdControllo id) { return prima(id); };
    ponte_.dopo = [this](IdControllo id, const app::Esito &esito) { dopo(id, esito); };
    ponte_.suInterrotto = [this](bool memoria) { interrotto(memoria); };
    ponte_.suVirgolette = [this] {
        messaggio(ponte_.Traduci("Le virgolette non entrano in un campo: chiuderebbero il file del progetto"));
    };
}

// Size, docks and switches as they were when the last window closed.
void Finestra::ritrovaPosto() {
    const QSize posto = screen()->availableSize() - QSize(16, 40);  // room for the desktop's own frame
    constexpr QSize PRIMA(1360, 860);
    resize(posto.width() < minimumWidth() ? PRIMA : PRIMA.boundedTo(posto));
    const QSettings ricordi;
    restoreGeometry(ricordi.value(QLatin1String(GEOMETRIA)).toByteArray());
    restoreState(ricordi.value(QLatin1String(STATO)).toByteArray());
    vivoAcceso_->setChecked(ricordi.value(QLatin1String(VIVO), false).toBool());
    pulisciPrima_->setChecked(false);
}

Finestra::~Finestra() { vivo_.reset(); }

// What has no name yet for those who hear the window.
void Finestra::nomina() {
    quadro_->foglio().setAccessibleName(ponte_.Traduci("Foglio"));
    for (auto *b : findChildren<QAbstractButton *>())
        if (b->accessibleName().isEmpty()) b->setAccessibleName(b->text());
    for (auto *t : findChildren<QTabBar *>()) t->setAccessibleName(ponte_.Traduci("Schede"));
}

void Finestra::molo(const QString &titolo, const char *nome, QWidget *contenuto, Qt::DockWidgetArea dove) {
    auto *d = new QDockWidget(titolo, this);
    d->setObjectName(QString::fromLatin1(nome));
    d->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
    d->setWidget(contenuto);
    addDockWidget(dove, d);
}

// Before an action: what runs off the thread is given up, unsaved work is asked about, and what the window does in its own
// way is done here.
bool Finestra::prima(IdControllo id) {
    if (!campo(id)) vivo_->ferma(), lungoVivo(false);
    if (id == NESSUN_CONTROLLO) return true;
    const auto e = [id](NomeControllo nome) { return id == nome; };
    if (e("mnuApri")) return lasciaAndare();
    if (e("mnuSalva") && !percorso_.isEmpty()) return salvaIn(percorso_), false;
    // With no page chosen, a sheet larger than one is offered in pages.
    if (e("Tavolo1.cmdStampa") && s_.tavolo.lista().Aree.empty() &&
        (s_.tavolo.QuadranteL() > s_.tavolo.LarghezzaPagina() || s_.tavolo.QuadranteH() > s_.tavolo.AltezzaPagina()))
        return impagina(), false;
    if ((e("cmdRun") || e("cmdEqui")) && !note_->leggiAngoli()) return false;
    if (e("cmdRun")) primaDiEsegui();
    if (e("cmdEqui") || e("cmdPlot")) conAttesa();
    if (e("frmDeclin.cmdCalcola")) {
        deltaPrima_ = s_.in.txtDelta;
        aoPrima_ = s_.in.txtAO;
    }
    return true;
}

// With live drawing the button draws again what is there; the sheet is emptied so, or when the user wishes it. The drawing
// is kept aside until the run has drawn.
void Finestra::primaDiEsegui() {
    specchioPrima_ = s_.tavolo.FattoreX;
    inScorta_ = vivo_acceso() || pulisciPrima_->isChecked();
    if (inScorta_) {
        scorta_.Clear();
        s_.tavolo.ScambiaDisegno(scorta_);
    }
    mascherate_ = MascheraSpente(s_);
    conAttesa();
}

// What may last shows that it goes on, and can be stopped.
void Finestra::conAttesa() {
    attesa_ = std::make_unique<Clessidra>(this, ponte_.Traduci("Disegno del quadrante..."), ponte_.Traduci("Ferma"), pazienza);
    s_.tavolo.dispositivo = attesa_.get();
}

// A southern drawing is the mirror image of what is mounted: the sheet shows it as it is mounted. The mirror is turned where the
// dial on it goes from one half of the Earth to the other, so that the user's own mirrors stay.
bool Finestra::australe() const { return Val(s_.in.txtLAT) < 0; }

void Finestra::montaAustrale() {
    if (australe() != std::exchange(montato_, australe())) s_.tavolo.FattoreX = -s_.tavolo.FattoreX;
}

void Finestra::dopoEsegui() {
    s_.tavolo.dispositivo = nullptr;
    attesa_.reset();
    for (const auto &[casella, valore] : std::exchange(mascherate_, {})) s_.in.*casella = valore;
    s_.tavolo.FattoreX = specchioPrima_;
    if (!s_.tavolo.lista().Ordine.empty()) montaAustrale();
    if (!std::exchange(inScorta_, false)) return;
    if (s_.tavolo.lista().Ordine.empty()) s_.tavolo.ScambiaDisegno(scorta_);
    scorta_.Clear();
}

void Finestra::dopo(IdControllo id, const app::Esito &esito) {
    const auto e = [id](NomeControllo nome) { return id == nome; };
    if (e("cmdRun") || e("cmdEqui")) dopoEsegui();
    if (e("cmdPlot")) {
        s_.tavolo.dispositivo = nullptr;
        attesa_.reset();
    }
    if (esito == app::Esito::Fallito && !esito.detto && !esito.motivo.empty()) dialoghi_.avviso(this, Q(esito.motivo));
    if (e("mnuApri") && esito) progettoNuovo(Q(esito.file));
    if (e("mnuSalva") && esito) {
        percorso_ = QFileInfo(Q(esito.file)).absoluteFilePath();
        ricorda(percorso_);
        salvato_ = improntaProgetto();
    }
    for (const Lingua &l : Lingue())
        if (id != NESSUN_CONTROLLO && id == l.voce) RicordaLingua(l, esito);
    if ((e("Tavolo1.cmdDxf") || e("Tavolo1.cmdSave") || e("cmdSave")) && esito && !esito.file.empty())
        messaggio(ponte_.Traduci("Scritto") + QLatin1Char(' ') + Q(esito.file));
    const bool segue = vivo_acceso();
    const bool chiesto = segue && !e("cmdRun") && impronta(s_) != improntaCampi_;
    if (chiesto) chiediVivo();
    // Some boxes draw when they are set.
    if (!campo(id) ? id == NESSUN_CONTROLLO || RigaDi(id).classe != Classe::Testo
                   : !chiesto && RigaDi(id).classe == Classe::Casella) {
        quadro_->foglio().cambiato();
        strati_->aggiorna();
    }
    quadro_->aggiorna();
    for (const NomeControllo figura : FIGURE) ponte_.widget(figura)->update();
    const bool calcolato = e("frmDeclin.cmdCalcola");
    if (calcolato) soleDelGiorno();
    moduli_->aggiorna(calcolato);
    note_->aggiorna();
    // The board as it opens is nobody's step.
    if (e("mnuAusiliaria")) passi_->aggiorna(segue);
    else
        passi_->annota(id, id == NESSUN_CONTROLLO ? std::exchange(ponte_.passo, {}) : ponte_.nome(id),
                       segue && (campo(id) || e("cmdRun")));
    titolo();
    if (e("ChCentimetro")) altraUnita();
    if (e("M_about")) moduli_->apri("frmAbout", true);
    if (e("mnuEsci"))
        QMetaObject::invokeMethod(
            this, [this] { close(); }, Qt::QueuedConnection);
}

// The lengths stand as they were typed; their user may have them in the other unit, and back by one press.
void Finestra::altraUnita() {
    const bool mm = s_.in.ChCentimetro == 1;
    quadro_->offri(mm ? ponte_.Traduci("Le lunghezze si leggono ora in millimetri.")
                      : ponte_.Traduci("Le lunghezze si leggono ora in metri."),
                   {{mm ? ponte_.Traduci("converti quelle scritte (× 1000)") : ponte_.Traduci("converti quelle scritte (: 1000)"),
                     [this, mm] {
                         ponte_.passo = ponte_.Traduci("Lunghezze convertite");
                         ponte_.fai(NESSUN_CONTROLLO, [&] { app::ConvertiLunghezze(s_.in, mm ? 1000 : 0.001); });
                         if (vivo_acceso()) chiediVivo();
                     }}});
}

// The utility board's run leaves the day's Sun in two fields of the dial. The user is told, and may have them back.
void Finestra::soleDelGiorno() {
    std::vector<Quadro::Offerta> offerte;
    if (s_.in.txtDelta != deltaPrima_ || s_.in.txtAO != aoPrima_)
        offerte.push_back({ponte_.Traduci("rimetti") + QLatin1Char(' ') + Q(deltaPrima_) + QStringLiteral("°, ") + Q(aoPrima_) +
                               QStringLiteral("°"),
                           [this, d = deltaPrima_, a = aoPrima_] {
                               ponte_.passo = ponte_.Traduci("Declinazione del Sole rimessa");
                               ponte_.fai(NESSUN_CONTROLLO, [&] {
                                   s_.Scrivi(&DialInputs::txtDelta, d);
                                   s_.Scrivi(&DialInputs::txtAO, a);
                               });
                               if (vivo_acceso()) chiediVivo();
                           }});
    // The wall's declination is the number of the result's second line.
    const QString riga2 = Q(s_.testo("frmDeclin.txtResult")).section(QLatin1Char('\n'), 1, 1);
    const auto trovato = QRegularExpression(QStringLiteral("-?\\d+\\.\\d+")).match(riga2);
    if (trovato.hasMatch() && Val(s_.testo("frmDeclin.txtAngle")) != 0)
        offerte.push_back(
            {ponte_.Traduci("usa come declinazione della parete") + QLatin1Char(' ') + trovato.captured() + QStringLiteral("°"),
             [this, d = trovato.captured().toStdString()] {
                 ponte_.passo = ponte_.Traduci("Declinazione della parete");
                 ponte_.fai(NESSUN_CONTROLLO, [&] { s_.Scrivi(&DialInputs::txtDec, d); });
                 if (vivo_acceso()) chiediVivo();
             }});
    if (offerte.empty()) return;
    quadro_->offri(ponte_.Traduci("Il Sole di quel giorno sta ora nella linea diurna opzionale:") + QLatin1Char(' ') +
                       Q(s_.in.txtDelta) + QStringLiteral("°."),
                   std::move(offerte));
}

bool Finestra::vivo_acceso() const { return vivoAcceso_->isChecked(); }

// The run stopped: by its user, or for want of memory. The dial is what it was.
void Finestra::interrotto(bool memoria) {
    s_.tavolo.dispositivo = nullptr;
    attesa_.reset();
    for (const auto &[casella, valore] : std::exchange(mascherate_, {})) s_.in.*casella = valore;
    if (!passi_->rimettiDisegno()) {
        s_.tavolo.MettiDisegno({});
        if (inScorta_) s_.tavolo.ScambiaDisegno(scorta_);
    }
    inScorta_ = false;
    if (memoria) dialoghi_.avviso(this, ponte_.Traduci("La memoria non basta per questo disegno: il quadrante resta com'era."));
    else messaggio(ponte_.Traduci("Fermato: il quadrante resta com'era"));
}

void Finestra::rimesso(bool rifai) {
    vivo_->ferma();
    montato_ = australe();
    ponte_.sincronizza();
    quadro_->foglio().cambiato();
    strati_->aggiorna();
    quadro_->aggiorna();
    titolo();
    for (const NomeControllo figura : FIGURE) ponte_.widget(figura)->update();
    improntaCampi_ = impronta(s_);
    moduli_->aggiorna(false);
    note_->aggiorna();
    if (rifai || vivo_acceso()) chiediVivo();
}

std::string Finestra::improntaProgetto() const {
    std::string t = impronta(s_);
    const Tavolo &f = s_.tavolo;
    for (const double x : {f.QuadranteL(), f.QuadranteH(), f.ShiftX(), f.ShiftY()}) t += NumeroGenerale(x) + '\n';
    return t;
}

// One line a control of the table, then the sheet's numbers: what differs, by the names of the window.
QString Finestra::cambiati() const {
    const QStringList prima = Q(salvato_).split(QLatin1Char('\n')), ora = Q(improntaProgetto()).split(QLatin1Char('\n'));
    const auto controlli = static_cast<qsizetype>(TavolaControlli().size());
    constexpr qsizetype QUANTI = 5;
    QStringList nomi;
    for (qsizetype i = 0; i < ora.size() && nomi.size() <= QUANTI; ++i) {
        if (ora.at(i) == prima.value(i)) continue;
        const QString nome = i < controlli ? ponte_.nome(static_cast<IdControllo>(i)) : ponte_.Traduci("Foglio");
        if (!nomi.contains(nome)) nomi << nome;
    }
    if (nomi.size() > QUANTI) nomi.back() = QStringLiteral("…");
    return nomi.join(QStringLiteral(", "));
}

bool Finestra::modificato() const { return improntaProgetto() != salvato_; }

void Finestra::titolo() {
    const QString file = percorso_.isEmpty() ? Q(s_.titolo("frmTavolo")) : QFileInfo(percorso_).fileName();
    setWindowTitle((file.isEmpty() ? ponte_.Traduci("Senza nome") : file) + QStringLiteral("[*] — ") + Q(s_.titolo("MDIForm1")));
    setWindowModified(modificato());
}

void Finestra::chiediVivo() {
    improntaCampi_ = impronta(s_);
    if (!note_->angoliInteri()) {  // the dial waits for the rest of what is typed
        vivo_->ferma();
        return lungoVivo(false);
    }
    vivo_->chiedi(s_, quadro_->foglio().vista(), australe() != montato_);
    if (pazienza_ && !lungo_) pazienza_->start(pazienza);
}

// A dial that takes its time beside the window says so, and can be given up; the one on the sheet stays.
void Finestra::lungoVivo(bool dura) {
    if (dura && !vivo_->attivo()) return;
    if (!dura && !std::exchange(lungo_, false)) return;
    lungo_ = dura;
    if (!dura) return quadro_->offri({}, {});
    quadro_->offri(ponte_.Traduci("Disegno del quadrante..."),
                   {{ponte_.Traduci("Ferma"), [this] {
                         vivo_->ferma();
                         lungo_ = false;
                         messaggio(ponte_.Traduci("Fermato: il quadrante resta com'era"));
                     }}});
}

// A run off the thread has come: its drawing, its variables and its sheet are the session's, its fields are not.
void Finestra::disegnoVivo(Vivo::ProvaViva &e) {
    pazienza_->stop();
    lungoVivo(false);
    Tavolo &t = s_.tavolo;
    const std::vector<RecArea> pagine = t.lista().Aree;
    t.ScambiaDisegno(*e.tavolo);
    t.ForeColor = e.tavolo->ForeColor;
    const Variabili prima = s_.v;
    s_.v = e.v;
    // What the live dial read is not the user's run.
    for (Reale Variabili::*o : {&Variabili::letture, &Variabili::lat_o, &Variabili::dec_o, &Variabili::iz_o, &Variabili::lon_o,
                                &Variabili::inc_o, &Variabili::diffLong})
        s_.v.*o = prima.*o;
    if (t.ShiftX() != e.tavolo->ShiftX()) t.ShiftX(e.tavolo->ShiftX());
    if (t.ShiftY() != e.tavolo->ShiftY()) t.ShiftY(e.tavolo->ShiftY());
    if (t.QuadranteL() != e.tavolo->QuadranteL()) t.QuadranteL(e.tavolo->QuadranteL());
    if (t.QuadranteH() != e.tavolo->QuadranteH()) t.QuadranteH(e.tavolo->QuadranteH());
    constexpr double DENTRO = 1e-3;
    for (const RecArea &a : pagine) t.xTrovaA4(a.X + DENTRO, a.Y + DENTRO);  // the pages stay chosen
    montaAustrale();
    t.Messaggio(e.avviso.empty() && montato_ ? s_.Traduci("Quadrante australe: il disegno è già specchiato come va montato")
                                             : e.avviso);
    quadro_->foglio().cambiato(e.immagine, e.vista);
    strati_->aggiorna();
    ponte_.sincronizza();
    quadro_->aggiorna();
    passi_->aggiorna(true);
}

void Finestra::adatta() {
    bool fatto = false;
    ponte_.passo = ponte_.Traduci("Adatta il foglio");
    ponte_.fai(NESSUN_CONTROLLO, [&] { fatto = app::Adatta(s_); });
    if (!fatto) return messaggio(ponte_.Traduci("Le quattro rette non chiudono un foglio: controlla x0, x1, y0, y1"));
    quadro_->foglio().tutto();
    if (vivoAcceso_->isChecked()) chiediVivo();
}

void Finestra::esegui() { ponte_.premi("cmdRun"); }

void Finestra::primoQuadrante() {
    for (const Controllo &c : ControlliDi("MDIForm1"))
        if (c.classe == Classe::Casella && s_.valore(IdDi(c)) != 0) return;
    for (int DialInputs::*casella :
         {&DialInputs::chkOreAstronomiche, &DialInputs::Ck_DayLightCurves, &DialInputs::ck_Equinoziale})
        s_.in.*casella = 1;
    etichetteAccese();
    app::Adatta(s_);
    salvato_ = improntaProgetto();
    passi_->aggiorna(true);
    quadro_->foglio().tutto();
    vivoAcceso_->setChecked(true);
    chiediVivo();
    ponte_.sincronizza();
    quadro_->aggiorna();
    titolo();
}

// A new dial says what its lines are, where there are letters to say it with.
void Finestra::etichetteAccese() { s_.in.ckEtichette = officina::CiSonoTratti() ? 1 : 0; }

void Finestra::messaggio(const QString &testo) {
    s_.Messaggio(testo.toStdString());
    ponte_.sincronizza();
}

void Finestra::closeEvent(QCloseEvent *e) {
    if (modificato() ? !lasciaAndare() : !app::ChiudiTavolo(s_)) return e->ignore();
    // What this window's user didn't touch is left as another window may have set it.
    QSettings ricordi;
    for (const auto &[nome, ora, allora] :
         {std::tuple{GEOMETRIA, saveGeometry(), primaGeometria_}, std::tuple{STATO, saveState(), primoStato_}})
        if (ora != allora) ricordi.setValue(QLatin1String(nome), ora);
    vivo_->ferma();
    ripresa_.lascia();
    QMainWindow::closeEvent(e);
}

}  // namespace ombrelia::desktop
