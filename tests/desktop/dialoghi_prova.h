// Boxes that answer at once, for tests and benchmarks of the window.
#pragma once

#include <QPrinter>
#include <deque>
#include <string>
#include <vector>

#include "desktop/dialoghi.h"

namespace ombrelia::prova {

class DialoghiDiProva final : public desktop::Dialoghi {
public:
    std::vector<std::string> avvisi, domande, stampe, proposti;  // proposti: files' names
    std::deque<std::string> risposte;                            // of file and input boxes
    desktop::Salvataggio prima = desktop::Salvataggio::Scarta;
    bool si = true;
    int beepSentiti = 0;
    std::optional<QPageSize::PageSizeId> cartaSua;  // of a printer that takes no other
    QString stampaSu;                               // a PDF that takes the place of the printer; none: nothing is painted

    void avviso(QWidget *, const QString &testo) override { avvisi.push_back(testo.toStdString()); }
    bool siNo(QWidget *, const QString &testo) override {
        domande.push_back(testo.toStdString());
        return si;
    }
    QString testo(QWidget *, const QString &, const QString &, const QString &proposta) override {
        const auto r = risposta();
        return r ? QString::fromStdString(*r) : proposta;
    }
    std::optional<QString> file(QWidget *, bool, const QString &, const QString &, const QString &proposto) override {
        proposti.push_back(proposto.toStdString());
        const auto r = risposta();
        return r ? std::optional(QString::fromStdString(*r)) : std::nullopt;
    }
    desktop::Salvataggio salvaPrima(QWidget *, const QString &testo) override {
        domande.push_back(testo.toStdString());
        return prima;
    }
    void stampa(QWidget *, const QString &titolo, const std::function<void(QPrinter &)> &dipingi) override {
        stampe.push_back(titolo.toStdString());
        if (stampaSu.isEmpty()) return;
        QPrinter stampante(QPrinter::HighResolution);
        stampante.setOutputFormat(QPrinter::PdfFormat);
        stampante.setOutputFileName(stampaSu);
        stampante.setPageSize(QPageSize(QPageSize::A4));
        dipingi(stampante);
        if (!cartaSua) return;
        stampante.setPageSize(QPageSize(*cartaSua));
        dipingi(stampante);
    }
    void beep() override { ++beepSentiti; }

private:
    std::optional<std::string> risposta() {
        if (risposte.empty()) return {};
        std::string r = risposte.front();
        risposte.pop_front();
        return r;
    }
};

}  // namespace ombrelia::prova
