// Kills a program that edits a sea area, and looks at what it leaves: killtrial [KILLS [AREA.hc]]
// A writer of this program's own edits a copy of the area, its depths, a file of heights, diamonds and the settings,
// exports and prints in a loop and is killed at a random moment; every file must then be whole, as it was before the
// edit in hand or as it is after it, and the copy beside the area the area as the writer found it. Its status is 1 when
// one isn't.
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "killtrial/states.h"
#include "killtrial/writer.h"

namespace {

namespace fs = std::filesystem;
using namespace tarvane::killtrial;

constexpr int longestwait = 60000;  // microseconds between the writer's start and its end

struct Tally {
    int kills = 0, within = 0, finishednone = 0, halfwritten = 0, violations = 0;
    int edits = 0, taken = 0;
};

class Trial {
  public:
    Trial(const fs::path& in, unsigned seed) : folder(in), generator(seed) {}

    void killone() {
        fs::remove(folder / logname);
        std::map<std::string, State> before;
        for (const char* name : {areaname, areabackup, scratchname, depthsname, depthsbackup, heightsname, configname,
                                 diamondsname, diamondsbackup, exportname})
            before[name] = stateoffile(folder / name);
        const int wait = std::uniform_int_distribution<int>(0, longestwait)(generator);
        if (!startandkill(wait)) return fault("the writer ended before it was killed");
        ++tally.kills;
        look(before);
    }

    const Tally& result() const { return tally; }

  private:
    void fault(const std::string& what) {
        ++tally.violations;
        std::printf("kill %d: %s\n", tally.kills, what.c_str());
    }

    /// False if there was no writer any more to kill.
    bool startandkill(int microseconds) {
        const std::string seed = std::to_string(generator());
        const pid_t trial = ::getpid();
        const pid_t writer = ::fork();
        if (writer == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            if (::getppid() != trial) ::_exit(1);
            ::execl("/proc/self/exe", "killtrial", "--write", folder.c_str(), seed.c_str(), nullptr);
            ::_exit(1);
        }
        if (writer < 0) return false;
        for (int i = 0; i < 1000 && !fs::exists(folder / logname); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
        ::kill(writer, SIGKILL);
        int status = 0;
        ::waitpid(writer, &status, 0);
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }

    void look(const std::map<std::string, State>& before) {
        const Log log = readlog(folder / logname);
        std::map<std::string, State> wanted = before;
        for (const auto& [file, state] : log.states)
            wanted[file] = state;
        tally.edits += log.finished;
        if (log.finished == 0) ++tally.finishednone;
        if (!log.inhand.empty()) ++tally.within;
        bool earlier = true;  // the files of an edit change one behind another
        bool any = false;
        for (const Change& change : log.inhand) {
            wanted.try_emplace(change.file, missingstate);
            const State now = stateoffile(folder / change.file);
            if (change.before != wanted[change.file]) fault(change.file + " was foretold from another state");
            if (now == change.after && now != change.before && !earlier) fault(change.file + " was written too early");
            if (now == change.after) wanted[change.file] = now;
            earlier = earlier && now == change.after;
            any = any || now != change.before;
        }
        if (any) ++tally.taken;
        for (const auto& [file, state] : wanted)
            if (stateoffile(folder / file) != state) fault(file + " is neither what it was nor what it should be");
        lookatbackup(areaname, areabackup, before, wanted, log);
        lookatbackup(diamondsname, diamondsbackup, before, wanted, log);
        sweep(wanted);
    }

    /// The copy of a run is made before its first change, of the file as it then was; one that wasn't there has none.
    void lookatbackup(const char* file, const char* copy, const std::map<std::string, State>& before,
                      std::map<std::string, State>& wanted, const Log& log) {
        if (before.at(file) == missingstate) return;
        const bool edited = wanted[file] != before.at(file) || log.states.contains(file);
        const State backup = stateoffile(folder / copy);
        if (backup != before.at(file) && (edited || backup != before.at(copy)))
            fault(std::string(copy) + " is not the file as it was before the run");
    }

    /// Nothing else may lie there but a new file that was not finished and the scratch file of diamonds. They are taken
    /// away, and so are the pages.
    void sweep(const std::map<std::string, State>& known) {
        std::vector<fs::path> goes;
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            const std::string name = fs::relative(entry.path(), folder), bare = entry.path().filename();
            const bool page = name.ends_with(".pdf") && known.contains(name);
            if (entry.is_directory() || (known.contains(name) && !page) || name == logname) continue;
            goes.push_back(entry.path());
            if (bare.starts_with(".tarvane-") && bare.ends_with(".new"))
                ++tally.halfwritten;
            else if (!page && bare != diamondscratch)
                fault(name + " was left behind");
        }
        for (const fs::path& path : goes)
            fs::remove(path);
    }

    fs::path folder;
    std::mt19937 generator;
    Tally tally;
};

int run(int kills, const fs::path& area) {
    std::string made = (fs::temp_directory_path() / "killtrial-XXXXXX").string();
    if (!::mkdtemp(made.data())) {
        std::fprintf(stderr, "killtrial: no folder can be made in %s\n", fs::temp_directory_path().c_str());
        return 2;
    }
    const fs::path folder = made;
    std::error_code error;
    fs::create_directory(folder / "TarvaneTides");
    fs::copy_file(area, folder / areaname, error);
    if (error) {
        std::fprintf(stderr, "killtrial: %s can't be copied\n", area.c_str());
        fs::remove_all(folder);
        return 2;
    }
    const unsigned seed = std::random_device{}();
    Trial trial(folder, seed);
    for (int i = 0; i < kills; ++i)
        trial.killone();
    const Tally& tally = trial.result();
    std::printf(
        "%d kills over %d finished edits: %d within an edit (%d of them with a file changed already, %d with a new "
        "file half written), %d before the first was finished; %d violations\n",
        tally.kills, tally.edits, tally.within, tally.taken, tally.halfwritten, tally.finishednone, tally.violations);
    if (tally.violations == 0)
        fs::remove_all(folder);
    else
        std::printf("The files are in %s\n", folder.c_str());
    return tally.violations == 0 && tally.kills == kills ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string first = argc > 1 ? argv[1] : "200";
    if (argc == 4 && first == "--write")
        return runwriter(argv[2], static_cast<unsigned>(std::strtoul(argv[3], nullptr, 10)));
    const int kills = std::atoi(first.c_str());
    if (argc > 3 || kills < 1) {
        std::fprintf(stderr, "usage: killtrial [KILLS [AREA.hc]]\n");
        return 2;
    }
    const fs::path beside = fs::read_symlink("/proc/self/exe").parent_path() / areaname;
    return run(kills, argc == 3 ? fs::path(argv[2]) : beside);
}
