// Runs off the window's thread.
#include "desktop/vivo.h"

#include <QMetaObject>
#include <QObject>
#include <utility>

#include "app/comandi.h"
#include "desktop/clessidra.h"
#include "sessione/limiti.h"
#include "sessione/muto.h"

namespace ombrelia::desktop {

namespace {

// Ends a run that nobody waits for any more.
class Guardia final : public DispositivoMuto {
public:
    Guardia(const std::atomic<unsigned> &ultimo, unsigned mio) : ultimo_(ultimo), mio_(mio) {}
    void guarda() const {
        if (ultimo_.load(std::memory_order_relaxed) != mio_) throw Fermato{};
    }
    void Linea(double, double, double, double, Colore, int) override { guarda(); }
    void Punto(double, double, Colore) override { guarda(); }

private:
    const std::atomic<unsigned> &ultimo_;
    unsigned mio_;
};

}  // namespace

Vivo::Vivo(QObject *contesto, const Dizionario &dizionario, std::function<void(ProvaViva &)> pronto)
    : contesto_(contesto), dizionario_(dizionario), pronto_(std::move(pronto)), filo_([this] { lavora(); }) {}

Vivo::~Vivo() {
    sportello_.chiudi();
    filo_.join();
}

void Vivo::ferma() {
    sportello_.lascia();
    attese_ = 0;
}

void Vivo::chiedi(const Sessione &s, const Vista &vista, bool specchia) {
    const Tavolo &t = s.tavolo;
    Richiesta r{s.in,       s.v,       s.stati,    t.QuadranteL(), t.QuadranteH(), t.ShiftX(),
                t.ShiftY(), t.Scala(), t.FattoreX, t.FattoreY,     vista};
    if (specchia) r.fattoreX = -r.fattoreX;
    attese_ = 1;
    sportello_.chiedi(std::move(r));
}

void Vivo::lavora() {
    Muto utente;
    Sessione s(utente);
    s.originaleFresco = s.australeMontato = true;
    s.tavolo.recordMassimi = RecordInMemoria();
    s.dizionario = dizionario_;
    while (auto incarico = sportello_.attendi()) {
        Richiesta &r = incarico->cosa;
        const unsigned mio = incarico->numero;
        utente.avvisi.clear();
        s.in = std::move(r.in);
        s.v = r.v;
        s.stati = std::move(r.stati);
        Tavolo &t = s.tavolo;
        t.dispositivo = nullptr;
        t.Clear();
        t.ForeColor = 0;
        t.QuadranteL(r.quadranteL);
        t.QuadranteH(r.quadranteH);
        t.ShiftX(r.shiftX);
        t.ShiftY(r.shiftY);
        t.Scala(r.scala);
        auto esito = std::make_shared<ProvaViva>();
        try {
            Guardia guardia(sportello_.numero(), mio);
            t.dispositivo = &guardia;
            for (const Controllo &c : ControlliDi("MDIForm1"))
                if (c.classe == Classe::Casella && c.casella && !s.stato(IdDi(c)).abilitato) s.in.*c.casella = 0;
            const bool disegnati =
                s.in.CkUNI == 1 && Val(s.in.txtInc) == 0 && Val(s.in.txtLAT) >= 0;  // that run draws the numerals
            app::cmdRun(s);
            // These boxes draw when they are set.
            for (const NomeControllo id : {NomeControllo("ckRomani"), NomeControllo("ckArabi")})
                if (!disegnati && std::exchange(s.valore(id), 0) == 1) app::Spunta(s, id, 1);
            t.dispositivo = nullptr;
            t.specchiaArchi = true;
            t.FattoreX = r.fattoreX;
            t.FattoreY = r.fattoreY;
            guardia.guarda();
            esito->immagine = DisegnaVista(t, r.vista);
        } catch (const Fermato &) {
            t.dispositivo = nullptr;
            continue;
        } catch (const std::bad_alloc &) {
            t.dispositivo = nullptr;
            t.Clear();
            continue;
        }
        esito->vista = r.vista;
        esito->v = s.v;
        if (!utente.avvisi.empty()) esito->avviso = utente.avvisi.front();
        esito->tavolo = std::make_unique<Tavolo>();
        Tavolo &e = *esito->tavolo;
        e.ScambiaDisegno(t);
        t.riserva(e);
        e.QuadranteL(t.QuadranteL());
        e.QuadranteH(t.QuadranteH());
        e.ShiftX(t.ShiftX());
        e.ShiftY(t.ShiftY());
        e.ForeColor = t.ForeColor;
        QMetaObject::invokeMethod(
            contesto_,
            [this, esito, mio] {
                if (mio != sportello_.numero()) return;
                attese_ = 0;
                pronto_(*esito);
            },
            Qt::QueuedConnection);
    }
}

}  // namespace ombrelia::desktop
