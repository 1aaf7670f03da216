// A place of the Earth as the Sun of a plane.
#include "map/zenit.h"

namespace ombrelia {

namespace {

int segno(double x) { return (x > 0) - (x < 0); }

}  // namespace

bool Specchiato(const Sessione &s, const Lettura &letto) { return s.in.ckCorretta == 1 && letto.lat < 0; }

Piano LasciaPiano(Sessione &s, const Lettura &letto, Valore gn, Valore unita) {
    Variabili &v = s.v;
    v.latR = PI * letto.lat / 180;
    if (Specchiato(s, letto)) v.latR = -v.latR;
    v.dec = letto.dec;
    v.decR = PI * v.dec / 180;
    if (letto.inc == 90) v.decR = 0;
    v.gn = gn;
    const Reale zr = PI * (90 - letto.inc) / 180;
    return Piano::conComplemento(v.latR, v.decR, zr, v.gn, unita);
}

void LasciaRichiesta(Sessione &s) { s.in.punto = 0; }

PianoDeiLuoghi LasciaPianoDeiLuoghi(Sessione &s, const Lettura &letto) {
    const Piano piano = LasciaPiano(s, letto, letto.gn * s.v.unita, 1);
    const bool capovolta = (s.in.ck_inv == 1 || s.in.ckCorretta == 1) && !Specchiato(s, letto);
    return {piano, capovolta, letto.inc == 90, Abs(s.v.dec) < 90};
}

Zenit::Zenit(const PianoDeiLuoghi &p)
    : senPhi_(p.piano.sphi.v),
      cosPhi_(p.piano.cphi.v),
      proiezione_(p.piano),
      fattore_(p.capovolta ? -1 : 1),
      orizzontale_(p.orizzontale),
      tanDec_(p.piano.tg.v),
      divisore_((p.piano.tz * p.piano.cg).v),
      negativo_(p.negativo) {}

bool Zenit::operator()(Valore X, Valore Y, Reale &x, Reale &y) {
    H_ = PI * X / 180;
    D_ = PI * fattore_ * Y / 180;
    const SenCos h(H_), d(D_);
    const double tanD = std::tan(D_.numero());

    // Azimuth from south, West positive, on the Sun's side of the meridian.
    A_ = Atn(h.sen / Valore(senPhi_ * h.cos - cosPhi_ * tanD));
    if (segno(std::sin(A_.numero())) != segno(h.sen)) A_ = A_ > 0 ? A_ - PI : A_ + PI;
    z_ = ArcCos(senPhi_ * d.sen + cosPhi_ * d.cos * h.cos);

    const SenCos azimut(A_), zenitale(z_);
    const double a = zenitale.sen * azimut.cos;
    const double b = zenitale.sen * azimut.sen;
    const double c = zenitale.cos;
    lato_ = orizzontale_ ? Valore(-c) : -a - b * tanDec_ - c / Valore(divisore_);
    if (!(negativo_ ? lato_ < 0 : lato_ > 0)) return false;

    proiezione_(h, tanD, x, y);
    return true;
}

}  // namespace ombrelia
