// Files on their way to a target.
#include "core/provvisorio.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <random>
#include <string>
#include <system_error>

#include "core/posix.h"

namespace ombrelia {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view INIZIO = ".ombrelia-", FINE = ".tmp";

std::string nomeLibero() {
    static thread_local std::mt19937_64 caso = [] {
        std::random_device seme;
        return std::mt19937_64((std::uint64_t{seme()} << 32) | seme());
    }();
    return std::string(INIZIO) + std::to_string(caso()) + std::string(FINE);
}

#ifdef OMBRELIA_POSIX

// Names of the files that live now, for a signal's handler, which may use no memory of the heap.
struct PostoNome {
    std::atomic<bool> preso{false}, pieno{false};
    char nome[4096] = {};
};
std::array<PostoNome, 8> posti;
constexpr int SEGNALI[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};

void alSegnale(int segnale) {
    for (const PostoNome &p : posti)
        if (p.pieno) ::unlink(p.nome);
    ::signal(segnale, SIG_DFL);
    ::raise(segnale);
}

// Signals that somebody else answers, or that are passed over, are left alone.
void ascoltaSegnali() {
    for (const int s : SEGNALI) {
        struct sigaction ora {};
        if (::sigaction(s, nullptr, &ora) != 0 || ora.sa_handler != SIG_DFL) continue;
        struct sigaction nuova {};
        nuova.sa_handler = alSegnale;
        ::sigemptyset(&nuova.sa_mask);
        ::sigaction(s, &nuova, nullptr);
    }
}

int occupa(const fs::path &nome) {
    static const bool ascolta = (ascoltaSegnali(), true);
    const std::string &testo = nome.native();
    for (std::size_t i = 0; ascolta && i < posti.size() && testo.size() < sizeof posti[i].nome; ++i) {
        if (posti[i].preso.exchange(true)) continue;
        std::memcpy(posti[i].nome, testo.c_str(), testo.size() + 1);
        posti[i].pieno = true;
        return static_cast<int>(i);
    }
    return -1;
}

void libera(int posto) {
    if (posto < 0) return;
    posti[static_cast<std::size_t>(posto)].pieno = false;
    posti[static_cast<std::size_t>(posto)].preso = false;
}

// What a killed program left: nobody holds its lock.
void spazza(const fs::path &cartella) {
    std::error_code ec;
    for (fs::directory_iterator i(cartella.empty() ? "." : cartella, ec), fine; !ec && i != fine; i.increment(ec)) {
        const std::string nome = i->path().filename().string();
        if (!nome.starts_with(INIZIO) || !nome.ends_with(FINE)) continue;
        const int fd = ::open(i->path().c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (fd < 0) continue;
        if (::flock(fd, LOCK_EX | LOCK_NB) == 0) ::unlink(i->path().c_str());
        ::close(fd);
    }
}

// A new file of that name, locked; null when there is one, or when a sweep of another program came between.
FileAperto nuovo(const fs::path &nome) {
    const int fd = ::open(nome.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0666);
    if (fd < 0) return nullptr;
    struct stat s {};
    const bool chiuso = ::flock(fd, LOCK_EX | LOCK_NB) == 0 || errno == ENOLCK || errno == EOPNOTSUPP || errno == ENOSYS;
    if (chiuso && ::fstat(fd, &s) == 0 && s.st_nlink > 0)
        if (std::FILE *f = ::fdopen(fd, "wb")) return FileAperto(f);
    ::unlink(nome.c_str());
    ::close(fd);
    errno = EEXIST;
    return nullptr;
}

#else

int occupa(const fs::path &) { return -1; }
void libera(int) {}
void spazza(const fs::path &) {}
FileAperto nuovo(const fs::path &nome) { return FileAperto(std::fopen(nome.string().c_str(), "wbx")); }

#endif

}  // namespace

Provvisorio::Provvisorio(const fs::path &bersaglio) {
    spazza(bersaglio.parent_path());
    // A name is taken once in two to the 64th times.
    for (int volte = 0; volte < 100 && !file_; ++volte) {
        nome_ = bersaglio.parent_path() / nomeLibero();
        posto_ = occupa(nome_);
        file_ = nuovo(nome_);
        if (file_) return;
        const int errore = errno;
        lascia();
        errno = errore;
        if (errore != EEXIST) return;
    }
}

Provvisorio::~Provvisorio() {
    if (!file_) return;
    std::error_code ec;
    fs::remove(nome_, ec);
    lascia();
}

void Provvisorio::lascia() {
    libera(posto_);
    posto_ = -1;
    file_.reset();
}

int Provvisorio::prendiPosto(const fs::path &bersaglio) {
    // The lock is held until the name is gone.
    std::error_code ec;
    fs::rename(nome_, bersaglio, ec);
    if (ec) return ec.value();
    // Some file systems report a full disk only now; by then the old file is gone, which a sync before has made unlikely.
    libera(posto_);
    posto_ = -1;
    const int errore = std::fclose(file_.release()) == 0 ? 0 : errno;
#ifdef OMBRELIA_POSIX
    const fs::path cartella = bersaglio.parent_path().empty() ? fs::path(".") : bersaglio.parent_path();
    if (const int fd = ::open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
#endif
    return errore;
}

}  // namespace ombrelia
