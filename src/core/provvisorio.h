// The file that is written beside a target before it takes its place: made under a name that nobody has, locked while it lives,
// removed when it is given up, when a signal ends the program, and, if all that failed, by the next save in its folder.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>

namespace ombrelia {

struct ChiudiFile {
    void operator()(std::FILE *f) const { std::fclose(f); }
};
using FileAperto = std::unique_ptr<std::FILE, ChiudiFile>;

class Provvisorio {
public:
    // In the folder of the target; file() is null, and errno tells why, when it can't be made.
    explicit Provvisorio(const std::filesystem::path &bersaglio);
    Provvisorio(const Provvisorio &) = delete;
    Provvisorio &operator=(const Provvisorio &) = delete;
    ~Provvisorio();

    [[nodiscard]] std::FILE *file() const { return file_.get(); }
    [[nodiscard]] const std::filesystem::path &nome() const { return nome_; }
    // Takes the target's place; 0 or the number of the error.
    [[nodiscard]] int prendiPosto(const std::filesystem::path &bersaglio);

private:
    void lascia();

    std::filesystem::path nome_;
    FileAperto file_;
    int posto_ = -1;
};

}  // namespace ombrelia
