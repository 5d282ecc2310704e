// Builds decks of "Title and Content" slides on the default template, first
// blank, then with title and content replaced on every slide, closes each,
// and prints wall time, CPU time, peak resident memory and time per slide.
// Each case runs in a child process of its own, so that its peak memory is
// its own.
//
//   bench_engine [slides...]        default: 1000 10000
//
// The build tree is taken as the host's root; another one can be given in
// DECKFORGE_ROOT.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

#include "engine/presentation.h"
#include "nodes/content_placeholder.h"
#include "platform/host_services.h"

namespace {

using namespace deckforge;

double cpuSeconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

struct Clock {
    std::chrono::steady_clock::time_point wall = std::chrono::steady_clock::now();
    double cpu = cpuSeconds();
    double wallSince() const {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - wall).count();
    }
    double cpuSince() const { return cpuSeconds() - cpu; }
};

void runCase(std::filesystem::path const& out, unsigned long slides, bool filled) {
    Clock total;
    ppt::Presentation presentation(out.u16string());
    presentation.open();
    Clock build;
    for (unsigned long i = 0; i < slides; ++i) {
        ppt::Slide slide = presentation.add(u"Title and Content");
        if (!filled) continue;
        u16string const n = num2str(static_cast<unsigned int>(i + 1));
        slide.replace(u"Title", u"Slide " + n);
        slide.replace(u"Content", u"Point " + n);
    }
    double const buildWall = build.wallSince();
    Clock close;
    presentation.close();
    double const closeWall = close.wallSince();
    double const wall = total.wallSince();
    double const cpu = total.cpuSince();

    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf(
        "%-7s %6lu slides  wall %7.2f s  cpu %7.2f s  peak RSS %7.1f MiB  "
        "%6.3f ms/slide  (add %.3f, close %.3f ms/slide)  %.1f MiB file\n",
        filled ? "filled" : "blank", slides, wall, cpu, static_cast<double>(usage.ru_maxrss) / 1024.0,
        1000.0 * wall / static_cast<double>(slides), 1000.0 * buildWall / static_cast<double>(slides),
        1000.0 * closeWall / static_cast<double>(slides),
        static_cast<double>(std::filesystem::file_size(out)) / (1024.0 * 1024.0));
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<unsigned long> counts;
    for (int i = 1; i < argc; ++i) counts.push_back(std::strtoul(argv[i], nullptr, 10));
    if (counts.empty()) counts = {1000, 10000};

    char const* root = std::getenv("DECKFORGE_ROOT");
    std::string const rootDir = root ? root : DECKFORGE_BINARY_DIR;
    std::filesystem::path const scratch =
        std::filesystem::temp_directory_path() / ("deckforge-bench-" + std::to_string(getpid()));
    std::filesystem::create_directories(scratch);

    int failures = 0;
    for (unsigned long slides : counts) {
        for (bool filled : {false, true}) {
            std::filesystem::path const out =
                scratch / ((filled ? "filled-" : "blank-") + std::to_string(slides) + ".pptx");
            pid_t const child = fork();
            if (child == 0) {
                try {
                    host::setQuorixRoot(toString(rootDir));
                    runCase(out, slides, filled);
                    std::_Exit(0);
                } catch (std::exception const& e) {
                    std::fprintf(stderr, "bench_engine: %s\n", e.what());
                }
                std::_Exit(1);
            }
            int status = 0;
            waitpid(child, &status, 0);
            if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) ++failures;
        }
    }
    if (!std::getenv("DECKFORGE_BENCH_KEEP"))
        std::filesystem::remove_all(scratch);
    else
        std::printf("decks kept in %s\n", scratch.c_str());
    return failures == 0 ? 0 : 1;
}
