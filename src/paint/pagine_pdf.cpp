// Rewrites the page boxes of a PDF and the table of places behind them.
#include "paint/pagine_pdf.h"

#include <charconv>
#include <cmath>
#include <vector>

namespace ombrelia::paint {

namespace {

const QByteArray SCATOLA = "/MediaBox [0 0 ";

QByteArray numero(double n) { return QByteArray::number(std::round(n * 1e4) / 1e4, 'f', 4); }

struct Cambio {
    qsizetype dove, vecchia;  // place and length of what is replaced
    QByteArray nuovo;
};

}  // namespace

QByteArray ConPagineEsatte(const QByteArray &pdf, const QSizeF &punti) {
    std::vector<Cambio> cambi;
    for (qsizetype i = pdf.indexOf(SCATOLA); i >= 0; i = pdf.indexOf(SCATOLA, i + 1)) {
        const qsizetype fine = pdf.indexOf(']', i);
        const QList<QByteArray> misure = pdf.mid(i + SCATOLA.size(), fine - i - SCATOLA.size()).trimmed().split(' ');
        if (fine < 0 || misure.size() != 2) return pdf;
        // A page over 200 inches counts in larger units, and its box stands in those.
        const double intera = misure[1].toDouble(), larga = misure[0].toDouble();
        const double unita = std::max(1.0, std::round(std::max(punti.width() / larga, punti.height() / intera)));
        cambi.push_back({i, fine + 1 - i,
                         "/MediaBox [0 " + numero(intera - punti.height() / unita) + ' ' + numero(punti.width() / unita) + ' ' +
                             numero(intera) + ']'});
    }
    const qsizetype inizio = pdf.lastIndexOf("startxref");
    if (cambi.empty() || inizio < 0) return pdf;
    const qsizetype tavola = pdf.mid(inizio + 9).trimmed().split('\n').value(0).trimmed().toLongLong();
    if (tavola <= cambi.back().dove || pdf.mid(tavola, 4) != "xref") return pdf;

    const auto spostato = [&cambi](qsizetype dove) {
        qsizetype di = 0;
        for (const Cambio &c : cambi)
            if (c.dove < dove) di += c.nuovo.size() - c.vecchia;
        return dove + di;
    };
    QByteArray nuovo;
    qsizetype fino = 0;
    for (const Cambio &c : cambi) {
        nuovo += pdf.mid(fino, c.dove - fino) + c.nuovo;
        fino = c.dove + c.vecchia;
    }
    nuovo += pdf.mid(fino, tavola - fino);
    // Entries of the table are twenty bytes each: place, generation, kind.
    for (const QByteArray &riga : pdf.mid(tavola, inizio - tavola).split('\n')) {
        const QList<QByteArray> parole = riga.trimmed().split(' ');
        if (parole.size() == 3 && parole[2] == "n")
            nuovo += QByteArray::number(spostato(parole[0].toLongLong())).rightJustified(10, '0') + ' ' + parole[1] + " n \n";
        else if (!riga.isEmpty()) nuovo += riga + '\n';
    }
    return nuovo + "startxref\n" + QByteArray::number(spostato(tavola)) + "\n%%EOF\n";
}

}  // namespace ombrelia::paint
