// The table of commands.
#include "desktop/comandi.h"

#include <QAbstractButton>
#include <algorithm>
#include <stdexcept>

#include "controlli/nomi.h"
#include "desktop/dialoghi.h"
#include "desktop/icone.h"

namespace ombrelia::desktop {

consteval Comando::Comando(const char *nome, std::string_view testo, std::string_view icona, const char *tasti)
    : nome(nome), testo(testo), icona(icona), tasti(tasti), controllo(testo.empty() ? NomeControllo(nome) : NomeControllo()) {}

namespace {

constexpr Comando TAVOLA[] = {
    {"nuovo", "Nuovo"_it, "file-plus", "Ctrl+N"},
    {"mnuApri", {}, "folder-open", "Ctrl+O"},
    {"recenti", "Aperti di recente"_it, "history"},
    {"esempi", "Esempi..."_it, "blocks"},
    {"mnuSalva", {}, "save", "Ctrl+S"},
    {"salvaConNome", "Salva con nome..."_it, {}, "Ctrl+Shift+S"},
    {"esportaPdf", "Esporta PDF..."_it, "file-down", "Ctrl+E"},
    {"esporta", "Esporta disegno..."_it, "file-image", "Ctrl+Shift+E"},
    {"perMacchina", "Per la macchina..."_it, "scissors", "Ctrl+Shift+M"},
    {"impagina", "Pagine e carta..."_it, "layout-grid", "Ctrl+Alt+P"},
    {"Tavolo1.cmdStampa", {}, "printer", "Ctrl+P"},
    {"mnuEsci", {}, "log-out", "Ctrl+Q"},
    {"annulla", "Annulla"_it, "undo-2", "Ctrl+Z"},
    {"ripeti", "Ripeti"_it, "redo-2", "Ctrl+Shift+Z; Ctrl+Y"},
    {"copiaImmagine", "Copia come immagine"_it, "copy", "Ctrl+Shift+C"},
    {"copiaSvg", "Copia come SVG"_it},
    {"cmdRun", {}, "play", "F5"},
    {"cmdEqui", {}, "square-function", "F6"},
    {"cmdData", {}, "table-2", "F7"},
    {"cmdTrasforma", {}, "rotate-3d", "F8"},
    {"cmdSave", {}, "settings-2"},
    {"Tavolo1.cmdPulisci", {}, "eraser", "Ctrl+L"},
    {"Tavolo1.cmdSave", {}, "image"},
    {"Tavolo1.cmdDxf", {}, "file-type"},
    {"Tavolo1.cmdAssi", {}, "axis-3d"},
    {"Tavolo1.CmdGriglia", {}, "grid-3x3"},
    {"Tavolo1.cmdDim", {}, "scaling"},
    {"Tavolo1.cmdInvX", {}, "flip-vertical-2"},
    {"Tavolo1.cmdInvY", {}, "flip-horizontal-2"},
    {"scegliPagine", "Scegli le pagine con linee"_it, "layout-grid", "Ctrl+Shift+P"},
    {"Adatta", "Adatta il foglio"_it, "scan", "Ctrl+T"},
    {"vivo", "Disegna mentre scrivi"_it, "zap", "F9"},
    {"ingrandisci", "Ingrandisci"_it, "zoom-in", "Ctrl++; Ctrl+="},
    {"rimpicciolisci", "Rimpicciolisci"_it, "zoom-out", "Ctrl+-"},
    {"tutto", "Tutto il foglio"_it, "maximize", "Ctrl+0"},
    {"vero", "Grandezza vera"_it, {}, "Ctrl+1"},
    {"allaCornice", "Alla cornice"_it, "focus", "Ctrl+2"},
    {"allaLinea", "Alla linea scelta"_it, "spline-pointer", "Ctrl+3"},
    {"misura", "Misura sul foglio"_it, "ruler", "Ctrl+M"},
    {"lente", "Lente a grandezza vera"_it, "search", "Ctrl+Shift+L"},
    {"legenda", "Legenda"_it, "list"},
    {"righelli", "Righelli"_it},
    {"mnuAusiliaria", {}, "brick-wall", "F2"},
    {"manuale", "Manuale"_it, "book-open", "F1"},
    {"cheCosa", "Che cos'è?"_it, "circle-help", "Shift+F1"},
    {"M_about", {}, "info"},
    {"passo1", "Luogo"_it, "map-pin", "Alt+1"},
    {"passo2", "Parete"_it, "brick-wall", "Alt+2"},
    {"passo3", "Gnomone"_it, "triangle", "Alt+3"},
    {"passo4", "Linee"_it, "spline", "Alt+4"},
    {"passo5", "Carta"_it, "layout-grid", "Alt+5"},
};

}  // namespace

std::span<const Comando> TavolaComandi() { return TAVOLA; }

const Comando *TrovaComando(std::string_view nome) {
    const auto *i = std::find_if(std::begin(TAVOLA), std::end(TAVOLA), [nome](const Comando &c) { return c.nome == nome; });
    return i == std::end(TAVOLA) ? nullptr : i;
}

const Comando *TrovaComando(IdControllo id) {
    if (id == NESSUN_CONTROLLO) return nullptr;
    const auto *i = std::find_if(std::begin(TAVOLA), std::end(TAVOLA), [id](const Comando &c) { return c.controllo == id; });
    return i == std::end(TAVOLA) ? nullptr : i;
}

void VestiVoce(QAction *a, const Comando *c) {
    if (!c) return;
    a->setIcon(IconaDi(c->icona));
    if (*c->tasti) a->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(c->tasti)));
}

QAction *CreaComando(Ponte &ponte, std::string_view nome, QObject *genitore, const std::function<void()> &azione) {
    const Comando *c = TrovaComando(nome);
    if (!c) throw std::logic_error("no such command: " + std::string(nome));
    auto *a = new QAction(ponte.Traduci(c->testo), genitore);
    a->setObjectName(QStringLiteral("comando.") + Q(nome));
    VestiVoce(a, c);
    QObject::connect(a, &QAction::triggered, genitore, azione);
    return a;
}

void VestiBottone(QAbstractButton *b, const Comando *c) {
    if (!c) return;
    b->setIcon(IconaDi(c->icona, b->property("principale").toBool() ? Fondo::Accento : Fondo::Finestra));
}

void SoloIcona(const QList<QWidget *> &bottoni, bool si) {
    for (QWidget *w : bottoni) {
        auto *b = qobject_cast<QAbstractButton *>(w);
        if (!b || b->icon().isNull() || b->property("soloIcona").toBool() == si) continue;
        b->setProperty("soloIcona", si);
        if (si) b->setProperty("testoIntero", b->text());
        b->setText(si ? QString() : b->property("testoIntero").toString());
    }
}

QString TastiDi(const Comando *c) {
    if (!c || !*c->tasti) return {};
    const QKeySequence primi = QKeySequence::listFromString(QString::fromLatin1(c->tasti)).value(0);
    return QStringLiteral(" (") + primi.toString(QKeySequence::NativeText) + QLatin1Char(')');
}

}  // namespace ombrelia::desktop
