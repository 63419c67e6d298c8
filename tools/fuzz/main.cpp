// Gives the program's readers broken files: fuzz [INPUTS [SEED]]
// Each input is a sound file of one kind with something changed, told by the seed and its number; children of the
// program, one a core, read it as the program would. One that dies (of a sanitizer's report, in the `asan` build) or
// takes longer than ten seconds is told with its number and its file is kept; the run then ends with status 1, and so
// it does when it hasn't come to its end after half an hour. "fuzz --only SEED NUMBER" reads one input again.
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "files/wholefiles.h"
#include "fuzz/readers.h"

namespace {

namespace fs = std::filesystem;
using namespace tarvane::fuzz;
using SteadyClock = std::chrono::steady_clock;

constexpr auto longestinput = std::chrono::seconds(10);
constexpr auto longestrun = std::chrono::minutes(30);
constexpr unsigned long defaultinputs = 200000;

struct Run {
    std::uint64_t seed = 0;
    std::uint64_t inputs = 0;
    std::string area;  ///< bytes of the area that ships
    fs::path folder;
};

const Kind& kindof(std::uint64_t number) {
    return kinds()[number % kinds().size()];
}

/// Makes input `number` and reads it, in a folder that is furnished anew.
void readone(const Run& run, std::uint64_t number, const fs::path& folder) {
    furnish(folder, run.area);
    std::seed_seq seeds{run.seed, number};
    Random random(seeds);
    const Kind& kind = kindof(number);
    std::ofstream(folder / kind.filename, std::ios::binary) << kind.mutate(kind.sample(run.area), random);
    kind.read(folder, random);
}

fs::path childfolder(const Run& run, unsigned child) {
    const fs::path folder = run.folder / std::to_string(child);
    fs::create_directories(folder / "TarvaneTides" / "UserDepths");
    return folder;
}

/// One reader of every `children`th input, and what its parent sees of it.
struct Child {
    pid_t pid = -1;
    std::uint64_t seen = 0;
    SteadyClock::time_point since = SteadyClock::now();
    bool finished = false;
};

class Watch {
  public:
    Watch(const Run& of, unsigned count)
        : run(of),
          children(count),
          inhand(static_cast<std::atomic<std::uint64_t>*>(::mmap(nullptr, count * sizeof(std::atomic<std::uint64_t>),
                                                                 PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1,
                                                                 0))) {}

    /// The exit status: 0 when every input was read.
    int watch() {
        const auto start = SteadyClock::now();
        for (unsigned i = 0; i < children.size(); ++i)
            begin(i);
        while (!fault &&
               !std::all_of(children.begin(), children.end(), [](const Child& each) { return each.finished; })) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            for (unsigned i = 0; i < children.size(); ++i)
                look(i);
            if (SteadyClock::now() - start > longestrun) tell("the run took longer than half an hour", 0);
        }
        for (const Child& child : children)
            if (!child.finished) ::kill(child.pid, SIGKILL);
        const double seconds = std::chrono::duration<double>(SteadyClock::now() - start).count();
        std::printf("%llu inputs of %zu kinds, seed %llu, %.0f s on %zu processes: %s\n",
                    static_cast<unsigned long long>(run.inputs), kinds().size(),
                    static_cast<unsigned long long>(run.seed), seconds, children.size(),
                    fault ? "stopped at a fault" : "no report, no hang");
        return fault ? 1 : 0;
    }

  private:
    void begin(unsigned index) {
        const fs::path folder = childfolder(run, index);
        inhand[index] = index;
        children[index].pid = ::fork();
        if (children[index].pid != 0) return;
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        for (std::uint64_t number = index; number < run.inputs; number += children.size()) {
            inhand[index] = number;
            readone(run, number, folder);
        }
        std::exit(0);
    }

    void look(unsigned index) {
        Child& child = children[index];
        if (child.finished) return;
        const std::uint64_t number = inhand[index];
        if (number != child.seen) {
            child.seen = number;
            child.since = SteadyClock::now();
        }
        int status = 0;
        if (::waitpid(child.pid, &status, WNOHANG) == child.pid) {
            child.finished = true;
            if (status != 0) keep(index, "died");
        } else if (SteadyClock::now() - child.since > longestinput) {
            keep(index, "did not end");
        }
    }

    void keep(unsigned index, const char* what) {
        const std::uint64_t number = inhand[index];
        const Kind& kind = kindof(number);
        tell(std::string("the reader of ") + kind.name + " " + what + "; its file is " +
                 (childfolder(run, index) / kind.filename).string(),
             number);
    }

    void tell(const std::string& what, std::uint64_t number) {
        fault = true;
        std::fprintf(stderr, "fuzz: %s (fuzz --only %llu %llu)\n", what.c_str(),
                     static_cast<unsigned long long>(run.seed), static_cast<unsigned long long>(number));
    }

    const Run& run;
    std::vector<Child> children;
    std::atomic<std::uint64_t>* inhand;
    bool fault = false;
};

std::string areathatships() {
    const fs::path beside = fs::read_symlink("/proc/self/exe").parent_path() / "UK.hc";
    return tarvane::wholetext(beside);
}

std::uint64_t numberof(const char* text) {
    return std::strtoull(text, nullptr, 10);
}

}  // namespace

int main(int argc, char** argv) {
    const bool only = argc == 4 && argv[1] == std::string("--only");
    if (argc > 3 && !only) {
        std::fprintf(stderr, "usage: fuzz [INPUTS [SEED]]\n       fuzz --only SEED NUMBER\n");
        return 2;
    }
    const fs::path memory = "/dev/shm";
    std::string made = ((fs::exists(memory) ? memory : fs::temp_directory_path()) / "fuzz-XXXXXX").string();
    const std::string area = areathatships();
    if (area.empty() || !::mkdtemp(made.data())) {
        std::fprintf(stderr, "fuzz: UK.hc is not beside this program, or no folder can be made\n");
        return 2;
    }
    Run run{std::random_device{}(), defaultinputs, area, made};
    int status = 0;
    if (only) {
        run.seed = numberof(argv[2]);
        readone(run, numberof(argv[3]), childfolder(run, 0));
    } else {
        if (argc > 1) run.inputs = numberof(argv[1]);
        if (argc > 2) run.seed = numberof(argv[2]);
        status = Watch(run, std::max(1U, std::thread::hardware_concurrency())).watch();
    }
    if (status == 0) fs::remove_all(run.folder);
    return status;
}
