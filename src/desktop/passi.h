// Undo and redo: what the session is after each action, kept as a whole. A step is one action; keys typed into one field
// are one step.
#pragma once

#include <QUndoStack>
#include <memory>

#include "desktop/ponte.h"

namespace ombrelia::desktop {

class Passi final : public QUndoStack {
public:
    // rimesso is called when a step was taken back or done again; with true when the drawing has to be made anew from the
    // fields, since a drawing that follows the fields is not kept.
    Passi(Sessione &s, QObject *genitore, std::function<void(bool)> rimesso);

    // After an action: a step when something changed. segue: the drawing follows the fields and need not be kept.
    void annota(IdControllo id, const QString &nome, bool segue);
    // The state as it is, with no step: the drawing came by itself, or the session starts anew.
    void aggiorna(bool segue);
    // Puts the drawing back as the last action left it; false when it isn't kept.
    bool rimettiDisegno();

private:
    struct Istantanea;
    class Mossa;
    [[nodiscard]] std::shared_ptr<Istantanea> ritrai(bool segue) const;
    void rimetti(const std::shared_ptr<Istantanea> &i);

    Sessione &s_;
    std::function<void(bool)> rimesso_;
    std::shared_ptr<Istantanea> ora_;
};

}  // namespace ombrelia::desktop
