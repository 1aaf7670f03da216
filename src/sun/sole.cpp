// The series of the Sun.
#include "sun/sole.h"

#include "core/angoli.h"
#include "core/testo.h"

namespace ombrelia::sun {

namespace {

std::string ultimiDue(const std::string &testo) { return testo.substr(testo.size() - 2); }

// Julian day from the padded texts. giorno carries the fraction of the day.
Valore giornoGiuliano(const std::string &anno, const std::string &mese, const std::string &giorno) {
    Valore y = Val(anno) - 1, m = Val(mese) + 12;
    if (Val(mese) > 2) {
        y = Val(anno);
        m = Val(mese);
    }
    const Valore A = Int(y / 100);
    Valore B = 2 - A + Int(A / 4);
    // The date as one number, its texts joined end to end: 15821015.5.
    const Valore data = Val(anno + mese + giorno);
    if (!data.esiste()) return data;
    if (data / 100 < 158210.15) B = 0;
    return Int(365.25 * (y + 4716)) + Int(30.6001 * (m + 1)) + B + Val(giorno) - 1524.5;
}

}  // namespace

Sessagesimale GradiDecToSex(Valore valore) {
    const Valore v = Abs(valore);
    const Valore f = v - Int(v);
    Sessagesimale s{Int(v), Int(60 * f), 60 * (60 * f - Int(60 * f))};
    if (valore < 0) s = {-1 * s.gradi, -1 * s.primi, -1 * s.secondi};
    return s;
}

std::string GradiSexToDec(std::string_view Segno, Valore Gradi, Valore Primi, Valore Secondi) {
    const std::string gradi = Formato(Gradi + Primi / 60 + Secondi / 3600, "0.00000");
    if (gradi.empty() || Segno == "+") return gradi;
    return std::string(Segno) + gradi;
}

Sessagesimale OreMinutiSecondi(Valore ore) {
    const Valore f = ore - Int(ore);
    return {Int(ore), Int(60 * f), Int(60 * (60 * f - Int(60 * f)))};
}

Valore EqTempo(const std::string &Anno, std::string &Mese, std::string &Giorno, Valore Ora, Valore Minuti, Valore Secondi,
               SoleDelPannello &sole) {
    // One carry of a day at most. 24 h sharp carries nothing: its fraction prints as 1.00000 behind the day's digits,
    // which makes day 15 a day 151. That is meant.
    Valore t = Ora + Minuti / 60 + Secondi / 3600;
    Valore d = 0;
    if (t > 24) {
        t = t - 24;
        d = 1;
    }
    if (t < 0) {
        t = t + 24;
        d = -1;
    }
    const Valore giorno = d + Val(Giorno);
    sole = {};
    Mese = ultimiDue("00" + Mese);
    if (!t.esiste() || !giorno.esiste()) {
        sole.giuliano = Valore::nessuno();
    } else {
        Giorno = ultimiDue("00" + TestoNumero(giorno.v));
        // The fraction of the day enters with five decimals, 0.864 s.
        sole.giuliano = giornoGiuliano(Anno, Mese, Giorno + Formato(t / 24, ".00000"));
    }

    const Valore T = (sole.giuliano - 2415020) / 36525;
    const Valore T2 = T * T, T3 = T * T * T;
    const Valore e = PI * (23.452294 - 0.0130125 * T - 0.00000164 * T2 + 0.000000503 * T3) / 180;  // obliquity
    const Valore L = PI * (279.69668 + 36000.76892 * T + 0.0003025 * T2) / 180;                    // mean longitude
    const Valore M = PI * (358.47583 + 35999.04975 * T - 0.00015 * T2 - 0.0000033 * T3) / 180;     // mean anomaly
    const Valore E = 0.01675104 - 0.0000418 * T - 0.000000126 * T2;                                // eccentricity
    const Valore Y = tan(e / 2) * tan(e / 2);

    const Valore senM = sin(M), sen2M = sin(2 * M);
    const Valore tempo = Y * sin(2 * L) - 2 * E * senM + 4 * E * Y * senM * cos(2 * L) - (1.0 / 2) * (Y * Y) * sin(4 * L) -
                         (5.0 / 4) * (E * E) * sen2M;
    const Valore equazione = 4 * (180 * tempo / PI);
    sole.secoli = T;
    sole.minuti = Sgn(equazione) * Int(Abs(equazione));
    sole.resto = equazione - sole.minuti;

    // Equation of the centre and true longitude, degrees; the sum is not reduced again.
    const Valore C = (1.91946 - 0.004789 * T - 0.000014 * T2) * senM + (0.020094 - 0.0001 * T) * sen2M + 0.000293 * sin(3 * M);
    const Valore gradiL = 180 * L / PI;
    const Valore S = PI * (gradiL - 360 * Int(gradiL / 360) + C) / 180;

    sole.delta = ArcSin(sin(e) * sin(S));

    const Valore z = (cos(e) - 1) / (cos(e) + 1);
    const Valore a =
        S + z * sin(2 * S) + (z * z / 2) * sin(4 * S) + (z * z * z / 3) * sin(6 * S) + (z * z * z * z / 4) * sin(8 * S);
    sole.ascensione = 12 * a / PI;
    return equazione;
}

}  // namespace ombrelia::sun
