// The time bar.
#include "desktop/barra_tempo.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>
#include <QTimeEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>

#include "desktop/dialoghi.h"
#include "desktop/fuso_vicino.h"
#include "luoghi/fusi.h"

namespace ombrelia::desktop {

namespace {

constexpr int MINUTI = 24 * 60;
constexpr double DURATA = 10000;  // of a played day, milliseconds
constexpr int BATTITO = 33;

}  // namespace

BarraTempo::BarraTempo(Ponte &ponte, SopraFoglio &sopra, QWidget *genitore) : QWidget(genitore), ponte_(ponte), sopra_(sopra) {
    setObjectName(QStringLiteral("barraTempo"));
    auto *giu = new QVBoxLayout(this);
    giu->setContentsMargins(10, 6, 10, 8);
    giu->setSpacing(5);
    auto *sopraFila = new QHBoxLayout, *sottoFila = new QHBoxLayout;
    giu->addLayout(sopraFila);
    giu->addLayout(sottoFila);
    const auto aiuto = [](QWidget *w, const QString &testo) {
        w->setToolTip(testo);
        w->setAccessibleName(testo);
        return w;
    };
    const auto etichetta = [&](const QString &testo, QWidget *campo, QBoxLayout *fila) {
        auto *l = new QLabel(testo, this);
        l->setBuddy(campo);
        fila->addWidget(l);
    };

    suona_ = new QToolButton(this);
    suona_->setCheckable(true);
    suona_->setIcon(style()->standardIcon(QStyle::SP_MediaPlay));
    aiuto(suona_, ponte_.Traduci("Fa scorrere il giorno in dieci secondi"));
    sopraFila->addWidget(suona_);
    const auto cursore = [&](int massimo, int passo, const QString &testo) {
        auto *c = new QSlider(Qt::Horizontal, this);
        c->setRange(0, massimo);
        constexpr int CORTO = 70;
        c->setMinimumWidth(CORTO);
        c->setSingleStep(1);
        c->setPageStep(passo);
        aiuto(c, testo);
        return c;
    };
    ora_ = new QTimeEdit(this);
    ora_->setDisplayFormat(QStringLiteral("HH:mm"));
    aiuto(ora_, ponte_.Traduci("Ora dell'orologio nel fuso del quadrante"));
    etichetta(ponte_.Traduci("Ora dell'orologio"), ora_, sopraFila);
    sopraFila->addWidget(ora_);
    giornata_ = cursore(MINUTI - 1, 30, ponte_.Traduci("Il giorno, da mezzanotte a mezzanotte"));
    sopraFila->addWidget(giornata_, 1);
    legale_ = new QCheckBox(ponte_.Traduci("Ora legale"), this);
    aiuto(legale_, ponte_.Traduci("L'orologio è un'ora avanti; presa dal fuso della città vicina, quando c'è"));
    sopraFila->addWidget(legale_);

    data_ = new QDateEdit(this);
    data_->setCalendarPopup(true);
    data_->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    data_->setDateRange(QDate(1, 1, 1), QDate(9999, 12, 31));
    aiuto(data_, ponte_.Traduci("Giorno della cui ombra si tratta"));
    etichetta(ponte_.Traduci("Giorno dell'ombra"), data_, sottoFila);
    sottoFila->addWidget(data_);
    anno_ = cursore(364, 30, ponte_.Traduci("L'anno, da gennaio a dicembre"));
    sottoFila->addWidget(anno_, 1);
    esito_ = new QLabel(this);
    esito_->setObjectName(QStringLiteral("esitoTempo"));
    esito_->setTextFormat(Qt::PlainText);
    esito_->setWordWrap(true);
    esito_->setMinimumWidth(1);
    giu->addWidget(esito_);
    giu->addStretch(1);

    data_->setDate(QDate::currentDate());
    ora_->setTime(QTime(12, 0));
    giornata_->setValue(MINUTI / 2);
    anno_->setValue(data_->date().dayOfYear() - 1);

    connect(suona_, &QToolButton::toggled, this, [this](bool si) { suona(si); });
    connect(giornata_, &QSlider::valueChanged, this, [this](int m) {
        const QSignalBlocker zitto(ora_);
        ora_->setTime(QTime(m / 60, m % 60));
        cambiato();
    });
    connect(ora_, &QTimeEdit::timeChanged, this, [this](QTime t) {
        const QSignalBlocker zitto(giornata_);
        giornata_->setValue(t.hour() * 60 + t.minute());
        cambiato();
    });
    connect(anno_, &QSlider::valueChanged, this, [this](int g) {
        const QSignalBlocker zitto(data_);
        data_->setDate(QDate(data_->date().year(), 1, 1).addDays(g));
        cambiato();
    });
    connect(data_, &QDateEdit::dateChanged, this, [this](QDate d) {
        const QSignalBlocker zitto(anno_);
        anno_->setRange(0, d.daysInYear() - 1);
        anno_->setValue(d.dayOfYear() - 1);
        cambiato();
    });
    connect(legale_, &QCheckBox::clicked, this, [this] { cambiato(); });
    battito_.setInterval(BATTITO);
    connect(&battito_, &QTimer::timeout, this, [this] {
        const double ora = daOra_ + static_cast<double>(tempo_.elapsed()) / DURATA * MINUTI;
        giornata_->setValue(static_cast<int>(std::fmod(ora, MINUTI)));
        if (ora >= daOra_ + MINUTI) suona_->setChecked(false);
    });
}

void BarraTempo::suona(bool si) {
    suona_->setIcon(style()->standardIcon(si ? QStyle::SP_MediaPause : QStyle::SP_MediaPlay));
    if (!si) return battito_.stop();
    daOra_ = giornata_->value();
    tempo_.start();
    battito_.start();
}

void BarraTempo::showEvent(QShowEvent *) { aggiorna(); }

void BarraTempo::hideEvent(QHideEvent *) {
    suona_->setChecked(false);
    sopra_.ombra({});
}

void BarraTempo::aggiorna() {
    if (isVisible()) cambiato();
}

ombra::Data BarraTempo::data() const {
    const QDate d = data_->date();
    return {d.year(), d.month(), d.day()};
}

// Summer time by the nearest town's clock, as long as the user does not say otherwise for this day and place.
void BarraTempo::estate() {
    const Posa posa = PosaDelDisegno(ponte_.sessione());
    const double lat = posa.quadrante.latitudine * ombra::GRADI, lon = posa.longitudine * ombra::GRADI;
    if (lat != latitudine_ || lon != longitudine_) {
        latitudine_ = lat;
        longitudine_ = lon;
        const luoghi::Luogo *vicino = LuogoVicino(lat, lon, posa.fuso());
        fuso_ = vicino ? std::string(vicino->fuso) : std::string();
        giornoLegale_ = 0;
    }
    const std::int64_t giorno = data_->date().toJulianDay();
    if (giorno == giornoLegale_ || fuso_.empty()) return;
    giornoLegale_ = giorno;
    const auto f = luoghi::Fuso::Leggi(fuso_);
    if (!f) return;
    const QDate d = data_->date();
    legale_->setChecked(f->InCivile({d.year(), d.month(), d.day(), 12}).ora.estate);
}

void BarraTempo::cambiato() {
    if (!isVisible()) return;
    estate();
    const Sessione &s = ponte_.sessione();
    const Posa posa = PosaDelDisegno(s);
    const QTime t = ora_->time();
    istante_ = IstanteDi(posa, data(), t.hour() + t.minute() / 60.0, posa.fuso() + (legale_->isChecked() ? 1 : 0));
    const ombra::PianoMontato piano(posa.quadrante);
    SopraFoglio::Ombra o;
    o.australe = posa.australe;
    const bool luce = istante_.ombra.luce == ombra::Luce::Si;
    if (luce) {
        o.punta = istante_.ombra.punto;
        o.centro = piano.centro();
        o.stilo = piano.ombraDelloStilo(istante_.cielo.t);
    }
    sopra_.ombra(o);

    QString testo;
    switch (istante_.ombra.luce) {
        case ombra::Luce::Si:
            testo = ponte_.Traduci("Ombra a x %1, y %2 mm dal piede")
                        .arg(istante_.ombra.punto.x * 1000, 0, 'f', 1)
                        .arg(istante_.ombra.punto.y * 1000, 0, 'f', 1);
            break;
        case ombra::Luce::Notte:
            testo = ponte_.Traduci("Niente ombra: il Sole è sotto l'orizzonte");
            break;
        case ombra::Luce::Dietro:
            testo = ponte_.Traduci("Niente ombra: il Sole è dietro la parete");
            break;
        default:
            testo = ponte_.Traduci("Niente ombra: il Sole rade la parete");
            break;
    }
    testo += QStringLiteral("  ·  ") + ponte_.Traduci("ora vera") + QLatin1Char(' ') +
             Q(Orologio(ombra::oraVera(istante_.cielo.t))) + QStringLiteral("  ·  ") +
             ponte_.Traduci("Sole alto %1°, azimut %2°, declinazione %3°")
                 .arg(istante_.cielo.altezza * ombra::GRADI, 0, 'f', 1)
                 .arg(istante_.cielo.azimut * ombra::GRADI, 0, 'f', 1)
                 .arg(istante_.sole.delta * ombra::GRADI, 0, 'f', 2);
    esito_->setText(testo);
}

}  // namespace ombrelia::desktop
