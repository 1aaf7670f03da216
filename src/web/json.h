// JSON for the page, as much of it as is asked for: texts, numbers, and commas between things.
#pragma once

#include <string>
#include <string_view>

#include "core/testo.h"

namespace ombrelia::web {

class Json {
public:
    Json &apri(char c) {  // '{' or '['
        virgola();
        t_ += c;
        return *this;
    }
    Json &chiudi(char c) {
        t_ += c;
        return *this;
    }
    Json &nome(std::string_view n) {
        testo(n);
        t_ += ':';
        return *this;
    }
    // UTF-8 in, valid JSON out, whatever the bytes are.
    Json &testo(std::string_view grezzo) {
        virgola();
        constexpr std::string_view CIFRE = "0123456789abcdef";
        t_ += '"';
        for (const char c : DaFile(std::string(grezzo))) {
            const auto b = static_cast<unsigned char>(c);
            if (c == '"' || c == '\\') {
                t_ += '\\';
                t_ += c;
            } else if (b < 0x20) {
                t_ += "\\u00";
                t_ += CIFRE[b >> 4U];
                t_ += CIFRE[b & 15U];
            } else {
                t_ += c;
            }
        }
        t_ += '"';
        return *this;
    }
    // A number without a value is null.
    Json &numero(double n) {
        virgola();
        if (Valore(n).esiste()) AggiungiNumero17(t_, n);
        else t_ += "null";
        return *this;
    }
    Json &vero(bool b) {
        virgola();
        t_ += b ? "true" : "false";
        return *this;
    }
    [[nodiscard]] std::string fine() && { return std::move(t_); }

private:
    void virgola() {
        if (!t_.empty() && t_.back() != '[' && t_.back() != '{' && t_.back() != ':') t_ += ',';
    }
    std::string t_;
};

}  // namespace ombrelia::web
