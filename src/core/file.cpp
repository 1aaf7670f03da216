// Reading and writing files whole.
#include "core/file.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <unistd.h>
#define OMBRELIA_POSIX 1
#endif

namespace ombrelia {

namespace fs = std::filesystem;

namespace {

std::string rapporto(const std::string &nome, const std::string &motivo) { return "\"" + nome + "\": " + motivo; }
std::string rapporto(const std::string &nome, int numero) { return rapporto(nome, std::generic_category().message(numero)); }

struct Chiudi {
    void operator()(std::FILE *f) const { std::fclose(f); }
};
using File = std::unique_ptr<std::FILE, Chiudi>;

// Opens what is there already. A pipe without its other end must not hang the program.
File apri(const fs::path &p, bool scrive) {
#ifdef OMBRELIA_POSIX
    const int fd = ::open(p.c_str(), (scrive ? O_WRONLY : O_RDONLY) | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) return nullptr;
    ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) & ~O_NONBLOCK);
    std::FILE *f = ::fdopen(fd, scrive ? "wb" : "rb");
    if (!f) ::close(fd);
    return File(f);
#else
    return File(std::fopen(p.string().c_str(), scrive ? "wb" : "rb"));
#endif
}

// 0, or the number of the error.
int scriviTutto(File f, std::string_view contenuto, bool sulDisco) {
    errno = 0;
    const bool scritto = std::fwrite(contenuto.data(), 1, contenuto.size(), f.get()) == contenuto.size();
    if (!scritto || std::fflush(f.get()) != 0) return errno != 0 ? errno : EIO;
#ifdef OMBRELIA_POSIX
    if (sulDisco && ::fsync(::fileno(f.get())) != 0) return errno;
#else
    (void)sulDisco;
#endif
    // Some file systems report a full disk only now.
    return std::fclose(f.release()) == 0 ? 0 : errno;
}

// The file behind a chain of links, there or not.
fs::path bersaglio(const std::string &nome) {
    fs::path p = nome;
    std::error_code ec;
    for (int passi = 0; passi < 40 && fs::is_symlink(p, ec); ++passi) {
        const fs::path dove = fs::read_symlink(p, ec);
        if (ec) break;
        p = dove.is_absolute() ? dove : p.parent_path() / dove;
    }
    return p;
}

// A new file in the target's folder, under a name that nobody has.
File accanto(const fs::path &p, fs::path &provvisorio) {
    for (int n = 0; n < 1000; ++n) {
        provvisorio = p.parent_path() / (".ombrelia-" + std::to_string(n) + ".tmp");
        if (std::FILE *f = std::fopen(provvisorio.string().c_str(), "wbx")) return File(f);
        if (errno != EEXIST) return nullptr;
    }
    errno = EEXIST;
    return nullptr;
}

}  // namespace

std::optional<std::string> ScriviFile(const std::string &nome, std::string_view contenuto) {
    // A byte 0 would end the name early, in a file that nobody asked for.
    if (nome.empty() || nome.find('\0') != std::string::npos) return rapporto(nome, ENOENT);
    const fs::path p = bersaglio(nome);
    std::error_code ec;
    if (fs::is_symlink(p, ec)) return rapporto(nome, ELOOP);
    const fs::file_status stato = fs::status(p, ec);
    if (fs::is_directory(stato)) return rapporto(nome, EISDIR);
    if (fs::exists(stato) && !fs::is_regular_file(stato)) {
        File f = apri(p, true);
        if (!f) return rapporto(nome, errno);
        const int errore = scriviTutto(std::move(f), contenuto, false);
        return errore == 0 ? std::nullopt : std::optional(rapporto(nome, errore));
    }
#ifdef OMBRELIA_POSIX
    // Renaming would also replace a file that its owner has locked against writing.
    if (fs::exists(stato) && ::access(p.c_str(), W_OK) != 0) return rapporto(nome, errno);
#endif
    fs::path provvisorio;
    File f = accanto(p, provvisorio);
    if (!f) return rapporto(nome, errno);
    if (const int errore = scriviTutto(std::move(f), contenuto, true); errore != 0) {
        fs::remove(provvisorio, ec);
        return rapporto(nome, errore);
    }
    if (fs::exists(stato)) fs::permissions(provvisorio, stato.permissions(), ec);
    ec.clear();
    fs::rename(provvisorio, p, ec);
    if (!ec) return {};
    const std::string motivo = ec.message();
    fs::remove(provvisorio, ec);
    return rapporto(nome, motivo);
}

std::optional<std::string> LeggiFile(const std::string &nome, std::size_t massimo, std::string *errore) {
    const auto fallito = [&](const std::string &perche) {
        if (errore) *errore = perche;
        return std::nullopt;
    };
    std::error_code ec;
    if (nome.empty() || nome.find('\0') != std::string::npos) return fallito(rapporto(nome, ENOENT));
    if (fs::is_directory(nome, ec)) return fallito(rapporto(nome, EISDIR));
    const File f = apri(nome, false);
    if (!f) return fallito(rapporto(nome, errno));
    std::string testo;
    char blocco[16384];
    for (;;) {
        errno = 0;
        const std::size_t n = std::fread(blocco, 1, sizeof blocco, f.get());
        if (n > massimo - testo.size()) return fallito(rapporto(nome, "più di " + std::to_string(massimo) + " byte"));
        testo.append(blocco, n);
        if (n < sizeof blocco) break;
    }
    if (std::ferror(f.get())) return fallito(rapporto(nome, errno != 0 ? errno : EIO));
    return testo;
}

}  // namespace ombrelia
