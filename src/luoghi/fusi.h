// Time zones with their rules of summer time, out of the system's zone files (TZif, /usr/share/zoneinfo). Instants are seconds UT
// from 1970-01-01; offsets are seconds East of Greenwich, as zone files have them, and not in the sign of the program's fields.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ombrelia::luoghi {

// A day and a time on a clock or in UT; of the Gregorian calendar.
struct Orario {
    std::int64_t anno = 1970;
    int mese = 1, giorno = 1, ore = 0, minuti = 0, secondi = 0;
};

// Whole seconds from 1970-01-01 0:00 to a time, both of the same clock. Months and hours beyond their range are carried along.
[[nodiscard]] std::int64_t Secondi(const Orario &o);
[[nodiscard]] Orario DaSecondi(std::int64_t t);

struct OraDelFuso {
    int scarto = 0;       // seconds East of Greenwich
    int base = 0;         // the year's standard time: the lesser of January's and July's offset
    bool estate = false;  // the clock is ahead of that
};

// What a time on the clock is in UT.
struct Civile {
    std::int64_t ut = 0;
    OraDelFuso ora;
    enum {
        Una,
        Doppia,
        Saltata
    } quale = Una;  // an hour that comes twice: the first of the two; one that is jumped over: as if it were not
};

class Fuso {
public:
    // A zone by its name, as "Europe/Rome"; nothing when the system has no such file or it can't be read. The folder is TZDIR's,
    // if that is set.
    [[nodiscard]] static std::optional<Fuso> Leggi(std::string_view nome);
    // The bytes of a zone file: its 64-bit part and the rule at its end. Nothing for what is no such file, however broken.
    [[nodiscard]] static std::optional<Fuso> DaTesto(std::string_view file);
    // A zone without summer time, for where there are no zone files.
    [[nodiscard]] static Fuso Fisso(int minuti);
    // Leggi, else Fisso with the table's standard time.
    [[nodiscard]] static Fuso LeggiOppure(std::string_view nome, int minuti);

    [[nodiscard]] OraDelFuso InUT(std::int64_t ut) const;
    [[nodiscard]] Civile InCivile(const Orario &orologio) const;
    [[nodiscard]] bool conRegole() const { return conRegole_; }  // false for Fisso

private:
    // A day of the year as a rule says it: M month.week.day, J 1..365 without February 29, or 0..365.
    struct GiornoDiRegola {
        char tipo = 'M';
        int mese = 0, settimana = 0, giorno = 0;
        int ora = 7200;  // seconds of the local day, may be negative
    };
    struct Regola {
        bool esiste = false, estate = false;
        int base = 0, avanti = 0;  // offsets of standard and summer time
        GiornoDiRegola inizio, fine;
    };
    struct Scatto {
        std::int64_t da = 0;
        int scarto = 0;
    };
    static bool leggiRegola(std::string_view testo, Regola &r);
    static std::int64_t istante(const GiornoDiRegola &g, std::int64_t anno);
    [[nodiscard]] int scarto(std::int64_t ut) const;

    int prima_ = 0;  // offset before the first step
    std::vector<Scatto> passi_;
    Regola regola_;
    bool conRegole_ = false;
};

}  // namespace ombrelia::luoghi
