// The counter between the window's thread and one that works for it: the newest request takes the place of the one before.
#pragma once

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <utility>

namespace ombrelia::desktop {

template <class Cosa>
class Sportello {
public:
    struct Incarico {
        Cosa cosa;
        unsigned numero;
    };

    void chiedi(Cosa r) {
        {
            const std::lock_guard chiave(mutex_);
            prossima_ = std::move(r);
            ++numero_;
        }
        sveglia_.notify_one();
    }
    // Gives up what is asked; what is in hand is the newest no more.
    void lascia() {
        const std::lock_guard chiave(mutex_);
        prossima_.reset();
        ++numero_;
    }
    // Sends the worker home.
    void chiudi() {
        {
            const std::lock_guard chiave(mutex_);
            fine_ = true;
            ++numero_;
        }
        sveglia_.notify_one();
    }
    // For the worker: waits for the next request; nothing once the counter is closed.
    [[nodiscard]] std::optional<Incarico> attendi() {
        std::unique_lock chiave(mutex_);
        sveglia_.wait(chiave, [this] { return fine_ || prossima_; });
        if (fine_) return {};
        Incarico i{std::move(*prossima_), numero_};
        prossima_.reset();
        return i;
    }
    // Number of the newest request: who works for an older one may stop.
    [[nodiscard]] const std::atomic<unsigned> &numero() const { return numero_; }

private:
    std::mutex mutex_;
    std::condition_variable sveglia_;
    std::optional<Cosa> prossima_;
    std::atomic<unsigned> numero_ = 0;
    bool fine_ = false;
};

}  // namespace ombrelia::desktop
