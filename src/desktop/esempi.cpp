// The examples.
#include "desktop/esempi.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <algorithm>

#include "app/progetto.h"
#include "core/percorsi.h"
#include "desktop/dialoghi.h"
#include "desktop/stile.h"
#include "sessione/muto.h"

namespace ombrelia::desktop {

namespace {

constexpr QSize MISURA(208, 150);

// What each is, in a few words.
constexpr std::pair<const char *, std::string_view> TITOLI[] = {
    {"parete_torino", "Una parete a Torino: ore del fuso, linee diurne, lemniscata"_it},
    {"tavola_reclinata", "Una lastra reclinata a Bologna: ore italiche"_it},
    {"orizzontale_londra", "Un quadrante orizzontale a Londra: quarti, lemniscata, altezze"_it},
    {"parete_sydney", "Una parete a Sydney: ore temporarie"_it},
    {"parete_romani", "Una parete coi numeri romani"_it},
    {"parete_zodiaco", "Una parete a Bologna: numeri arabi e zodiaco"_it},
};

}  // namespace

QStringList FileEsempi() {
    const auto dato = TrovaDato("luoghi.csv");
    QStringList file;
    if (!dato) return file;
    // Beside the sources' data, and where they are installed.
    for (const char *dove : {"../examples", "../doc/ombrelia/examples"})
        for (const QFileInfo &f :
             QDir(Q((dato->parent_path() / dove).string())).entryInfoList({QStringLiteral("*.omb")}, QDir::Files, QDir::Name))
            file << f.canonicalFilePath();
    return file;
}

Esempi::Esempi(Ponte &ponte, QWidget *sopra) : QDialog(sopra), ponte_(ponte) {
    setObjectName(QStringLiteral("esempi"));
    setWindowTitle(ponte.Traduci("Esempi"));
    resize(730, 520);
    auto *giu = new QVBoxLayout(this);
    lista_ = new QListWidget(this);
    lista_->setObjectName(QStringLiteral("listaEsempi"));
    lista_->setAccessibleName(windowTitle());
    lista_->setViewMode(QListView::IconMode);
    lista_->setIconSize(MISURA);
    lista_->setGridSize(MISURA + QSize(22, 58));
    lista_->setResizeMode(QListView::Adjust);
    lista_->setMovement(QListView::Static);
    lista_->setWordWrap(true);
    giu->addWidget(lista_);
    auto *scelte = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel, this);
    giu->addWidget(scelte);
    const auto apri = [this] {
        const QListWidgetItem *v = lista_->currentItem();
        if (!v) return;
        hide();
        if (suScelta) suScelta(v->data(Qt::UserRole).toString());
    };
    connect(scelte, &QDialogButtonBox::accepted, this, apri);
    connect(scelte, &QDialogButtonBox::rejected, this, &QWidget::hide);
    connect(lista_, &QListWidget::itemActivated, this, apri);
}

Esempi::~Esempi() { vivo_.reset(); }

QString Esempi::ritrattoDi(const QString &file) const {
    const QFileInfo f(file);
    return QStringLiteral("%1/esempi/%2-%3%4@%5.png")
        .arg(QStandardPaths::writableLocation(QStandardPaths::CacheLocation), f.completeBaseName())
        .arg(f.lastModified().toSecsSinceEpoch())
        .arg(TemaScuro() ? QStringLiteral("-scuro") : QString())
        .arg(devicePixelRatioF());
}

void Esempi::showEvent(QShowEvent *e) {
    QDialog::showEvent(e);
    lista_->clear();
    attesi_.clear();
    for (const QString &file : FileEsempi()) {
        const QString nome = QFileInfo(file).completeBaseName();
        const auto *t =
            std::find_if(std::begin(TITOLI), std::end(TITOLI), [&](const auto &x) { return nome == QLatin1String(x.first); });
        auto *v = new QListWidgetItem(t == std::end(TITOLI) ? nome : ponte_.Traduci(t->second), lista_);
        v->setData(Qt::UserRole, file);
        v->setToolTip(file);
        const QImage i(ritrattoDi(file));
        if (i.isNull()) attesi_.push_back(file);
        metti(file, i);
    }
    lista_->setCurrentRow(0);
    prossimo();
}

void Esempi::metti(const QString &file, const QImage &immagine) {
    QPixmap q(MISURA);
    q.fill(palette().color(QPalette::AlternateBase));
    if (!immagine.isNull()) q = QPixmap::fromImage(immagine);
    if (!immagine.isNull()) q.setDevicePixelRatio(static_cast<double>(immagine.width()) / MISURA.width());
    for (int i = 0; i < lista_->count(); ++i)
        if (lista_->item(i)->data(Qt::UserRole).toString() == file) lista_->item(i)->setIcon(QIcon(q));
}

void Esempi::prossimo() {
    if (attesi_.empty()) return vivo_.reset();
    if (!vivo_)
        vivo_ = std::make_unique<Vivo>(this, ponte_.sessione().dizionario, [this](Vivo::ProvaViva &e) { arrivata(e.immagine); });
    Muto muto;
    Sessione s(muto);
    if (!app::ApriProgetto(s, attesi_.front().toStdString())) {
        attesi_.pop_front();
        return prossimo();
    }
    Vista v;
    v.misura = MISURA;
    v.rapporto = devicePixelRatioF();
    v.stile = StileDi(TemaScuro());
    constexpr double MARGINE = 8;
    const double l = s.tavolo.LarghezzaImmagine(), h = s.tavolo.AltezzaImmagine();
    v.fattore = std::min((MISURA.width() - MARGINE) / l, (MISURA.height() - MARGINE) / h);
    v.origine = {(MISURA.width() - l * v.fattore) / 2, (MISURA.height() - h * v.fattore) / 2};
    vivo_->chiedi(s, v, Val(s.in.txtLAT) < 0);
}

void Esempi::arrivata(const QImage &immagine) {
    if (attesi_.empty()) return;
    const QString file = attesi_.front(), ritratto = ritrattoDi(file);
    attesi_.pop_front();
    metti(file, immagine);
    QDir().mkpath(QFileInfo(ritratto).path());
    immagine.save(ritratto);
    // The thread is not ended from its own answer.
    QMetaObject::invokeMethod(
        this, [this] { prossimo(); }, Qt::QueuedConnection);
}

}  // namespace ombrelia::desktop
