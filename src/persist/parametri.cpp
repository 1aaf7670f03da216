// The store of keys and values.
#include "persist/parametri.h"

#include <filesystem>
#include <system_error>

#include "core/campi.h"
#include "core/file.h"
#include "core/testo.h"

namespace ombrelia {

void Parametri::carica() {
    if (!righe_.empty()) return;
    illeggibile_.reset();
    std::string errore;
    std::optional<std::string> grezzo = LeggiFile(nomeFile_, FILE_MASSIMO, &errore, Fonte::File);
    if (!grezzo) {
        std::error_code ec;
        if (std::filesystem::exists(nomeFile_, ec)) illeggibile_ = std::move(errore);
        return;
    }
    Interpreta(std::move(*grezzo));
}

void Parametri::Interpreta(std::string contenuto) {
    righe_.clear();
    const std::string testo = DaFile(std::move(contenuto));
    for (std::string_view resto = testo; !resto.empty();) {
        std::string chiave = PrendiCampo(resto);
        righe_.emplace_back(std::move(chiave), PrendiCampo(resto));
    }
}

Parametri::CoppiaChiave *Parametri::trova(std::string_view Key) {
    for (CoppiaChiave &r : righe_)
        if (r.first == Key) return &r;
    return nullptr;
}

std::string Parametri::Leggi(std::string_view Key) {
    carica();
    const CoppiaChiave *r = trova(Key);
    return r ? r->second : std::string();
}

void Parametri::Poni(std::string_view Key, std::string_view Valore) {
    carica();
    if (CoppiaChiave *r = trova(Key)) r->second = Valore;
    else righe_.emplace_back(Key, Valore);
}

std::string Parametri::Testo() const {
    std::string testo;
    for (const auto &[chiave, valore] : righe_) testo += TraVirgolette(chiave) + ',' + TraVirgolette(valore) + "\r\n";
    return testo;
}

std::optional<std::string> Parametri::Salva() const {
    if (illeggibile_) return illeggibile_;
    const std::string testo = Testo();
    if (testo.size() > FILE_MASSIMO) return TraVirgolette(nomeFile_) + ": più di " + std::to_string(FILE_MASSIMO) + " byte";
    return ScriviFile(nomeFile_, testo);
}

std::optional<std::string> Parametri::Scrivi(std::string_view Key, std::string_view Valore) {
    Poni(Key, Valore);
    return Salva();
}

}  // namespace ombrelia
