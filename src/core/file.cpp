// Reading and writing files whole.
#include "core/file.h"

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include "core/posix.h"
#include "core/provvisorio.h"

namespace ombrelia {

namespace fs = std::filesystem;

namespace {

std::string rapporto(const std::string &nome, const std::string &motivo) { return "\"" + nome + "\": " + motivo; }
std::string rapporto(const std::string &nome, int numero) { return rapporto(nome, std::generic_category().message(numero)); }

using File = FileAperto;

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

// 0, or the number of the error. The file stays open.
int scriviTutto(std::FILE *f, std::string_view contenuto, bool sulDisco) {
    errno = 0;
    const bool scritto = std::fwrite(contenuto.data(), 1, contenuto.size(), f) == contenuto.size();
    if (!scritto || std::fflush(f) != 0) return errno != 0 ? errno : EIO;
#ifdef OMBRELIA_POSIX
    if (sulDisco && ::fsync(::fileno(f)) != 0) return errno;
#else
    (void)sulDisco;
#endif
    return 0;
}

// The same, and closes it: some file systems report a full disk only then.
int scriviEChiudi(File f, std::string_view contenuto, bool sulDisco) {
    if (const int errore = scriviTutto(f.get(), contenuto, sulDisco); errore != 0) return errore;
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

#ifdef OMBRELIA_POSIX
// The number of an open file that a name stands for, as in /dev/stdout and /dev/fd/63; -1 for other names.
int numeroAperto(const std::string &nome) {
    if (nome == "/dev/stdout") return STDOUT_FILENO;
    if (nome == "/dev/stderr") return STDERR_FILENO;
    for (const std::string_view dove : {"/dev/fd/", "/proc/self/fd/"}) {
        if (!nome.starts_with(dove)) continue;
        int n = -1;
        const char *fine = nome.data() + nome.size();
        const auto letto = std::from_chars(nome.data() + dove.size(), fine, n);
        if (letto.ec == std::errc() && letto.ptr == fine) return n;
    }
    return -1;
}

// Writes over a file that nothing can be put in place of: its folder is closed, it has other names, or its owner would change. A
// copy of it lies in the folder for temporary files until all is written, and comes back when writing fails; where it can't come
// back, the report names the copy.
std::optional<std::string> scriviSulPosto(const std::string &nome, const fs::path &p, std::string_view contenuto) {
    std::error_code ec;
    std::string copia = (fs::temp_directory_path(ec) / "ombrelia-copia-XXXXXX").string();
    const int fd = ec ? -1 : ::mkstemp(copia.data());
    if (fd < 0) return rapporto(nome, ec ? ec.value() : errno);
    ::close(fd);
    fs::copy_file(p, copia, fs::copy_options::overwrite_existing, ec);
    int errore = ec.value();
    if (errore == 0) {
        File f(std::fopen(p.string().c_str(), "r+b"));
        errore = !f || ::ftruncate(::fileno(f.get()), 0) != 0 ? errno : scriviEChiudi(std::move(f), contenuto, true);
        if (errore != 0) fs::copy_file(copia, p, fs::copy_options::overwrite_existing, ec);
        if (ec) return rapporto(nome, errore).append("; ").append(copia);
    }
    fs::remove(copia, ec);
    return errore == 0 ? std::nullopt : std::optional(rapporto(nome, errore));
}
#endif

}  // namespace

std::optional<std::string> ScriviFile(const std::string &nome, std::string_view contenuto) {
    // A byte 0 would end the name early, in a file that nobody asked for.
    if (nome.empty() || nome.find('\0') != std::string::npos) return rapporto(nome, ENOENT);
    std::error_code ec;
    const auto esito = [&nome](int errore) { return errore == 0 ? std::nullopt : std::optional(rapporto(nome, errore)); };
#ifdef OMBRELIA_POSIX
    if (const int aperto = numeroAperto(nome); aperto >= 0) {
        std::fflush(stdout);
        const int fd = ::dup(aperto);
        File f(fd < 0 ? nullptr : ::fdopen(fd, "wb"));
        return f ? esito(scriviEChiudi(std::move(f), contenuto, false)) : rapporto(nome, errno);
    }
#endif
    fs::file_status stato = fs::status(nome, ec);
    if (fs::is_directory(stato)) return rapporto(nome, EISDIR);
    if (fs::exists(stato) && !fs::is_regular_file(stato)) {
        File f = apri(nome, true);
        return f ? esito(scriviEChiudi(std::move(f), contenuto, false)) : rapporto(nome, errno);
    }
    const fs::path p = bersaglio(nome);
    if (fs::is_symlink(p, ec)) return rapporto(nome, ELOOP);
#ifdef OMBRELIA_POSIX
    struct stat vecchio {};
    const bool esiste = ::stat(p.c_str(), &vecchio) == 0;
    // Renaming would also replace a file that its owner has locked against writing.
    if (esiste && ::access(p.c_str(), W_OK) != 0) return rapporto(nome, errno);
    if (esiste && vecchio.st_nlink > 1) return scriviSulPosto(nome, p, contenuto);
#endif
    Provvisorio nuovo(p);
    if (!nuovo.file()) {
        const int errore = errno;
#ifdef OMBRELIA_POSIX
        if (esiste && (errore == EACCES || errore == EPERM || errore == EROFS)) return scriviSulPosto(nome, p, contenuto);
#endif
        return rapporto(nome, errore);
    }
#ifdef OMBRELIA_POSIX
    if (esiste) {
        const int fd = ::fileno(nuovo.file());
        struct stat s {};
        const bool stessi = ::fstat(fd, &s) == 0 && s.st_uid == vecchio.st_uid && s.st_gid == vecchio.st_gid;
        if (!stessi && ::fchown(fd, vecchio.st_uid, vecchio.st_gid) != 0) return scriviSulPosto(nome, p, contenuto);
        if (::fchmod(fd, vecchio.st_mode & 07777U) != 0) return rapporto(nome, errno);
    }
#endif
    if (const int errore = scriviTutto(nuovo.file(), contenuto, true); errore != 0) return rapporto(nome, errore);
    return esito(nuovo.prendiPosto(p));
}

std::optional<std::string> LeggiFile(const std::string &nome, std::size_t massimo, std::string *errore, Fonte fonte) {
    const auto fallito = [&](const std::string &perche) {
        if (errore) *errore = perche;
        return std::nullopt;
    };
    std::error_code ec;
    if (nome.empty() || nome.find('\0') != std::string::npos) return fallito(rapporto(nome, ENOENT));
    if (fs::is_directory(nome, ec)) return fallito(rapporto(nome, EISDIR));
    // A pipe may never say anything.
    if (fonte == Fonte::File && fs::exists(nome, ec) && !fs::is_regular_file(nome, ec)) return fallito(rapporto(nome, EINVAL));
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
