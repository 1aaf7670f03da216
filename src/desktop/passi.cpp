// Steps.
#include "desktop/passi.h"

#include <QUndoCommand>

#include "desktop/dialoghi.h"

namespace ombrelia::desktop {

struct Passi::Istantanea {
    DialInputs in;
    Variabili v;
    std::vector<StatoControllo> stati;
    std::vector<std::string> titoli;
    PannelloTavolo pannello;
    double l = 0, h = 0, sx = 0, sy = 0, fx = 1, fy = 1;
    int scala = 1;
    std::shared_ptr<const Tavolo::DisegnoTenuto> disegno;  // none when it follows the fields
    std::string impronta;                                  // of all that a step can change but the drawing
    double campione = 0;                                   // of the drawing
};

namespace {

// A number that two drawings hardly share: how much they hold, and records taken here and there.
double campioneDi(const Lista &l) {
    double somma = static_cast<double>(l.Ordine.size()) + 3.0 * static_cast<double>(l.Testi.size());
    for (std::size_t k = 0; k < l.Aree.size(); ++k) somma += static_cast<double>(k + 7) * l.Aree[k].Pagina;
    constexpr std::size_t PROVE = 97;
    const auto scorri = [&somma](const auto &voci, const auto &misura) {
        const std::size_t passo = voci.size() / PROVE + 1;
        for (std::size_t k = 0; k < voci.size(); k += passo) somma += static_cast<double>(k + 1) * misura(voci[k]);
    };
    scorri(l.Linee, [](const RecLinea &r) { return r.X1 + 1.7 * r.Y1 + 2.3 * r.X2 + 3.1 * r.Y2; });
    scorri(l.Punti, [](const RecPunto &r) { return r.X + 1.3 * r.Y; });
    scorri(l.Testi, [](const RecTesto &r) { return r.X + 1.9 * r.Y; });
    return somma;
}

}  // namespace

class Passi::Mossa final : public QUndoCommand {
public:
    Mossa(Passi &passi, IdControllo id, const QString &nome, std::shared_ptr<Istantanea> prima, std::shared_ptr<Istantanea> dopo)
        : QUndoCommand(nome), passi_(passi), id_(id), prima_(std::move(prima)), dopo_(std::move(dopo)) {}
    void undo() override { passi_.rimetti(prima_); }
    void redo() override {
        if (!std::exchange(fatto_, true)) return;  // the user has done it already
        passi_.rimetti(dopo_);
    }
    [[nodiscard]] int id() const override { return id_; }
    bool mergeWith(const QUndoCommand *altro) override {
        dopo_ = static_cast<const Mossa *>(altro)->dopo_;
        return true;
    }

private:
    Passi &passi_;
    int id_;
    std::shared_ptr<Istantanea> prima_, dopo_;
    bool fatto_ = false;
};

Passi::Passi(Sessione &s, QObject *genitore, std::function<void(bool)> rimesso)
    : QUndoStack(genitore), s_(s), rimesso_(std::move(rimesso)) {
    constexpr int PASSI_TENUTI = 200;
    setUndoLimit(PASSI_TENUTI);
    ora_ = ritrai(false);
}

std::shared_ptr<Passi::Istantanea> Passi::ritrai(bool segue) const {
    const Tavolo &t = s_.tavolo;
    auto i = std::make_shared<Istantanea>(Istantanea{s_.in,
                                                     s_.v,
                                                     s_.stati,
                                                     s_.titoli,
                                                     t.pannello,
                                                     t.QuadranteL(),
                                                     t.QuadranteH(),
                                                     t.ShiftX(),
                                                     t.ShiftY(),
                                                     t.FattoreX,
                                                     t.FattoreY,
                                                     t.Scala(),
                                                     nullptr,
                                                     {},
                                                     0});
    std::string &f = i->impronta;
    const auto tavola = TavolaControlli();
    for (std::size_t k = 0; k < tavola.size(); ++k) {
        const Controllo &c = tavola[k];
        const auto id = static_cast<IdControllo>(k);
        if (c.modulo != "MDIForm1" && c.modulo != "frmDeclin") continue;
        if (c.classe == Classe::Testo || c.classe == Classe::Elenco) f += s_.testo(id);
        else if (c.classe == Classe::Casella || c.classe == Classe::Opzione) f += std::to_string(s_.valore(id));
        f += '\n';
    }
    for (const double x : {i->l, i->h, i->sx, i->sy, i->fx, i->fy, static_cast<double>(i->scala)}) f += std::to_string(x) + '\n';
    for (const Reale Variabili::*v : {&Variabili::flagVerticale, &Variabili::flagTrasformato, &Variabili::lonEq})
        f += std::to_string((s_.v.*v).numero()) + '\n';
    f += s_.titoli.empty() ? "" : s_.titolo("frmTavolo");
    i->campione = campioneDi(t.lista());
    if (!segue) {
        // A drawing that stays is kept once.
        i->disegno = ora_ && ora_->disegno && ora_->campione == i->campione
                         ? ora_->disegno
                         : std::make_shared<const Tavolo::DisegnoTenuto>(t.CopiaDisegno());
    }
    return i;
}

void Passi::annota(IdControllo id, const QString &nome, bool segue) {
    auto dopo = ritrai(segue);
    // A drawing that follows the fields changes by itself.
    if (dopo->impronta == ora_->impronta && (segue || dopo->campione == ora_->campione)) return;
    const bool testo = id != NESSUN_CONTROLLO && RigaDi(id).classe == Classe::Testo;
    const auto prima = std::exchange(ora_, dopo);
    push(new Mossa(*this, testo ? id : -1, nome, prima, dopo));
}

void Passi::aggiorna(bool segue) { *ora_ = *ritrai(segue); }

bool Passi::rimettiDisegno() {
    if (!ora_->disegno) return false;
    s_.tavolo.MettiDisegno(*ora_->disegno);
    return true;
}

void Passi::rimetti(const std::shared_ptr<Istantanea> &i) {
    ora_ = i;
    Tavolo &t = s_.tavolo;
    s_.in = i->in;
    s_.v = i->v;
    s_.stati = i->stati;
    s_.titoli = i->titoli;
    t.QuadranteL(i->l);
    t.QuadranteH(i->h);
    t.ShiftX(i->sx);
    t.ShiftY(i->sy);
    t.Scala(i->scala);
    t.FattoreX = i->fx;
    t.FattoreY = i->fy;
    t.pannello = i->pannello;
    if (i->disegno) t.MettiDisegno(*i->disegno);
    rimesso_(!i->disegno);
}

}  // namespace ombrelia::desktop
