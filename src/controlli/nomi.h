// The look-up of the controls that the program itself names, done by the compiler.
#pragma once

#include "controlli/tavola.h"
#include "core/certo.h"

namespace ombrelia {

// For constructors that run in the compiler, which stops at a name that no control has: Certo is nothing that it could run.
constexpr IdControllo IdNoto(const char *nome) {
    const IdControllo id = righe::PostoDi(nome);
    if (id == NESSUN_CONTROLLO) Certo(false, "a name that no control has");
    return id;
}

consteval NomeControllo::NomeControllo(const char *nome) : id_(IdNoto(nome)) {}

}  // namespace ombrelia
