// The manual. Anchors are lines <a id="..."></a> before a heading, as web pages show them; the toolkit's browser goes by the
// headings.
#include "desktop/manuale.h"

#include <QAbstractTextDocumentLayout>
#include <QDesktopServices>
#include <QFile>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <filesystem>

#include "app/rapporti.h"
#include "core/percorsi.h"
#include "desktop/dialoghi.h"
#include "desktop/lingua_finestra.h"

namespace ombrelia::desktop {

namespace {

constexpr ParteManuale PARTI[] = {
    {"Luogo", "luogo"},
    {"Parete", "luogo"},
    {"Gnomone", "luogo"},
    {"Cornice", "luogo"},
    {"Etichette", "etichette"},
    {"Preghiera", "linee"},
    {"Tabelle", "tabelle"},
    {"ckCorretta", "corretta"},
    {"disegno", "linee"},
    {"quadrante", "luogo"},
    {"strati", "strati"},
    {"storia", "passi"},
    {"tempo", "tempo"},
    {"certificato", "certificato"},
    {"distintivo", "certificato"},
    {"frmTavolo", "foglio"},
    {"barra", "linee"},
    {"frmDeclin", "declinazione"},
    {"lettureParete", "letture"},
    {"frmInfoDec", "declinazione"},
    {"pagineCarta", "pagine"},
    {"perMacchina", "macchina"},
};

// Beside the sources' data, and where it is installed.
constexpr const char *DOVE[] = {"/../docs", "/../doc/ombrelia"};

void vai(QTextBrowser &testo, const QString &titolo) {
    if (titolo.isEmpty()) return testo.verticalScrollBar()->setValue(0);
    for (QTextBlock b = testo.document()->begin(); b.isValid(); b = b.next()) {
        if (b.blockFormat().headingLevel() == 0 || b.text() != titolo) continue;
        testo.setTextCursor(QTextCursor(b));
        const QRectF r = testo.document()->documentLayout()->blockBoundingRect(b);
        return testo.verticalScrollBar()->setValue(static_cast<int>(r.top()));
    }
}

}  // namespace

const std::vector<ParteManuale> &PartiManuale() {
    static const std::vector<ParteManuale> tutte = [] {
        std::vector<ParteManuale> parti(std::begin(PARTI), std::end(PARTI));
        for (const app::VoceRapporto &r : app::ElencoRapporti())
            if (!r.manuale.empty()) parti.push_back({r.modulo, r.manuale});
        return parti;
    }();
    return tutte;
}

QString AncoraDi(const QWidget *w) {
    for (; w; w = w->parentWidget())
        for (const ParteManuale &p : PartiManuale())
            if (const QString chi = Q(p.chi); w->objectName() == chi || w->property("gruppo").toString() == chi)
                return Q(p.ancora);
    return QStringLiteral("finestra");
}

ManualeLetto LeggiManuale(const QString &markdown) {
    static const QRegularExpression ancora(QStringLiteral("(?m)^<a id=\"(\\w+)\"></a>\\n\\n(#+ (.*)\\n)?"));
    ManualeLetto m;
    qsizetype fino = 0;
    for (auto i = ancora.globalMatch(markdown); i.hasNext();) {
        const QRegularExpressionMatch trovata = i.next();
        m.titoli.insert(trovata.captured(1), trovata.captured(3));
        m.testo += markdown.mid(fino, trovata.capturedStart() - fino) + trovata.captured(2);
        fino = trovata.capturedEnd();
    }
    m.testo += markdown.mid(fino);
    return m;
}

bool ApriManuale(Ponte &ponte, QWidget *sopra, const QString &ancora) {
    const auto dato = TrovaDato("luoghi.csv");
    if (!dato) return false;
    const QString nome = QStringLiteral("/manual-%1.md").arg(CodiceLingua(ponte.sessione()));
    QStringList cartelle;
    QFile file;
    std::error_code errore;
    const std::filesystem::path vero = std::filesystem::canonical(*dato, errore);
    for (const char *dove : DOVE) {
        cartelle << Q(vero.parent_path().string()) + QLatin1String(dove);
        if (file.isOpen()) continue;
        file.setFileName(cartelle.last() + nome);
        (void)file.open(QIODevice::ReadOnly);
    }
    if (!file.isOpen()) return false;
    const ManualeLetto m = LeggiManuale(QString::fromUtf8(file.readAll()));
    auto *w = new QWidget(sopra, Qt::Window);
    w->setAttribute(Qt::WA_DeleteOnClose);
    w->setWindowTitle(ponte.Traduci("Manuale"));
    w->resize(860, 720);
    auto *giu = new QVBoxLayout(w);
    auto *cerca = new QLineEdit(w);
    cerca->setPlaceholderText(ponte.Traduci("Cerca nel manuale, Invio per il seguente"));
    cerca->setAccessibleName(cerca->placeholderText());
    giu->addWidget(cerca);
    auto *testo = new QTextBrowser(w);
    testo->setObjectName(QStringLiteral("manuale"));
    testo->setOpenLinks(false);
    testo->setSearchPaths(cartelle);
    testo->setMarkdown(m.testo);
    giu->addWidget(testo, 1);
    QObject::connect(testo, &QTextBrowser::anchorClicked, testo, [testo, titoli = m.titoli](const QUrl &dove) {
        if (dove.isRelative() && dove.path().isEmpty()) vai(*testo, titoli.value(dove.fragment()));
        else if (dove.isRelative()) testo->setSource(dove);
        else QDesktopServices::openUrl(dove);
    });
    QObject::connect(cerca, &QLineEdit::returnPressed, testo, [cerca, testo] {
        if (testo->find(cerca->text())) return;
        testo->moveCursor(QTextCursor::Start);
        testo->find(cerca->text());
    });
    w->show();
    vai(*testo, m.titoli.value(ancora));
    return true;
}

}  // namespace ombrelia::desktop
