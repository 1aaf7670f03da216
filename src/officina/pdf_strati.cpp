// PDF by hand: one page at true scale, one optional-content layer a kind.
#include <cmath>
#include <cstdio>
#include <numbers>

#include "core/testo.h"
#include "officina/scrittori.h"

namespace ombrelia::officina {

namespace {

constexpr double PUNTI = 72 / 25.4;  // a millimetre
constexpr double LATO_MASSIMO = 14400;
constexpr double CORPO = 1.4;  // font size in heights of capitals

class ScrittorePdf {
public:
    ScrittorePdf(const Disegno &d, const Intestazione &f) : d_(d), pagina_(Pagina(d)), titolo_(f.titolo) {
        const double lato = PUNTI * std::max(pagina_.x1 - pagina_.x0, pagina_.y1 - pagina_.y0);
        // Above the largest page the unit grows: whole, so that sizes stay round.
        unita_ = lato > LATO_MASSIMO ? std::ceil(lato / LATO_MASSIMO) : 1;
        k_ = PUNTI / unita_;
    }

    std::string scrivi() {
        const auto generi = GeneriUsati(d_);
        const int primo = 7;  // number of the first layer's object
        std::string elenco, nomi;
        for (std::size_t i = 0; i < generi.size(); ++i) {
            elenco += std::to_string(primo + static_cast<int>(i)) + " 0 R ";
            nomi += "/L" + std::to_string(i) + " " + std::to_string(primo + static_cast<int>(i)) + " 0 R ";
        }
        t = "%PDF-1.6\n%\xE2\xE3\xCF\xD3\n";
        oggetto("<< /Type /Catalog /Pages 2 0 R /OCProperties << /OCGs [ " + elenco + "] /D << /Order [ " + elenco + "] /ON [ " +
                elenco + "] >> >> /ViewerPreferences << /DisplayDocTitle true >> >>");
        oggetto("<< /Type /Pages /Kids [ 3 0 R ] /Count 1 >>");
        std::string p = "<< /Type /Page /Parent 2 0 R /MediaBox [ 0 0 ";
        AggiungiDecimali(p, k_ * (pagina_.x1 - pagina_.x0), 4);
        p += ' ';
        AggiungiDecimali(p, k_ * (pagina_.y1 - pagina_.y0), 4);
        p += " ]";
        if (unita_ != 1) {
            p += " /UserUnit ";
            AggiungiDecimali(p, unita_, 0);
        }
        oggetto(p + " /Contents 4 0 R /Resources << /Font << /F 5 0 R >> /Properties << " + nomi + ">> >> >>");
        for (std::size_t i = 0; i < generi.size(); ++i) strato(Riga(generi[i]), "L" + std::to_string(i));
        oggetto("<< /Length " + std::to_string(c.size()) + " >>\nstream\n" + c + "endstream");
        oggetto("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding /WinAnsiEncoding >>");
        oggetto("<< /Title " + stringa(titolo_) + " /Producer (Ombrelia) >>");
        for (const Genere g : generi) oggetto("<< /Type /OCG /Name (" + std::string(Riga(g).nome) + ") >>");
        const std::size_t tavola = t.size();
        t += "xref\n0 " + std::to_string(posti_.size() + 1) + "\n0000000000 65535 f \n";
        for (const std::size_t posto : posti_) {
            char b[24];
            std::snprintf(b, sizeof b, "%010zu 00000 n \n", posto);
            t += b;
        }
        t += "trailer\n<< /Size " + std::to_string(posti_.size() + 1) + " /Root 1 0 R /Info 6 0 R >>\nstartxref\n" +
             std::to_string(tavola) + "\n%%EOF\n";
        return std::move(t);
    }

private:
    void oggetto(const std::string &corpo) {
        posti_.push_back(t.size());
        t += std::to_string(posti_.size()) + " 0 obj\n" + corpo + "\nendobj\n";
    }
    // A text in Windows-1252.
    static std::string stringa(std::string_view utf8) {
        std::string grezzo, s = "(";
        AggiungiCp1252(grezzo, utf8);
        for (const char ch : grezzo) {
            if (ch == '(' || ch == ')' || ch == '\\') s += '\\';
            s += static_cast<unsigned char>(ch) < ' ' ? ' ' : ch;
        }
        return s + ")";
    }

    void numero(double n) {
        AggiungiDecimali(c, n, 5);
        c += ' ';
    }
    void punto(P2 p) {
        numero(k_ * (p.x - pagina_.x0));
        numero(k_ * (p.y - pagina_.y0));
    }

    void strato(const RigaGenere &r, const std::string &nome) {
        c += "/OC /" + nome + " BDC\nq 1 J 1 j ";
        numero(k_ * r.spessore);
        c += "w ";
        for (const char *segno : {"RG ", "rg\n"}) {
            for (const unsigned k : {16U, 8U, 0U}) numero(((r.rgb >> k) & 255U) / 255.0);
            c += segno;
        }
        for (const Cammino &k : d_.cammini)
            if (k.genere == r.genere) cammino(k);
        c += "Q\nEMC\n";
    }

    void arco(P2 m, double raggio, double da, double giro) {
        const int n = std::max(1, static_cast<int>(std::ceil(giro / (std::numbers::pi / 4))));
        const double passo = giro / n, b = 4.0 / 3 * std::tan(passo / 4) * raggio;
        const auto su = [&](double a) { return m + raggio * P2{std::cos(a), std::sin(a)}; };
        const auto verso = [](double a) { return P2{-std::sin(a), std::cos(a)}; };
        punto(su(da));
        c += "m ";
        for (int i = 0; i < n; ++i) {
            const double p = da + i * passo, q = p + passo;
            punto(su(p) + b * verso(p));
            punto(su(q) - b * verso(q));
            punto(su(q));
            c += "c ";
        }
        c += "S\n";
    }

    void cammino(const Cammino &k) {
        constexpr double GIRO = 2 * std::numbers::pi;
        switch (k.tipo) {
            case Cammino::Tipo::Cerchio:
                return arco(k.punti[0], k.raggio, 0, GIRO);
            case Cammino::Tipo::Arco:
                return arco(k.punti[0], k.raggio, k.inizio, std::fmod(k.fine - k.inizio + 2 * GIRO, GIRO));
            case Cammino::Tipo::Testo:
                c += "BT /F ";
                numero(k_ * CORPO * k.raggio);
                c += "Tf ";
                punto(k.punti[0]);
                c += "Td " + stringa(k.testo) + " Tj ET\n";
                return;
            case Cammino::Tipo::Punto:
            case Cammino::Tipo::Linea:
                break;
        }
        punto(k.punti[0]);
        c += "m ";
        for (std::size_t i = 1; i < k.punti.size(); ++i) {
            punto(k.punti[i]);
            c += "l ";
        }
        if (k.tipo == Cammino::Tipo::Punto) {
            punto(k.punti[0]);
            c += "l ";
        }
        c += k.chiuso ? "s\n" : "S\n";
    }

    const Disegno &d_;
    const Riquadro pagina_;
    const std::string titolo_;
    double unita_, k_;
    std::string t, c;
    std::vector<std::size_t> posti_;
};

}  // namespace

std::string PdfStrati(const Disegno &d, const Intestazione &f) { return ScrittorePdf(d, f).scrivi(); }

}  // namespace ombrelia::officina
