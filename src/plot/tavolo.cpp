// Recording, the text position, the sheet with its scale table, mirrors and axes. Painting stands in pittore.cpp, pages
// in pagine.cpp.
#include "plot/tavolo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <new>

#include "core/angoli.h"
#include "core/testo.h"

namespace ombrelia {

namespace {

constexpr std::array SCALE{1, 2, 3, 4, 5, 10, 20, 100};
// Larger side of the sheet, metres, below which a scale of the list is allowed; the last holds for all the rest.
constexpr std::array LIMITI{0.564, 1.128, 1.693, 2.257, 2.821, 5.643, 11.287};
static_assert(LIMITI.size() + 1 == SCALE.size());

constexpr int SCALA_MASSIMA = 32767;  // 16 bit
constexpr std::size_t LETTERE_TESTO = 100;

// What a page loses at its edges, metres.
constexpr double BORDO_LARGHEZZA = 0.013, BORDO_ALTEZZA = 0.015;
constexpr double A4_LARGHEZZA = 11906, A4_ALTEZZA = 16838;

double utile(double pagina, double bordo, double altrimenti) {
    const double metri = pagina / Tavolo::ScalaBase - bordo;
    return metri > 0 && metri <= Tavolo::LATO_MASSIMO ? metri : altrimenti / Tavolo::ScalaBase - bordo;
}

void mostra(std::string &campo, double metri, int posti) {
    if (const Valore v = Round(metri, posti); v.esiste()) campo = TestoNumero(v.v);
}

std::string etichettaScala(int n) { return "1:" + std::to_string(n); }

// The first 100 characters without the blanks at the end, which a field of fixed length does not tell from its padding.
std::string_view tagliato(std::string_view testo) {
    std::size_t i = 0;
    for (std::size_t lettere = 0; i < testo.size(); ++i) {
        const bool inizio = (static_cast<unsigned char>(testo[i]) & 0xC0U) != 0x80U;
        if (inizio && ++lettere > LETTERE_TESTO) break;
    }
    testo = testo.substr(0, i);
    return testo.substr(0, testo.find_last_not_of(' ') + 1);
}

}  // namespace

double Carta::largaTwip() const { return std::round(larga / 0.0254 * 1440); }
double Carta::altaTwip() const { return std::round(alta / 0.0254 * 1440); }

Tavolo::Tavolo(double larghezzaPagina, double altezzaPagina)
    : idAssi_(lista_.nomi.id(ID_ASSI)),
      idPagina_(lista_.nomi.id(ID_PAGINA)),
      idGriglia_(lista_.nomi.id(ID_GRIGLIA)),
      larghezzaPagina_(utile(larghezzaPagina, BORDO_LARGHEZZA, A4_LARGHEZZA)),
      altezzaPagina_(utile(altezzaPagina, BORDO_ALTEZZA, A4_ALTEZZA)) {
    QuadranteH(altezzaPagina_);
    QuadranteL(larghezzaPagina_);
    ShiftX(0);
    ShiftY(0);
    impostaScala(ScalaMinima());
}

bool Tavolo::Pagina(const Carta &carta) {
    const double larga = utile(carta.largaTwip(), BORDO_LARGHEZZA, A4_LARGHEZZA);
    const double alta = utile(carta.altaTwip(), BORDO_ALTEZZA, A4_ALTEZZA);
    carta_ = carta;
    if (larga == larghezzaPagina_ && alta == altezzaPagina_) return false;
    larghezzaPagina_ = larga;
    altezzaPagina_ = alta;
    const bool scelte = !lista_.Aree.empty();
    LasciaPagine();
    if (scelte) Refresh();
    return scelte;
}

void Tavolo::pieno() { throw std::bad_alloc(); }

// --- drawing ---------------------------------------------------------------------------------------------------------

void Tavolo::TracciaPunti(std::span<const RecPunto> punti) {
    if (recordMassimi < punti.size() || lista_.Ordine.size() > recordMassimi - punti.size()) pieno();
    lista_.Punti.insert(lista_.Punti.end(), punti.begin(), punti.end());
    lista_.Ordine.append(punti.size(), 'P');
    if (!dispositivo) return;
    for (const RecPunto &p : punti) pittore().punto(p.X, p.Y, p.colore);
}

void Tavolo::figura(const RecFigura &r, char ordine) {
    lista_.Figure.push_back(r);
    if (ordine != 0) lista_.Ordine.push_back(ordine);
}

void Tavolo::TracciaRiquadro(Valore X1, Valore Y1, Valore X2, Valore Y2, Colore colore, bool Filled, std::string_view Id) {
    if (!(X1.esiste() && Y1.esiste() && X2.esiste() && Y2.esiste())) return;
    figura({'B', Voce::START, Filled, X1.v, Y1.v, X2.v, Y2.v, 0, 0, colore, 0, nome(Id)}, 'B');
    if (dispositivo) pittore().riquadro(X1.v, Y1.v, X2.v, Y2.v, colore, Filled, specchia(nome(Id)));
}

void Tavolo::TracciaCerchio(Valore X, Valore Y, Valore Raggio, Colore colore, Colore FillColor, Valore Aspect, Valore Start,
                            Valore End, std::string_view Id) {
    for (const Valore v : {X, Y, Raggio, Aspect, Start, End})
        if (!v.esiste()) return;
    const RecFigura r{'C', Voce::START, false, X.v, Y.v, Raggio.v, Aspect.v, Start.v, End.v, colore, FillColor, nome(Id)};
    figura(r, 'C');
    if (dispositivo) pittore().cerchio(r);
}

void Tavolo::xPlineStart(std::string_view Id) { figura({'V', Voce::START, false, 0, PIEDE, 0, 0, 0, 0, 4, 0, nome(Id)}, 'V'); }

void Tavolo::xPLineVertex(Valore X, Valore Y, Colore colore, std::string_view Id) {
    if (X.esiste() && Y.esiste()) figura({'V', Voce::VERTEX, false, X.v, Capovolta(Y.v), 0, 0, 0, 0, colore, 0, nome(Id)}, 0);
}

void Tavolo::xPlineEnd(std::string_view Id) {
    figura({'V', Voce::END, false, 0, PIEDE, 0, 0, 0, 0, 4, 0, nome(Id)}, 0);
    if (dispositivo) pittore().polilinea(lista_, nome(Id));
}

void Tavolo::scrivi(std::string_view Text, std::optional<Valore> X, std::optional<Valore> Y) {
    if ((X && !X->esiste()) || (Y && !Y->esiste())) return;
    // A position that overflows leaves the old one.
    Reale xd = currentX_, yd = currentY_;
    if (X) xd = q_.daSinistra(*X) * scalaCorrente_;
    if (Y) yd = q_.dallAlto(*Y) * scalaCorrente_;
    const double x = X ? X->v : xCurrentX(), y = Y ? Y->v : -xCurrentY();
    lista_.Testi.push_back({x, y, std::string(tagliato(Text)), ForeColor});
    // Painted whole the first time; a replay shows the cut text of the record.
    if (dispositivo) pittore().testo(xd.numero(), yd.numero(), Text, ForeColor);
    currentX_ = 0;
    currentY_ = yd.numero() + ALTEZZA_RIGA;
}

void Tavolo::Messaggio(std::string_view Text) {
    pannello.p_mess = Text;
    if (suMessaggio) suMessaggio(Text);
}

void Tavolo::Clear() {
    if (dispositivo) dispositivo->Cls();
    lista_.svuota();
    FattoreX = FattoreY = 1.0;
    currentX_ = currentY_ = 0;
}

void Tavolo::Refresh() {
    if (!dispositivo) return;
    if (suAttesa) suAttesa(true);
    if (!OutputToPRN) dispositivo->Cls();
    pittore().rigioca(lista_);
    if (suAttesa) suAttesa(false);
}

// --- sheet -----------------------------------------------------------------------------------------------------------

void Tavolo::QuadranteH(double metri) {
    if (!std::isfinite(metri)) return;
    q_.H = std::min(metri, LATO_MASSIMO);
    mostra(pannello.txtQH, q_.H, 2);
    dopoFoglio();
}

void Tavolo::QuadranteL(double metri) {
    if (!std::isfinite(metri)) return;
    q_.L = std::min(metri, LATO_MASSIMO);
    mostra(pannello.txtQL, q_.L, 2);
    dopoFoglio();
}

void Tavolo::dopoFoglio() {
    std::string larghezza, altezza;
    mostra(larghezza, q_.L, 2);
    mostra(altezza, q_.H, 2);
    pannello.lblDimVal = larghezza + " x " + altezza;
    const int minima = ScalaMinima();
    if (scala_ < minima) impostaScala(minima);
    CaricaComboScala(minima, scala_);
    Refresh();
}

void Tavolo::ShiftX(double metri) {
    if (!std::isfinite(metri)) return;
    q_.x = metri;
    mostra(pannello.txtX, metri, 5);
}

void Tavolo::ShiftY(double metri) {
    if (!std::isfinite(metri)) return;
    q_.y = metri;
    mostra(pannello.txtY, metri, 5);
}

int Tavolo::ScalaMinima() const {
    const double m = std::max(q_.H, q_.L);
    std::size_t i = 0;
    while (i < LIMITI.size() && !(m < LIMITI[i])) ++i;
    return SCALE[i];
}

void Tavolo::impostaScala(int n) {
    scala_ = n;
    scalaCorrente_ = (1.0 / n) * ScalaBase;
    pannello.lblScala = etichettaScala(n);
    if (std::find(vociScala_.begin(), vociScala_.end(), n) != vociScala_.end()) pannello.cmbScala = etichettaScala(n);
}

void Tavolo::Scala(int n) {
    const int minima = OutputToPRN ? 0 : ScalaMinima();
    if (n < 1 || n > SCALA_MASSIMA || n < minima) return;
    impostaScala(n);
    Refresh();
}

void Tavolo::CaricaComboScala(int Minimo, int Corrente) {
    vociScala_.clear();
    pannello.cmbScala.clear();
    for (const int n : SCALE) {
        if (n < Minimo) continue;
        vociScala_.push_back(n);
        if (n == Corrente) pannello.cmbScala = etichettaScala(n);
    }
}

// --- mirrors, axes, mouse --------------------------------------------------------------------------------------------

void Tavolo::cmdInvX() {
    FattoreX *= -1;
    Refresh();
}

void Tavolo::cmdInvY() {
    FattoreY *= -1;
    Refresh();
}

void Tavolo::Assi() {
    xLine(-q_.x, 0, q_.L - q_.x, 0, ROSSO, idAssi_);
    xLine(0, -q_.y, 0, q_.H - q_.y, ROSSO, idAssi_);
    Dati("O", 0.04, -0.04);
    Dati("y", 0.04, -q_.y + 0.04);
    Dati("x", q_.L - q_.x - 0.04, -0.06);
}

void Tavolo::MouseDown(double px, double py) {
    const Valore x = Int((px / ScalaBase * scala_ - q_.x) * 1000);
    const Valore y = Int((py / ScalaBase * scala_ - q_.y) * 1000);
    if (!x.esiste() || !y.esiste()) return;
    pannello.lblXYval = TestoNumero(x.v) + " : " + TestoNumero(y.v);
    xTrovaA4(px / ScalaBase * scala_, py / ScalaBase * scala_);
}

}  // namespace ombrelia
