#pragma once
// Worker threads owned as a group: the group joins every thread it started,
// however the owner leaves. Starting a thread may fail (std::system_error
// when the system has no more threads to give); the group then goes on with
// the threads that did start, since the owner's thread works too.

#include <functional>
#include <thread>
#include <vector>

#include "Sviluppo.h"

namespace combi {

class GruppoThread {
public:
    // Starts up to `quanti` threads running `lavoro`, through `avvia` when given.
    GruppoThread(int quanti, const std::function<void()>& lavoro, const AvviaThread& avvia = {}) {
        for (int i = 0; i < quanti; ++i) {
            try {
                thread_.push_back(avvia ? avvia(lavoro) : std::thread(lavoro));
            } catch (const std::system_error&) {
                break;  // no more threads: the ones started carry on
            }
        }
    }
    ~GruppoThread() { Unisci(); }
    GruppoThread(const GruppoThread&) = delete;
    GruppoThread& operator=(const GruppoThread&) = delete;

    int Avviati() const { return int(thread_.size()); }

    // Waits for every thread; the owner must first tell them to end.
    void Unisci() {
        for (std::thread& t : thread_)
            if (t.joinable()) t.join();
    }

private:
    std::vector<std::thread> thread_;
};

}  // namespace combi
